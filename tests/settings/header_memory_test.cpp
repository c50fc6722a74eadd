#include "settings/header_memory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/shared/settings_service.h"

namespace quenda {
namespace {

const std::vector<std::string> kHeader = {"Name", "\"Tel;1\"", "", "Mobil", "Ort"};

HeaderChoice choice_of(std::size_t number) {
  HeaderChoice choice;
  choice.columns = {{{0}, {number, 3}, {4, 2, 1}, {}}};
  choice.name_flip = 1;
  choice.address_flip = 5;
  choice.add_check = {{{1, 0}, {0, 1}, {0, 0}}};
  choice.suffixes = {"(m, x)", "", " \"p\" "};
  return choice;
}

void expect_equal(const HeaderChoice& a, const HeaderChoice& b) {
  EXPECT_EQ(a.columns, b.columns);
  EXPECT_EQ(a.name_flip, b.name_flip);
  EXPECT_EQ(a.address_flip, b.address_flip);
  EXPECT_EQ(a.add_check, b.add_check);
  EXPECT_EQ(a.suffixes, b.suffixes);
}

TEST(HeaderMemory, OnlyTheSameHeaderGetsAChoiceBack) {
  const std::string line = header_choice_text(kHeader, choice_of(1));
  const auto read = read_header_choice(kHeader, line);
  ASSERT_TRUE(read);
  expect_equal(*read, choice_of(1));
  std::vector<std::string> other = kHeader;
  std::swap(other[3], other[4]);
  EXPECT_FALSE(read_header_choice(other, line));
  other = kHeader;
  other.pop_back();
  EXPECT_FALSE(read_header_choice(other, line));
}

TEST(HeaderMemory, ALineOfAnEarlierVersionIsUnderstood) {
  EXPECT_TRUE(read_header_choice(kHeader, "5-5107112627519857831;0;1;;;0;0;000000;;;;"));
}

TEST(HeaderMemory, ALineThatMakesNoSenseIsNone) {
  const std::string mark = header_choice_text(kHeader, {});
  const std::string begin = mark.substr(0, mark.find(';'));
  for (const char* rest :
       {"", ";0;1;2", ";5;1;;;0;0;000000;;;;", ";-1;1;;;0;0;000000;;;;",
        ";0;0,1,2,3;;;0;0;000000;;;;", ";0;1;;;2;0;000000;;;;", ";0;1;;;0;6;000000;;;;",
        ";0;1;;;0;0;00000;;;;", ";x;1;;;0;0;000000;;;;"}) {
    EXPECT_FALSE(read_header_choice(kHeader, begin + rest)) << rest;
  }
  EXPECT_TRUE(read_header_choice(kHeader, begin + ";0;1;;;0;0;000000;;;;"));
}

TEST(HeaderMemory, TheLastTwentyHeadersAreKept) {
  SettingsService service;
  const auto header_of = [](int i) { return std::vector<std::string>{"Name", std::to_string(i)}; };
  HeaderChoice choice;
  choice.columns = {{{0}, {1}, {}, {}}};
  for (int i = 0; i < kMostHeaders; ++i) save_header_choice(service.ini, header_of(i), choice);
  choice.columns = {{{1}, {0}, {}, {}}};
  save_header_choice(service.ini, header_of(0), choice);  // no longer the oldest
  save_header_choice(service.ini, header_of(kMostHeaders), choice);
  EXPECT_FALSE(load_header_choice(service.ini, header_of(1)));
  const auto newest = load_header_choice(service.ini, header_of(0));
  ASSERT_TRUE(newest);
  expect_equal(*newest, choice);
  for (int i = 2; i <= kMostHeaders; ++i) {
    EXPECT_TRUE(load_header_choice(service.ini, header_of(i))) << i;
  }
}

}  // namespace
}  // namespace quenda
