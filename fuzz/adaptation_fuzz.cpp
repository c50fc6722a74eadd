// Files of any kind, adapted or as they are: the adapted text is one that the reader of delimited
// text cannot take apart wrongly, it does not grow beyond all measure, and the report of the import
// has one line for every number. Asking for a report changes nothing else.
#include <algorithm>
#include <array>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

#include "app/quenda-import/batch_run.h"
#include "fuzz/oracle.h"
#include "sources/delimited_text.h"
#include "sources/file_conversion.h"
#include "tests/shared/fakes.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kBook = "D:\\Suite\\data\\Quendabook.txt";
constexpr std::string_view kReport = "C:\\report.json";

std::size_t count(std::string_view text, std::string_view what) {
  std::size_t found = 0;
  for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + what.size())) {
    ++found;
  }
  return found;
}

/// The number behind a key of the report's first line; 0 for none.
std::size_t value_of(std::string_view line, std::string_view key) {
  const std::size_t at = line.find(concat("\"", key, "\":"));
  if (at == line.npos) return 0;
  std::size_t value = 0;
  for (char c : line.substr(at + key.size() + 3)) {
    if (c < '0' || c > '9') break;
    value = value * 10 + static_cast<std::size_t>(c - '0');
  }
  return value;
}

std::size_t sum_of_fates(std::string_view head) {
  constexpr std::array<std::string_view, 16> kFates = {
      "added",    "same",    "replaced",    "kept",      "asked",      "withheld",
      "repeated", "double",  "not_numeric", "no_number", "short_name", "split",
      "removed",  "no_name", "unread",      "too_short"};
  const std::string_view fates = head.substr(std::min(head.find("\"fates\""), head.size()));
  std::size_t sum = 0;
  for (const std::string_view fate : kFates)
    sum += value_of(fates.substr(0, fates.find('}')), fate);
  return sum;
}

void check_adapted(std::string_view bytes) {
  const FileFacts facts = look_at_file(bytes);
  if (!facts.readable()) return;
  const ConvertedTable table = convert_file(bytes, facts, conversion_delimiter(bytes, facts));
  expect("at most four times the file", table.text.size() <= 4 * bytes.size() + 4096);
  expect("no quotes", table.text.find('"') == std::string::npos);
  const std::string text = replace_all(table.text, kCrLf, "");
  expect("lines end with CR LF", text.find_first_of("\r\n") == std::string::npos);
}

struct Result {
  int status;
  std::string out, errors, book, report;
};

Result import(std::string_view file, const BatchOptions& options) {
  FakeMachine machine;
  machine.system.protects = false;
  machine.files.put("D:\\Suite\\Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
  machine.files.put("D:\\Suite\\data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
  machine.files.put(kBook, "Alt;0305550110;0;0;0;0;;;[vcd()vcd]\r\n");
  machine.files.put(options.file, std::string(file));
  std::ostringstream out;
  std::ostringstream errors;
  const int status = run_batch(
      options, {machine.files, machine.clock, machine.system, machine.automation}, {out, errors});
  return {status, out.str(), errors.str(), machine.files.content(kBook),
          machine.files.exists(kReport) ? machine.files.content(kReport) : std::string()};
}

}  // namespace
}  // namespace quenda

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quenda;
  if (size == 0) return 0;
  const unsigned choices = data[0];
  const std::string_view rest = text_of(data + 1, size - 1);
  // Most inputs would never get as far as an entry without a head.
  std::string file(rest);
  BatchOptions options;
  options.suite = "D:\\Suite";
  options.file = (choices & 64U) != 0 ? "C:\\ispy.log" : "C:\\contacts.csv";
  options.convert = (choices & 1U) != 0;
  options.dry_run = (choices & 2U) != 0;
  options.existing = (choices & 4U) != 0 ? 1 : 2;
  if (choices >= 128) {
    options.auto_columns = true;
  } else {
    if ((choices & 8U) != 0) file.insert(0, "Name;Tel;Mobil;Ort\r\n");
    options.columns[kNames] = {"Name"};
    options.columns[kNumbers] = {"Tel", "Mobil"};
    options.columns[kAddress1] = {"Ort"};
  }
  check_adapted(file);

  const Result plain = import(file, options);
  options.report = kReport;
  const Result told = import(file, options);
  expect_equal("exit status", std::to_string(told.status), std::to_string(plain.status));
  expect_equal("standard output", told.out, plain.out);
  expect_equal("book", told.book, plain.book);
  const std::string_view report = told.report;
  const std::string_view head = report.substr(0, report.find('\n'));
  expect("a report", !head.empty());
  const std::size_t numbers = count(report, "\n") - 1;
  expect_equal("numbers", std::to_string(value_of(head, "numbers")), std::to_string(numbers));
  expect_equal("fates", std::to_string(sum_of_fates(head)), std::to_string(numbers));
  const std::size_t records = value_of(head, "records");
  if (numbers > 0 && records > 0) {
    expect("records without gaps",
           report.rfind(concat("\"record\":", std::to_string(records), ",")) != report.npos);
  }
  return 0;
}
