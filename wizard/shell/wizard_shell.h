#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "wizard/shell/import_source.h"
#include "wizard/shell/main_texts.h"
#include "wizard/shell/wizard_page.h"

namespace quenda {

struct App;

/// The wizard without its pages: the strip on top, the frames that hold the pages, the buttons and
/// the status bar, and where the wizard stands. This is all that a page knows of the wizard.
class WizardShell : public Form {
 public:
  explicit WizardShell(App& services);

  /// Shows the current page and no other, or none at all.
  void ShowSite(bool hide_only = false);
  /// Shows the Outlook page in place of the first one.
  void show_outlook_page();
  /// One page back; the columns' page calls it too, when a header cannot be used.
  virtual void cmdBack_Click() = 0;
  void cmdHelp_Click();
  /// Colours an input field as usable or not.
  void ObjectEnable(bool enabled, Control& control);
  /// The same for one of an array; an index that the array lacks is a fault like any other.
  template <class T>
  void ObjectEnable(bool enabled, ControlArray<T>& array, std::int16_t index) {
    colour(enabled, (*array.begin())->name(), index, [&]() -> Control& { return array(index); });
  }

  /// The page that "Weiter" asks: the last told for that place. The Outlook page has a place of its
  /// own.
  void set_page(Page place, WizardPage& page) {
    pages_.at(static_cast<std::size_t>(place)) = &page;
  }
  void set_outlook_page(WizardPage& page) { outlook_page_ = &page; }

  /// A step forward begins: the way on is closed until the step or a check of the page opens it.
  void begin_step();
  /// The step came through, or something on the page has changed: the page decides about the way
  /// on.
  void refresh_buttons();
  /// While contacts are read, there is no way back.
  void lock_way_back(bool locked);

  /// One record, line or entry of a long loop is done: shows the progress, handles what the user
  /// does meanwhile, and ends the program when the user wants that.
  void step(std::size_t done, std::size_t total) {
    // As in `Steps`: to look at the clock for each record would cost more than the work itself. The
    // wish to end is seen at once.
    constexpr unsigned kStepsPerLook = 64;
    if (++steps_ % kStepsPerLook == 0 || done >= total || wizard.abort) show_step(done, total);
  }
  /// The same for work that tells of a few of its steps only.
  void show_step(std::size_t done, std::size_t total);
  /// The same in work that shows no progress.
  void answer_events();

  void clear_panels();
  /// "37 gültige Einträge" in panel 3.
  void show_counts(std::size_t count, std::string_view text);

  App& app;
  ImportSource source;
  WizardState wizard;
  MainTexts texts;

  // The strip on top and the buttons below the pages.
  Frame frmTitle{*this, "frmTitle"};
  Label labTitle{*this, "labTitle"};
  ControlArray<Label> labHelp{*this, "labHelp", {1, 2, 3, 4, 5, 6}};
  PictureBox PicProgress{*this, "PicProgress"};
  Button cmdHelp{*this, "cmdHelp"};
  Button cmdBack{*this, "cmdBack"};
  Button cmdFor{*this, "cmdFor"};
  Button cmdCancel{*this, "cmdCancel"};
  quenda::StatusBar StatusBar{*this, "StatusBar"};
  TextBox txtDDE{*this, "txtDDE"};  // hidden; its text is what the phone book watches
  Timer tmOLcheck{*this, "tmOLcheck"};

  // One frame per page, all in the same place of one holder; the Outlook page replaces the first.
  Frame frmPages{*this, "frmPages"};
  ControlArray<Frame> frmImp{*this, "frmImp", {0, 1, 2, 3, 4}};
  Frame frmImpOL{*this, "frmImpOL"};

 protected:
  /// The captions of the shell's own controls.
  void load_shell_captions();

 private:
  void design();
  void colour(bool enabled, std::string_view name, int index,
              const std::function<Control&()>& find);
  void hide_pages();
  void show_title(std::size_t place);
  void show_buttons();
  [[nodiscard]] const WizardPage* current_page() const;

  std::array<WizardPage*, 5> pages_{};
  WizardPage* outlook_page_ = nullptr;
  bool way_on_open_ = true;
  bool way_back_locked_ = false;
  unsigned steps_ = 0;
};

}  // namespace quenda
