#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/text.h"

// The rules of delimited files told once more, one character at a time with growing texts: what the
// quick builder of records has to agree with.
namespace quenda {

/// Takes the quotes' meaning out of a text: line breaks inside of quotes become blanks, delimiters
/// become "|", and a record ends with a delimiter.
inline std::string slow_clean(const std::string& text, char delimiter) {
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

/// Cuts the cleaned text into records.
inline std::vector<std::string> slow_records(const std::string& cleaned, char delimiter) {
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

}  // namespace quenda
