// What the rules of a page kind have in common.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "base/keyed_table.h"
#include "base/parts.h"
#include "parse/import.h"
#include "parse/page_reader.h"

namespace ordex {

// What a page kind's rules work with.
struct RulesContext {
  const Mappings& mappings;
  Page& page;
  HistoryPaging& paging;
  ImportSink& sink;
  PageReader& reader;
};

enum class AfterLine { kReadOn, kStop };

class PageRules {
 public:
  virtual ~PageRules() = default;
  // Works on one line, trimmed.
  virtual AfterLine Apply(PageLine szRiga) = 0;
};

std::unique_ptr<PageRules> MakeProfileRules(const RulesContext& context);
std::unique_ptr<PageRules> MakeHistoryRules(const RulesContext& context);
std::unique_ptr<PageRules> MakeAgendaRules(const RulesContext& context);
std::unique_ptr<PageRules> MakeJusticeOfThePeaceRules(const RulesContext& context);

// A delimiter text of "MapDelimitatori.txt", looked up when it is first asked for: a key that the
// file lacks is an error at the first line that needs it, and none on a page that does not.
class Delimiter {
 public:
  Delimiter(const KeyedTable& cDelimitatori, std::string_view key)
      : cDelimitatori_(cDelimitatori), key_(key) {}

  // Error: missing key.
  std::string_view text() const {
    if (!text_) text_ = Find();
    return *text_;
  }

 private:
  std::string_view Find() const;

  const KeyedTable& cDelimitatori_;
  std::string_view key_;
  mutable std::optional<std::string_view> text_;
};

// A delimiter text that few lines of a page hold. It is searched for in the page as a whole, ahead
// of the lines, so that asking of each line whether it holds the text costs next to nothing.
class Landmark {
 public:
  Landmark(const KeyedTable& cDelimitatori, std::string_view key, std::string_view page)
      : delimiter_(cDelimitatori, key), page_(page) {}

  // Error: missing key.
  std::string_view text() const { return delimiter_.text(); }
  // Whether `line`, a part of the page, holds the text. Error: missing key.
  bool In(std::string_view line);

 private:
  Delimiter delimiter_;
  std::string_view page_;
  // The text's first place at or behind `searchedFrom_`.
  std::size_t searchedFrom_ = std::string_view::npos;
  std::size_t next_ = 0;
};

// The part of a cut line at `index`, counted from 0. Error: subscript, where the line has fewer.
std::string_view Part(const Parts& parts, std::size_t index);

// The database field that a label fills. Error: missing key, naming "MapCampi.txt".
const std::string& FieldOf(const KeyedTable& cOrdexMap, std::string_view label);

// Stores a page value under its database field. A field that has one already gets both, joined by
// "; " and a line break.
void StoreValue(KeyedTable& cDatiFasc, const std::string& NomeDb, std::string_view value);

}  // namespace ordex
