// What stands in a book when the program that writes it is killed: after every byte that it writes.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "book/book_entry.h"
#include "book/book_lines.h"
#include "book/unreadable_lines.h"
#include "tests/shared/fault_of.h"
#include "tests/shared/memory_tail.h"
#include "text/text.h"

namespace quenda {
namespace {

struct Killed {};

/// A file whose writer is gone after so many bytes; each cut counts as one.
class MortalTail final : public MemoryTail {
 public:
  MortalTail(std::string content, std::uint64_t life)
      : MemoryTail(std::move(content)), life_(life) {}
  void write_at(std::uint64_t position, std::string_view bytes) override {
    const std::string_view written = bytes.substr(0, life_);
    MemoryTail::write_at(position, written);
    live(written.size());
    if (written.size() < bytes.size()) throw Killed();
  }
  void cut(std::uint64_t length) override {
    if (life_ == 0) throw Killed();
    MemoryTail::cut(length);
    live(1);
  }

 private:
  void live(std::uint64_t bytes) { life_ -= bytes; }
  std::uint64_t life_;
};

std::string line_of(const BookEntry& entry) {
  std::string line;
  append_book_line(line, entry);
  return line;
}

/// What can be read of a book, each entry as the line that it makes.
struct Readable {
  std::set<std::string> entries;
  bool all = true;  // no line was unreadable
};

Readable read(std::string_view book, LineEnd end) {
  Readable readable;
  BookLines lines(book, end);
  std::string_view line;
  while (lines.next(line)) {
    if (line.empty()) continue;
    if (fault_of([&] { readable.entries.insert(line_of(read_book_line(line))); }) != 0) {
      readable.all = false;
    }
  }
  return readable;
}

/// The same without its card: the end of a line that is torn there, where the whole one stands too.
std::string without_card(const std::string& line) {
  return line.substr(0, line.find("[vcd(")) + "[vcd()vcd]\r\n";
}

struct Case {
  std::string name, before, after;
};
void PrintTo(const Case& c, std::ostream* os) { *os << c.name; }

const std::string kAnna = "Anna Blum;030111111;7;-1;3;0;Weg 1;;[vcd()vcd]\r\n";
const std::string kBert = "Bert Zahn;030222222;0;0;0;0;12;;[vcd(N:Zahn;Bert;;\nTEL:1;2)vcd]\r\n";
const std::string kChristina = "Christina von der Heide;030333333;0;0;12;-1;;;[vcd()vcd]\r\n";
const std::string kDora = "Dora;030444444;0;0;0;0;Platz 4;;[vcd()vcd]\r\n";
const std::string kOldBert =
    "Bert Zahn;030222222;0;False;0;False;12;x;[vcd(N:Zahn;Bert;;\nTEL:1;2)vcd]\r\n";
const std::string kNew = "Berta;030555555;0;0;0;0;Allee 5;;[vcd()vcd]\r\n";
const std::string kNewAnna = "Anna Blum-Rot;030111111;7;0;3;0;Am Markt;;[vcd()vcd]\r\n";

class Kill : public testing::TestWithParam<Case> {};

INSTANTIATE_TEST_SUITE_P(
    Book, Kill,
    testing::Values(
        Case{"append", kAnna + kBert, kAnna + kBert + kNew + kDora},
        Case{"create", "", kAnna + kNew},
        Case{"append_without_last_line_end", "Anna Blum;030111111;7;-1;3;0;Weg 1;;[vcd()vcd]",
             kAnna + kNew},
        Case{"replace_first", kAnna + kBert + kChristina + kDora,
             kBert + kChristina + kDora + kNewAnna},
        Case{"replace_and_append", kAnna + kBert + kChristina + kDora,
             kBert + kChristina + kDora + kNewAnna + kNew + kOldBert},
        Case{"shrink", kAnna + kChristina + kDora + kBert, kDora + kBert},
        Case{"shrink_by_two", kAnna + "\r\n" + kBert + kDora, kAnna + kBert + kDora},
        Case{"other_forms", kAnna + kOldBert + kChristina, kAnna + kBert + kChristina + kNew},
        Case{"line_feeds",
             "Anna;030111111;0;0;0;0;;;[vcd()vcd]\nBert;030222222;0;0;0;0;;;[vcd()vcd]\n",
             "Anna;030111111;0;0;0;0;;;[vcd()vcd]\r\nBert;030222222;0;0;0;0;;;[vcd()vcd]\r\n" +
                 kNew},
        Case{"cut", kAnna + kBert, kAnna}),
    [](const auto& c) { return c.param.name; });

TEST_P(Kill, LeavesOldAndNewEntriesOnlyAtEveryByte) {
  const Case& c = GetParam();
  const auto keep = static_cast<std::size_t>(
      std::mismatch(c.before.begin(), c.before.end(), c.after.begin(), c.after.end()).first -
      c.before.begin());
  const std::string_view tail = std::string_view(c.after).substr(keep);
  const TailPieces pieces({tail.substr(0, tail.size() / 3), tail.substr(tail.size() / 3)});
  const LineEnd end = line_end_of(c.before);
  const Readable old = read(c.before, end);
  const Readable fresh = read(c.after, end);
  std::set<std::string> allowed = old.entries;
  allowed.insert(fresh.entries.begin(), fresh.entries.end());
  for (const std::string& line : std::set<std::string>(allowed)) allowed.insert(without_card(line));

  for (std::uint64_t life = 0;; ++life) {
    SCOPED_TRACE(life);
    MortalTail file(c.before, life);
    bool killed = false;
    try {
      static_cast<void>(replace_tail_of(
          file, {.old_text = c.before, .keep = keep, .tail = &pieces, .spoil = &make_unreadable}));
    } catch (const Killed&) {
      killed = true;
    }
    ASSERT_EQ(file.content().substr(0, keep), c.before.substr(0, keep));
    if (!killed) {
      EXPECT_EQ(file.content(), c.after);
      break;
    }
    const Readable left = read(file.content(), end);
    for (const std::string& line : left.entries) ASSERT_TRUE(allowed.contains(line)) << line;
    std::vector<std::string> kept;  // what is in both books is there at any moment
    std::set_intersection(old.entries.begin(), old.entries.end(), fresh.entries.begin(),
                          fresh.entries.end(), std::back_inserter(kept));
    for (const std::string& line : kept) ASSERT_TRUE(left.entries.contains(line)) << line;
    // What reads like a book holds all of the old one or of the new one.
    if (left.all) {
      const auto holds = [&](const Readable& book) {
        return std::includes(left.entries.begin(), left.entries.end(), book.entries.begin(),
                             book.entries.end());
      };
      ASSERT_TRUE(holds(old) || holds(fresh));
    }
  }
}

}  // namespace
}  // namespace quenda
