// Text is UTF-8 in std::string; the functions here count in characters (code points), never in
// bytes, wherever a rule speaks of lengths and positions. A byte that is no part of valid UTF-8
// counts as one character.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/parts.h"

namespace ordex {

inline constexpr std::size_t kNoLimit = 0;

// --- counting ---------------------------------------------------------------------------------

// The number of characters of `text`.
std::size_t CharCount(std::string_view text);
// True when `text` has fewer than `count` characters; looks no further than it must.
bool ShorterThan(std::string_view text, std::size_t count);
// The first / last `count` characters, or the whole text where it is shorter.
std::string_view Left(std::string_view text, std::size_t count);
std::string_view Right(std::string_view text, std::size_t count);
// The part from the character at 1-based `position` to the end; empty past the end.
std::string_view From(std::string_view text, std::size_t position);
// The 1-based character position of the first `wanted` at or after `start`; 0 when there is none.
std::size_t Find(std::string_view text, std::string_view wanted, std::size_t start = 1);

// --- searching and cutting --------------------------------------------------------------------

// The offset in bytes of the first `wanted` at or behind `from`, npos where there is none: like the
// library's own search, which is many times slower on prose, where the first letter of what is
// searched for stands everywhere.
std::size_t OffsetOf(std::string_view text, std::string_view wanted, std::size_t from = 0);
// Exact substring search. An empty `wanted` is contained in every text.
bool Contains(std::string_view text, std::string_view wanted);
// Blanks (U+0020) at both ends removed, and nothing else: tabs and line ends stay.
std::string_view Trim(std::string_view text);
std::string_view TrimLeft(std::string_view text);
// The parts between the occurrences of `separator`. With a limit, cutting stops when that number
// of parts is reached and the last part keeps the rest. There is always at least one part: an
// empty text, or an empty separator, gives the text itself.
Parts Split(std::string_view text, std::string_view separator, std::size_t limit = kNoLimit);
// The two parts around the first `separator`; nullopt when it does not occur.
struct Halves {
  std::string_view left;
  std::string_view right;
};
std::optional<Halves> SplitOnce(std::string_view text, std::string_view separator);
// Every occurrence of `wanted` replaced, in one pass from left to right.
std::string ReplaceAll(std::string_view text, std::string_view wanted, std::string_view by);

// --- letter case ------------------------------------------------------------------------------

// Unicode simple case mapping, character by character, whatever the locale.
std::string Lower(std::string_view text);
std::string Upper(std::string_view text);
// True when the lower-case forms are equal.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
// Appends the lower-case form of `text` to `out`; lets a caller reuse one buffer.
void AppendLower(std::string_view text, std::string& out);

// --- encodings --------------------------------------------------------------------------------

bool IsValidUtf8(std::string_view bytes);
std::string FromWindows1252(std::string_view bytes);
// What a text file or a foreign clipboard holds, as UTF-8: a byte-order mark is dropped, valid
// UTF-8 is taken as it is, anything else is read as Windows-1252.
std::string DecodeText(std::string bytes);
// Every line end (CR, LF or CRLF) brought to CRLF.
std::string ToCrLf(std::string_view text);
// Whether that would change nothing.
bool HasOnlyCrLf(std::string_view text);

}  // namespace ordex
