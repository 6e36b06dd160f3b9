#include "app/intake.h"

#include <fstream>
#include <system_error>
#include <utility>

#include "base/error.h"
#include "base/path_text.h"
#include "base/text.h"
#include "parse/recognition.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kHistoryMark = "Storico del fascicolo";
constexpr std::size_t kLongestLineShown = 300;  // characters

// The text without its tabs, which on a history page are blanks, written as it is read: a large
// page is not held once more.
void WritePage(std::string_view text, std::ofstream& out) {
  const std::string_view tab = Contains(text, kHistoryMark) ? " " : "";
  while (const auto halves = SplitOnce(text, "\t")) {
    out << halves->left << tab;
    text = halves->right;
  }
  out << text;
}

RunTimeError WriteError(const fs::path& file) {
  return MakeError(
      ErrorNumber::kFileAccess,
      "impossibile scrivere il file della pagina \"" + TextOf(file) +
          "\". Controllare i diritti sulla cartella del programma e lo spazio su disco.");
}

void AllowOwnerOnly(const fs::path& file) {
  std::error_code ignored;
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write, ignored);
}

}  // namespace

PageFileOnDisk::PageFileOnDisk(const fs::path& programFolder, std::string_view szNameTxt)
    : path_(PageFile(programFolder, szNameTxt)) {}

PageFileOnDisk::~PageFileOnDisk() {
  std::error_code ignored;
  // A folder of that name is not ours.
  if (present_ && !fs::is_directory(path_, ignored)) fs::remove(path_, ignored);
}

void PageFileOnDisk::Delete() {
  std::error_code failure;
  fs::remove(path_, failure);
  if (failure) {
    throw MakeError(ErrorNumber::kFileAccess,
                    "impossibile eliminare il file della pagina \"" + TextOf(path_) + "\"");
  }
  present_ = false;
}

void TxtfromClipboard(const fs::path& programFolder, std::string_view szNameTxt,
                      const Clipboard& clipboard) {
  const std::string text = ClipboardText(clipboard);
  const fs::path file = PageFile(programFolder, szNameTxt);
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  if (!out.is_open()) throw WriteError(file);
  // The rights are narrowed while the file is still empty.
  AllowOwnerOnly(file);
  out << '"';
  WritePage(text, out);
  out << "\"\r\n";
  out.close();
  if (!out) throw WriteError(file);
}

BoxText ImportStopBox(const ImportStop& stop) {
  const std::string cause =
      "Errore " + std::to_string(stop.error.number()) + ": " + stop.error.description();
  std::string text;
  if (stop.inPage) {
    text = "L'importazione della pagina si è fermata alla riga " + std::to_string(stop.line) +
           ":\r\n\"" + std::string(Left(stop.lineText, kLongestLineShown)) + "\"\r\n\r\n" + cause +
           "\r\n\r\nI dati letti fino a qui restano nell'elenco. Prima di registrarli copiare di "
           "nuovo la pagina intera oppure correggere i file di mappatura.";
  } else {
    text = "L'importazione della pagina si è fermata.\r\n\r\n" + cause;
  }
  return {std::move(text), std::string(kBoxTitle), BoxIcon::kWarning, BoxButtons::kOk};
}

}  // namespace ordex
