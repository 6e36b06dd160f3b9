// The terminal of Windows: its keyboard gives UTF-16, and its output stands at an old code page.
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <cstdio>
#include <iostream>
#include <streambuf>

#include "ui/console/terminal.h"
#include "ui/windows/wide_text.h"

namespace ordex::console {
namespace {

constexpr std::size_t kBufferSize = 8192;  // bytes

bool IsConsole(DWORD stream) {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(stream), &mode) != 0;
}

// The console's keyboard. Read as bytes it would give letters of the old code page only.
class ConsoleKeyboard : public std::streambuf {
 protected:
  int_type underflow() override {
    constexpr wchar_t kEndOfInput = L'\x1A';  // Ctrl+Z at the beginning of a line
    std::array<wchar_t, 1024> units{};
    DWORD count = 0;
    const bool read = ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), units.data(),
                                   static_cast<DWORD>(units.size()), &count, nullptr) != 0;
    if (!read || count == 0 || (atLineStart_ && units[0] == kEndOfInput)) return traits_type::eof();
    wide_.append(units.data(), count);
    atLineStart_ = wide_.back() == L'\n';
    TakeWhole();
    if (text_.empty()) return underflow();
    setg(text_.data(), text_.data(), text_.data() + text_.size());
    return traits_type::to_int_type(text_.front());
  }

 private:
  // Leaves the first half of a pair behind, where the second is still to come.
  void TakeWhole() {
    const bool halved = IS_HIGH_SURROGATE(wide_.back());
    const std::wstring rest = halved ? wide_.substr(wide_.size() - 1) : std::wstring();
    if (halved) wide_.pop_back();
    text_ = Utf8(wide_);
    wide_ = rest;
  }

  bool atLineStart_ = true;
  std::wstring wide_;
  std::string text_;
};

}  // namespace

struct StandardStreams::Parts {
  UINT outputPage = GetConsoleOutputCP();
  ConsoleKeyboard keyboard;
  std::istream typed{&keyboard};
};

StandardStreams::StandardStreams() : parts_(std::make_unique<Parts>()) {
  for (std::FILE* stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  // Unbuffered, a letter of several bytes would reach the console in pieces.
  std::setvbuf(stdout, nullptr, _IOFBF, kBufferSize);
  SetConsoleOutputCP(CP_UTF8);
  // A person sees a question before having to answer it.
  parts_->typed.tie(&std::cout);
}

StandardStreams::~StandardStreams() {
  std::cout.flush();
  if (parts_->outputPage != 0) SetConsoleOutputCP(parts_->outputPage);
}

std::istream& StandardStreams::in() {
  return IsConsole(STD_INPUT_HANDLE) ? parts_->typed : std::cin;
}

bool PersonAtTerminal() {
  return IsConsole(STD_INPUT_HANDLE);
}

std::size_t TerminalWidth() {
  constexpr std::size_t kUsualWidth = 100;
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info) == 0) return kUsualWidth;
  const int width = info.srWindow.Right - info.srWindow.Left + 1;
  return width > 0 ? static_cast<std::size_t>(width) : kUsualWidth;
}

}  // namespace ordex::console
