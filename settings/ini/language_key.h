#pragma once

#include <string_view>

namespace quenda {

/// A text of the language files: its key, and the German text that stands in for a missing one.
struct LanguageKey {
  std::string_view key;
  std::string_view german;
};

}  // namespace quenda
