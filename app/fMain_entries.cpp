#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "app/fMain.h"
#include "book/entry_list.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/repeated_lines.h"
#include "wizard/shell/busy.h"

namespace quenda {

bool fMain::PreviewEntries() {
  bool listed = false;
  const bool came_through = procedure(app_.errors, "fMain.PreviewEntries", {}, [&] {
    const BusyWork busy(*this);
    lstImpFinal.clear();
    entries_.clear();
    repeated_.clear();
    const FlatTable& preview = lstImport.table();
    for (std::size_t row = 0; row < preview.rows(); ++row) {
      const std::string number = fCleanNumbers(preview.cell(row, kPreviewNumber));
      entries_.add_row(
          std::array<std::string_view, kEntryColumns>{preview.cell(row, kPreviewName), number,
                                                      preview.cell(row, kPreviewAddress)},
          preview.origin(row));
      step(row + 1, preview.rows());
    }
    repeated_ = remove_repeated_lines(entries_, [this] { answer_events(); });
    listed = ListUpdate();
  });
  return came_through && listed;
}

bool fMain::ListUpdate() {
  return procedure(app_.errors, "fMain.ListUpdate", {}, [&] {
    lstImpFinal.clear();
    lstImpFinal.set_table(
        entry_rows(std::exchange(entries_, FlatTable(kEntryColumns)), chkNameLen.ticked(),
                   [this](std::size_t done, std::size_t total) { step(done, total); }));
  });
}

}  // namespace quenda
