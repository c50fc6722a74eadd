#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/local_time.h"

// How the copies of the book are called, and which of them are kept.
namespace quenda {

/// "Quendabook 2026-11-22 03-19-58.txt"; the second copy of that moment has " (2)" behind the time.
[[nodiscard]] std::string copy_name(const LocalTime& time, int nth);

/// The names of a list of copies, the oldest first. What could not be the name of a copy is left
/// out: files are deleted by this list.
[[nodiscard]] std::vector<std::string> read_copy_list(std::string_view text);
[[nodiscard]] std::string copy_list_text(const std::vector<std::string>& names);

/// How many of the oldest copies go so that `generations` are left. The newest always stays: who
/// wants the book to be saved wants one copy at least.
[[nodiscard]] std::size_t copies_to_drop(std::size_t copies, int generations);

}  // namespace quenda
