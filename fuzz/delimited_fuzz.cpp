// Delimited files against the described steps, done one character at a time on growing texts.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/oracle.h"
#include "sources/delimited_text.h"
#include "text/text.h"

namespace quenda {
namespace {

std::string slow_without_doubled_quotes(std::string_view text) {
  return replace_all(text, "\"\"", "");
}

std::string slow_clean(const std::string& text, char delimiter) {
  std::string out;
  bool in_quote = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::string taken(1, text[i]);
    if (text[i] == delimiter && i + 1 < text.size() && text[i + 1] == '"') {
      taken = {delimiter, '"'};
      ++i;
      in_quote = true;
    }
    if (i + 1 < text.size() && text[i + 1] == '"') {
      taken = std::string(1, text[i]);
      in_quote = false;
    }
    if (in_quote) {
      if (taken == "\r" || taken == "\n") taken = " ";
      if (taken == std::string(1, delimiter)) taken = "|";
      out += taken;
      continue;
    }
    out += taken;
    if (out.ends_with("\r\n")) {
      out += delimiter;
    } else if (out.ends_with('\n')) {
      out.pop_back();
    }
  }
  return out;
}

std::vector<std::string> slow_records(const std::string& cleaned, char delimiter) {
  std::vector<std::string> records(1);
  if (cleaned.empty()) return records;
  for (const std::string_view field : split(cleaned, std::string_view(&delimiter, 1))) {
    if (field.find(kCrLf) != field.npos) {
      records.back() += replace_all(field, kCrLf, "");
      records.emplace_back();
    } else if (field.starts_with('"') && !field.ends_with('"')) {
      records.back().append(field).append("|");
    } else {
      records.back().append(field).append(1, delimiter);
    }
  }
  return records;
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
