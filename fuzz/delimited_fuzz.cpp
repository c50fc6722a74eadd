// Delimited files against the described steps, done one character at a time on growing texts.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/oracle.h"
#include "sources/delimited_text.h"
#include "tests/sources/slow_records.h"
#include "text/text.h"

namespace quenda {
namespace {

std::string slow_without_doubled_quotes(std::string_view text) {
  return replace_all(text, "\"\"", "");
}

}  // namespace
}  // namespace quenda

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quenda;
  if (size == 0) return 0;
  const char delimiter = kDelimiters[data[0] % kDelimiters.size()];
  std::string text(text_of(data + 1, size - 1));
  const std::string slow_text = slow_without_doubled_quotes(text);
  remove_doubled_quotes(text);
  expect_equal("text without doubled quotes", text, slow_text);
  const RecordTable records = build_records(text, delimiter, [](std::size_t, std::size_t) {});
  const std::vector<std::string> slow = slow_records(slow_clean(slow_text, delimiter), delimiter);
  expect_equal("number of records", std::to_string(records.size()), std::to_string(slow.size()));
  for (std::size_t i = 0; i < slow.size(); ++i) expect_equal("record", records[i], slow[i]);
  return 0;
}
