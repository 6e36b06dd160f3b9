// The rules of the lawyer's agenda page.
#include <string>
#include <string_view>

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "parse/page_rules.h"

namespace ordex {
namespace {

// Indents the entries under their case; part of the stored texts.
constexpr std::string_view kIndent = "    ";

class AgendaRules : public PageRules {
 public:
  explicit AgendaRules(const RulesContext& context)
      : page_(context.page),
        sink_(context.sink),
        reader_(context.reader),
        countBegin_(context.mappings.cDelimitatori, "DELAV1", context.reader.text()),
        countEnd_(context.mappings.cDelimitatori, "DELAV2", context.reader.text()),
        caseBegin_(context.mappings.cDelimitatori, "DELAV3", context.reader.text()),
        caseEnd_(context.mappings.cDelimitatori, "DELAV4", context.reader.text()),
        entries_(context.mappings.cDelimitatori, "DELAV5", context.reader.text()),
        column_(context.mappings.cDelimitatori, "DELAV6") {}

  AfterLine Apply(PageLine szRiga) override {
    if (HoldsBoth(szRiga, countBegin_, countEnd_)) {
      TakeCount(szRiga);
    } else if (HoldsBoth(szRiga, caseBegin_, caseEnd_)) {
      TakeCase(szRiga);
    } else if (entries_.In(szRiga.text)) {
      TakeEntries(szRiga);
    }
    return AfterLine::kReadOn;
  }

 private:
  // Both are asked for: one that the mapping file lacks is an error at the first line.
  static bool HoldsBoth(const PageLine& line, Landmark& one, Landmark& other) {
    const bool first = one.In(line.text);
    const bool second = other.In(line.text);
    return first && second;
  }

  void TakeCount(const PageLine& szRiga) {
    reader_.Taken(szRiga, kNumberOfEntries);
    const std::string_view behind = Part(Split(szRiga.text, countBegin_.text(), 2), 1);
    page_.iNrEventiAgenda = ToInt16(Split(behind, countEnd_.text())[0]);
  }

  void TakeCase(const PageLine& szRiga) {
    reader_.Taken(szRiga, "fascicolo");
    const auto pieces = Split(Split(szRiga.text, caseEnd_.text(), 2)[0], column_.text());
    // The last piece that is needed is asked for first, so that an error names how many are.
    const std::string_view number = Part(pieces, 2);
    sink_.AggiungiRigaAgenda(number, pieces[1], true);
  }

  // The lines of the block are not trimmed. A line that begins the next case ends it too, and is
  // handed back.
  void TakeEntries(const PageLine& szRiga) {
    reader_.Taken(szRiga, "impegni");
    PageLine line = reader_.Next();
    while (!line.text.empty() && !line.text.starts_with(caseBegin_.text())) {
      reader_.Taken(line, "impegno");
      const auto parts = Split(line.text, column_.text(), 3);
      const std::string_view description = Part(parts, 2);
      Indent(parts[1], text_);
      Indent(Trim(description), sub_);
      sink_.AggiungiRigaAgenda(text_, sub_, false);
      line = reader_.Next();
    }
    if (line.text.empty()) {
      reader_.Taken(line, "fine impegni");
    } else {
      reader_.HandBack(line);
    }
  }

  static void Indent(std::string_view text, std::string& indented) {
    indented.assign(kIndent).append(text);
  }

  Page& page_;
  ImportSink& sink_;
  PageReader& reader_;
  Landmark countBegin_;
  Landmark countEnd_;
  Landmark caseBegin_;
  Landmark caseEnd_;
  Landmark entries_;
  Delimiter column_;
  // The entry in work; members, so that the next one finds their room.
  std::string text_;
  std::string sub_;
};

}  // namespace

std::unique_ptr<PageRules> MakeAgendaRules(const RulesContext& context) {
  return std::make_unique<AgendaRules>(context);
}

}  // namespace ordex
