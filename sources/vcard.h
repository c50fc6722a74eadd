#pragma once

#include <functional>
#include <string_view>

#include "sources/file_facts.h"
#include "sources/table_conversion.h"

namespace quenda {

/// Makes the contact table of the vCards of a file, versions 2.1, 3.0 and 4.0. What is no part of a
/// card, and what the table has no column for, is passed over; a card cut off by the end of the
/// file counts as far as it goes. `on_step` is called every megabyte.
ConvertedTable read_vcards(
    std::string_view bytes, const FileFacts& facts, const std::function<void()>& on_step = [] {});

}  // namespace quenda
