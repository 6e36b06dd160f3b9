// The imports that are run again and again while the database refuses one statement after the
// other, and what each statement is worth: worked out from what the routines' handlers have to do.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "support/whole_import.h"

namespace ordex::testing {

// How an import ends for the user.
enum class Ending {
  kDone,       // the closing message; the program ends, but for the agenda, whose window stays
  kReport,     // the stop box of an error that nothing traps; the program ends
  kSilent,     // an update that fails: the program ends without a word
  kAskedAgain  // a create that fails: the question whether to create a case comes again
};

// Statements in a row that are worth the same when one of them fails alone.
struct Stretch {
  std::size_t count = 0;
  std::string first;  // how the first of them begins
  Ending ending = Ending::kDone;
  std::vector<std::string> written;  // the rows added or changed all the same, by their labels
  bool personError = false;          // the search in the registry has shown its error in a box
};

struct WholeImport {
  std::string name;
  ImportScript script;
  std::vector<Stretch> stretches;    // all statements of an import that nothing disturbs, in order
  std::vector<std::string> written;  // what that import writes
  std::vector<std::string> boxes;    // the titles of its boxes
  // What is written ahead of the transaction, and stays where that one is lost.
  std::vector<std::string> ahead = {};
  bool creates = false;
};

std::vector<WholeImport> WholeImports();

}  // namespace ordex::testing
