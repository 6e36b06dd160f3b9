// The rules of a justice-of-the-peace court's case page: case data, parties and history on one
// page.
#include <initializer_list>
#include <string>
#include <string_view>

#include "base/error.h"
#include "base/text.h"
#include "parse/page_rules.h"
#include "state/page.h"
#include "state/review_rows.h"

namespace ordex {
namespace {

constexpr std::string_view kHistoryHeading = "--STORICO DEL FASCICOLO--";
constexpr std::string_view kNumberField = "NumeroRegGenerale";
// What the page file itself puts behind the last line.
constexpr std::string_view kClosingQuote = "\"";

class JusticeOfThePeaceRules : public PageRules {
 public:
  explicit JusticeOfThePeaceRules(const RulesContext& context)
      : cOrdexMap_(context.mappings.cOrdexMap),
        page_(context.page),
        sink_(context.sink),
        reader_(context.reader),
        delimiters_(context.mappings.cDelimitatori, context.reader.text()) {}

  AfterLine Apply(PageLine szRiga) override {
    if (delimiters_.dataSection.In(szRiga.text)) {
      reader_.Taken(szRiga, "inizio dati");
      dataBegun_ = true;
      partiesAwaited_ = true;
    } else if (partiesAwaited_ && delimiters_.parties.In(szRiga.text)) {
      TakeParties(szRiga);
    } else {
      ApplyOrdinaryRules(szRiga);
    }
    return AfterLine::kReadOn;
  }

 private:
  struct Delimiters {
    Delimiters(const KeyedTable& table, std::string_view page)
        : separator(table, "DELGDP1"),
          dataSection(table, "DELGDP2", page),
          parties(table, "DELGDP3", page),
          dataLine(table, "DELGDP4", page),
          history(table, "DELGDP5", page),
          noEvent(table, "DELGDP6"),
          plaintiff(table, "DELGDP8"),
          defendant(table, "DELGDP9"),
          plaintiffToo(table, "DELGDP10"),
          defendantToo(table, "DELGDP11"),
          dataPiece(table, "DELGDP12"),
          pairsLine(table, "DELGDP13", page),
          pairsPiece(table, "DELGDP14"),
          pairsLineToo(table, "DELGDP15", page),
          historyColumn(table, "DELSF2") {}

    Delimiter separator;
    Landmark dataSection;
    Landmark parties;
    Landmark dataLine;
    Landmark history;
    Delimiter noEvent;
    Delimiter plaintiff;
    Delimiter defendant;
    Delimiter plaintiffToo;
    Delimiter defendantToo;
    Delimiter dataPiece;
    Landmark pairsLine;
    Delimiter pairsPiece;
    Landmark pairsLineToo;
    Delimiter historyColumn;
  };

  void ApplyOrdinaryRules(const PageLine& szRiga) {
    if (delimiters_.history.In(szRiga.text)) {
      TakeHistory(szRiga);
    } else if (delimiters_.dataLine.In(szRiga.text)) {
      TakePairs(szRiga, delimiters_.dataPiece);
    } else if (delimiters_.pairsLineToo.In(szRiga.text) || delimiters_.pairsLine.In(szRiga.text)) {
      TakePairs(szRiga, delimiters_.pairsPiece);
    } else if (dataBegun_ && !ShorterThan(szRiga.text, 2)) {
      TakeField(szRiga);
    }
  }

  // Each piece is a label and its value. Such lines count before the data section too. The line is
  // trimmed already: a separator at its end that ends in a blank is none any more, and its rest
  // stays with the last value.
  void TakePairs(const PageLine& szRiga, const Delimiter& between) {
    reader_.Taken(szRiga, "più campi");
    for (const std::string_view piece : Split(szRiga.text, between.text())) {
      if (!Trim(piece).empty()) TakePair(Trim(piece));
    }
  }

  void TakeField(const PageLine& szRiga) {
    if (TakePair(Trim(szRiga.text))) reader_.Taken(szRiga, "campo");
  }

  // Returns whether the label is one that the office maps.
  bool TakePair(std::string_view pair) {
    const auto parts = Split(pair, delimiters_.separator.text(), 2);
    const std::string_view label = Trim(parts[0]);
    const std::string* field = cOrdexMap_.Lookup(label);
    if (field == nullptr) return false;
    const std::string_view value = Trim(Part(parts, 1));
    sink_.WriteListView(*field, label, value, "", "");
    StoreValue(page_.cDatiFasc, *field, value);
    // Without it a case made from this page could never be found again.
    if (EqualIgnoringCase(*field, kNumberField)) page_.szNumeroRG = value;
    return true;
  }

  // --- the parties block ----------------------------------------------------------------------

  void TakeParties(const PageLine& szRiga) {
    reader_.Taken(szRiga, "parti");
    partiesAwaited_ = false;
    while (auto line = NextOfBlock()) {
      RequirePartyForms();
      if (TakeParty(*line, {&delimiters_.plaintiff, &delimiters_.plaintiffToo}, kPlaintiffKey,
                    kPlaintiffCounselKey) ||
          TakeParty(*line, {&delimiters_.defendant, &delimiters_.defendantToo}, kDefendantKey,
                    kDefendantCounselKey)) {
        continue;
      }
      const PageLine other{Trim(line->text), line->number};
      if (delimiters_.history.In(other.text)) {
        // The empty line that ends a history ends the block around it too.
        TakeHistory(other);
        return;
      }
      ApplyOrdinaryRules(other);
    }
  }

  // One that the mapping file lacks is an error at the block's first line, whatever that holds.
  // Error: missing key.
  void RequirePartyForms() const {
    for (const Delimiter* form : {&delimiters_.plaintiff, &delimiters_.plaintiffToo,
                                  &delimiters_.defendant, &delimiters_.defendantToo}) {
      form->text();
    }
  }

  bool TakeParty(const PageLine& line, std::initializer_list<const Delimiter*> forms,
                 std::string_view partyKey, std::string_view counselKey) {
    for (const Delimiter* form : forms) {
      const auto around = SplitOnce(line.text, form->text());
      if (!around) continue;
      reader_.Taken(line, "parte");
      KeepParty(around->right, partyKey, counselKey);
      ShowParty(form->text(), Trim(around->right));
      return true;
    }
    return false;
  }

  void ShowParty(std::string_view form, std::string_view value) {
    const std::string* field = cOrdexMap_.Lookup(form);
    sink_.WriteListView(field == nullptr ? std::string_view{} : *field, Trim(form), value, "", "");
    if (field != nullptr) StoreValue(page_.cDatiFasc, *field, value);
  }

  // The first party of a side keeps the key; every one is offered to the boxes.
  void KeepParty(std::string_view text, std::string_view partyKey, std::string_view counselKey) {
    const auto parts = Split(text, kRepresentedBy, 2);
    const std::string_view party = Trim(parts[0]);
    const std::string_view counsel = parts.size() > 1 ? Trim(parts[1]) : std::string_view{};
    if (!ItemExists(page_.cDatiFasc, partyKey)) {
      page_.cDatiFasc.Add(std::string(party), partyKey);
      page_.cDatiFasc.Add(std::string(counsel), counselKey);
    }
    sink_.LoadcmbParti(party, counsel);
  }

  // --- the history block ----------------------------------------------------------------------

  void TakeHistory(const PageLine& szRiga) {
    reader_.Taken(szRiga, "storico");
    auto line = NextOfBlock();
    // One empty line may stand behind the heading.
    if (!line && reader_.InWork().text.empty()) line = NextOfBlock();
    reader_.WorkOn(szRiga);
    sink_.WriteListView("", kHistoryHeading, "", "", "");
    for (; line; line = NextOfBlock()) {
      reader_.WorkOn(*line);
      TakeEvent(*line);
    }
  }

  void TakeEvent(const PageLine& line) {
    if (Trim(line.text) == delimiters_.noEvent.text()) {
      reader_.Taken(line, "riga saltata");
      return;
    }
    reader_.Taken(line, "evento");
    const auto parts = Split(line.text, delimiters_.historyColumn.text(), 2);
    sink_.WriteListView(kHistoryRow, Trim(parts[0]), Trim(Part(parts, 1)), "", "");
  }

  // The block's next line; nullopt at its end: an empty line, the page file's closing quote, the
  // end of the file.
  std::optional<PageLine> NextOfBlock() {
    if (reader_.AtEnd()) return std::nullopt;
    const PageLine line = reader_.Next();
    if (!line.text.empty() && line.text != kClosingQuote) return line;
    reader_.Taken(line, "fine blocco");
    return std::nullopt;
  }

  const KeyedTable& cOrdexMap_;
  Page& page_;
  ImportSink& sink_;
  PageReader& reader_;
  Delimiters delimiters_;
  bool dataBegun_ = false;
  bool partiesAwaited_ = false;
};

}  // namespace

std::unique_ptr<PageRules> MakeJusticeOfThePeaceRules(const RulesContext& context) {
  return std::make_unique<JusticeOfThePeaceRules>(context);
}

}  // namespace ordex
