// The whole way of the batch tool, from a structure that the input describes: the book afterwards
// is what a slow merge makes of it, no number is lost, and the same import again changes nothing.
#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "app/quenda-import/batch_run.h"
#include "fuzz/oracle.h"
#include "tests/shared/fakes.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kBook = "D:\\Suite\\data\\Quendabook.txt";
constexpr std::string_view kFile = "C:\\contacts.csv";

struct Entry {
  std::string name, number, tag = "0", count = "0", address, card;
  bool flag1 = false, flag2 = false;
};

std::string line_of(const Entry& e) {
  return concat(e.name, ";", e.number, ";", e.tag, ";", e.flag1 ? "-1" : "0", ";", e.count, ";",
                e.flag2 ? "-1" : "0", ";", e.address, ";;[vcd(", e.card, ")vcd]\r\n");
}

/// Takes small decisions from the input.
class Choices {
 public:
  explicit Choices(std::string_view input) : input_(input) {}
  [[nodiscard]] bool empty() const { return input_.empty(); }
  unsigned next(unsigned below) {
    if (input_.empty()) return 0;
    const auto value = static_cast<unsigned char>(input_.front());
    input_.remove_prefix(1);
    return value % below;
  }

 private:
  std::string_view input_;
};

std::string name_of(unsigned n) {
  static const char* const names[] = {"Anna",      "Bert Zahn", "anna",
                                      "M\xFCller", "X Y Z",     "Zoe-\x80"};
  return names[n % std::size(names)];
}

std::string number_of(unsigned n) { return concat("03055501", std::to_string(10 + n % 12)); }

bool same_person(const Entry& a, const Entry& b) {
  return equal_ignoring_case(a.name, b.name) && equal_ignoring_case(a.address, b.address);
}

/// The merge by searching the whole list for each entry. Nothing when nothing is to be written.
std::vector<Entry> slow_merge(const std::vector<Entry>& book, const std::vector<Entry>& fresh,
                              bool take_new, bool& writes) {
  std::vector<Entry> kept;
  std::vector<Entry> all = book;
  all.insert(all.end(), fresh.begin(), fresh.end());
  for (Entry entry : all) {
    if (entry.number.empty()) continue;
    std::size_t at = 0;
    while (at < kept.size() && kept[at].number != entry.number) ++at;
    if (at == kept.size()) {
      kept.push_back(entry);
      continue;
    }
    if (same_person(kept[at], entry)) continue;
    if (!kept[at].name.empty() && !take_new) continue;
    entry.tag = kept[at].tag;
    entry.count = kept[at].count;
    kept[at].number.clear();
    kept.push_back(entry);
  }
  writes = book.size() < kept.size();
  return kept;
}

}  // namespace
}  // namespace quenda

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quenda;
  Choices choices(text_of(data, size));
  const bool take_new = choices.next(2) == 1;
  FakeMachine machine;
  machine.system.protects = false;
  machine.files.put("D:\\Suite\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
  machine.files.put("D:\\Suite\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");

  std::vector<Entry> book;
  std::string book_text;
  for (unsigned n = choices.next(12); n > 0; --n) {
    Entry entry;
    entry.name = name_of(choices.next(7));
    entry.number = choices.next(9) == 0 ? "" : number_of(choices.next(12));
    entry.address = choices.next(3) == 0 ? "Weg 1" : "";
    entry.count = std::to_string(choices.next(5));
    entry.flag1 = choices.next(2) == 1;
    entry.card = choices.next(4) == 0 ? "N:a;b\nTEL:1" : "";
    std::string line = line_of(entry);
    const unsigned form = choices.next(8);
    if (form == 0) line = replace_all(line, ";;[vcd(", ";extra;[vcd(");
    if (form == 1 && entry.card.empty()) line = replace_all(line, "[vcd()vcd]", "");
    if (form == 2) line = "\r\n" + line;
    if (form == 3) line = replace_all(line, ";-1;", ";True;");
    book_text += line;
    book.push_back(entry);
  }
  if (!book_text.empty() && choices.next(6) == 0) book_text.resize(book_text.size() - 2);
  if (!book_text.empty() || choices.next(2) == 0) machine.files.put(kBook, book_text);

  std::vector<Entry> fresh;
  std::string contacts = "Name;Tel;Ort\r\n";
  for (unsigned n = 1 + choices.next(12); n > 0; --n) {
    Entry entry;
    entry.name = name_of(choices.next(7));
    entry.number = number_of(choices.next(12));
    const bool quoted = choices.next(3) == 0;
    contacts += quoted ? concat(entry.name, ";\"", entry.number, "\";\"Ulm\"\r\n")
                       : concat(entry.name, ";", entry.number, ";Ulm\r\n");
    // Repeated contacts are left out before the merge.
    const bool repeated = std::any_of(fresh.begin(), fresh.end(), [&](const Entry& other) {
      return other.name == entry.name && other.number == entry.number;
    });
    if (!repeated) fresh.push_back(entry);
  }
  machine.files.put(kFile, contacts);

  BatchOptions options;
  options.suite = "D:\\Suite";
  options.file = kFile;
  options.columns[kNames] = {"Name"};
  options.columns[kNumbers] = {"Tel"};
  options.existing = take_new ? 1 : 2;
  const auto run = [&] {
    std::ostringstream out;
    std::ostringstream errors;
    const int status = run_batch(
        options, {machine.files, machine.clock, machine.system, machine.automation}, {out, errors});
    if (status != kExitDone) expect_equal("messages", errors.str(), "none");
    return out.str();
  };
  bool writes = false;
  const std::vector<Entry> merged = slow_merge(book, fresh, take_new, writes);
  expect_equal("result", run(), writes ? "data\n" : "nodata\n");
  std::string expected;
  for (const Entry& entry : merged) {
    if (!entry.number.empty()) expected += line_of(entry);
  }
  expect_equal("book", machine.files.content(kBook), writes ? expected : book_text);
  if (!writes || take_new) return 0;
  for (const Entry& entry : fresh) {
    expect("number in the book",
           machine.files.content(kBook).find(concat(";", entry.number, ";")) != std::string::npos);
  }
  expect_equal("second run", run(), "nodata\n");
  return 0;
}
