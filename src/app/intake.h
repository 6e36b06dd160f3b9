// The way of a page's text from the clipboard to the page file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "parse/import.h"
#include "state/ports.h"

namespace ordex {

// The page file: stands in the program folder, readable by its owner only, for as long as the
// import takes. Goes away with this object.
class PageFileOnDisk {
 public:
  PageFileOnDisk(const std::filesystem::path& programFolder, std::string_view szNameTxt);
  ~PageFileOnDisk();
  PageFileOnDisk(const PageFileOnDisk&) = delete;
  PageFileOnDisk& operator=(const PageFileOnDisk&) = delete;

  // Error: file access.
  void Delete();

 private:
  std::filesystem::path path_;
  bool present_ = true;
};

// Writes the clipboard's text into the page file of that stem, between double quotes and with a
// line end behind it; an existing file is replaced. Tabs are removed, except on a history page,
// whose columns they keep apart: there each becomes a blank. Error: file access.
void TxtfromClipboard(const std::filesystem::path& programFolder, std::string_view szNameTxt,
                      const Clipboard& clipboard);

// What the user is told of an import that stopped: where, the line itself, the cause, what to do.
BoxText ImportStopBox(const ImportStop& stop);

}  // namespace ordex
