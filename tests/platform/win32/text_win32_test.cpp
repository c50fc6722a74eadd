#include "platform/win32/text_win32.h"

#include <gtest/gtest.h>

#include "text/literal_1252.h"

namespace quenda {
namespace {

TEST(TextWin32, EveryByteComesBackAsItWas) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  const std::wstring units = wide(all);
  EXPECT_EQ(units[0x80], L'\u20AC');
  EXPECT_EQ(exact_1252(units), all);
}

TEST(TextWin32, PathsWithForeignCharactersAreRefusedAndNotGuessed) {
  EXPECT_EQ(exact_1252(L"C:\\Gr\u00FC\u00DFe.csv"), std::string(u8"C:\\Grüße.csv"_de));
  EXPECT_FALSE(exact_1252(L"C:\\\u0141\u00F3d\u017A.csv"));
  EXPECT_FALSE(exact_1252(L"C:\\\U0001F4DE.csv"));
}

TEST(TextWin32, TextsForReadersTakeTheNearestCharacters) {
  EXPECT_EQ(nearest_1252(L"\u0141\u00F3d\u017A"), std::string(u8"Lódz"_de));
  EXPECT_EQ(nearest_1252(L"\u65E5\u672C 30 \u20AC"), std::string(u8"?? 30 €"_de));
}

}  // namespace
}  // namespace quenda
