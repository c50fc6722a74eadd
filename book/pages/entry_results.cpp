#include "book/pages/entry_results.h"

#include <utility>

#include "book/book_entry.h"
#include "book/entry_list.h"
#include "book/number_doubt.h"
#include "platform/files.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/fault.h"
#include "text/line_breaks.h"
#include "text/text.h"
#include "wizard/shell/design.h"

namespace quenda {
namespace {

constexpr std::size_t kResultColumn = kEntryColumns;
constexpr int kSoon = 10;  // milliseconds

constexpr DesignRow<EntryResults> kDesign[] = {
    {.control = control_at<&EntryResults::cmdReport>,
     .place = {5520, 5010, 1800, 390},
     .tab = 83,
     .across = Anchor::kEnd,
     .down = Anchor::kEnd},
};

/// A look at the book that has been overtaken by what the user did.
class Overtaken : public RuntimeFault {
 public:
  Overtaken() : RuntimeFault(kFaultInvalidCall) {}
};

}  // namespace

EntryResults::EntryResults(WizardShell& shell, EntryPage& page) : shell_(shell), page_(page) {
  apply_design(*this, kDesign, &shell_.frmImp(4));
  cmdReport.on_click = [this] { cmdReport_Click(); };
  tmResults.set_interval(kSoon);
  tmResults.on_timer = [this] { tick(); };
  page_.lstImpFinal.made_cell = [this](std::size_t row, std::size_t) { return result_of(row); };
  const auto also = [](std::function<void()>& event, std::function<void()> more) {
    event = [before = std::move(event), more = std::move(more)] {
      if (before) before();
      more();
    };
  };
  also(page_.on_composed, [this] {
    fates_.clear();
    renew();
  });
  also(page_.on_mode_chosen, [this] { renew(); });
  page_.on_row_changed = [this](std::size_t row) {
    if (row < fates_.size()) fates_[row] = {};
    renew();
  };
  page_.on_row_removed = [this](std::size_t row) {
    if (row < fates_.size()) fates_.erase(fates_.begin() + static_cast<std::ptrdiff_t>(row));
    renew();
  };
}

void EntryResults::load_captions() {
  page_.lstImpFinal.set_column_heading(kResultColumn, shell_.app.text("Import_Column_Result"));
  cmdReport.set_caption(shell_.app.text("Import_Button_Report"));
  texts_.load(shell_.app);
}

void EntryResults::cmdReport_Click() {
  procedure(shell_.app.errors, "fMain.cmdReport_Click", {}, [&] {
    if (on_report) on_report();
  }).or_go_on();
}

void EntryResults::renew() {
  ++changes_;
  tmResults.set_enabled(true);
}

void EntryResults::make_room() {
  constexpr std::size_t kLargeBook = 8U << 20U;
  ++changes_;
  tmResults.set_enabled(false);
  if (book_.size() < kLargeBook) return;
  fates_ = {};
  book_ = {};
  book_stamp_ = 0;
}

bool EntryResults::seen() const { return shell_.frmImp(4).visible(); }

std::string EntryResults::result_of(std::size_t row) const {
  if (row >= fates_.size() || fates_[row].fate == Fate::kUnread) return {};
  const RowFate& fate = fates_[row];
  std::string_view name;
  const bool in_book = fate.in_book != RowFate::kNowhere;
  if (in_book) name = book_line_contact(std::string_view(book_).substr(fate.in_book)).name;
  const std::string text = texts_.of_row(fate.fate, in_book ? &name : nullptr);
  const NumberDoubt doubt =
      number_in_source ? doubt_about(number_in_source(row)) : NumberDoubt::kNone;
  return doubt == NumberDoubt::kNone ? text : concat(text, " ", texts_.of_doubt(doubt));
}

void EntryResults::tick() {
  if (!seen()) return tmResults.set_enabled(false);
  // Work that locks the page may change the entries; it is waited for.
  if (looking_ || shell_.input_locked()) return;
  tmResults.set_enabled(false);
  looking_ = true;
  const unsigned begun = changes_;
  bool done = false;
  // Nothing is said of a book that cannot be read: nobody has asked for it yet.
  skip_faults({[&] {
    look();
    done = true;
  }});
  looking_ = false;
  if (!done && begun == changes_) fates_.clear();
  page_.lstImpFinal.made_cells_changed();
}

void EntryResults::look() {
  const unsigned begun = changes_;
  const auto on_step = [&](std::size_t, std::size_t) {
    shell_.answer_events();
    if (begun != changes_ || !seen()) throw Overtaken();
  };
  if (!read_book()) return fates_.clear();
  fates_ = foresee_fates(book_, book_end_, page_.lstImpFinal.table(), page_.merge_mode, on_step);
}

bool EntryResults::read_book() {
  const Files& files = shell_.app.machine.files;
  const std::string path = shell_.app.paths.book_file();
  if (!files.has_file(path)) {
    if (!book_.empty()) fates_.clear();
    book_.clear();
    book_stamp_ = 0;
    return true;
  }
  const std::uint64_t stamp = files.stamp(path);
  if (stamp != book_stamp_) {
    fates_.clear();
    book_stamp_ = 0;
    if (files.size(path) > kLargestFile) return false;
    book_ = files.read(path);
    book_stamp_ = stamp;
  }
  const LineBreaks breaks = count_line_breaks(book_);
  book_end_ = line_end_of(book_, breaks);
  return line_of_joined_entries(book_, book_end_, breaks) == 0;
}

}  // namespace quenda
