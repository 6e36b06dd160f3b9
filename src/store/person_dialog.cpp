#include "store/person_dialog.h"

#include "base/text.h"

namespace ordex {
namespace {

constexpr int kNormalHeight = 4200;
constexpr int kMissingPersonHeight = 1380;
constexpr std::string_view kEmailLabel = "E-mail :  ";
constexpr std::string_view kLineBreak = "\r\n";
// It does not describe the Yes button; both carry it as it stands.
constexpr std::string_view kButtonsToolTip =
    "I dati di OrdexWeb non saranno importati in Quorvin. Il programma verrà chiuso";

// The columns of a registry row that the card is made of, as texts; an absent value is empty.
struct Person {
  explicit Person(DbRecord& record)
      : fisica(ToBool(record.Get("IsFisicaGiuridica"))),
        sesso(ToText(record.Get("Sesso"))),
        cognome(ToText(record.Get("Cognome"))),
        nome(ToText(record.Get("Nome"))),
        luogoNascita(ToText(record.Get("LuogoNascita"))),
        dataNascita(ToText(record.Get("DataNascita"))),
        cittaRes(ToText(record.Get("CittaRes"))),
        indirizzoRes(ToText(record.Get("IndirizzoRes"))),
        numCivicoRes(ToText(record.Get("NumCivicoRes"))),
        partitaIva(ToText(record.Get("PartitaIva"))),
        codiceFiscale(ToText(record.Get("CodiceFiscale"))),
        numeroTel(ToText(record.Get("NumeroTel"))),
        numeroFax(ToText(record.Get("NumeroFax"))),
        email(ToText(record.Get("Email"))) {}

  bool fisica;
  std::string sesso;
  std::string cognome;
  std::string nome;
  std::string luogoNascita;
  std::string dataNascita;
  std::string cittaRes;
  std::string indirizzoRes;
  std::string numCivicoRes;
  std::string partitaIva;
  std::string codiceFiscale;
  std::string numeroTel;
  std::string numeroFax;
  std::string email;
};

// `label` and `value` behind `before`, or nothing where there is no value.
void AppendIf(std::string& text, std::string_view before, std::string_view label,
              const std::string& value) {
  if (!value.empty()) text.append(before).append(label).append(value);
}

std::string Heading(const Person& person) {
  return Upper(person.cognome) + "  " + Upper(person.nome) + std::string(kLineBreak);
}

void AppendBirth(std::string& text, const Person& person) {
  if (!person.fisica || (person.luogoNascita.empty() && person.dataNascita.empty())) return;
  text.append(kLineBreak).append(person.sesso == "M" ? "nato " : "nata ");
  AppendIf(text, "", "in ", person.luogoNascita);
  AppendIf(text, "", " il ", person.dataNascita);
}

void AppendResidence(std::string& text, const Person& person) {
  if (person.cittaRes.empty()) return;
  AppendIf(text, kLineBreak, person.fisica ? "residente in " : "con sede in ", person.cittaRes);
  if (person.indirizzoRes.empty()) return;
  AppendIf(text, kLineBreak, "", person.indirizzoRes);
  AppendIf(text, "", " n. ", person.numCivicoRes);
}

std::string CardText(const Person& person) {
  std::string text = Heading(person);
  AppendBirth(text, person);
  AppendResidence(text, person);
  if (person.fisica) {
    AppendIf(text, kLineBreak, "C.F. :  ", person.codiceFiscale);
  } else {
    AppendIf(text, kLineBreak, "P.I. :  ", person.partitaIva);
  }
  AppendIf(text, "\r\n\r\n", "Tel :  ", person.numeroTel);
  AppendIf(text, kLineBreak, "Fax :  ", person.numeroFax);
  return text;
}

// Whether a byte stands for itself in a mailto link. What could bring further arguments along, for
// the mail program or for the system that starts it, is written as a percent escape; letters of
// every alphabet and the semicolon between two addresses stay.
bool IsPlainInLink(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code > ' ' && code != 0x7F &&
         std::string_view("?&#%=\"<>\\^`{|}()").find(byte) == std::string_view::npos;
}

std::string LinkText(std::string_view text) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string escaped;
  for (const char byte : text) {
    if (IsPlainInLink(byte)) {
      escaped.push_back(byte);
    } else {
      const auto code = static_cast<unsigned char>(byte);
      escaped.append({'%', kHex[code >> 4U], kHex[code & 15U]});
    }
  }
  return escaped;
}

}  // namespace

PersonDialog::PersonDialog(PersonCard& card, bool& bCollegareAna, Dialogs& dialogs,
                           Desktop& desktop, MessageBoxes& boxes)
    : card_(card),
      bCollegareAna_(bCollegareAna),
      dialogs_(dialogs),
      desktop_(desktop),
      boxes_(boxes) {}

void PersonDialog::ValorizzaInfo(DbRecord& record, CardMode mode) {
  bCollegareAna_ = false;
  card_ = PersonCard{};
  card_.height = kNormalHeight;
  card_.cmdSi.toolTip = kButtonsToolTip;
  card_.cmdNo.toolTip = kButtonsToolTip;
  card_.questionVisible = mode == CardMode::kWithQuestion;
  const Person person(record);
  if (Contains(Heading(person), "NULLO")) {
    card_.lblInfo = "ANAGRAFICA INESISTENTE";
    card_.height = kMissingPersonHeight;
  } else {
    card_.lblInfo = CardText(person);
    if (!person.email.empty()) {
      card_.Label1 = kEmailLabel;
      card_.lblInfo2 = person.email;
      card_.lblInfo2Pointer = Pointer::kHand;
    }
  }
  if (mode == CardMode::kWithQuestion) {
    card_.lblDomanda = "Sono stati trovati dati anagrafici corrispondenti a " + person.cognome +
                       " " + person.nome + "." + std::string(kLineBreak) +
                       "Collegare il cliente a questi dati ?";
  }
}

void PersonDialog::ShowModal() {
  card_.open = true;
  dialogs_.ShowPersonCard();
  card_.open = false;
}

void PersonDialog::cmdSi_Click() {
  bCollegareAna_ = true;
  Close();
}

void PersonDialog::cmdNo_Click() {
  bCollegareAna_ = false;
  Close();
}

void PersonDialog::Close() {
  card_.open = false;
}

void PersonDialog::lblInfo2_Click() {
  if (card_.lblInfo2.empty()) return;
  if (!InviaEmail(ReplaceAll(card_.lblInfo2, kEmailLabel, ""), "", "")) {
    boxes_.Show({"Impossibile aprire e-mail !"});
  }
}

bool PersonDialog::InviaEmail(std::string_view address, std::string_view subject,
                              std::string_view body) {
  std::string link = "mailto:" + LinkText(address);
  if (!subject.empty()) link.append("?subject=").append(LinkText(subject));
  if (!body.empty())
    link.append(subject.empty() ? "?" : "&").append("body=").append(LinkText(body));
  return desktop_.Open(link);
}

}  // namespace ordex
