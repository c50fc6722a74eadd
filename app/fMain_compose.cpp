#include <array>
#include <string>

#include "app/fMain.h"
#include "book/number_cleaning.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/text.h"
#include "wizard/composition.h"
#include "wizard/shell/busy.h"

namespace quenda {

Composition fMain::composition() const {
  Composition composition;
  composition.columns = ColumnPage::choice();
  composition.flip_name = chkFlip.ticked();
  composition.address_order = order();
  composition.suffixes = suffixes();
  composition.bindings = bindings();
  return composition;
}

CleanNumber fMain::number_cleaner() {
  if (app_.errors.tracing()) {
    return
        [this](std::string_view number, std::string& cleaned) { cleaned = fCleanNumbers(number); };
  }
  // A million announcements that nobody hears would take longer than the cleaning.
  return [code = txtStateCode.text()](std::string_view number, std::string& cleaned) {
    clean_number(number, code, cleaned);
  };
}

bool fMain::Scramble() {
  bool listed = false;
  const bool came_through = procedure(app_.errors, "fMain.Scramble", {}, [&] {
    const BusyWork busy(*this);
    StatusBar.set_panel(2, texts["Import_Info_DataSetClean"]);
    lstImpFinal.clear();
    entries_.clear();
    EntryComposer composer(composition(), source.Delimiter.front(), number_cleaner());
    const std::size_t count = source.ImportRows.size();
    entries_.reserve(count, source.ImportRows.bytes());
    for (std::size_t record = 0; record < count; ++record) {
      composer.compose(source.ImportRows, record, entries_);
      step(record + 1, count);
    }
    StatusBar.set_panel(2, texts["Import_Info_EraseMultible"]);
    remove_repeated_lines(entries_, [this] { answer_events(); });
    listed = ListUpdate();
    StatusBar.set_panel(2, "");
  });
  return came_through && listed;
}

}  // namespace quenda
