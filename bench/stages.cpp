// The stages of an import one by one, on growing numbers of contacts and entries of the book: the
// processor time of each (the least of some rounds), and how it grows: an exponent of 1 is in
// proportion to the size.
#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/contact_data.h"
#include "book/book_change.h"
#include "book/book_list.h"
#include "book/entry_list.h"
#include "book/foreseen_fates.h"
#include "book/merge.h"
#include "book/number_cleaning.h"
#include "platform/native_services.h"
#include "sources/delimited_text.h"
#include "sources/file_conversion.h"
#include "sources/file_facts.h"
#include "sources/record_table.h"
#include "text/flat_table.h"
#include "text/repeated_lines.h"
#include "text/text.h"
#include "wizard/composition.h"

namespace quenda {
namespace {

constexpr char kDelimiter = ';';
constexpr int kRounds = 3;
constexpr std::size_t kSample = 1000;  // records that tell how large the entries become
const auto kNoStep = [](std::size_t, std::size_t) {};

double cpu_seconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// The least time of each stage, in the order in which they ran first.
class Times {
 public:
  void run(const std::string& stage, const std::function<void()>& work) {
    const double start = cpu_seconds();
    work();
    const double seconds = cpu_seconds() - start;
    const auto [place, added] = seconds_.emplace(stage, seconds);
    if (added) order_.push_back(stage);
    place->second = std::min(place->second, seconds);
  }
  [[nodiscard]] const std::vector<std::string>& stages() const { return order_; }
  [[nodiscard]] double of(const std::string& stage) const { return seconds_.at(stage); }

 private:
  std::map<std::string, double> seconds_;
  std::vector<std::string> order_;
};

Composition composition() {
  Composition result;
  result.columns = {{0, 1}, {2}, {std::vector<std::size_t>{4, 5}, {}}};
  result.address_order = {0, 1};
  result.bindings[0] = Binding::kAddress1;
  return result;
}

/// What is done with a file of other programs before its import.
void adapt(const std::string& contacts, Times& times) {
  const std::string bytes = to_utf8(replace_all(contacts, kCrLf, "\n"));
  FileFacts facts;
  times.run("look at UTF-8", [&] { facts = look_at_file(bytes); });
  times.run("adapt UTF-8", [&] { (void)convert_file(bytes, facts, kDelimiter); });
}

void import(const std::string& contacts, const std::string& book, Times& times) {
  std::string text = contacts;
  times.run("look at the file", [&] { (void)look_at_file(text); });
  DelimiterCounts counts;
  times.run("count delimiters", [&] {
    counts = count_delimiters(text);
    (void)choose_delimiter(counts);
  });
  times.run("doubled quotes", [&] { remove_doubled_quotes(text); });
  RecordTable records;
  times.run("records", [&] {
    records = build_records(std::move(text), kDelimiter, kNoStep, counts.line_breaks + 1);
    pad_records(records, kDelimiter, kNoStep);
  });
  FlatTable rows(kEntryColumns);
  times.run("entries", [&] {
    EntryComposer composer(
        composition(), kDelimiter,
        [](std::string_view number, std::string& out) { clean_number(number, "0049", out); });
    for (std::size_t i = 0; i < records.size(); ++i) {
      composer.compose(records, i, rows);
      if (i + 1 == kSample) rows.expect_the_rest(kSample, records.size());
    }
  });
  times.run("repeats", [&] { remove_repeated_lines(rows); });
  times.run("final list", [&] { rows = entry_rows(std::move(rows), true, kNoStep); });
  LineEnd end = LineEnd::kCrLf;
  times.run("line ends", [&] {
    const LineBreaks breaks = count_line_breaks(book);
    end = line_end_of(book, breaks);
    (void)line_of_joined_entries(book, end, breaks);
  });
  times.run("look ahead", [&] { (void)foresee_fates(book, end, rows, MergeMode::kAsk, kNoStep); });
  BookList list(book, end, rows);
  std::string_view line;
  times.run("book lines", [&] { list.read_book(line, kNoStep); });
  times.run("new entries", [&] { list.add_rows(kNoStep); });
  times.run("doubles",
            [&] { (void)remove_double_entries(list, MergeMode::kKeepExisting, {}, kNoStep); });
  times.run("compose the book", [&] {
    const OnStep no_step = kNoStep;
    const BookChange change(book, list, no_step);
    change.tell(0, change.size(), [](std::string_view) {});
  });
}

}  // namespace
}  // namespace quenda

int main() {
  using namespace quenda;
  keep_memory();
  constexpr std::array<std::size_t, 3> kSizes = {10'000, 100'000, 1'000'000};
  std::array<Times, kSizes.size()> times;
  for (std::size_t i = 0; i < kSizes.size(); ++i) {
    const std::string contacts = contact_file(kSizes[i]);
    const std::string book = phone_book(kSizes[i]);
    for (int round = 0; round < kRounds; ++round) {
      import(contacts, book, times[i]);
      adapt(contacts, times[i]);
    }
  }
  std::printf("%-18s %10s %10s %10s  growth\n", "seconds", "10,000", "100,000", "1,000,000");
  for (const std::string& stage : times[0].stages()) {
    const double middle = times[1].of(stage);
    const double large = times[2].of(stage);
    std::printf("%-18s %10.4f %10.4f %10.4f  %6.2f\n", stage.c_str(), times[0].of(stage), middle,
                large, std::log10(large / middle));
  }
}
