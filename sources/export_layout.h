#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sources/contact_kinds.h"

namespace quenda {

/// Where a header of a known export has what; columns that it lacks are missing.
struct ExportLayout {
  struct Number {
    std::size_t column;
    NumberKind kind;
  };
  struct Address {
    std::vector<std::size_t> parts;  // street, code, city, as far as there
  };

  std::string_view name;
  std::optional<std::size_t> last_name;
  std::optional<std::size_t> first_name;
  std::optional<std::size_t> display_name;
  std::optional<std::size_t> company;
  std::vector<Number> numbers;       // in the order in which they are preferred
  std::array<Address, 2> addresses;  // private, business
};

/// The layout of a known export's header, or of the contact table's.
std::optional<ExportLayout> find_export_layout(const std::vector<std::string>& header);

/// Column names as they are looked for: without a byte order mark, from UTF-8 if they are some.
std::vector<std::string> readable_headings(const std::vector<std::string>& header);

}  // namespace quenda
