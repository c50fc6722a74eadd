#include <gtest/gtest.h>

#include <string>

#include "tests/settings/ini/ini_profile.h"

// What the profile functions make of awkward files. The expected results are those of the system's
// own functions; the same suite runs on those under Windows.
namespace quenda {
namespace {

using namespace std::string_literals;

std::string utf16(const std::string& ascii, const std::string& mark, bool high_first) {
  std::string result = mark;
  for (const char c : ascii) {
    result += high_first ? '\0' : c;
    result += high_first ? c : '\0';
  }
  return result;
}

struct ReadCase {
  const char* name;
  std::string content;
  std::string section;
  std::string key;
  std::string expected;
};

const std::string kMissing = "DEF";

TEST(IniContract, ReadsTexts) {
  const std::string long_text(2046, 'x');
  const ReadCase cases[] = {
      {"letter case", "[Abc]\r\nKey=v\r\n", "aBC", "kEY", "v"},
      {"missing key", "[A]\r\nk=v\r\n", "A", "x", kMissing},
      {"missing section", "[A]\r\nk=v\r\n", "B", "k", kMissing},
      {"empty file", "", "A", "k", kMissing},
      {"repeated key", "[A]\r\nk=1\r\nk=2\r\n", "A", "k", "1"},
      {"repeated section", "[A]\r\nk=1\r\n[B]\r\n[a]\r\nk=2\r\nm=3\r\n", "A", "k", "1"},
      {"key in a repeated section", "[A]\r\nk=1\r\n[a]\r\nm=3\r\n", "A", "m", kMissing},
      {"blanks", "[A]\r\n  k  =   v w  \r\n", "A", "k", "v w"},
      {"tabs", "[A]\r\n\tk\t=\tv\t\r\n", "A", "k", "v"},
      {"odd blanks", "[A]\r\nk=\x0Bv\x0C\x1A\r\n", "A", "k", "v"},
      {"hard blank", "[A]\r\nk=\xA0v\xA0\r\n", "A", "k", "\xA0v\xA0"},
      {"blanks in the section", "[ A ]\r\nk=v\r\n", "A", "k", "v"},
      {"blanks asked for", "[A]\r\nk=v\r\n", " A ", " k ", "v"},
      {"key that ends in a blank", "[A]\r\nk =v\r\n", "A", "k ", "v"},
      {"indented section", "  [A]\r\nk=v\r\n", "A", "k", "v"},
      {"text behind the section", "[A] x\r\nk=v\r\n", "A", "k", "v"},
      {"last bracket counts", "[A];x]\r\nk=v\r\n", "A];x", "k", "v"},
      {"brackets in brackets", "[[A]]\r\nk=v\r\n", "[A]", "k", "v"},
      {"section not closed", "[A\r\nk=v\r\n", "A", "k", kMissing},
      {"section not closed goes on", "[B]\r\n[A\r\nm=3\r\n", "B", "m", "3"},
      {"section not closed is a key", "[B]\r\n[A=7\r\n", "B", "[A", "7"},
      {"no section", "k=v\r\n[A]\r\n", "A", "k", kMissing},
      {"section without name", "k=v\r\n", "", "k", "v"},
      {"quotes", "[A]\r\nk=\" v w \"\r\n", "A", "k", " v w "},
      {"apostrophes", "[A]\r\nk='v w'\r\n", "A", "k", "v w"},
      {"one pair only", "[A]\r\nk=\"\"v\"\"\r\n", "A", "k", "\"v\""},
      {"quote not closed", "[A]\r\nk=\"v\r\n", "A", "k", "\"v"},
      {"unequal quotes", "[A]\r\nk=\"v'\r\n", "A", "k", "\"v'"},
      {"lone quote", "[A]\r\nk=\"\r\n", "A", "k", "\""},
      {"nothing quoted", "[A]\r\nk=\"\"\r\n", "A", "k", ""},
      {"quotes inside", "[A]\r\nk=a\"b\"\r\n", "A", "k", "a\"b\""},
      {"comment", "[A]\r\n;k=v\r\n", "A", "k", kMissing},
      {"comment as key", "[A]\r\n;k=v\r\n", "A", ";k", "v"},
      {"comment behind", "[A]\r\nk=v ;c\r\n", "A", "k", "v ;c"},
      {"empty value", "[A]\r\nk=\r\nk=2\r\n", "A", "k", ""},
      {"no equals sign", "[A]\r\nk\r\nk=v\r\n", "A", "k", kMissing},
      {"two equals signs", "[A]\r\nk=a=b\r\n", "A", "k", "a=b"},
      {"empty key", "[A]\r\n=v\r\nk=1\r\n", "A", "k", "1"},
      {"LF", "[A]\nk=v\nm=w\n", "A", "m", "w"},
      {"CR", "[A]\rk=v\rm=w\r", "A", "m", "w"},
      {"mixed line ends", "[A]\nk=v\r\nm=w\r\r\nz=1", "A", "z", "1"},
      {"NUL in the value", "[A]\r\nk=a\0b\r\nm=1\r\n"s, "A", "k", "a"},
      {"NUL before", "[A]\r\nk=a\0b\r\nm=1\r\n"s, "A", "m", "1"},
      {"NUL in the key", "[A]\r\nk\0x=a\r\n"s, "A", "k", "a"},
      {"NUL in the section", "[A\0B]\r\nk=a\r\n"s, "A", "k", "a"},
      {"NUL first", "\0[A]\r\nk=a\r\n"s, "A", "k", kMissing},
      {"code 26 does not end the file", "[A]\r\nk=1\x1A\r\nm=2\r\n", "A", "m", "2"},
      {"2047 characters", "[A]\r\nk=" + long_text + "Y\r\n", "A", "k", long_text + "Y"},
      {"2100 characters", "[A]\r\nk=" + long_text + "Y" + std::string(53, 'z') + "\r\n", "A", "k",
       long_text + "Y"},
      {"70000 characters before", "[A]\r\nk=" + std::string(70000, 'x') + "\r\nm=2", "A", "m", "2"},
      {"high characters", "[A]\r\n\xDF=\xE4\x80\x81\r\n", "A", "\xDF", "\xE4\x80\x81"},
      {"UTF-8 with mark", "\xEF\xBB\xBF[A]\r\nk=\xC3\xA4\xE2\x82\xAC\xD0\x96\r\n", "A", "k",
       "\xE4\x80?"},
      {"UTF-8 with mark, broken", "\xEF\xBB\xBF[A]\r\nk=\xE4x\r\n", "A", "k", "?x"},
      {"UTF-8 without mark", "[A]\r\nk=\xC3\xA4\r\n", "A", "k", "\xC3\xA4"},
      {"UTF-16", utf16("[A]\r\nk=v\r\n", "\xFF\xFE", false), "A", "k", "v"},
      {"UTF-16 swapped", utf16("[A]\r\nk=v\r\n", "\xFE\xFF", true), "A", "k", "v"},
      {"UTF-16 without mark", utf16("[A]\r\nk=v\r\n", "", false), "A", "k", kMissing},
  };
  for (const ReadCase& c : cases) {
    EXPECT_EQ(ini_profile::text(c.content, c.section, c.key, kMissing), c.expected) << c.name;
  }
}

TEST(IniContract, CutsDefaultsLikeValues) {
  const auto standard = [](const std::string& text) {
    return ini_profile::text("[A]\r\n", "A", "k", text);
  };
  EXPECT_EQ(standard(" D  "), " D");
  EXPECT_EQ(standard("D\t"), "D\t");
  EXPECT_EQ(standard("\"D\""), "D");
  EXPECT_EQ(standard("'D '"), "D ");
  EXPECT_EQ(standard(std::string(3000, 'd')), std::string(2047, 'd'));
}

TEST(IniContract, ReadsNumbers) {
  constexpr std::int32_t kStandard = 77;
  struct NumberCase {
    std::string value;
    std::int32_t expected;
  };
  const NumberCase cases[] = {
      {"5", 5},
      {"-5", -5},
      {"+5", 5},
      {"5x", 5},
      {"x5", 0},
      {"", kStandard},
      {"1.5", 1},
      {"5 6", 5},
      {"017", 17},
      {"0x1F", 31},
      {"0X1f", 0},
      {"0b11", 3},
      {"0b2", 0},
      {"0o17", 15},
      {"-0x10", -16},
      {"0x", 0},
      {"True", 0},
      {"&H10", 0},
      {"- 5", 0},
      {"--5", 0},
      {"1e3", 1},
      {"\"7\"", 7},
      {"' -7'", -7},
      {"\xA0"
       "5",
       0},
      {"\xB2", 0},
      {"2147483648", -2147483647 - 1},
      {"-2147483649", 2147483647},
      {"4294967295", -1},
      {"4294967296", 0},
      {"99999999999999999999", 1661992959},
      {"0xFFFFFFFFF", -1},
      {std::string(31, '0') + "12", 0},
      {"1234567890123456789012345678901234567890", 1849262357},
      {std::string(30, ' ') + "5", 5},
  };
  for (const NumberCase& c : cases) {
    EXPECT_EQ(ini_profile::number("[A]\r\nk=" + c.value + "\r\n", "A", "k", kStandard), c.expected)
        << c.value;
  }
  EXPECT_EQ(ini_profile::number("[A]\r\nk\r\n", "A", "k", kStandard), kStandard);
}

struct WriteCase {
  const char* name;
  std::string content;
  std::string section;
  std::string key;
  std::string value;
  std::string expected;
};

TEST(IniContract, WritesValues) {
  const std::string plain = "[A]\r\nk=v\r\n";
  const WriteCase cases[] = {
      {"replace", "[A]\r\nK=v\r\nm=1\r\n", "a", "k", "w", "[A]\r\nK=w\r\nm=1\r\n"},
      {"replace first", "[A]\r\nk=1\r\nk=2\r\n", "A", "k", "w", "[A]\r\nk=w\r\nk=2\r\n"},
      {"add key", "[A]\r\nk=v\r\n[B]\r\nx=1\r\n", "A", "m", "w",
       "[A]\r\nk=v\r\nm=w\r\n[B]\r\nx=1\r\n"},
      {"add key to the first of two", "[A]\r\nx=1\r\n[B]\r\n[A]\r\nk=2\r\n", "A", "k", "w",
       "[A]\r\nx=1\r\nk=w\r\n[B]\r\n[A]\r\nk=2\r\n"},
      {"add section", plain, "B", "m", "w", "[A]\r\nk=v\r\n[B]\r\nm=w\r\n"},
      {"empty file", "", "B", "m", "w", "[B]\r\nm=w\r\n"},
      {"header only", "[A]", "A", "k", "w", "[A]\r\nk=w\r\n"},
      {"no line end", "[A]\r\nk=v", "A", "m", "w", "[A]\r\nk=v\r\nm=w\r\n"},
      {"no line end, new section", "[A]\r\nk=v", "B", "m", "w", "[A]\r\nk=v\r\n[B]\r\nm=w\r\n"},
      {"indented", "[A]\r\n  k  =  v  \r\n", "A", "k", "w", "[A]\r\nk=w\r\n"},
      {"comments stay", "g\r\n[A]\r\n;c\r\nk=v ; x\r\n", "A", "k", "w",
       "g\r\n[A]\r\n;c\r\nk=w\r\n"},
      {"line without equals sign", "[A]\r\nk\r\nm=1\r\n", "A", "k", "w", "[A]\r\nk=w\r\nm=1\r\n"},
      {"section not closed", "[A\r\nk=1\r\n", "A", "k", "w", "[A\r\nk=1\r\n[A]\r\nk=w\r\n"},
      {"leading blanks are lost", plain, " A ", " k ", "  w  ", "[A]\r\nk=w  \r\n"},
      {"quotes are written", plain, "A", "k", "\"w w\"", "[A]\r\nk=\"w w\"\r\n"},
      {"empty value", plain, "A", "k", "", "[A]\r\nk=\r\n"},
      {"new names keep blanks at the end", plain, " C ", " n ", "w",
       "[A]\r\nk=v\r\n[C ]\r\nn =w\r\n"},
      {"no section name", plain, "", "k", "w", "k=w\r\n[A]\r\nk=v\r\n"},
      {"high characters", "[A]\r\nk=\xE4\x80\r\n", "A", "m", "\xFC\x81",
       "[A]\r\nk=\xE4\x80\r\nm=\xFC\x81\r\n"},
      {"UTF-8 with mark", "\xEF\xBB\xBF[A]\r\nk=\xC3\xA4\r\n", "A", "m", "\xFC",
       "\xEF\xBB\xBF[A]\r\nk=\xC3\xA4\r\nm=\xC3\xBC\r\n"},
      {"UTF-16", utf16("[A]\r\nk=v\r\n", "\xFF\xFE", false), "A", "k", "w\xE4",
       utf16("[A]\r\nk=w\xE4\r\n", "\xFF\xFE", false)},
  };
  for (const WriteCase& c : cases) {
    EXPECT_EQ(ini_profile::written(c.content, c.section, c.key, c.value), c.expected) << c.name;
  }
}

}  // namespace
}  // namespace quenda
