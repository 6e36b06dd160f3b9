#include "base/text.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "base/ascii_words.h"
#include "base/utf8.h"
#include "base/windows1252.h"

namespace ordex {
namespace {

bool IsAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

// How many bytes of `text`, from its start, are ASCII. Nearly all text is: it is passed over a
// word at a time.
std::size_t AsciiRun(std::string_view text) {
  std::size_t run = 0;
  while (text.size() - run >= kWordSize && IsAsciiWord(LoadWord(text.data() + run))) {
    run += kWordSize;
  }
  while (run < text.size() && IsAscii(text[run])) ++run;
  return run;
}

// The byte offset of the character behind the first `count` ones, or the text's size.
std::size_t OffsetAfter(std::string_view text, std::size_t count) {
  std::size_t offset = 0;
  for (;;) {
    const std::size_t run = AsciiRun(text.substr(offset, count));
    offset += run;
    count -= run;
    if (count == 0 || offset == text.size()) return offset;
    offset += FirstCharacter(text.substr(offset)).length;
    --count;
  }
}

// Turns round the case of the ASCII letters from `first` ('A' or 'a') on, in place.
void TurnLetters(char* bytes, std::size_t count, char first) {
  for (; count >= kWordSize; count -= kWordSize, bytes += kWordSize) {
    const Word turned = TurnLettersOfWord(LoadWord(bytes), first);
    std::memcpy(bytes, &turned, kWordSize);
  }
  for (; count > 0; --count, ++bytes) {
    *bytes = static_cast<char>(TurnLettersOfWord(static_cast<unsigned char>(*bytes), first));
  }
}

// utf8proc gives the sharp s a capital that the simple mapping (and the databases' own UPPER) does
// not know.
utf8proc_int32_t UpperCode(utf8proc_int32_t code) {
  constexpr utf8proc_int32_t kSharpS = 0xDF;
  return code == kSharpS ? kSharpS : utf8proc_toupper(code);
}

// `map` maps a code point; `first` is the first of the ASCII letters that it changes.
template <class MapCode>
void AppendMapped(std::string_view text, std::string& out, char first, MapCode map) {
  for (;;) {
    const std::size_t run = AsciiRun(text);
    const std::size_t done = out.size();
    out.append(text.substr(0, run));
    TurnLetters(out.data() + done, run, first);
    text.remove_prefix(run);
    if (text.empty()) return;
    const Character character = FirstCharacter(text);
    if (character.code < 0) {
      out.push_back(text.front());
    } else {
      AppendCodePoint(map(character.code), out);
    }
    text.remove_prefix(character.length);
  }
}

// In UTF-8 no sign of the old code page takes more than three bytes, and a letter of ASCII takes
// one.
std::size_t MostBytesAdded(std::string_view windows1252) {
  std::size_t added = 0;
  for (const char character : windows1252) {
    const auto code = static_cast<unsigned char>(character);
    if (code >= 0x80) added += code < 0xA0 ? 2 : 1;
  }
  return added;
}

// The line ends that are a single CR or LF.
std::size_t CountBareLineEnds(std::string_view text) {
  std::size_t bare = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\r'));
  for (std::size_t at = text.find('\n'); at != std::string_view::npos;
       at = text.find('\n', at + 1)) {
    if (at > 0 && text[at - 1] == '\r') {
      --bare;
    } else {
      ++bare;
    }
  }
  return bare;
}

// Sixteen bytes at a time, which every processor compares at once.
using Block [[gnu::vector_size(16)]] = char;
constexpr std::size_t kBlockSize = sizeof(Block);

Block LoadBlock(const char* bytes) {
  Block block;
  std::memcpy(&block, bytes, kBlockSize);
  return block;
}

Block InEachByte(char byte) {
  return Block{} + byte;
}

bool AnySet(Block block) {
  std::array<Word, kBlockSize / kWordSize> words{};
  std::memcpy(words.data(), &block, kBlockSize);
  return (words[0] | words[1]) != 0;
}

// The first of `places` places from `begin` on where `wanted` stands; `places` where it does not.
std::size_t FirstPlace(const char* begin, std::size_t places, std::string_view wanted) {
  std::size_t at = 0;
  while (at < places && (begin[at] != wanted.front() || begin[at + 1] != wanted[1] ||
                         std::memcmp(begin + at, wanted.data(), wanted.size()) != 0)) {
    ++at;
  }
  return at;
}

}  // namespace

std::size_t CharCount(std::string_view text) {
  std::size_t count = 0;
  for (;;) {
    const std::size_t run = AsciiRun(text);
    count += run;
    text.remove_prefix(run);
    if (text.empty()) return count;
    text.remove_prefix(FirstCharacter(text).length);
    ++count;
  }
}

bool ShorterThan(std::string_view text, std::size_t count) {
  if (text.size() < count) return true;
  // No character takes more than four bytes.
  if (text.size() > 4 * count) return false;
  return CharCount(text) < count;
}

std::string_view Left(std::string_view text, std::size_t count) {
  return text.substr(0, OffsetAfter(text, count));
}

std::string_view Right(std::string_view text, std::size_t count) {
  const std::size_t all = CharCount(text);
  return all <= count ? text : text.substr(OffsetAfter(text, all - count));
}

std::string_view From(std::string_view text, std::size_t position) {
  return position <= 1 ? text : text.substr(OffsetAfter(text, position - 1));
}

std::size_t Find(std::string_view text, std::string_view wanted, std::size_t start) {
  const std::size_t offset = OffsetOf(text, wanted, OffsetAfter(text, start - 1));
  return offset == std::string_view::npos ? 0 : CharCount(text.substr(0, offset)) + 1;
}

std::size_t OffsetOf(std::string_view text, std::string_view wanted, std::size_t from) {
  if (wanted.size() < 2 || text.size() < wanted.size()) return text.find(wanted, from);
  const std::size_t gap = wanted.size() - 1;
  const std::size_t end = text.size() - gap;
  if (from >= end) return std::string_view::npos;
  const char* begin = text.data();
  // Sixteen places at a time: where the first and the last letter fit is looked at more closely.
  const Block first = InEachByte(wanted.front());
  const Block last = InEachByte(wanted.back());
  for (; from + kBlockSize <= end; from += kBlockSize) {
    if (!AnySet((LoadBlock(begin + from) == first) & (LoadBlock(begin + from + gap) == last))) {
      continue;
    }
    const std::size_t at = FirstPlace(begin + from, kBlockSize, wanted);
    if (at < kBlockSize) return from + at;
  }
  const std::size_t at = FirstPlace(begin + from, end - from, wanted);
  return at < end - from ? from + at : std::string_view::npos;
}

bool Contains(std::string_view text, std::string_view wanted) {
  return OffsetOf(text, wanted) != std::string_view::npos;
}

std::string_view TrimLeft(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  return text;
}

std::string_view Trim(std::string_view text) {
  text = TrimLeft(text);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

Parts Split(std::string_view text, std::string_view separator, std::size_t limit) {
  Parts parts;
  if (!separator.empty()) {
    while (limit == kNoLimit || parts.size() + 1 < limit) {
      const std::size_t at = OffsetOf(text, separator);
      if (at == std::string_view::npos) break;
      parts.push_back(text.substr(0, at));
      text.remove_prefix(at + separator.size());
    }
  }
  parts.push_back(text);
  return parts;
}

std::optional<Halves> SplitOnce(std::string_view text, std::string_view separator) {
  if (separator.empty()) return std::nullopt;
  const std::size_t at = OffsetOf(text, separator);
  if (at == std::string_view::npos) return std::nullopt;
  return Halves{text.substr(0, at), text.substr(at + separator.size())};
}

std::string ReplaceAll(std::string_view text, std::string_view wanted, std::string_view by) {
  std::string result;
  result.reserve(text.size());
  while (auto halves = SplitOnce(text, wanted)) {
    result.append(halves->left).append(by);
    text = halves->right;
  }
  result.append(text);
  return result;
}

void AppendLower(std::string_view text, std::string& out) {
  AppendMapped(text, out, 'A', utf8proc_tolower);
}

std::string Lower(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  AppendLower(text, result);
  return result;
}

std::string Upper(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  AppendMapped(text, result, 'a', UpperCode);
  return result;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (AsciiRun(a) < a.size() || AsciiRun(b) < b.size()) return Lower(a) == Lower(b);
  return a.size() == b.size() && EqualIgnoringAsciiCase(a, b);
}

bool IsValidUtf8(std::string_view bytes) {
  for (;;) {
    bytes.remove_prefix(AsciiRun(bytes));
    if (bytes.empty()) return true;
    const Character character = FirstCharacter(bytes);
    if (character.code < 0) return false;
    bytes.remove_prefix(character.length);
  }
}

std::string FromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + MostBytesAdded(bytes));
  for (;;) {
    const std::size_t run = AsciiRun(bytes);
    text.append(bytes.substr(0, run));
    bytes.remove_prefix(run);
    if (bytes.empty()) return text;
    const auto code = static_cast<unsigned char>(bytes.front());
    AppendCodePoint(CodeOfWindows1252(code), text);
    bytes.remove_prefix(1);
  }
}

std::string DecodeText(std::string bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
  if (IsValidUtf8(bytes)) return bytes;
  return FromWindows1252(bytes);
}

std::string ToCrLf(std::string_view text) {
  std::string result;
  result.reserve(text.size() + CountBareLineEnds(text));
  for (;;) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
    while (const auto halves = SplitOnce(line, "\r")) {
      result.append(halves->left).append("\r\n");
      line = halves->right;
    }
    result.append(line);
    if (end == std::string_view::npos) return result;
    result.append("\r\n");
    text.remove_prefix(end + 1);
  }
}

bool HasOnlyCrLf(std::string_view text) {
  return CountBareLineEnds(text) == 0;
}

}  // namespace ordex
