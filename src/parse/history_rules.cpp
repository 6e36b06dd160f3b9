// The rules of the case-file history page.
#include <array>
#include <string>
#include <string_view>

#include "base/text.h"
#include "parse/page_rules.h"

namespace ordex {
namespace {

class HistoryRules : public PageRules {
 public:
  explicit HistoryRules(const RulesContext& context)
      : paging_(context.paging),
        sink_(context.sink),
        reader_(context.reader),
        headers_{Delimiter(context.mappings.cDelimitatori, "DELSF1"),
                 Delimiter(context.mappings.cDelimitatori, "DELSF8"),
                 Delimiter(context.mappings.cDelimitatori, "DELSF9"),
                 Delimiter(context.mappings.cDelimitatori, "DELSF10")},
        column_(context.mappings.cDelimitatori, "DELSF2"),
        noEvent_(context.mappings.cDelimitatori, "DELSF3", context.reader.text()),
        pageReference_(std::to_string(paging_.iPaginaStorico) + "/" +
                       std::to_string(paging_.iTotPagineStorico)) {}

  AfterLine Apply(PageLine szRiga) override {
    // A page that was taken already in this run yields no rows.
    if (!paging_.bPaginaNuova) return AfterLine::kStop;
    if (IsHeader(szRiga.text)) {
      reader_.Taken(szRiga, "intestazione");
      // The line behind the header is an event, and is not trimmed.
      szRiga = reader_.Next();
      bAttesaIntestazione_ = false;
    }
    if (!bAttesaIntestazione_ && !ShorterThan(szRiga.text, 2) && !noEvent_.In(szRiga.text)) {
      TakeEvent(szRiga);
    }
    return AfterLine::kReadOn;
  }

 private:
  bool IsHeader(std::string_view line) const {
    bool header = false;
    // All four are asked for: one that the mapping file lacks is an error at the first line.
    for (const Delimiter& text : headers_) header = line == text.text() || header;
    return header;
  }

  void TakeEvent(const PageLine& szRiga) {
    reader_.Taken(szRiga, "evento");
    const auto parts = Split(Halved(szRiga.text), column_.text(), 3);
    // The last part is asked for first, so that an error names how many are needed.
    const std::string_view description = Part(parts, 2);
    sink_.WriteListView(Trim(parts[0]), Trim(parts[1]), Trim(description), pageReference_, "");
    paging_.bStoricoVuoto = false;
  }

  // The line with one blank for every two; valid until the next one.
  std::string_view Halved(std::string_view line) {
    constexpr std::string_view kTwoBlanks = "  ";
    std::size_t at = OffsetOf(line, kTwoBlanks);
    if (at == std::string_view::npos) return line;
    halved_.clear();
    for (; at != std::string_view::npos; at = OffsetOf(line, kTwoBlanks)) {
      halved_.append(line.substr(0, at + 1));
      line.remove_prefix(at + kTwoBlanks.size());
    }
    return halved_.append(line);
  }

  HistoryPaging& paging_;
  ImportSink& sink_;
  PageReader& reader_;
  std::array<Delimiter, 4> headers_;
  Delimiter column_;
  Landmark noEvent_;
  std::string pageReference_;
  std::string halved_;
  bool bAttesaIntestazione_ = true;
};

}  // namespace

std::unique_ptr<PageRules> MakeHistoryRules(const RulesContext& context) {
  return std::make_unique<HistoryRules>(context);
}

}  // namespace ordex
