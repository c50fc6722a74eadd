#include "book/pages/modImport.h"

#include "support/procedure.h"

namespace quenda::modImport {

std::size_t RemoveDoubleEntriesTypedImportArray(
    clsErrorHandling& errors, std::vector<BookEntry>& entries, const MergeState& state,
    const AskAboutDouble& ask, const std::function<void(std::size_t, std::size_t)>& on_step) {
  std::size_t kept = 0;
  procedure(errors, "modImport.RemoveDoubleEntriesTypedImportArray", {},
            [&] { kept = remove_double_entries(entries, state, ask, on_step); });
  return kept;
}

}  // namespace quenda::modImport
