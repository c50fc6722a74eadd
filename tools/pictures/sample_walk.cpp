// Imports a file into a suite as a user who listens to the program's help: leaves a picture of
// every page, and prints what the phone book hears. Usage: sample_walk SUITE FILE
// FOLDER-FOR-PICTURES
#include <gtest/gtest.h>

#include <cstdio>

#include "platform/win32/text_win32.h"
#include "text/text.h"
#include "tools/driver/wizard_test.h"
#include "tools/pictures/capture.h"

namespace quenda {
namespace {

struct Options {
  std::string suite, file, pictures;
};

Options& options() {
  static Options given;
  return given;
}

class SampleWalk : public WizardTest {
 protected:
  SampleWalk() : WizardTest(options().suite) {}

  void keep(std::string_view name) const {
    const std::string file = concat(options().pictures, "\\", name, ".png");
    ASSERT_TRUE(capture(main_, file)) << file;
    std::printf("  %.*s\n", static_cast<int>(name.size()), name.data());
    std::fflush(stdout);
  }
};

TEST_F(SampleWalk, FromTheFileToTheBook) {
  ASSERT_NO_FATAL_FAILURE(start_by_phone_book());
  fill(main_.after(u8"Datei für den Import"_de), options().file);
  keep("1_source");
  ASSERT_NO_FATAL_FAILURE(forward(Page::kColumns));
  keep("2_columns");
  ASSERT_NO_FATAL_FAILURE(forward(Page::kNames));
  keep("3_names");
  ASSERT_NO_FATAL_FAILURE(forward(Page::kAddresses));
  keep("4_addresses");
  ASSERT_NO_FATAL_FAILURE(forward(Page::kEntries));
  keep("5_entries");
  ASSERT_NO_FATAL_FAILURE(click_button(kApply));
  expect_end();
  EXPECT_TRUE(phone_book_->hears("data"));
  for (const std::string& line : phone_book_->heard()) {
    std::printf("The phone book heard: %s\n", line.c_str());
  }
}

}  // namespace
}  // namespace quenda

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  if (count != 4) {
    std::fputs("sample_walk SUITE FILE FOLDER-FOR-PICTURES\n", stderr);
    return 2;
  }
  quenda::options() = {words[1], words[2], words[3]};
  return RUN_ALL_TESTS();
}
