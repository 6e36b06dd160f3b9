#include "virtual_display.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <thread>

namespace ordex::desktop_tests {
namespace {

constexpr std::chrono::seconds kLongest{60};
constexpr std::chrono::milliseconds kPause{20};
constexpr int kCannotRun = 127;

// A program that ends with this process, however this ends.
pid_t StartBeside(std::vector<std::string> command) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  const pid_t id = fork();
  if (id != 0) return id;
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  const int nowhere = open("/dev/null", O_RDWR);
  for (const int end : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, end);
  execvp(arguments[0], arguments.data());
  _exit(kCannotRun);
}

void End(pid_t id) {
  if (id <= 0) return;
  kill(id, SIGTERM);
  waitpid(id, nullptr, 0);
}

bool HasWindowManager(Display* display) {
  const Atom property = XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False);
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long left = 0;
  unsigned char* value = nullptr;
  XGetWindowProperty(display, DefaultRootWindow(display), property, 0, 1, False, XA_WINDOW, &type,
                     &format, &count, &left, &value);
  if (value != nullptr) XFree(value);
  return count == 1;
}

}  // namespace

VirtualDisplay::VirtualDisplay() {
  PrepareHome();
  StartServer();
  StartWindowManager();
}

VirtualDisplay::~VirtualDisplay() {
  End(windowManager_);
  End(server_);
}

// What the machine's user has set up, and services that a session would bring, stay outside.
void VirtualDisplay::PrepareHome() {
  namespace fs = std::filesystem;
  const fs::path home = home_.path();
  fs::create_directories(home / "runtime");
  fs::permissions(home / "runtime", fs::perms::owner_all);
  fs::create_directories(home / ".config/gtk-3.0");
  std::ofstream(home / ".config/gtk-3.0/settings.ini")
      << "[Settings]\ngtk-enable-animations=0\ngtk-cursor-blink=0\n";
  for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "WAYLAND_DISPLAY",
                           "GDK_SCALE", "GDK_DPI_SCALE", "GTK_THEME", "GTK_MODULES", "ORDEX_DIR"}) {
    unsetenv(name);
  }
  setenv("HOME", home.c_str(), 1);
  setenv("XDG_RUNTIME_DIR", (home / "runtime").c_str(), 1);
  setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
  setenv("NO_AT_BRIDGE", "1", 1);
  setenv("GSETTINGS_BACKEND", "memory", 1);
  setenv("LC_ALL", "C.UTF-8", 1);
}

// The server itself finds a number that is free, so two that start at once never share one.
void VirtualDisplay::StartServer() {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  fcntl(ends[0], F_SETFD, FD_CLOEXEC);
  const std::string screen = std::to_string(kWidth) + "x" + std::to_string(kHeight) + "x24";
  server_ = StartBeside({"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen", "0", screen,
                         "-dpi", "96", "-nolisten", "tcp", "-noreset"});
  close(ends[1]);
  std::string number;
  for (char sign = 0; read(ends[0], &sign, 1) == 1 && sign != '\n';) number += sign;
  close(ends[0]);
  if (number.empty()) throw std::runtime_error("Xvfb has not started");
  setenv("DISPLAY", (":" + number).c_str(), 1);
}

void VirtualDisplay::StartWindowManager() {
  const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
  if (display == nullptr) throw std::runtime_error("no connection to Xvfb");
  windowManager_ = StartBeside({"openbox", "--sm-disable"});
  const auto deadline = std::chrono::steady_clock::now() + kLongest;
  while (!HasWindowManager(display.get())) {
    if (std::chrono::steady_clock::now() > deadline) {
      throw std::runtime_error("the window manager has not started");
    }
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace ordex::desktop_tests
