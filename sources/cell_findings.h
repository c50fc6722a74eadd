#pragma once

#include <string_view>

namespace quenda {

/// Whether a delimited text of a known export has contacts of which something would be lost without
/// adapting: several numbers or a remark in one field, a ";" in a name or an address, or a contact
/// that has a number, but only a company or a display name. Looks at the first 8 MB, some 20,000
/// contacts of the widest exports, so that taking a huge file does not get slower.
bool has_cells_to_adapt(std::string_view text, char delimiter);

}  // namespace quenda
