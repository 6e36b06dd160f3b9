// An input that is a page together with changes to the mapping files it is read by.
//
// First the changes, a line each, up to an empty line: a character that chooses a delimiter key,
// one that says what becomes of it ("=" another text, "-" no line, "2" a second line), then the
// text. With "+" the text becomes a label of the field map. Behind the empty line stands the page,
// as text; in it the bytes 1 to 4, each with a byte behind it that chooses, stand for a delimiter
// text, a label, a text that the rules know by themselves, and any byte.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/keyed_table.h"
#include "parse/delimiter_keys.h"
#include "parse/mapping_files.h"
#include "support/folder.h"

namespace ordex::fuzz {

inline constexpr std::array<std::string_view, 14> kKnownTexts = {"Prossima udienza",
                                                                 "Ultima udienza",
                                                                 "(Fascicolo)",
                                                                 "Storico del fascicolo",
                                                                 "12/03/2026 09:30",
                                                                 " rappresentato/a da ",
                                                                 "\"",
                                                                 "NumeroRegGenerale",
                                                                 "1842/2025",
                                                                 "--STORICO DEL FASCICOLO--",
                                                                 "    ",
                                                                 "32768",
                                                                 "-1",
                                                                 "\xC2\xB0"};

class PageInput {
 public:
  PageInput(Input& input, std::int16_t kind) {
    for (const DelimiterKey& key : kDelimiterKeys) {
      if (key.kind == kind) keys_.push_back(key.key);
    }
    ReadShipped();
    for (std::string_view line = input.Line(); !line.empty(); line = input.Line()) Change(line);
    TakePage(input.Rest());
  }

  // Writes the two files that the changes touch.
  void WriteMappings(const Folder& folder) const {
    folder.Write(kMapDelimitatori, delimiters_);
    folder.Write(kMapCampi, fields_);
  }

  const std::string& page() const { return page_; }

  // A page under the mapping files as shipped.
  static std::string Expanded(std::string_view page, std::int16_t kind) {
    Input none(nullptr, 0);
    PageInput input(none, kind);
    input.TakePage(page);
    return input.page();
  }

 private:
  // The shipped files without their comments: less to read for each input.
  void ReadShipped() {
    static const std::vector<MappingLine> kDelimiters =
        ReadMappingLines(std::filesystem::path(ORDEX_SOURCE_DIR) / "mapping" / kMapDelimitatori);
    static const std::vector<MappingLine> kFields =
        ReadMappingLines(std::filesystem::path(ORDEX_SOURCE_DIR) / "mapping" / kMapCampi);
    for (const MappingLine& line : kDelimiters) delimiters_.append(line.text).append("\n");
    for (const MappingLine& line : kFields) {
      fields_.append(line.text).append("\n");
      labels_.push_back(line.right);
    }
    for (const std::string_view key : keys_) {
      for (const MappingLine& line : kDelimiters) {
        if (line.right == key) texts_.push_back(line.left);
      }
    }
    Require(texts_.size() == keys_.size(), "every delimiter key has its line");
  }

  void Change(std::string_view line) {
    Input change(reinterpret_cast<const std::uint8_t*>(line.data()), line.size());
    const std::size_t place = change.Choice(keys_.size());
    const unsigned char what = change.Byte();
    const std::string text(change.Rest());
    if (what == '+') {
      labels_.push_back(text);
      fields_.append("Oggetto=").append(text).append("\n");
      return;
    }
    const std::string tail = "=" + std::string(keys_[place]) + "\n";
    const std::string old = texts_[place] + tail;
    const std::size_t at = delimiters_.find(old);
    if (at != std::string::npos && what != '2') delimiters_.erase(at, old.size());
    if (what == '-') return;
    texts_[place] = text;
    delimiters_.append(text).append(tail);
  }

  void TakePage(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char byte = text[i];
      const bool chooses = byte >= 1 && byte <= 4 && i + 1 < text.size();
      if (!chooses) {
        page_.push_back(byte);
        continue;
      }
      const std::size_t choice = static_cast<unsigned char>(text[++i] - 0x20);
      if (byte == 1) page_.append(texts_[choice % texts_.size()]);
      if (byte == 2) page_.append(labels_[choice % labels_.size()]);
      if (byte == 3) page_.append(kKnownTexts[choice % kKnownTexts.size()]);
      if (byte == 4) page_.push_back(text[i]);
    }
  }

  std::vector<std::string_view> keys_;
  std::vector<std::string> texts_;
  std::vector<std::string> labels_;
  std::string delimiters_;
  std::string fields_;
  std::string page_;
};

}  // namespace ordex::fuzz
