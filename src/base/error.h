// Run-time errors: the one kind of failure that the program's routines raise.
//
// Every failure has a number (fixed, part of what users and support staff quote) and an Italian
// description that says what went wrong, where, and what to do about it.
#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace ordex {

enum class ErrorNumber : int {
  kMissingKey = 5,
  kOverflow = 6,
  kSubscript = 9,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kPastEndOfFile = 62,
  kFileAccess = 75,
  kInvalidNull = 94,
  kDuplicateKey = 457,
  kClipboardBusy = 521,
  kDatabase = -2147467259,
};

class RunTimeError : public std::exception {
 public:
  RunTimeError(ErrorNumber number, std::string description)
      : number_(number), description_(std::move(description)) {}

  int number() const { return static_cast<int>(number_); }
  ErrorNumber code() const { return number_; }
  const std::string& description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  ErrorNumber number_;
  std::string description_;
};

// An error of a text file that the office edits: names the file and its line.
class FileLineError : public RunTimeError {
 public:
  // `line` counts from 1; 0 where no line could be read at all.
  FileLineError(ErrorNumber number, std::string description, std::size_t line)
      : RunTimeError(number, std::move(description)), line_(line) {}

  std::size_t line() const { return line_; }

 private:
  std::size_t line_;
};

// The standard Italian wording of `number`, followed by ": " and `detail` where there is one.
std::string Describe(ErrorNumber number, std::string_view detail = {});

// Shorthand for the throw sites: RunTimeError(number, Describe(number, detail)).
RunTimeError MakeError(ErrorNumber number, std::string_view detail = {});

// The platform's report of an error that ends the program:
// "Errore di run-time '13': Tipo non corrispondente …".
std::string ReportText(const RunTimeError& error);

}  // namespace ordex
