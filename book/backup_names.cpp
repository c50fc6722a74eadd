#include "book/backup_names.h"

#include <algorithm>

#include "text/date_text.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kFront = "Quendabook ";
constexpr std::string_view kEnd = ".txt";

bool is_copy_name(std::string_view name) {
  if (!name.starts_with(kFront) || !name.ends_with(kEnd)) return false;
  name.remove_prefix(kFront.size());
  if (name.size() <= kEnd.size()) return false;
  name.remove_suffix(kEnd.size());
  constexpr CharacterSet kAllowed("0123456789- ()");
  return std::all_of(name.begin(), name.end(), [&](char c) { return kAllowed.contains(c); });
}

}  // namespace

std::string copy_name(const LocalTime& time, int nth) {
  const std::string date =
      concat(std::to_string(time.year), "-", two_digits(time.month), "-", two_digits(time.day));
  const std::string more = nth > 1 ? concat(" (", std::to_string(nth), ")") : "";
  return concat(kFront, date, " ", replace_all(time_text(time), ":", "-"), more, kEnd);
}

std::vector<std::string> read_copy_list(std::string_view text) {
  std::vector<std::string> names;
  for (const std::string_view line : split(text, kCrLf)) {
    if (is_copy_name(line)) names.emplace_back(line);
  }
  return names;
}

std::string copy_list_text(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += concat(name, kCrLf);
  return text;
}

std::size_t copies_to_drop(std::size_t copies, int generations) {
  const auto kept = static_cast<std::size_t>(std::max(generations, 1));
  return copies > kept ? copies - kept : 0;
}

}  // namespace quenda
