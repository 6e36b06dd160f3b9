// Waiting for what another program is about to do.
#pragma once

#include <windows.h>

#include <functional>

namespace ordex::window_tests {

// The machine may be busy; whoever comes to the end of this has failed.
inline constexpr DWORD kLimit = 60'000;  // milliseconds
inline constexpr DWORD kStep = 20;

// Other programs may wait for an answer of ours: a DDE conversation begins with a message to all
// windows, also to the hidden ones that the system keeps for our own conversations.
inline void AnswerMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
}

// True as soon as the condition holds, false where it never does.
inline bool WaitFor(const std::function<bool()>& condition) {
  for (DWORD waited = 0; waited < kLimit; waited += kStep) {
    if (condition()) return true;
    AnswerMessages();
    Sleep(kStep);
  }
  return condition();
}

}  // namespace ordex::window_tests
