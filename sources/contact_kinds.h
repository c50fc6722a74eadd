#pragma once

#include <string_view>

namespace quenda {

/// Kinds of telephone numbers, in the order of the contact table.
enum class NumberKind { kHome, kWork, kMobile, kHomeFax, kWorkFax, kOther };
inline constexpr int kNumberKindCount = 6;

enum class AddressKind { kHome, kWork };

/// The kind that a label names, in the languages that address books label numbers in. "" and what
/// is not known is `kOther`.
NumberKind number_kind(std::string_view label);

/// What is not business is private.
AddressKind address_kind(std::string_view label);

}  // namespace quenda
