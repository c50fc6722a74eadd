// What stands in a book after each call that can fail while it is written, and what is said of it.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "book/unreadable_lines.h"
#include "tests/shared/memory_tail.h"
#include "text/fault.h"

namespace quenda {
namespace {

/// A file of which one call that changes it fails, or all from that one on; what is written is
/// written by half then.
class FailingTail final : public MemoryTail {
 public:
  FailingTail(std::string content, int call, bool ever_after)
      : MemoryTail(std::move(content)), call_(call), ever_after_(ever_after) {}
  void write_at(std::uint64_t position, std::string_view bytes) override {
    const bool failing = fails();
    MemoryTail::write_at(position, failing ? bytes.substr(0, bytes.size() / 2) : bytes);
    if (failing) raise_fault(kFaultDiskFull);
  }
  void cut(std::uint64_t length) override {
    if (fails()) raise_fault(kFaultInputOutput);
    MemoryTail::cut(length);
  }
  void flush() override {
    if (fails()) raise_fault(kFaultInputOutput);
  }

 private:
  bool fails() {
    ++calls_;
    return ever_after_ ? calls_ >= call_ : calls_ == call_;
  }
  int call_;
  bool ever_after_;
  int calls_ = 0;
};

const std::string kBefore =
    "Anna;030111;0;0;0;0;;;[vcd()vcd]\r\nBert;030222;0;0;0;0;;;[vcd()vcd]\r\n"
    "Christina;030333;0;0;0;0;;;[vcd()vcd]\r\n";

struct Scene {
  std::string name;
  std::size_t keep;
  std::string tail;
};
const Scene kScenes[] = {
    {"append", kBefore.size(), "Dora;030444;0;0;0;0;;;[vcd()vcd]\r\n"},
    {"rewrite", 0,
     "Bert;030222;0;0;0;0;;;[vcd()vcd]\r\nChristina;030333;0;0;0;0;;;[vcd()vcd]\r\n"
     "Anna Blum-Rot;030111;0;0;0;0;;;[vcd()vcd]\r\n"},
    {"shrink", 34, "Christina;030333;0;0;0;0;;;[vcd()vcd]\r\n"},
    {"cut", 34, ""},
};

constexpr TailTexts kTexts = {.unchanged = "unchanged",
                              .longer = "longer than %1",
                              .damaged = "damaged from %1 (%2)",
                              .rest = "rest at end",
                              .large = "too large"};

/// The message of the fault; nothing when there was none.
std::optional<std::string> fault_of_replacing(TailFile& file, const Scene& scene) {
  const TailPieces tail({scene.tail});
  try {
    static_cast<void>(replace_tail_of(file, {.old_text = kBefore,
                                             .keep = scene.keep,
                                             .tail = &tail,
                                             .texts = kTexts,
                                             .spoil = &make_unreadable}));
    return std::nullopt;
  } catch (const RuntimeFault& fault) {
    return fault.addition();
  }
}

TEST(PutBack, OneFailureLeavesTheOldContentAndSaysSo) {
  for (const Scene& scene : kScenes) {
    for (int call = 1;; ++call) {
      SCOPED_TRACE(scene.name + std::to_string(call));
      FailingTail file(kBefore, call, false);
      const auto message = fault_of_replacing(file, scene);
      if (!message) {
        EXPECT_EQ(file.content(), kBefore.substr(0, scene.keep) + scene.tail);
        EXPECT_GE(call, 3);
        break;
      }
      EXPECT_EQ(file.content(), kBefore);
      EXPECT_EQ(*message, kTexts.unchanged);
    }
  }
}

TEST(PutBack, WhatCannotBePutBackIsNamed) {
  for (const Scene& scene : kScenes) {
    for (int call = 1;; ++call) {
      SCOPED_TRACE(scene.name + std::to_string(call));
      FailingTail file(kBefore, call, true);
      const auto message = fault_of_replacing(file, scene);
      if (!message) break;
      // No word of an unchanged book, unless it is; nothing before the first change is touched.
      EXPECT_EQ(message->find(kTexts.unchanged), std::string::npos);
      EXPECT_EQ(file.content().substr(0, scene.keep), kBefore.substr(0, scene.keep));
      if (message->find("longer than 3") != std::string::npos) {
        EXPECT_TRUE(file.content().starts_with(kBefore));
      } else {
        const bool first = scene.keep == 0;
        EXPECT_NE(
            message->find(first ? "damaged from 1 (Anna;030111;" : "damaged from 2 (Bert;030222;"),
            std::string::npos)
            << *message;
      }
    }
  }
}

TEST(PutBack, WhatCouldNotBeReadAgainIsNotWritten) {
  // One megabyte, many times over.
  const std::string block(1U << 20U, 'x');
  std::vector<std::string_view> pieces(2047, block);
  const std::string_view rest(block);
  pieces.push_back(rest.substr(1 + kBefore.size()));
  pieces.push_back("..");
  const TailPieces tail(pieces);
  MemoryTail file{std::string(kBefore)};
  try {
    static_cast<void>(replace_tail_of(
        file, {.old_text = kBefore, .keep = kBefore.size(), .tail = &tail, .texts = kTexts}));
    ADD_FAILURE() << "one byte too many was written";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), kFaultOutOfMemory);
    EXPECT_EQ(fault.addition(), kTexts.large);
  }
  EXPECT_EQ(file.content(), kBefore);
}

}  // namespace
}  // namespace quenda
