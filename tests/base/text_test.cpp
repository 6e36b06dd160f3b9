#include "base/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

namespace ordex {
namespace {

using testing::ElementsAre;

std::string Joined(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) text += part;
  return text;
}

std::string Joined(const Parts& parts, std::string_view separator) {
  std::string text(parts[0]);
  for (std::size_t i = 1; i < parts.size(); ++i) text.append(separator).append(parts[i]);
  return text;
}

std::size_t Below(std::mt19937& random, std::size_t limit) {
  return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
}

// Up to `most` pieces out of `pool`, one after the other.
std::vector<std::string> RandomPieces(std::mt19937& random, const std::vector<std::string>& pool,
                                      std::size_t most) {
  std::vector<std::string> pieces;
  for (std::size_t count = Below(random, most + 1); count > 0; --count) {
    pieces.push_back(pool[Below(random, pool.size())]);
  }
  return pieces;
}

// Texts of one character each, of one to four bytes; ASCII the most, as on a page.
const std::vector<std::string>& Characters() {
  static const std::vector<std::string> characters = {"a",  "b", "Z", " ", "1", ":", "x", "y", "k",
                                                      "\n", "è", "È", "°", "ß", "Ł", "€", "Ⱥ", "😀"};
  return characters;
}

// --- counting ---------------------------------------------------------------------------------

TEST(CharCount, CountsCharactersAndNotBytes) {
  EXPECT_EQ(CharCount(""), 0U);
  EXPECT_EQ(CharCount("abc"), 3U);
  EXPECT_EQ(CharCount("città"), 5U);
  EXPECT_EQ(CharCount("€uro"), 4U);
  EXPECT_EQ(CharCount("😀"), 1U);
  EXPECT_EQ(CharCount("Numero di ruolo dell'attività"), 29U);
}

TEST(CharCount, ACombiningAccentIsACharacterOfItsOwn) {
  EXPECT_EQ(CharCount("e\xCC\x80"), 2U);
}

TEST(CharCount, AByteThatIsNoUtf8CountsAsOneCharacter) {
  EXPECT_EQ(CharCount("citt\xE0"), 5U);
  EXPECT_EQ(CharCount("\xE2\x82"), 2U);  // the euro sign without its last byte
  EXPECT_EQ(CharCount("\x80\x80x"), 3U);
}

TEST(ShorterThan, CountsCharacters) {
  EXPECT_FALSE(ShorterThan("°°", 2));
  EXPECT_TRUE(ShorterThan("°°", 3));
  EXPECT_TRUE(ShorterThan("°", 2));
  EXPECT_TRUE(ShorterThan("", 1));
  EXPECT_FALSE(ShorterThan("", 0));
  EXPECT_TRUE(ShorterThan("😀", 2));
  EXPECT_FALSE(ShorterThan("a long line of a page", 2));
}

TEST(Left, GivesTheFirstCharacters) {
  EXPECT_EQ(Left("però sì", 4), "però");
  EXPECT_EQ(Left("però", 0), "");
  EXPECT_EQ(Left("però", 9), "però");
  EXPECT_EQ(Left("", 3), "");
}

TEST(Left, NeverCutsACharacterAtTheTwoHundredthPlace) {
  const std::string text(199, 'x');
  EXPECT_EQ(Left(text + "èy", 200), text + "è");
}

TEST(Right, GivesTheLastCharacters) {
  EXPECT_EQ(Right("però sì", 3), " sì");
  EXPECT_EQ(Right("èa", 2), "èa");
  EXPECT_EQ(Right("èa", 9), "èa");
  EXPECT_EQ(Right("èa", 0), "");
}

TEST(From, GivesTheRestFromAPositionThatCountsFromOne) {
  EXPECT_EQ(From("è già", 1), "è già");
  EXPECT_EQ(From("è già", 3), "già");
  EXPECT_EQ(From("è già", 5), "à");
  EXPECT_EQ(From("è già", 6), "");
  EXPECT_EQ(From("è già", 99), "");
}

TEST(Find, GivesACharacterPositionThatCountsFromOne) {
  EXPECT_EQ(Find("è già", "già"), 3U);
  EXPECT_EQ(Find("già", "già"), 1U);
  EXPECT_EQ(Find("è già", "No"), 0U);
  EXPECT_EQ(Find("è già", "GIÀ"), 0U);
}

TEST(Find, BeginsAtTheStartThatItIsGiven) {
  EXPECT_EQ(Find("à b à b", "à"), 1U);
  EXPECT_EQ(Find("à b à b", "à", 1), 1U);
  EXPECT_EQ(Find("à b à b", "à", 2), 5U);
  EXPECT_EQ(Find("à b à b", "à", 5), 5U);
  EXPECT_EQ(Find("à b à b", "à", 6), 0U);
  EXPECT_EQ(Find("à b à b", "à", 99), 0U);
}

TEST(CountingProperties, CharactersAreFoundWhereTheyWerePut) {
  std::mt19937 random(11);
  for (int run = 0; run < 500; ++run) {
    const auto characters = RandomPieces(random, Characters(), 40);
    const std::string text = Joined(characters);
    const std::size_t all = characters.size();
    ASSERT_EQ(CharCount(text), all);
    for (std::size_t count = 0; count <= all + 1; ++count) {
      const auto middle = characters.begin() + static_cast<std::ptrdiff_t>(std::min(count, all));
      const std::string left = Joined({characters.begin(), middle});
      const std::string right = Joined({middle, characters.end()});
      ASSERT_EQ(Left(text, count), left);
      ASSERT_EQ(From(text, count + 1), right);
      ASSERT_EQ(Right(text, count >= all ? 0 : all - count), right);
      ASSERT_EQ(ShorterThan(text, count), all < count);
    }
  }
}

TEST(CountingProperties, FindGivesTheFirstPlaceAtOrBehindTheStart) {
  std::mt19937 random(12);
  for (int run = 0; run < 500; ++run) {
    const auto characters = RandomPieces(random, Characters(), 30);
    const std::string text = Joined(characters);
    const std::string& wanted = Characters()[Below(random, Characters().size())];
    for (std::size_t start = 1; start <= characters.size() + 1; ++start) {
      std::size_t place = start;
      while (place <= characters.size() && characters[place - 1] != wanted) ++place;
      ASSERT_EQ(Find(text, wanted, start), place > characters.size() ? 0 : place) << text;
    }
  }
}

// --- searching and cutting --------------------------------------------------------------------

TEST(OffsetOf, FindsWhatTheLibraryFindsAtEveryPlaceOfEveryLength) {
  // Blocks are sixteen bytes long: what is searched for begins, ends and stands across their edges.
  for (const std::string_view wanted : {"", "x", "xy", "xay", "xbbbbbbbbbbbbbbbbby"}) {
    for (std::size_t length = 0; length <= 70; ++length) {
      EXPECT_EQ(OffsetOf(std::string(length, '.'), wanted), wanted.empty() ? 0 : std::string::npos);
      for (std::size_t at = 0; at + wanted.size() <= length; ++at) {
        std::string text(length, '.');
        text.replace(at, wanted.size(), wanted);
        ASSERT_EQ(OffsetOf(text, wanted), text.find(wanted)) << text;
        ASSERT_EQ(OffsetOf(text, wanted, at), text.find(wanted, at)) << text;
        ASSERT_EQ(OffsetOf(text, wanted, at + 1), text.find(wanted, at + 1)) << text;
      }
    }
  }
}

TEST(OffsetOf, FindsNothingBehindTheEnd) {
  const std::string text(40, 'x');
  EXPECT_EQ(OffsetOf(text, "xx", 39), std::string::npos);
  EXPECT_EQ(OffsetOf(text, "xx", 40), std::string::npos);
  EXPECT_EQ(OffsetOf(text, "xx", 41), std::string::npos);
  EXPECT_EQ(OffsetOf(text, "xx", std::string::npos), std::string::npos);
}

TEST(OffsetOf, IsNotDeceivedByTextsThatNearlyFit) {
  std::mt19937 random(7);  // NOLINT: the same texts in every run
  const std::vector<std::string> letters = {"a", "b", " "};
  for (int round = 0; round < 20000; ++round) {
    const std::string text = Joined(RandomPieces(random, letters, 60));
    const std::string wanted = Joined(RandomPieces(random, letters, 5));
    const std::size_t from = Below(random, 70);
    ASSERT_EQ(OffsetOf(text, wanted, from), text.find(wanted, from)) << text << "|" << wanted;
  }
}

TEST(Contains, SearchesExactlyAndMindsLetterCase) {
  EXPECT_TRUE(Contains("Numero di ruolo: 12", "ruolo:"));
  EXPECT_FALSE(Contains("Numero di ruolo: 12", "Ruolo:"));
  EXPECT_FALSE(Contains("ruol", "ruolo"));
  EXPECT_TRUE(Contains("ruolo", "ruolo"));
  EXPECT_FALSE(Contains("è", "\xC3\xA9"));
}

TEST(Contains, AnEmptyTextIsInEveryText) {
  EXPECT_TRUE(Contains("x", ""));
  EXPECT_TRUE(Contains("", ""));
  EXPECT_FALSE(Contains("", "x"));
}

TEST(Trim, RemovesBlanksAtBothEndsAndKeepsThoseInside) {
  EXPECT_EQ(Trim("  a  b  "), "a  b");
  EXPECT_EQ(Trim("a"), "a");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("    "), "");
}

TEST(Trim, RemovesNothingButBlanks) {
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(Trim(" \r\na\r\n "), "\r\na\r\n");
  EXPECT_EQ(Trim("\xC2\xA0"
                 "a"
                 "\xC2\xA0"),
            "\xC2\xA0"
            "a"
            "\xC2\xA0");
}

TEST(Trim, TheResultIsAViewIntoTheTextAlsoWhereAllIsBlank) {
  const std::string_view text = "   ";
  EXPECT_GE(Trim(text).data(), text.data());
  EXPECT_LE(Trim(text).data(), text.data() + text.size());
}

TEST(TrimLeft, RemovesBlanksAtTheStartAlone) {
  EXPECT_EQ(TrimLeft("  a  "), "a  ");
  EXPECT_EQ(TrimLeft("   "), "");
  EXPECT_EQ(TrimLeft("\t a"), "\t a");
}

TEST(Split, GivesAsManyPartsAsThereAre) {
  for (std::size_t count = 1; count <= 12; ++count) {
    std::string text = "1";
    std::vector<std::string> expected = {"1"};
    for (std::size_t part = 2; part <= count; ++part) {
      expected.push_back(std::to_string(part));
      text.append(";").append(expected.back());
    }
    EXPECT_THAT(Split(text, ";"), testing::ElementsAreArray(expected));
  }
}

TEST(Split, CutsAtEveryOccurrence) {
  EXPECT_THAT(Split("a:b:c", ":"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Split(":a::b:", ":"), ElementsAre("", "a", "", "b", ""));
  EXPECT_THAT(Split("Rossi - Avv. Bianchi", " - Avv. "), ElementsAre("Rossi", "Bianchi"));
  EXPECT_THAT(Split("perchéèperché", "è"), ElementsAre("perché", "perché"));
}

TEST(Split, WithALimitTheLastPartKeepsTheRest) {
  EXPECT_THAT(Split("a:b:c:d", ":", 2), ElementsAre("a", "b:c:d"));
  EXPECT_THAT(Split("a:b:c:d", ":", 3), ElementsAre("a", "b", "c:d"));
  EXPECT_THAT(Split("a:b:c:d", ":", 4), ElementsAre("a", "b", "c", "d"));
  EXPECT_THAT(Split("a:b:c:d", ":", 9), ElementsAre("a", "b", "c", "d"));
  EXPECT_THAT(Split("a:b:c:d", ":", 1), ElementsAre("a:b:c:d"));
}

TEST(Split, WithoutTheSeparatorTheTextIsTheOnlyPart) {
  EXPECT_THAT(Split("abc", ":"), ElementsAre("abc"));
  EXPECT_THAT(Split("abc", ":", 2), ElementsAre("abc"));
}

TEST(Split, AnEmptyTextGivesOneEmptyPart) {
  EXPECT_THAT(Split("", ":"), ElementsAre(""));
  EXPECT_THAT(Split("", ":", 2), ElementsAre(""));
  EXPECT_THAT(Split("", ""), ElementsAre(""));
}

TEST(Split, AnEmptySeparatorCutsNowhere) {
  EXPECT_THAT(Split("abc", ""), ElementsAre("abc"));
}

TEST(Split, OccurrencesDoNotOverlap) {
  EXPECT_THAT(Split("aaa", "aa"), ElementsAre("", "a"));
}

TEST(Split, TheSeparatorIsNotTrimmed) {
  EXPECT_THAT(Split("12  05/03/2024", " "), ElementsAre("12", "", "05/03/2024"));
}

TEST(Split, TheLetterCaseOfTheSeparatorCounts) {
  EXPECT_THAT(Split("aXbxc", "x"), ElementsAre("aXb", "c"));
}

TEST(SplitProperties, ThePartsJoinedByTheSeparatorGiveTheTextBack) {
  std::mt19937 random(13);
  const std::vector<std::string> pool = {"a", "b", "è", " ", ":", "::", ": ", "€"};
  const std::vector<std::string> separators = {":", "::", ": ", "è", "a", "ab", "€"};
  for (int run = 0; run < 3000; ++run) {
    const std::string text = Joined(RandomPieces(random, pool, 20));
    const std::string& separator = separators[Below(random, separators.size())];
    const std::size_t limit = Below(random, 6);
    const auto parts = Split(text, separator, limit);
    ASSERT_EQ(Joined(parts, separator), text);
    const bool cut_short = limit != kNoLimit && parts.size() == limit;
    ASSERT_TRUE(limit == kNoLimit || parts.size() <= limit);
    for (std::size_t i = 0; i < parts.size() - (cut_short ? 1 : 0); ++i) {
      ASSERT_FALSE(Contains(parts[i], separator)) << text;
    }
  }
}

TEST(SplitOnce, GivesWhatStandsBeforeAndBehindTheFirstSeparator) {
  const auto halves = SplitOnce("Campo=etichetta=altra", "=");
  ASSERT_TRUE(halves);
  EXPECT_EQ(halves->left, "Campo");
  EXPECT_EQ(halves->right, "etichetta=altra");
}

TEST(SplitOnce, EitherHalfMayBeEmpty) {
  EXPECT_EQ(SplitOnce("=x", "=")->left, "");
  EXPECT_EQ(SplitOnce("x=", "=")->right, "");
}

TEST(SplitOnce, GivesNothingWithoutTheSeparator) {
  EXPECT_FALSE(SplitOnce("abc", "="));
  EXPECT_FALSE(SplitOnce("", "="));
  EXPECT_FALSE(SplitOnce("abc", ""));
}

TEST(SplitOnceProperties, AgreesWithASplitIntoTwoParts) {
  std::mt19937 random(14);
  const std::vector<std::string> pool = {"a", "è", " - ", "-", " "};
  for (int run = 0; run < 2000; ++run) {
    const std::string text = Joined(RandomPieces(random, pool, 10));
    const auto halves = SplitOnce(text, " - ");
    const auto parts = Split(text, " - ", 2);
    ASSERT_EQ(halves.has_value(), parts.size() == 2);
    if (halves) {
      ASSERT_EQ(halves->left, parts[0]);
      ASSERT_EQ(halves->right, parts[1]);
    }
  }
}

TEST(ReplaceAll, ReplacesEveryOccurrence) {
  EXPECT_EQ(ReplaceAll("05/03/2024 (Fascicolo)(Fascicolo)", "(Fascicolo)", ""), "05/03/2024 ");
  EXPECT_EQ(ReplaceAll("l'atto d'appello", "'", "''"), "l''atto d''appello");
  EXPECT_EQ(ReplaceAll("abc", "x", "y"), "abc");
  EXPECT_EQ(ReplaceAll("", "x", "y"), "");
}

TEST(ReplaceAll, GoesOverTheTextOnceSoThatRunsOfBlanksAreHalved) {
  EXPECT_EQ(ReplaceAll("a    b", "  ", " "), "a  b");
  EXPECT_EQ(ReplaceAll("a   b", "  ", " "), "a  b");
}

TEST(ReplaceAll, AnEmptyTextIsNotReplaced) {
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
}

// --- letter case ------------------------------------------------------------------------------

TEST(LetterCase, TheLettersOfItalianPolishAndRomanianAreMapped) {
  EXPECT_EQ(Lower("ÀÈÉÌÒÙ PERCHÉ"), "àèéìòù perché");
  EXPECT_EQ(Upper("àèéìòù perché"), "ÀÈÉÌÒÙ PERCHÉ");
  EXPECT_EQ(Lower("ŁÓDŹ ŚWIĘTOSŁAW"), "łódź świętosław");
  EXPECT_EQ(Upper("ștefan țurcanu"), "ȘTEFAN ȚURCANU");
}

TEST(LetterCase, TheMappingIsCharacterByCharacter) {
  EXPECT_EQ(Upper("ß"), "ß");
  EXPECT_EQ(Upper("Straße"), "STRAßE");
  EXPECT_EQ(Lower("İ"), "i");
  EXPECT_EQ(Upper("ı"), "I");
}

TEST(LetterCase, WhatIsNoLetterStays) {
  EXPECT_EQ(Lower("@[`{ 0-9 °€😀"), "@[`{ 0-9 °€😀");
  EXPECT_EQ(Upper("@[`{ 0-9 °€😀"), "@[`{ 0-9 °€😀");
}

TEST(LetterCase, BytesThatAreNoUtf8Stay) {
  EXPECT_EQ(Lower("ATTIVIT\xC0 X"), "attivit\xC0 x");
  EXPECT_EQ(Upper("\xE2\x82 a\xFF"), "\xE2\x82 A\xFF");
}

TEST(LetterCase, ALowerCaseLetterMayTakeMoreBytesThanItsCapital) {
  EXPECT_EQ(Lower("Ⱥ"), "ⱥ");  // two bytes, three bytes
}

TEST(LetterCase, EveryAsciiLetterIsMappedWhereverItStandsInAText) {
  for (std::size_t length = 1; length <= 20; ++length) {
    for (std::size_t at = 0; at < length; ++at) {
      for (char letter = 'a'; letter <= 'z'; ++letter) {
        std::string small(length, '-');
        std::string capital(length, '-');
        small[at] = letter;
        capital[at] = static_cast<char>(letter - 32);
        ASSERT_EQ(Lower(capital), small);
        ASSERT_EQ(Upper(small), capital);
        ASSERT_EQ(Lower(small), small);
        ASSERT_EQ(Upper(capital), capital);
      }
    }
  }
}

TEST(LetterCase, AppendLowerKeepsWhatIsThere) {
  std::string text = "PRIMA ";
  AppendLower("È Numero", text);
  EXPECT_EQ(text, "PRIMA è numero");
  AppendLower("", text);
  EXPECT_EQ(text, "PRIMA è numero");
}

TEST(EqualIgnoringCase, ComparesTheLowerCaseForms) {
  EXPECT_TRUE(EqualIgnoringCase("PERCHÉ", "perché"));
  EXPECT_FALSE(EqualIgnoringCase("perche", "perché"));
  EXPECT_FALSE(EqualIgnoringCase("perché", "perché "));
  EXPECT_TRUE(EqualIgnoringCase("", ""));
}

TEST(LetterCaseProperties, LoweringTwiceIsLoweringOnce) {
  std::mt19937 random(15);
  for (int run = 0; run < 2000; ++run) {
    std::string text = Joined(RandomPieces(random, Characters(), 30));
    if (run % 2 == 0) text += static_cast<char>(Below(random, 256));
    const std::string lower = Lower(text);
    ASSERT_EQ(Lower(lower), lower);
    ASSERT_EQ(Upper(Upper(text)), Upper(text));
    ASSERT_TRUE(EqualIgnoringCase(text, lower));
    ASSERT_EQ(CharCount(lower), CharCount(text));
  }
}

TEST(LetterCaseProperties, ATextIsLoweredPieceByPieceAsInOneGo) {
  std::mt19937 random(16);
  for (int run = 0; run < 2000; ++run) {
    const auto pieces = RandomPieces(random, Characters(), 30);
    std::string lower;
    for (const std::string& piece : pieces) AppendLower(piece, lower);
    ASSERT_EQ(Lower(Joined(pieces)), lower);
  }
}

// --- encodings --------------------------------------------------------------------------------

TEST(IsValidUtf8, TakesCharactersOfOneToFourBytes) {
  for (const char* text :
       {"", "a", "è", "€", "😀", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF",
        "\xEE\x80\x80", "\xEF\xBF\xBD", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(IsValidUtf8(text));
  }
  EXPECT_TRUE(IsValidUtf8(std::string_view("a\0b", 3)));
}

TEST(IsValidUtf8, RefusesEveryMalformedSequenceWhereverItStands) {
  const std::vector<std::string> malformed = {"\x80",          // a continuation alone
                                              "\xBF",          //
                                              "\xC3",          // cut short
                                              "\xE2\x82",      //
                                              "\xF0\x9F\x98",  //
                                              "\xC3x",     // a letter in place of the continuation
                                              "\xC0\x80",  // longer than need be
                                              "\xC1\xBF",  //
                                              "\xE0\x80\x80",      //
                                              "\xE0\x9F\xBF",      //
                                              "\xF0\x80\x80\x80",  //
                                              "\xF0\x8F\xBF\xBF",  //
                                              "\xED\xA0\x80",      // half of a surrogate pair
                                              "\xED\xBF\xBF",      //
                                              "\xF4\x90\x80\x80",  // past the last character
                                              "\xF5\x80\x80\x80",  //
                                              "\xFE",
                                              "\xFF"};
  for (const std::string& bytes : malformed) {
    for (std::size_t before = 0; before <= 16; ++before) {
      for (const std::size_t behind : {0U, 1U, 16U}) {
        const std::string text = std::string(before, 'x') + bytes + std::string(behind, 'y');
        EXPECT_FALSE(IsValidUtf8(text)) << before << " " << behind;
      }
    }
  }
}

TEST(FromWindows1252, EveryByteFrom80To9FHasItsCharacter) {
  const std::array<std::string, 32> expected = {
      "€", "\xC2\x81", "‚",        "ƒ", "„",        "…",        "†", "‡",        "ˆ", "‰", "Š",
      "‹", "Œ",        "\xC2\x8D", "Ž", "\xC2\x8F", "\xC2\x90", "‘", "’",        "“", "”", "•",
      "–", "—",        "˜",        "™", "š",        "›",        "œ", "\xC2\x9D", "ž", "Ÿ"};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(FromWindows1252(std::string(1, static_cast<char>(0x80 + i))), expected[i]) << i;
  }
}

TEST(FromWindows1252, TheBytesFromA0OnAreTheCharactersOfTheSameNumber) {
  for (int value = 0xA0; value <= 0xFF; ++value) {
    // U+00A0 to U+00BF are C2 A0 to C2 BF, U+00C0 to U+00FF are C3 80 to C3 BF.
    const std::string expected = value < 0xC0
                                     ? std::string{'\xC2', static_cast<char>(value)}
                                     : std::string{'\xC3', static_cast<char>(value - 0x40)};
    EXPECT_EQ(FromWindows1252(std::string(1, static_cast<char>(value))), expected) << value;
  }
}

TEST(FromWindows1252, AsciiStaysAlsoTheControlCharacters) {
  for (int value = 0; value < 0x80; ++value) {
    const std::string text(1, static_cast<char>(value));
    EXPECT_EQ(FromWindows1252(text), text);
  }
}

TEST(FromWindows1252, AWholeLineKeepsItsOrder) {
  EXPECT_EQ(FromWindows1252("Attivit\xE0 per \x80 100, n\xB0 3 \x96 \x93"
                            "cos\xEC\x94"),
            "Attività per € 100, n° 3 – “così”");
}

TEST(DecodeText, ValidUtf8IsTakenAsItIs) {
  EXPECT_EQ(DecodeText("Attività €"), "Attività €");
  EXPECT_EQ(DecodeText(""), "");
  EXPECT_EQ(DecodeText("a\r\nb\n"), "a\r\nb\n");
}

TEST(DecodeText, AByteOrderMarkIsDroppedAtTheStartAlone) {
  EXPECT_EQ(DecodeText("\xEF\xBB\xBF"
                       "è"),
            "è");
  EXPECT_EQ(DecodeText("\xEF\xBB\xBF"), "");
  EXPECT_EQ(DecodeText("è\xEF\xBB\xBF"), "è\xEF\xBB\xBF");
}

TEST(DecodeText, WhatIsNoValidUtf8IsWindows1252FromEndToEnd) {
  EXPECT_EQ(DecodeText("Attivit\xE0"), "Attività");
  // One foreign byte: then the two bytes of the first letter are two characters.
  EXPECT_EQ(DecodeText("è\xE8"), "Ã¨è");
}

TEST(DecodeText, AMarkBeforeWindows1252IsDroppedToo) {
  EXPECT_EQ(DecodeText("\xEF\xBB\xBF"
                       "perch\xE9"),
            "perché");
}

TEST(DecodeTextProperties, WhateverTheBytesTheResultIsValidUtf8) {
  std::mt19937 random(17);
  for (int run = 0; run < 5000; ++run) {
    std::string bytes;
    for (std::size_t length = Below(random, 24); length > 0; --length) {
      const bool ascii = Below(random, 3) > 0;
      bytes += static_cast<char>(Below(random, ascii ? 128 : 256));
    }
    const std::string text = DecodeText(bytes);
    ASSERT_TRUE(IsValidUtf8(text));
    ASSERT_TRUE(IsValidUtf8(FromWindows1252(bytes)));
    ASSERT_EQ(CharCount(FromWindows1252(bytes)), bytes.size());
  }
}

TEST(ToCrLf, EveryKindOfLineEndBecomesCrLf) {
  EXPECT_EQ(ToCrLf("a\nb"), "a\r\nb");
  EXPECT_EQ(ToCrLf("a\rb"), "a\r\nb");
  EXPECT_EQ(ToCrLf("a\r\nb"), "a\r\nb");
}

TEST(HasOnlyCrLf, IsTrueWhereNoLineEndIsASingleSign) {
  EXPECT_TRUE(HasOnlyCrLf(""));
  EXPECT_TRUE(HasOnlyCrLf("a"));
  EXPECT_TRUE(HasOnlyCrLf("a\r\nb\r\n\r\n"));
  EXPECT_FALSE(HasOnlyCrLf("\n"));
  EXPECT_FALSE(HasOnlyCrLf("a\r"));
  EXPECT_FALSE(HasOnlyCrLf("a\r\nb\n"));
  EXPECT_FALSE(HasOnlyCrLf("a\n\rb"));
  EXPECT_FALSE(HasOnlyCrLf("a\r\r\nb"));
}

TEST(ToCrLf, EmptyLinesStay) {
  EXPECT_EQ(ToCrLf("a\n\nb"), "a\r\n\r\nb");
  EXPECT_EQ(ToCrLf("a\r\rb"), "a\r\n\r\nb");
  EXPECT_EQ(ToCrLf("a\r\n\r\nb"), "a\r\n\r\nb");
  EXPECT_EQ(ToCrLf("\n\n"), "\r\n\r\n");
}

TEST(ToCrLf, MixedLineEndsAreToldApart) {
  EXPECT_EQ(ToCrLf("\r\r\n"), "\r\n\r\n");
  EXPECT_EQ(ToCrLf("\n\r"), "\r\n\r\n");
  EXPECT_EQ(ToCrLf("\n\r\n\r"), "\r\n\r\n\r\n");
  EXPECT_EQ(ToCrLf("a\rb\nc\r\nd\r"), "a\r\nb\r\nc\r\nd\r\n");
}

TEST(ToCrLf, ATextWithoutLineEndsStays) {
  EXPECT_EQ(ToCrLf(""), "");
  EXPECT_EQ(ToCrLf("una riga è"), "una riga è");
}

TEST(ToCrLfProperties, LinesJoinedByAnyLineEndComeOutJoinedByCrLf) {
  std::mt19937 random(18);
  const std::vector<std::string> lines = {"", "a", "riga lunga", "è"};
  // No line end begins with LF behind a line that ended in CR: the two would be one.
  const std::vector<std::string> ends = {"\r\n", "\n", "\r"};
  for (int run = 0; run < 3000; ++run) {
    std::string given;
    std::string expected;
    for (std::size_t count = Below(random, 12); count > 0; --count) {
      std::string line = lines[Below(random, lines.size())];
      const std::string& end = ends[Below(random, ends.size())];
      if (given.ends_with('\r') && line.empty() && end == "\n") line = "x";
      given += line + end;
      expected += line + "\r\n";
    }
    ASSERT_EQ(ToCrLf(given), expected);
    ASSERT_EQ(ToCrLf(expected), expected);
  }
}

}  // namespace
}  // namespace ordex
