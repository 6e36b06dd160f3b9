// The rules of the case-file profile page.
#include <optional>
#include <string>
#include <string_view>

#include "base/error.h"
#include "base/text.h"
#include "parse/page_rules.h"
#include "state/page.h"

namespace ordex {
namespace {

constexpr std::string_view kDeadlineTag = "Scadenza Termini";
constexpr std::string_view kDepositLabel = "Data dep. relaz. notarile/documentazione ipocatastale";
// The hearing labels are compared as they stand here, not through the mapping files.
constexpr std::string_view kNextHearingLabel = "Prossima udienza";
constexpr std::string_view kLastHearingLabel = "Ultima udienza";

class ProfileRules : public PageRules {
 public:
  explicit ProfileRules(const RulesContext& context)
      : cOrdexMap_(context.mappings.cOrdexMap),
        page_(context.page),
        sink_(context.sink),
        reader_(context.reader),
        delimiters_(context.mappings.cDelimitatori, context.reader.text()) {}

  AfterLine Apply(PageLine szRiga) override {
    if (delimiters_.caseNumber.In(szRiga.text)) {
      TakeCaseNumber(szRiga);
      return AfterLine::kReadOn;
    }
    if (ShorterThan(szRiga.text, 2)) return AfterLine::kReadOn;
    if (delimiters_.deadlines.In(szRiga.text)) TakeDeadlines(szRiga);
    if (delimiters_.deposit.In(szRiga.text)) szRiga = TakeDepositDate(szRiga);
    TakeField(szRiga);
    return AfterLine::kReadOn;
  }

 private:
  struct Delimiters {
    Delimiters(const KeyedTable& table, std::string_view page)
        : caseNumber(table, "DELPF1", page),
          separator(table, "DELPF2"),
          counsel(table, "DELPF3"),
          deadlines(table, "DELPF4", page),
          deposit(table, "DELPF6", page),
          plaintiff(table, "TESTO1"),
          plaintiffToo(table, "DELPF7"),
          defendant(table, "TESTO2"),
          defendantToo(table, "DELPF8"),
          furtherParty(table, "TESTO3"),
          furtherPartyToo(table, "TESTO4") {}

    Landmark caseNumber;
    Delimiter separator;
    Delimiter counsel;
    Landmark deadlines;
    Landmark deposit;
    Delimiter plaintiff;
    Delimiter plaintiffToo;
    Delimiter defendant;
    Delimiter defendantToo;
    Delimiter furtherParty;
    Delimiter furtherPartyToo;
  };

  void TakeCaseNumber(const PageLine& szRiga) {
    reader_.Taken(szRiga, "numero");
    const std::string_view delimiter = delimiters_.caseNumber.text();
    const std::string_view value = Trim(SplitOnce(szRiga.text, delimiter).value_or(Halves{}).right);
    const std::string& field = FieldOf(cOrdexMap_, delimiter);
    sink_.WriteListView(field, delimiter, value, "", "");
    page_.szNumeroRG = value;
    page_.cDatiFasc.Add(std::string(value), field);
  }

  // The line's label and value, nullopt where it has no separator.
  std::optional<Halves> Cut(std::string_view line) const {
    return SplitOnce(line, delimiters_.separator.text());
  }

  // Error: subscript, where the separator was missing.
  const Halves& LabelAndValue(const std::optional<Halves>& halves) const {
    if (!halves) {
      throw MakeError(ErrorNumber::kSubscript, "nella riga manca il separatore \"" +
                                                   std::string(delimiters_.separator.text()) +
                                                   "\" tra etichetta e valore");
    }
    return *halves;
  }

  // The lines of the block are not trimmed, so a line of blanks does not end it.
  void TakeDeadlines(const PageLine& szRiga) {
    reader_.Taken(szRiga, "scadenze");
    PageLine line = reader_.Next();
    while (!line.text.empty()) {
      reader_.Taken(line, "scadenza");
      const Halves halves = LabelAndValue(Cut(line.text));
      sink_.WriteListView("", halves.left, Trim(halves.right), "", kDeadlineTag);
      line = reader_.Next();
    }
    reader_.Taken(line, "fine scadenze");
    reader_.WorkOn(szRiga);
  }

  // Returns the line behind the block, which the rules go on with.
  PageLine TakeDepositDate(const PageLine& szRiga) {
    reader_.Taken(szRiga, "deposito");
    const PageLine line = reader_.Next();
    reader_.Taken(line, "data deposito");
    sink_.WriteListView("", kDepositLabel, Trim(LabelAndValue(Cut(line.text)).right), "", "");
    return reader_.Next();
  }

  void TakeField(const PageLine& szRiga) {
    // Not trimmed yet where a rule has read on.
    const std::string_view line = Trim(szRiga.text);
    const auto halves = Cut(line);
    const std::string_view label = Trim(halves ? halves->left : line);
    const std::string* field = cOrdexMap_.Lookup(label);
    if (field == nullptr) return;
    reader_.Taken(szRiga, "campo");
    std::string_view value = LabelAndValue(halves).right;
    TakeParty(label, value);
    std::string hearing;
    if (label == kNextHearingLabel || label == kLastHearingLabel) {
      hearing = ReplaceAll(value, "(Fascicolo)", "");
      value = hearing;
    }
    value = Trim(value);
    sink_.WriteListView(*field, label, value, "", "");
    StoreValue(page_.cDatiFasc, *field, value);
  }

  void TakeParty(std::string_view label, std::string_view value) {
    if (label == delimiters_.plaintiff.text() || label == delimiters_.plaintiffToo.text()) {
      // The plaintiff's counsel runs to the end of the line, the defendant's to the next separator.
      KeepParty(kPlaintiffKey, kPlaintiffCounselKey, Split(value, delimiters_.counsel.text(), 2));
    } else if (label == delimiters_.defendant.text() || label == delimiters_.defendantToo.text()) {
      KeepParty(kDefendantKey, kDefendantCounselKey, Split(value, delimiters_.counsel.text()));
    } else if (label == delimiters_.furtherParty.text() ||
               label == delimiters_.furtherPartyToo.text()) {
      OfferParty(Split(value, delimiters_.counsel.text()));
    }
  }

  void KeepParty(std::string_view partyKey, std::string_view counselKey, const Parts& parts) {
    page_.cDatiFasc.Add(std::string(Trim(parts[0])), partyKey);
    page_.cDatiFasc.Add(std::string(Counsel(parts)), counselKey);
    OfferParty(parts);
  }

  void OfferParty(const Parts& parts) { sink_.LoadcmbParti(Trim(parts[0]), Counsel(parts)); }

  static std::string_view Counsel(const Parts& parts) {
    return parts.size() > 1 ? Trim(parts[1]) : std::string_view{};
  }

  const KeyedTable& cOrdexMap_;
  Page& page_;
  ImportSink& sink_;
  PageReader& reader_;
  Delimiters delimiters_;
};

}  // namespace

std::unique_ptr<PageRules> MakeProfileRules(const RulesContext& context) {
  return std::make_unique<ProfileRules>(context);
}

}  // namespace ordex
