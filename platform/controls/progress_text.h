#pragma once

#include <string>

namespace quenda {

/// What a progress display says: the percentage, and, once enough has been done to tell, the
/// minutes and seconds that are left as "0:42".
std::string progress_text(int percent, long long milliseconds_so_far);

}  // namespace quenda
