#include <string>
#include <string_view>
#include <vector>

#include "app/busy.h"
#include "app/fMain.h"
#include "book/entry_list.h"
#include "platform/controls/events.h"
#include "settings/app.h"
#include "sources/ispy_log.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/conversions.h"
#include "text/text.h"
#include "text/text_rows.h"

namespace quenda {

void fMain::cmdIspy_Click() {
  procedure(app_.errors, "fMain.cmdIspy_Click", {}, [&] {
    txtImpFile.set_text("");
    const std::string path = app_.open_file(FilterSet::kISpy);
    if (!path.empty()) txtImpFile.set_text(path);
  });
}

void fMain::ISpyImport() {
  procedure(app_.errors, "fMain.ISpyImport", {}, [&] {
    const BusyWork busy(*this);
    lstImpFinal.clear();
    entry_lines_.clear();
    app_.machine.events.yield();
    const RecordTable& lines = source.ImportRows;
    StatusBar.set_panel(2, texts.items_analyze);
    const std::size_t last = lines.empty() ? 0 : lines.size() - 1;
    StatusBar.set_panel(3, concat(texts.items, " ", std::to_string(last)));
    for (std::size_t i = 0; i < lines.size(); ++i) {
      step(i + 1, lines.size());
      const std::string_view line = lines[i];
      if (line.empty() || line == source.Delimiter) continue;
      if (const auto caller = ispy_caller(line)) {
        entry_lines_.add_row(concat(caller->name, ";", caller->number));
      }
    }
    StatusBar.set_panel(2, texts.erase_multiple);
    remove_repeated_lines(entry_lines_, [this] { answer_events(); });
    StatusBar.set_panel(2, texts.items_recycle);
    FlatTable rows(kEntryColumns);
    for (std::size_t i = 0; i < entry_lines_.size(); ++i) {
      const std::vector<std::string_view> parts = split(entry_lines_[i], ";");
      // A name with ";" in it leaves the number beyond the second part: such a row has none.
      if (parts.size() < 2 || !is_numeric(parts[1])) continue;
      rows.add_row(std::array{parts[0], parts.size() == 2 ? parts[1] : std::string_view()});
    }
    lstImpFinal.set_table(std::move(rows));
  });
}

}  // namespace quenda
