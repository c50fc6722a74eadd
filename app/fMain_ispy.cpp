#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "app/fMain.h"
#include "book/entry_list.h"
#include "platform/controls/events.h"
#include "settings/app.h"
#include "sources/ispy_log.h"
#include "support/procedure.h"
#include "text/entry_origin.h"
#include "text/entry_text.h"
#include "text/repeated_lines.h"
#include "text/text.h"
#include "wizard/shell/busy.h"

namespace quenda {

bool fMain::ISpyImport() {
  return procedure(app_.errors, "fMain.ISpyImport", {}, [&] {
    const BusyWork busy(*this);
    lstImpFinal.clear();
    entries_.clear();
    repeated_.clear();
    app_.machine.events.yield();
    const RecordTable& lines = source.ImportRows;
    StatusBar.set_panel(2, texts["Import_Info_ItemsAnalyze"]);
    const std::size_t last = lines.empty() ? 0 : lines.size() - 1;
    StatusBar.set_panel(3, concat(texts["Journal_Info_Items"], " ", std::to_string(last)));
    for (std::size_t i = 0; i < lines.size(); ++i) {
      step(i + 1, lines.size());
      const std::string_view line = lines[i];
      if (line.empty() || line == source.Delimiter) continue;
      if (const auto caller = ispy_caller(line)) {
        const std::string name = without_line_breaks(caller->name);
        entries_.add_row(std::array<std::string_view, 2>{name, caller->number}, entry_origin(i, 1));
      }
    }
    StatusBar.set_panel(2, texts["Import_Info_EraseMultible"]);
    repeated_ = remove_repeated_lines(entries_, [this] { answer_events(); });
    StatusBar.set_panel(2, texts["Import_Info_ItemsRecycle"]);
    lstImpFinal.set_table(caller_rows(std::exchange(entries_, FlatTable(kEntryColumns))));
  });
}

}  // namespace quenda
