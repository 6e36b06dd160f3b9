#include "screen.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <memory>
#include <stdexcept>

namespace ordex::desktop_tests {
namespace {

struct Free {
  void operator()(unsigned char* value) const { XFree(value); }
};

// A window that is gone by the time it is asked gives an error, and the answer is that it has no
// such property.
int IgnoreError(Display* /*display*/, XErrorEvent* /*error*/) {
  return 0;
}

class Connection {
 public:
  Connection() : before_(XSetErrorHandler(IgnoreError)), display_(XOpenDisplay(nullptr)) {
    if (display_ == nullptr) throw std::runtime_error("no display");
  }
  ~Connection() {
    XCloseDisplay(display_);
    XSetErrorHandler(before_);
  }
  Connection(const Connection&) = delete;
  Connection(Connection&&) = delete;
  Connection& operator=(const Connection&) = delete;
  Connection& operator=(Connection&&) = delete;

  Window Root() const { return DefaultRootWindow(display_); }

  // The numbers or, where they are of 8 bits, the letters of a property; empty where there is none.
  std::vector<unsigned long> Numbers(Window window, const char* property) const {
    const Property read(*this, window, property);
    if (read.format != 32) return {};
    // The library hands 32 bits out as a long each.
    const auto* first = reinterpret_cast<const unsigned long*>(read.value.get());
    return {first, first + read.count};
  }
  std::string Text(Window window, const char* property) const {
    const Property read(*this, window, property);
    if (read.format != 8) return {};
    return {reinterpret_cast<const char*>(read.value.get()), read.count};
  }
  Window Focus() const {
    Window focus = None;
    int revert = 0;
    XGetInputFocus(display_, &focus, &revert);
    return focus == PointerRoot ? None : focus;
  }
  Window ParentOf(Window window) const {
    Window root = None;
    Window parent = None;
    Window* children = nullptr;
    unsigned int count = 0;
    if (XQueryTree(display_, window, &root, &parent, &children, &count) == 0) return None;
    if (children != nullptr) XFree(children);
    return parent;
  }

 private:
  struct Property {
    Property(const Connection& connection, Window window, const char* name) {
      constexpr long kMost = 4096;  // of 32 bits
      Atom type = None;
      unsigned long left = 0;
      unsigned char* bytes = nullptr;
      XGetWindowProperty(connection.display_, window, XInternAtom(connection.display_, name, False),
                         0, kMost, False, AnyPropertyType, &type, &format, &count, &left, &bytes);
      value.reset(bytes);
    }
    int format = 0;
    unsigned long count = 0;
    std::unique_ptr<unsigned char, Free> value;
  };

  XErrorHandler before_;
  Display* display_;
};

}  // namespace

std::vector<ScreenWindow> WindowsOnScreen() {
  const Connection connection;
  std::vector<ScreenWindow> windows;
  for (const Window window : connection.Numbers(connection.Root(), "_NET_CLIENT_LIST")) {
    const auto process = connection.Numbers(window, "_NET_WM_PID");
    windows.push_back({static_cast<std::int64_t>(window), connection.Text(window, "_NET_WM_NAME"),
                       process.empty() ? 0 : static_cast<long>(process[0])});
  }
  return windows;
}

bool TakesKeys(std::int64_t handle) {
  const Connection connection;
  const auto wanted = static_cast<Window>(handle);
  Window focus = connection.Focus();
  while (focus != None && focus != wanted) focus = connection.ParentOf(focus);
  return focus != None;
}

}  // namespace ordex::desktop_tests
