#include "settings/ini/ini_text.h"

#include <gtest/gtest.h>

#include <string>

namespace quenda {
namespace {

// Here the tool does better than the system's functions under some systems, which tidy the whole
// file up when they write.
TEST(ReplaceIniValue, LeavesAllOtherLinesAsTheyAre) {
  const std::string before = "; my settings\n\n[A]\n  x = 1\n\n\n[B]\n y=2 ; note\n";
  EXPECT_EQ(replace_ini_value(before, "B", "y", "3"),
            "; my settings\n\n[A]\n  x = 1\n\n\n[B]\ny=3\n");
  EXPECT_EQ(replace_ini_value(before, "A", "z", "9"),
            "; my settings\n\n[A]\n  x = 1\r\nz=9\n\n\n[B]\n y=2 ; note\n");
  EXPECT_EQ(replace_ini_value("[A]\r\nx=ab \r\n", "A", "y", ""), "[A]\r\nx=ab \r\ny=\r\n")
      << "a blank at the end of a line belongs to that line";
}

TEST(ReplaceIniValue, KeepsUtf16CharactersThatTheCodePageLacks) {
  const std::string mark = "\xFF\xFE";
  const auto line = [](const std::string& text) {
    std::string units;
    for (const char c : text) units.append(1, c).append(1, '\0');
    return units;
  };
  const std::string pair("\x3D\xD8\x00\xDE\x16\x04", 6);
  const std::string before = mark + line("[A]\r\nx=") + pair + line("\r\nk=1\r\n");
  EXPECT_EQ(replace_ini_value(before, "A", "k", "2"),
            mark + line("[A]\r\nx=") + pair + line("\r\nk=2\r\n"));
  EXPECT_EQ(IniText(before).text("A", "x", ""), "???");
}

TEST(IniText, IndexesLargeFilesOnce) {
  std::string content = "[A]\r\n";
  for (int i = 0; i < 20000; ++i)
    content += "key" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
  const IniText text(content);
  for (int i = 0; i < 20000; ++i) {
    ASSERT_EQ(text.number("a", "KEY" + std::to_string(i), -1), i);
  }
  EXPECT_FALSE(text.find("A", "key20000").has_value());
}

}  // namespace
}  // namespace quenda
