#pragma once

#include <array>
#include <span>
#include <string_view>

#include "sources/contact_kinds.h"

namespace quenda {

/// A column of numbers, and what its numbers are; a `kind` of its own for each number.
struct NumberColumn {
  std::string_view heading;
  NumberKind kind;
};

/// Street, code, city; an empty name for none.
using AddressColumns = std::array<std::string_view, 3>;

/// What is known of the files of one program. Its columns appear, vanish and move from version to
/// version, so a few of them tell, wherever they stand.
struct KnownExport {
  std::string_view name;  // as the user reads it
  std::span<const std::string_view> telling;
  std::string_view last_name;
  std::string_view first_name;
  std::string_view display_name;
  std::string_view company;
  std::span<const NumberColumn> numbers;  // mobile, private, business, then in order of use
  AddressColumns home;
  AddressColumns work;
};

/// The program whose tables name the kind of each number in a column beside it.
inline constexpr std::string_view kLabelledExport = "Google-Kontakte";

/// All known exports; where several fit a header, the first one counts.
std::span<const KnownExport> known_exports();

}  // namespace quenda
