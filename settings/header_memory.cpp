#include "settings/header_memory.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>

#include "settings/modAPI_INI.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kSection = "ImportHeaders";
constexpr std::string_view kSeparator = ";";
// Names, numbers, two addresses, swap, order, boxes, three suffixes; before them the header.
constexpr std::size_t kParts = 11;

std::string key_of(int position) { return concat("Header", std::to_string(position)); }

/// A hash that stands in settings files, and so may never change.
std::uint64_t kept_hash_of(std::string_view text) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U;
  std::uint64_t hash = text.size() * kFactor;
  while (!text.empty()) {
    std::uint64_t word = 0;
    const std::string_view part = text.substr(0, sizeof word);
    std::memcpy(&word, part.data(), part.size());
    hash = (hash ^ word) * kFactor;
    hash ^= hash >> 29U;
    text.remove_prefix(part.size());
  }
  return hash ^ (hash >> 32U);
}

/// Tells headers apart: how many columns, and a hash of their names.
std::string header_mark(const std::vector<std::string>& header) {
  std::string names;
  for (const std::string& name : header) names.append(name).append("\n");
  return concat(std::to_string(header.size()), "-", std::to_string(kept_hash_of(names)));
}

/// A number that is below `end`.
std::optional<std::size_t> number_below(std::size_t end, std::string_view text) {
  std::size_t value = 0;
  const char* const last = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), last, value);
  if (error != std::errc() || stop != last || value >= end) return std::nullopt;
  return value;
}

std::optional<std::vector<std::size_t>> read_columns(std::string_view text, std::size_t columns) {
  std::vector<std::size_t> positions;
  std::string_view rest = text;
  std::string_view part;
  while (!text.empty() && next_part(rest, ",", part)) {
    const auto position = number_below(columns, part);
    if (!position || positions.size() == std::tuple_size_v<RememberedColumns::value_type>) {
      return std::nullopt;
    }
    positions.push_back(*position);
  }
  return positions;
}

std::string line_at(modAPI_INI& ini, int position) {
  return ini.GetSettStr(kSection, key_of(position), "", kImportSettingsFile, false, false);
}

}  // namespace

std::string header_choice_text(const std::vector<std::string>& header, const HeaderChoice& choice) {
  std::string line = header_mark(header);
  for (const std::vector<std::size_t>& positions : choice.columns) {
    line += kSeparator;
    std::string_view comma;
    for (const std::size_t position : positions) {
      line.append(comma).append(std::to_string(position));
      comma = ",";
    }
  }
  line.append(kSeparator).append(std::to_string(choice.name_flip));
  line.append(kSeparator).append(std::to_string(choice.address_flip));
  line += kSeparator;
  for (const auto& boxes : choice.add_check) {
    for (const std::int32_t box : boxes) line += box != 0 ? '1' : '0';
  }
  for (const std::string& suffix : choice.suffixes) line.append(kSeparator).append(suffix);
  // Settings lose blanks at their ends, which belong to the last suffix.
  return line.append(kSeparator);
}

std::optional<HeaderChoice> read_header_choice(const std::vector<std::string>& header,
                                               std::string_view line) {
  std::array<std::string_view, kParts> parts;
  for (std::string_view& part : parts) {
    if (!next_part(line, kSeparator, part)) return std::nullopt;
  }
  if (parts[0] != header_mark(header)) return std::nullopt;
  HeaderChoice choice;
  for (std::size_t kind = 0; kind < kRememberedKinds; ++kind) {
    auto columns = read_columns(parts.at(1 + kind), header.size());
    if (!columns) return std::nullopt;
    choice.columns.at(kind) = std::move(*columns);
  }
  const auto flip = number_below(2, parts[5]);
  const auto order = number_below(6, parts[6]);
  if (!flip || !order || parts[7].size() != 2 * choice.add_check.size()) return std::nullopt;
  choice.name_flip = static_cast<std::int32_t>(*flip);
  choice.address_flip = static_cast<std::int32_t>(*order);
  for (std::size_t row = 0; row < choice.add_check.size(); ++row) {
    for (std::size_t box = 0; box < 2; ++box) {
      choice.add_check.at(row).at(box) = parts[7][2 * row + box] == '1' ? 1 : 0;
    }
    choice.suffixes.at(row) = parts.at(8 + row);
  }
  return choice;
}

std::optional<HeaderChoice> load_header_choice(modAPI_INI& ini,
                                               const std::vector<std::string>& header) {
  for (int position = 1; position <= kMostHeaders; ++position) {
    const std::string line = line_at(ini, position);
    if (line.empty()) break;
    if (auto choice = read_header_choice(header, line)) return choice;
  }
  return std::nullopt;
}

void save_header_choice(modAPI_INI& ini, const std::vector<std::string>& header,
                        const HeaderChoice& choice) {
  const std::string mark = concat(header_mark(header), kSeparator);
  std::string line = header_choice_text(header, choice);
  // The newest stands first; those before its old place move back by one.
  for (int position = 1; position <= kMostHeaders; ++position) {
    const std::string old = line_at(ini, position);
    ini.SetSettStr(kSection, key_of(position), line, kImportSettingsFile);
    if (old.empty() || old.starts_with(mark)) return;
    line = old;
  }
}

}  // namespace quenda
