#include "sources/nearest_letters.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "text/literal_1252.h"

namespace quenda {
namespace {

using Loss = NearestLetters::Loss;

/// Letters for code points that follow one another, one character each; a blank for none.
struct LetterRun {
  char32_t first;
  std::string_view letters;
};

constexpr std::array kLetterRuns = {
    LetterRun{0x100, "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIi"},
    LetterRun{0x134,
              "JjKkkLlLlLlLlLlNnNnNnnNnOoOoOo  RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs"},
    LetterRun{0x180, "bB"},
    LetterRun{0x18F, "E"},
    LetterRun{0x1A0, "Oo"},
    LetterRun{0x1AF, "Uu"},
    LetterRun{0x1CD, "AaIiOoUuUuUuUuUueAaAa"},
    LetterRun{0x1E6, "GgKkOoOo"},
    LetterRun{0x1F4, "Gg  Nn"},
    LetterRun{0x200, "AaAaEeEeIiIiOoOoRrRrUuUuSsTt  Hh"},
    LetterRun{0x226, "AaEeOoOoOoOoYy"},
    LetterRun{0x259, "e"},
    LetterRun{0x1E00,
              "AaBbBbBbCcDdDdDdDdDdEeEeEeEeEeFfGgHhHhHhHhHhIiIiKkKkKkLlLlLlLlMmMmMmNnNnNnNn"},
    LetterRun{0x1E4C, "OoOoOoOoPpPpRrRrRrRrSsSsSsSsSsTtTtTtTtUuUuUuUuUuVvVvWwWwWwWwWwXxXxYyZzZzZz"},
    LetterRun{0x1E96, "htwyas"},
    LetterRun{0x1EA0, "AaAaAaAaAaAaAaAaAaAaAaAaEeEeEeEeEeEeEeEeIiIi"},
    LetterRun{0x1ECC, "OoOoOoOoOoOoOoOoOoOoOoOoUuUuUuUuUuUuUuYyYyYyYy"},
    // Digits, dashes, blanks, and other signs that stand in numbers and addresses.
    LetterRun{0x2B9, "'''"},
    LetterRun{0x660, "0123456789"},
    LetterRun{0x6F0, "0123456789"},
    LetterRun{0x966, "0123456789"},
    LetterRun{0x2000, "           "},
    LetterRun{0x2010, "---  -"},
    LetterRun{0x201B, "'"},
    LetterRun{0x2028, "  "},
    LetterRun{0x202F, " "},
    LetterRun{0x2032, "''"},
    LetterRun{0x2043, "-/"},
    LetterRun{0x205F, " "},
    LetterRun{0x2070, "0i  456789+-=()n0123456789+-=()"},
    LetterRun{0x2212, "-"},
    LetterRun{0x2215, "/"},
    LetterRun{0x3000, " "},
    LetterRun{0xFE58, "-"},
    LetterRun{0xFE63, "-"},
    LetterRun{0xFF01,
              "!'#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
              "abcdefghijklmnopqrstuvwxyz{|}~"},
};

/// Runs in which a blank is meant.
constexpr bool is_blank(char32_t character) {
  return (character >= 0x2000 && character <= 0x200A) || character == 0x2028 ||
         character == 0x2029 || character == 0x202F || character == 0x205F || character == 0x3000;
}

/// Letters for code points that follow one another, with blanks between; "_" for a sign that is not
/// written in Latin, "-" for a code point that is no letter.
struct WordRun {
  char32_t first;
  std::string_view words;
};

constexpr std::array kWordRuns = {
    WordRun{0x132, "IJ ij"},
    WordRun{0x1C4, "DZ Dz dz LJ Lj lj NJ Nj nj"},
    WordRun{0x1F1, "DZ Dz dz"},
    WordRun{0x386, "A - E I I - O - Y O i"},
    WordRun{0x391, "A V G D E Z I Th I K L M N X O P R - S T Y F Ch Ps O I Y a e i i y"},
    WordRun{0x3B1, "a v g d e z i th i k l m n x o p r s s t y f ch ps o i y o y o"},
    WordRun{0x400, "E Yo Dj G Ye Dz I Yi J Lj Nj C K I U Dz"},
    WordRun{0x410, "A B V G D E Zh Z I Y K L M N O P R S T U F Kh Ts Ch Sh Shch _ Y _ E Yu Ya"},
    WordRun{0x430, "a b v g d e zh z i y k l m n o p r s t u f kh ts ch sh shch _ y _ e yu ya"},
    WordRun{0x450, "e yo dj g ye dz i yi j lj nj c k i u dz"},
    WordRun{0x490, "G g"},
    WordRun{0x2116, "No."},
    WordRun{0xFB00, "ff fi fl ffi ffl st st"},
};

struct Range {
  char32_t first;
  char32_t last;
  [[nodiscard]] constexpr bool has(char32_t character) const {
    return character >= first && character <= last;
  }
};

/// Characters without a picture: zero width, direction, variants, tags.
constexpr std::array kInvisible = {
    Range{0x34F, 0x34F},   Range{0x61C, 0x61C},   Range{0x180E, 0x180E},   Range{0x200B, 0x200F},
    Range{0x202A, 0x202E}, Range{0x2060, 0x206F}, Range{0xFE00, 0xFE0F},   Range{0xFEFF, 0xFEFF},
    Range{0xFFF9, 0xFFFB}, Range{0x80, 0x9F},     Range{0xE0000, 0xE0FFF},
};

/// Pictures, which no letter can stand for.
constexpr std::array kPictures = {Range{0x20E3, 0x20E3}, Range{0x2300, 0x23FF},
                                  Range{0x2600, 0x27BF}, Range{0x2B00, 0x2BFF},
                                  Range{0x1F000, 0x1FBFF}};

template <std::size_t N>
bool any_has(const std::array<Range, N>& ranges, char32_t character) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [&](const Range& range) { return range.has(character); });
}

std::string_view letter_of(char32_t character) {
  for (const LetterRun& run : kLetterRuns) {
    if (character < run.first || character >= run.first + run.letters.size()) continue;
    const std::string_view letter = run.letters.substr(character - run.first, 1);
    if (letter != " " || is_blank(character)) return letter;
  }
  return {};
}

std::string_view word_of(char32_t character) {
  for (const WordRun& run : kWordRuns) {
    if (character < run.first) continue;
    std::size_t skip = character - run.first;
    std::string_view words = run.words;
    for (; skip > 0 && !words.empty(); --skip) {
      const auto blank = words.find(' ');
      words = blank == words.npos ? std::string_view() : words.substr(blank + 1);
    }
    if (const auto word = words.substr(0, words.find(' ')); !word.empty()) return word;
  }
  return {};
}

constexpr bool is_one_of(char32_t character, std::u32string_view characters) {
  return characters.find(character) != characters.npos;
}

/// In Greek the sounds "u" and "v" are written as pairs with a "y" behind.
std::string_view greek_pair(char32_t character, char32_t before) {
  if (!is_one_of(character, U"\u03C5\u03CD\u03A5\u038E")) return {};
  if (is_one_of(before, U"\u03BF\u039F")) return "u";
  if (is_one_of(before, U"\u03B1\u0391\u03B5\u0395")) return "v";
  return {};
}

/// The letters that an accent goes with in Windows-1252, and what they make.
struct Accent {
  char32_t mark;
  std::string_view letters;
  std::string_view composed;
};

constexpr std::array kAccents = {
    Accent{0x300, "AEIOUaeiou", u8"ÀÈÌÒÙàèìòù"_de},
    Accent{0x301, "AEIOUYaeiouy", u8"ÁÉÍÓÚÝáéíóúý"_de},
    Accent{0x302, "AEIOUaeiou", u8"ÂÊÎÔÛâêîôû"_de},
    Accent{0x303, "ANOano", u8"ÃÑÕãñõ"_de},
    Accent{0x308, "AEIOUYaeiouy", u8"ÄËÏÖÜŸäëïöüÿ"_de},
    Accent{0x30A, "Aa", u8"Åå"_de},
    Accent{0x30C, "SZsz", u8"ŠŽšž"_de},
    Accent{0x327, "Cc", u8"Çç"_de},
};

NearestLetters look_up(char32_t character) {
  if (any_has(kInvisible, character)) return {{}, Loss::kNone};
  if (is_combining_mark(character)) return {{}, Loss::kChanged};
  if (const auto letter = letter_of(character); !letter.empty()) return {letter, Loss::kChanged};
  if (const auto word = word_of(character); !word.empty() && word != "-") {
    return {word == "_" ? std::string_view() : word, Loss::kChanged};
  }
  if (character == 0x1E9E) return {u8"ß"_de, Loss::kChanged};
  if (any_has(kPictures, character)) return {{}, Loss::kLost};
  return {"?", Loss::kLost};
}

}  // namespace

NearestLetters nearest_letters(char32_t character, char32_t before) {
  // A file in Greek or Cyrillic asks for each of its letters.
  constexpr std::size_t kOften = 0x530;
  static const auto often = [] {
    std::array<NearestLetters, kOften> letters;
    for (std::size_t i = 0; i < kOften; ++i) letters[i] = look_up(static_cast<char32_t>(i));
    return letters;
  }();
  if (const auto pair = greek_pair(character, before); !pair.empty()) return {pair, Loss::kChanged};
  return character < kOften ? often[character] : look_up(character);
}

char composed_letter(char letter, char32_t mark) {
  for (const Accent& accent : kAccents) {
    if (accent.mark != mark) continue;
    const auto at = accent.letters.find(letter);
    return at == accent.letters.npos ? '\0' : accent.composed[at];
  }
  return '\0';
}

}  // namespace quenda
