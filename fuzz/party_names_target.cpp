// Party names: company or person, surname and first name; and the texts that they are cut with.
#include <string>

#include "base/error.h"
#include "base/text.h"
#include "cases/nominativo.h"
#include "store/party_names.h"
#include "support/input.h"

namespace ordex::fuzz {
namespace {

void CheckNames(std::string_view text) {
  const bool societa = IsSocieta(text);
  Require(!Contains(text, ".") || societa, "a dot makes a company");
  std::string nome;
  const std::string cognome = EstraiCognomi(text, nome);
  const std::string whole = ReplaceAll(Trim(text), "\"", "");
  const std::string joined = nome.empty() ? cognome : cognome + " " + nome;
  // A blank at the very end is the only one that leaves no first name behind it.
  Require(joined == whole || cognome + " " == whole, "nothing of a name is lost");
  const std::string nominativo = cognome + "," + nome;
  const std::string surname = CognomeDaNominativo(nominativo);
  Require(cognome.starts_with(surname), "the surname is what stands before the comma");
}

void CheckTexts(std::string_view text) {
  Require(CharCount(Lower(text)) == CharCount(text), "small letters keep the length");
  Require(CharCount(Upper(text)) == CharCount(text), "capitals keep the length");
  Require(Lower(Lower(text)) == Lower(text), "small letters stay small");
  for (const std::size_t count : {0U, 1U, 30U}) {
    const std::string rest(From(text, count + 1));
    Require(std::string(Left(text, count)) + (CharCount(text) > count ? rest : "") == text,
            "a text is cut between characters");
  }
  Require(IsValidUtf8(DecodeText(std::string(text))), "decoded text is valid");
  Require(EqualIgnoringCase(text, Lower(text)), "letter case is ignored");
}

}  // namespace
}  // namespace ordex::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ordex;
  using namespace ordex::fuzz;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  CheckTexts(text);
  try {
    CheckNames(text);
  } catch (const RunTimeError& error) {
    Require(error.code() == ErrorNumber::kOverflow && CharCount(text) > 32767,
            "only a text that is too long is refused");
  }
  return 0;
}
