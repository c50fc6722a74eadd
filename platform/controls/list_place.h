#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/controls/control.h"

namespace quenda {

/// Where in a list the user is; rows count from 1, in the order in which they are seen.
struct ListPlace {
  std::size_t row = 0;  // the one chosen or touched last, 0 for none
  std::size_t rows = 0;
  friend bool operator==(const ListPlace&, const ListPlace&) = default;
};

/// Nothing for a control that is no list.
std::optional<ListPlace> list_place(const Control& control);

/// "Zeile 3 von 7" from "Zeile %1 von %2"; empty for a row that the list does not have.
std::string row_in_words(std::string_view pattern, std::size_t row, std::size_t rows);

}  // namespace quenda
