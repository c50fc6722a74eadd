#include "book/pages/modImport.h"

#include "support/procedure.h"

namespace quenda::modImport {

std::optional<std::size_t> RemoveDoubleEntriesTypedImportArray(clsErrorHandling& errors,
                                                               BookList& list, MergeMode mode,
                                                               const AskAboutDouble& ask,
                                                               const OnStep& on_step,
                                                               const OnDecision& on_decision) {
  std::optional<std::size_t> kept;
  const bool done = procedure_with_message(
      errors, "modImport.RemoveDoubleEntriesTypedImportArray", {}, {},
      [&] { kept = remove_double_entries(list, mode, ask, on_step, on_decision); });
  return done ? kept : std::nullopt;
}

}  // namespace quenda::modImport
