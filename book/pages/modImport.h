#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "book/merge.h"
#include "support/clsErrorHandling.h"

namespace quenda::modImport {

/// Removes doubles from the working list under the guard of the error service; see
/// `remove_double_entries`. Returns the number of entries kept, 0 after a fault.
std::size_t RemoveDoubleEntriesTypedImportArray(
    clsErrorHandling& errors, std::vector<BookEntry>& entries, const MergeState& state,
    const AskAboutDouble& ask,
    const std::function<void(std::size_t done, std::size_t total)>& on_step);

}  // namespace quenda::modImport
