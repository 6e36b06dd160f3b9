#include "parse/import.h"

#include "base/path_text.h"
#include "base/text.h"
#include "base/text_file.h"
#include "parse/history_paging.h"
#include "parse/mapping_files.h"
#include "parse/page_rules.h"

namespace ordex {
namespace {

// Page kinds that the program has no rules for are read on without doing anything.
class NoRules : public PageRules {
 public:
  AfterLine Apply(PageLine) override { return AfterLine::kReadOn; }
};

std::unique_ptr<PageRules> MakeRules(std::int16_t kind, const RulesContext& context) {
  switch (kind) {
    case kPageProfile:
      return MakeProfileRules(context);
    case kPageHistory:
      return MakeHistoryRules(context);
    case kPageAgenda:
      return MakeAgendaRules(context);
    case kPageJusticeOfThePeace:
      return MakeJusticeOfThePeaceRules(context);
    default:
      return std::make_unique<NoRules>();
  }
}

void ReadLines(PageReader& reader, PageRules& rules) {
  while (!reader.AtEnd()) {
    PageLine line = reader.Next();
    line.text = Trim(line.text);
    if (rules.Apply(line) == AfterLine::kStop) return;
  }
}

std::optional<ImportStop> ReadPage(const ImportTask& task, std::string_view text,
                                   std::int16_t kind) {
  PageReader reader(text, task.trace);
  const auto rules = MakeRules(kind, {task.mappings, task.page, task.paging, task.sink, reader});
  try {
    ReadLines(reader, *rules);
  } catch (const RunTimeError& error) {
    const PageLine& line = reader.InWork();
    return ImportStop{error, line.number, std::string(line.text), true};
  }
  return std::nullopt;
}

std::optional<ImportStop> ImportFile(const ImportTask& task, std::string_view szNameInput,
                                     std::int16_t kind) {
  try {
    LoadDelimitatori(task.mappings);
    return ReadPage(task, ReadTextFile(PageFile(task.programFolder, szNameInput)), kind);
  } catch (const FileLineError& error) {
    return ImportStop{{error.code(), error.description()}, error.line(), {}, false};
  } catch (const RunTimeError& error) {
    return ImportStop{error, 0, {}, false};
  }
}

}  // namespace

std::filesystem::path PageFile(const std::filesystem::path& programFolder,
                               std::string_view szNameInput) {
  return programFolder / PathOf(std::string(szNameInput) + ".txt");
}

std::optional<ImportStop> Import(const ImportTask& task, std::string_view szNameInput,
                                 std::int16_t iOrdexPage) {
  task.page.cDatiFasc.Clear();
  task.sink.SetWidthlstImport(iOrdexPage);
  auto stop = ImportFile(task, szNameInput, iOrdexPage);
  if (stop && iOrdexPage == kPageHistory) ForgetHistoryPage(task.paging);
  return stop;
}

}  // namespace ordex
