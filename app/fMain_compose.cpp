#include <array>
#include <string>

#include "app/fMain.h"
#include "book/number_cleaning.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/repeated_lines.h"
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
  composition.adapt = source.converted;
  if (source.converted) composition.stand_ins = name_stand_ins(header());
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

void fMain::adopt(const ColumnSuggestion& suggestion) {
  chkFlip.set_ticked(suggestion.flip_name);
  app_.settings.address_flip = suggestion.address_order;
  const ControlArray<CheckBox>* const rows[] = {&chk1, &chk2, &chk3};
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    TextBox& suffix = txtIndex(static_cast<int>(row));
    if (suffix.text().empty()) suffix.set_text(suggestion.suffixes.at(row));
    for (const auto& box : *rows[row]) box->set_ticked(false);
    if (const int address = suggestion.bindings.at(row); address > 0) {
      (*rows[row])(address - 1).set_ticked(true);
    }
  }
}

bool fMain::Scramble() {
  constexpr std::size_t kSample = 1000;  // records that tell how large the entries become
  bool listed = false;
  const bool came_through = procedure(app_.errors, "fMain.Scramble", {}, [&] {
    const BusyWork busy(*this);
    StatusBar.set_panel(2, texts["Import_Info_DataSetClean"]);
    lstImpFinal.clear();
    entries_.clear();
    repeated_.clear();
    composed_records_ = 0;
    EntryComposer composer(composition(), source.Delimiter.front(), number_cleaner());
    const std::size_t count = source.ImportRows.size();
    for (std::size_t record = 0; record < count; ++record) {
      composer.compose(source.ImportRows, record, entries_);
      composed_records_ = record + 1;
      if (composed_records_ == kSample) entries_.expect_the_rest(kSample, count);
      step(record + 1, count);
    }
    StatusBar.set_panel(2, texts["Import_Info_EraseMultible"]);
    repeated_ = remove_repeated_lines(entries_, [this] { answer_events(); });
    listed = ListUpdate();
    StatusBar.set_panel(2, "");
  });
  return came_through && listed;
}

}  // namespace quenda
