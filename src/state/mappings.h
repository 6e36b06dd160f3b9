// The office's three mapping files, loaded.
#pragma once

#include <filesystem>

#include "base/keyed_table.h"

namespace ordex {

struct Mappings {
  std::filesystem::path mapCampi;
  std::filesystem::path mapRestr;
  std::filesystem::path mapDelimitatori;

  KeyedTable cRestr;         // recognition texts, lower-cased, in the order of the page kinds
  KeyedTable cOrdexMap;      // database field name by the page's label
  KeyedTable cDelimitatori;  // delimiter text by symbolic key
};

}  // namespace ordex
