#pragma once

#include <string_view>

#include "sources/table_conversion.h"

namespace quenda {

/// Whether the header of a converted table has the kind of each number in a column of its own:
/// "Phone 1 - Label" or "Phone 1 - Type" beside "Phone 1 - Value".
bool is_labelled_table(std::string_view header, char delimiter);

/// The contacts of such a table, sorted by kind into the columns of the contact table. Every record
/// that has anything gives one contact.
ConvertedTable sort_by_labels(ConvertedTable table);

}  // namespace quenda
