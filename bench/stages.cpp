// The stages of an import one by one, on a tenth of the full size.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "bench/contact_data.h"
#include "book/book_entry.h"
#include "book/book_file.h"
#include "book/entry_list.h"
#include "book/merge.h"
#include "book/number_cleaning.h"
#include "sources/delimited_text.h"
#include "sources/record_table.h"
#include "text/characters.h"
#include "text/flat_table.h"
#include "wizard/composition.h"

namespace quenda {
namespace {

constexpr std::size_t kContacts = 100'000;
constexpr char kDelimiter = ';';
const auto kNoStep = [](std::size_t, std::size_t) {};

const std::string& contacts() {
  static const std::string text = contact_file(kContacts);
  return text;
}

const std::string& book() {
  static const std::string text = phone_book(kContacts);
  return text;
}

RecordTable records() {
  std::string text = contacts();
  remove_doubled_quotes(text);
  RecordTable table = build_records(std::move(text), kDelimiter, kNoStep);
  pad_records(table, kDelimiter, kNoStep);
  return table;
}

FlatTable entries(const RecordTable& table) {
  Composition composition;
  composition.columns = {{0, 1}, {2}, {std::vector<std::size_t>{4, 5}, {}}};
  composition.address_order = {0, 1};
  composition.bindings[0] = Binding::kAddress1;
  EntryComposer composer(composition, kDelimiter,
                         [](std::string_view number) { return clean_number(number, "0049"); });
  FlatTable rows(kEntryColumns);
  for (std::size_t record = 0; record < table.size(); ++record) {
    composer.compose(table, record, rows);
  }
  return rows;
}

std::vector<BookEntry> entries_of(std::string_view text) {
  std::vector<BookEntry> entries;
  BookLines reader(text, LineEnd::kCrLf);
  std::string_view line;
  while (reader.next(line)) entries.push_back(read_book_line(line));
  return entries;
}

void CountDelimiters(benchmark::State& state) {
  for ([[maybe_unused]] auto round : state) {
    benchmark::DoNotOptimize(choose_delimiter(count_delimiters(contacts())));
  }
}
BENCHMARK(CountDelimiters)->Unit(benchmark::kMillisecond);

void SplitLines(benchmark::State& state) {
  const auto text = std::make_shared<const std::string>(contacts());
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(split_lines(text).size());
}
BENCHMARK(SplitLines)->Unit(benchmark::kMillisecond);

void CleanAndPad(benchmark::State& state) {
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(records().size());
}
BENCHMARK(CleanAndPad)->Unit(benchmark::kMillisecond);

void ComposeEntries(benchmark::State& state) {
  const RecordTable table = records();
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(entries(table).rows());
}
BENCHMARK(ComposeEntries)->Unit(benchmark::kMillisecond);

void RemoveRepeatedLines(benchmark::State& state) {
  const FlatTable all = entries(records());
  for ([[maybe_unused]] auto round : state) {
    FlatTable rows = all;
    remove_repeated_lines(rows);
    benchmark::DoNotOptimize(rows.rows());
  }
}
BENCHMARK(RemoveRepeatedLines)->Unit(benchmark::kMillisecond);

void EntryRows(benchmark::State& state) {
  const FlatTable all = entries(records());
  for ([[maybe_unused]] auto round : state) {
    benchmark::DoNotOptimize(entry_rows(all, true, kNoStep).rows());
  }
}
BENCHMARK(EntryRows)->Unit(benchmark::kMillisecond);

void ReadBook(benchmark::State& state) {
  for ([[maybe_unused]] auto round : state) benchmark::DoNotOptimize(entries_of(book()).size());
}
BENCHMARK(ReadBook)->Unit(benchmark::kMillisecond);

/// The book and a shifted copy of itself: all doubles.
void RemoveDoubles(benchmark::State& state) {
  const std::vector<BookEntry> once = entries_of(book());
  std::vector<BookEntry> twice = once;
  twice.insert(twice.end(), once.rbegin(), once.rend());
  for ([[maybe_unused]] auto round : state) {
    std::vector<BookEntry> entries = twice;
    benchmark::DoNotOptimize(remove_double_entries(entries, MergeMode::kKeepExisting, {}, kNoStep));
  }
}
BENCHMARK(RemoveDoubles)->Unit(benchmark::kMillisecond);

void ComposeBook(benchmark::State& state) {
  const std::vector<BookEntry> entries = entries_of(book());
  for ([[maybe_unused]] auto round : state) {
    benchmark::DoNotOptimize(compose_book(book(), entries, kNoStep).keep);
  }
}
BENCHMARK(ComposeBook)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quenda
