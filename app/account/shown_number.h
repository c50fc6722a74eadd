#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/account/source_numbers.h"
#include "book/fate.h"

// What the walks over all kinds of sources have in common.
namespace quenda {

/// The texts of one number, as the final list shows them.
class ShownNumber {
 public:
  /// What is made is good until the next one is.
  SourceNumber make(std::string_view raw, std::string_view number, std::string_view name,
                    std::string_view address);

 private:
  std::string name_;
  std::string address_;
};

[[nodiscard]] bool has_separator(std::string_view text);

/// Why a number of a file or of Outlook gives no entry. The order counts: the first reason holds.
std::optional<Fate> fate_before_merge(std::string_view number, bool numeric, std::string_view name,
                                      bool suppress_short_names);

}  // namespace quenda
