// The tests run beside the program: on a thread of their own, while the toolkit's thread runs its
// loop as it always does, boxes and dialogs included. What a test wants to know of a window it asks
// for on that thread.
#pragma once

#include <wx/app.h>
#include <wx/thread.h>

#include <chrono>
#include <functional>
#include <future>
#include <stdexcept>
#include <thread>

namespace ordex::desktop_tests {

// Generous, as it is reached only where a test fails: a busy machine must not fail one.
inline constexpr std::chrono::seconds kLongest{30};
inline constexpr std::chrono::milliseconds kPause{10};

// What `ask` gives when the toolkit's thread comes to it. An error that it throws is thrown here.
template <typename Ask>
auto OnMain(Ask ask) {
  if (wxIsMainThread()) return ask();
  auto task = std::make_shared<std::packaged_task<decltype(ask())()>>(std::move(ask));
  auto answer = task->get_future();
  wxTheApp->CallAfter([task] { (*task)(); });
  if (answer.wait_for(kLongest) != std::future_status::ready) {
    throw std::runtime_error("the window does not answer");
  }
  return answer.get();
}

// Leaves something for the toolkit's thread, which may stay in it for as long as a box is up.
inline void LeaveOnMain(std::function<void()> act) {
  wxTheApp->CallAfter(std::move(act));
}

// False where `condition`, asked on the toolkit's thread, has not come true in the longest time.
template <typename Condition>
bool WaitFor(Condition condition) {
  const auto deadline = std::chrono::steady_clock::now() + kLongest;
  while (!OnMain(condition)) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

// Lets everything come in that is on its way: what has been pressed, drawn and asked for later.
inline void Settle() {
  constexpr int kRounds = 5;
  for (int round = 0; round < kRounds; ++round) {
    OnMain([] {});
    std::this_thread::sleep_for(kPause);
  }
}

}  // namespace ordex::desktop_tests
