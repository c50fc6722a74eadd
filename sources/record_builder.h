#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "sources/delimited_text.h"

namespace quenda {

/// Cuts a text into records inside its own memory, as `build_records` tells. Returns where the
/// records begin, and one place more, as if another record followed the last. `begins`, where it is
/// given, gets the places in the text as it was where the records after the first began.
std::vector<std::size_t> build_records_in(std::string& text, char delimiter, const OnStep& on_step,
                                          std::size_t expected,
                                          std::vector<std::size_t>* begins = nullptr);

}  // namespace quenda
