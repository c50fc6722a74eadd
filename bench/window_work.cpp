// Measures the tool's window at work on a large file, driven from outside like a user does it: how
// long each step takes, how much memory, and how soon "Abbrechen" is answered at any moment of it.
// Usage: window_work [ROWS]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "bench/contact_data.h"
#include "tools/driver/wizard_test.h"
// windows.h has to come first.
#include <psapi.h>

namespace quenda {
namespace {

constexpr ULONGLONG kLimit = 60'000;  // milliseconds

std::size_t rows = 1'000'000;  // NOLINT(*-avoid-non-const-global-variables)

ULONGLONG milliseconds_until(const std::function<bool()>& condition) {
  const ULONGLONG begin = GetTickCount64();
  while (!condition() && GetTickCount64() - begin < kLimit) Sleep(1);
  return GetTickCount64() - begin;
}

class WindowWork : public WizardTest {
 protected:
  enum Step { kReading, kCleaning, kComposing, kWriting, kSteps };

  void SetUp() override {
    suite_.write("kontakte.csv", contact_file(rows));
    suite_.write("data\\sett_import.ini",
                 "[Import]\r\nAsk=2\r\nSelNames1=Nachname\r\nSelNames2=Vorname\r\n"
                 "SelNumbers1=Telefon\r\nSelAddress11=PLZ\r\nSelAddress12=Ort\r\nAddChk11=1\r\n");
    suite_.set_book(phone_book(rows / 10));
  }

  /// Everything before a step, so that it is there to be begun.
  void prepare(Step step) {
    start_by_phone_book();  // or the end of the import would be a message
    const std::string path = suite_.contacts();
    fill(main_.after(u8"Datei für den Import"_de), path.substr(0, path.size() - 1));
    for (int before = kReading; before < step; ++before) {
      begin(static_cast<Step>(before));
      milliseconds_until([&] { return done(static_cast<Step>(before)); });
      if (before != kCleaning) continue;
      forward(Page::kNames);
      forward(Page::kAddresses);
    }
  }

  void begin(Step step) {
    if (step == kReading) {
      type(suite_.contacts().substr(suite_.contacts().size() - 1));
    } else {
      click_button(step == kWriting ? kApply : kNext);
    }
  }

  [[nodiscard]] bool done(Step step) const {
    switch (step) {
      case kReading:
        return button(kNext).enabled();
      case kCleaning:
        return on(Page::kColumns) && button(kBack).enabled();
      case kComposing:
        return on(Page::kEntries) && button(kApply) && button(kApply).enabled();
      default:
        return !main_.visible();
    }
  }

  [[nodiscard]] double peak_megabytes() const {
    PROCESS_MEMORY_COUNTERS memory{};
    GetProcessMemoryInfo(OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, tool_.id()), &memory,
                         sizeof memory);
    return static_cast<double>(memory.PeakWorkingSetSize) / 1e6;
  }

  /// The longest answer to the Escape key at several moments of a step.
  void cancel_during(Step step, ULONGLONG duration) {
    std::printf("  Esc answered after");
    ULONGLONG longest = 0;
    for (const int percent : {5, 15, 25, 35, 45, 55, 65, 75, 85, 95}) {
      prepare(step);
      begin(step);
      Sleep(static_cast<DWORD>(duration * static_cast<ULONGLONG>(percent) / 100));
      press_at_once(Key::kEscape);
      const ULONGLONG answer = milliseconds_until([&] { return !main_.visible(); });
      longest = std::max(longest, answer);
      std::printf(" %llu", answer);
      std::fflush(stdout);
      expect_end();
      SetUp();
    }
    std::printf(" ms; longest %llu (wanted: 200)\n", longest);
  }
};

TEST_F(WindowWork, StepsAndTheirCancel) {
  constexpr const char* kNames[] = {"file read", "page of columns usable", "entries composed",
                                    "book written"};
  const double file = static_cast<double>(contact_file(rows).size()) / 1e6;
  ULONGLONG durations[kSteps] = {};
  prepare(kReading);
  for (int step = kReading; step < kSteps; ++step) {
    if (step == kComposing) {
      forward(Page::kNames);
      forward(Page::kAddresses);
    }
    begin(static_cast<Step>(step));
    durations[step] = milliseconds_until([&] { return done(static_cast<Step>(step)); });
    std::printf("%-24s %6llu ms", kNames[step], durations[step]);
    if (step < kWriting) {
      const double peak = peak_megabytes();
      std::printf(", peak %.0f MB, %.2f times the file", peak, peak / file);
    }
    std::printf("\n");
  }
  expect_end();
  for (int step = kReading; step < kSteps; ++step) {
    std::printf("%s\n", kNames[step]);
    cancel_during(static_cast<Step>(step), durations[step]);
  }
}

}  // namespace
}  // namespace quenda

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  if (count > 1) quenda::rows = static_cast<std::size_t>(std::atoll(words[1]));
  return RUN_ALL_TESTS();
}
