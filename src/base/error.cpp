#include "base/error.h"

namespace ordex {
namespace {

std::string_view StandardWording(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::kMissingKey:
      return "Chiave non trovata";
    case ErrorNumber::kOverflow:
      return "Overflow";
    case ErrorNumber::kSubscript:
      return "Indice non incluso nell'intervallo";
    case ErrorNumber::kTypeMismatch:
      return "Tipo non corrispondente";
    case ErrorNumber::kFileNotFound:
      return "Impossibile trovare il file";
    case ErrorNumber::kPastEndOfFile:
      return "Input oltre la fine del file";
    case ErrorNumber::kFileAccess:
      return "Errore di accesso al file";
    case ErrorNumber::kInvalidNull:
      return "Utilizzo non valido di Null";
    case ErrorNumber::kDuplicateKey:
      return "Chiave già presente";
    case ErrorNumber::kClipboardBusy:
      return "Impossibile aprire gli appunti";
    case ErrorNumber::kDatabase:
      return "Errore del database";
  }
  return "Errore";
}

}  // namespace

std::string Describe(ErrorNumber number, std::string_view detail) {
  std::string text(StandardWording(number));
  if (!detail.empty()) text.append(": ").append(detail);
  return text;
}

RunTimeError MakeError(ErrorNumber number, std::string_view detail) {
  return {number, Describe(number, detail)};
}

std::string ReportText(const RunTimeError& error) {
  return "Errore di run-time '" + std::to_string(error.number()) + "': " + error.description();
}

}  // namespace ordex
