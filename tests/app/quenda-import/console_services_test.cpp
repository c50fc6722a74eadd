#include "app/quenda-import/console_services.h"

#include <gtest/gtest.h>

#include <sstream>

#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

class SteppedClock final : public Clock {
 public:
  [[nodiscard]] LocalTime now() const override { return {}; }
  [[nodiscard]] std::uint64_t milliseconds() const override { return time; }
  std::uint64_t time = 1000;
};

TEST(ConsoleDialogs, MessagesAreUtf8LinesAfterTheProgressLineIsGone) {
  std::ostringstream errors;
  ProgressLine progress(errors);
  ConsoleDialogs dialogs(errors, progress);
  progress.show(u8"Telefonbuch laden für"_de, 5);
  errors.str("");
  dialogs.message_box(concat(u8"Größe"_de, "\r\nzwei"), MessageStyle::kInformation, "Titel");
  EXPECT_EQ(errors.str(), "\r\x1b[KGröße\nzwei\n");
}

TEST(ConsoleDialogs, NobodyAgreesToAQuestion) {
  std::ostringstream errors;
  ProgressLine progress(errors);
  ConsoleDialogs dialogs(errors, progress);
  EXPECT_EQ(dialogs.message_box("?", MessageStyle::kQuestionYesNo, ""), MessageAnswer::kNo);
}

TEST(ConsoleEvents, ProgressIsShownAtMostTwentyTimesASecond) {
  SteppedClock clock;
  ConsoleEvents events(clock);
  int shown = 0;
  events.on_progress = [&] { ++shown; };
  for (int i = 0; i < 10'000; ++i) events.yield();
  EXPECT_EQ(shown, 1);
  clock.time += 49;
  for (int i = 0; i < 10'000; ++i) events.yield();
  EXPECT_EQ(shown, 1);
  clock.time += 1;
  for (int i = 0; i < 10'000; ++i) events.yield();
  EXPECT_EQ(shown, 2);
}

TEST(ProgressLine, IsDrawnAgainOnlyWhenItChanges) {
  std::ostringstream errors;
  ProgressLine progress(errors);
  progress.show("Lesen", 5);
  progress.show("Lesen", 5);
  EXPECT_EQ(errors.str(), "\r\x1b[KLesen 5 %");
  progress.clear();
  progress.clear();
  EXPECT_EQ(errors.str(), "\r\x1b[KLesen 5 %\r\x1b[K");
}

}  // namespace
}  // namespace quenda
