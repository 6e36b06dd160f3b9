#include <gdk/gdk.h>
#include <gtk/gtk.h>
#include <wx/utils.h>

#include <cstdlib>

#include "ui/desktop/platform.h"

#ifdef GDK_WINDOWING_X11
#include <X11/Xlib.h>
#include <gdk/gdkx.h>
#endif

namespace ordex::desktop {
namespace {

constexpr const char* kCompact =
    "button { padding: 2px 8px; min-height: 20px; }"
    "button.flat { padding: 3px 8px; }"
    "combobox button { padding: 0 6px; min-height: 22px; }"
    "entry { min-height: 24px; padding: 0 6px; }"
    "button.link { padding: 0; min-height: 0; }";

#ifdef GDK_WINDOWING_X11
// A client message asks the window manager, which alone may give a foreign window the focus.
void AskWindowManager(GdkDisplay* display, Window window) {
  Display* server = GDK_DISPLAY_XDISPLAY(display);
  XEvent event = {};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(server, "_NET_ACTIVE_WINDOW", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = 2;  // asked by the user, by way of a second start
  gdk_x11_display_error_trap_push(display);
  XRaiseWindow(server, window);
  XSendEvent(server, DefaultRootWindow(server), False,
             SubstructureRedirectMask | SubstructureNotifyMask, &event);
  XSync(server, False);
  gdk_x11_display_error_trap_pop_ignored(display);
}
#endif

void Measure(GtkWidget* widget) {
  GtkRequisition ignored;
  gtk_widget_get_preferred_size(widget, &ignored, nullptr);
  if (!GTK_IS_CONTAINER(widget)) return;
  GList* children = gtk_container_get_children(GTK_CONTAINER(widget));
  for (GList* child = children; child != nullptr; child = child->next) {
    Measure(GTK_WIDGET(child->data));
  }
  g_list_free(children);
}

}  // namespace

// A Wayland desktop lets only the program in front read the clipboard, and this one reads it before
// it has a window: there it runs through X11.
void PrepareDesktop() {
  if (std::getenv("DISPLAY") != nullptr)
    setenv("GDK_BACKEND", "x11", 0);  // NOLINT(concurrency-mt-unsafe)
}

void UseCompactControls() {
  GtkCssProvider* style = gtk_css_provider_new();
  gtk_css_provider_load_from_data(style, kCompact, -1, nullptr);
  gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(style),
                                            GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  g_object_unref(style);
}

void MakeFlat(wxWindow& button) {
  GtkWidget* widget = button.GetHandle();
  if (GTK_IS_BUTTON(widget)) gtk_button_set_relief(GTK_BUTTON(widget), GTK_RELIEF_NONE);
}

// The toolkit doubles the underscores of every label, but has a link show them both.
void SetLinkLabel(wxHyperlinkCtrl& link, const wxString& text) {
  link.SetLabel(wxControl::EscapeMnemonics(text));
  GtkWidget* widget = link.GetHandle();
  if (GTK_IS_BUTTON(widget)) gtk_button_set_use_underline(GTK_BUTTON(widget), TRUE);
}

// The mark that a widget wants a new size is passed upwards only once, and taken away where the
// widget is measured; the panels, which place their children themselves, never are. A mark left
// from a time when a panel was hidden would keep every later change below it from the window.
void SettleLayout(wxWindow& window) {
  Measure(window.GetHandle());
  gtk_widget_queue_resize(window.GetHandle());
}

std::int64_t HandleOf(const wxWindow& window) {
#ifdef GDK_WINDOWING_X11
  GtkWidget* widget = window.GetHandle();
  gtk_widget_realize(widget);
  GdkWindow* native = gtk_widget_get_window(widget);
  if (native != nullptr && GDK_IS_X11_WINDOW(native)) {
    return static_cast<std::int64_t>(gdk_x11_window_get_xid(native));
  }
#endif
  return 0;
}

void RaiseWindow(std::int64_t handle) {
#ifdef GDK_WINDOWING_X11
  GdkDisplay* display = gdk_display_get_default();
  if (handle != 0 && display != nullptr && GDK_IS_X11_DISPLAY(display)) {
    AskWindowManager(display, static_cast<Window>(handle));
  }
#endif
}

bool OpenLink(const wxString& link) {
  return wxLaunchDefaultBrowser(link);
}

}  // namespace ordex::desktop
