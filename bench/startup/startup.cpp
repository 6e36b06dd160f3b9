// How long Ordex takes from its start to a window that answers keys, on a profile page with the
// embedded database, against the least program of the toolkit. The starts alternate, so that what
// else the machine does weighs on both alike.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "virtual_display.h"
#include "workplace.h"

namespace ordex::bench {
namespace {

using Clock = std::chrono::steady_clock;
using Command = std::vector<std::string>;

constexpr std::chrono::seconds kLongest{60};
constexpr int kRounds = 15;
constexpr double kAim = 1.5;

double Milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

pid_t Spawn(Command command) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  pid_t id = -1;
  if (posix_spawnp(&id, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
    throw std::runtime_error("cannot be started: " + command[0]);
  }
  return id;
}

// What the window manager says of the display's windows, as it changes.
class Screen {
 public:
  Screen() : display_(XOpenDisplay(nullptr)) {
    if (display_ == nullptr) throw std::runtime_error("no display");
    XSelectInput(display_, DefaultRootWindow(display_), PropertyChangeMask);
  }
  ~Screen() { XCloseDisplay(display_); }
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  void AwaitActiveWindow() {
    Await([this] { return First("_NET_ACTIVE_WINDOW") != 0 && First("_NET_CLIENT_LIST") != 0; });
  }
  void AwaitNoWindow() {
    Await([this] { return First("_NET_CLIENT_LIST") == 0; });
  }
  void PressEscape() {
    const KeyCode key = XKeysymToKeycode(display_, XK_Escape);
    XTestFakeKeyEvent(display_, key, True, CurrentTime);
    XTestFakeKeyEvent(display_, key, False, CurrentTime);
    XFlush(display_);
  }

 private:
  unsigned long First(const char* property) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* value = nullptr;
    XGetWindowProperty(display_, DefaultRootWindow(display_),
                       XInternAtom(display_, property, False), 0, 1, False, AnyPropertyType, &type,
                       &format, &count, &left, &value);
    const unsigned long first = count == 0 ? 0 : *reinterpret_cast<unsigned long*>(value);
    if (value != nullptr) XFree(value);
    return first;
  }

  void Await(const std::function<bool()>& condition) {
    const auto deadline = Clock::now() + kLongest;
    while (!condition()) {
      const double left = Milliseconds(deadline - Clock::now());
      pollfd news = {ConnectionNumber(display_), POLLIN, 0};
      if (left <= 0 || (XPending(display_) == 0 && poll(&news, 1, static_cast<int>(left)) <= 0)) {
        throw std::runtime_error("the window has not come or gone in time");
      }
      while (XPending(display_) > 0) {
        XEvent event;
        XNextEvent(display_, &event);
      }
    }
  }

  Display* display_;
};

struct Times {
  std::vector<double> active;    // until the window is in front and takes keys
  std::vector<double> answered;  // until it has answered the first of them
};

// One start. Escape, the first key that it gets, closes the window.
void Measure(Screen& screen, const Command& command, Times& times) {
  const auto begin = Clock::now();
  const pid_t id = Spawn(command);
  screen.AwaitActiveWindow();
  times.active.push_back(Milliseconds(Clock::now() - begin));
  screen.PressEscape();
  screen.AwaitNoWindow();
  times.answered.push_back(Milliseconds(Clock::now() - begin));
  int status = 0;
  waitpid(id, &status, 0);
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw std::runtime_error(command[0] + " has not ended well");
  }
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

void Report(const char* what, const std::vector<double>& empty, const std::vector<double>& ordex) {
  const double ratio = Median(ordex) / Median(empty);
  std::printf("%-34s %8.1f ms %8.1f ms %7.2f   aim %.2f %s\n", what, Median(empty), Median(ordex),
              ratio, kAim, ratio <= kAim ? "kept" : "MISSED");
}

// The page stays on the clipboard for as long as the display is there.
void Copy(const std::string& page) {
  int status = 0;
  waitpid(Spawn({"xclip", "-selection", "clipboard", "-i", page}), &status, 0);
}

void Run(int rounds) {
  const desktop_tests::VirtualDisplay display;
  const sessions::Workplace office(ORDEX_SOURCE_DIR);
  const Command empty = {EMPTY_WINDOW};
  const Command ordex = {ORDEX_PROGRAM, "--dir", office.office(), "--settings", office.settings()};
  Screen screen;
  Copy(std::string(ORDEX_SOURCE_DIR) + "/samples/profilo-contratto.txt");
  Times ignored;
  Measure(screen, empty, ignored);
  Measure(screen, ordex, ignored);
  Times ofEmpty;
  Times ofOrdex;
  for (int round = 0; round < rounds; ++round) {
    const bool emptyFirst = round % 2 == 0;
    Measure(screen, emptyFirst ? empty : ordex, emptyFirst ? ofEmpty : ofOrdex);
    Measure(screen, emptyFirst ? ordex : empty, emptyFirst ? ofOrdex : ofEmpty);
  }
  std::printf("Medians of %d starts each, alternating.\n", rounds);
  std::printf("%-34s %11s %11s %7s\n", "from the start", "empty", "ordex", "ratio");
  Report("to a window that takes keys", ofEmpty.active, ofOrdex.active);
  Report("to the first key answered", ofEmpty.answered, ofOrdex.answered);
}

}  // namespace
}  // namespace ordex::bench

int main(int argc, char** argv) {
  try {
    ordex::bench::Run(argc > 1 ? std::max(1, std::atoi(argv[1])) : ordex::bench::kRounds);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
