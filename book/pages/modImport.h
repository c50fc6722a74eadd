#pragma once

#include <cstddef>
#include <optional>

#include "book/merge.h"
#include "support/clsErrorHandling.h"

namespace quenda::modImport {

/// Removes doubles from the working list under the guard of the error service; see
/// `remove_double_entries`. Returns the number of entries kept; nothing after a fault, which the
/// user has then been shown, and which leaves the list of no use.
[[nodiscard]] std::optional<std::size_t> RemoveDoubleEntriesTypedImportArray(
    clsErrorHandling& errors, BookList& list, MergeMode mode, const AskAboutDouble& ask,
    const OnStep& on_step, const OnDecision& on_decision = {});

}  // namespace quenda::modImport
