#include "app/fMain.h"
#include "settings/app.h"
#include "support/procedure.h"

// What the settings remember of the pages, and back.
namespace quenda {

void fMain::LoadWindowPosition() {
  procedure(app_.errors, "fMain.LoadWindowPosition", {}, [&] {
    load_window_position(app_.ini, app_.settings);
    Place at = place();
    at.left = app_.settings.left;
    at.top = app_.settings.top;
    set_place(at);
    splPreview.set_share(app_.settings.preview_border);
  }).or_go_on();
}

void fMain::LoadPageOptions() {
  procedure(app_.errors, "fMain.LoadPageOptions", {}, [&] {
    load_page_options(app_.ini, app_.settings);
    EntryPage::load(app_.settings);
    SourcePage::load(app_.settings);
    OutlookPage::load(app_.settings);
    chkBackup.set_ticked(app_.settings.backup == 1);
  }).or_go_on();
}

void fMain::LoadSelections() {
  procedure(app_.errors, "fMain.LoadSelections", {}, [&] {
    load_selections(app_.ini, app_.settings);
  }).or_go_on();
}

void fMain::LoadHeaderOptions() {
  procedure(app_.errors, "fMain.LoadHeaderOptions", {}, [&] {
    NamePage::offer_suffixes(app_.settings);
    load_header_options(app_.ini, app_.settings);
    wizard.loading = true;
    NamePage::load(app_.settings);
    AddressPage::load(app_.settings);
    wizard.loading = false;
  }).or_go_on();
}

void fMain::SaveWindowPosition() {
  procedure(app_.errors, "fMain.SaveWindowPosition", {}, [&] {
    skip_faults({[&] {
      app_.settings.left = place().left;
      app_.settings.top = place().top;
      app_.settings.preview_border = splPreview.share();
      save_window_position(app_.ini, app_.settings);
    }});
  }).or_go_on();
}

void fMain::SaveSelections() {
  procedure(app_.errors, "fMain.SaveSelections", {}, [&] {
    ColumnPage::save(app_.settings);
    save_selections(app_.ini, app_.settings);
  }).or_go_on();
}

void fMain::SaveOptions(bool delimited_file) {
  // Faults are reported under the name of the header analysis, with which this saving began.
  procedure(app_.errors, "fMain.ImpHeader", {delimited_file}, [&] {
    EntryPage::save(app_.settings);
    SourcePage::save(app_.settings);
    OutlookPage::save(app_.settings);
    app_.settings.backup = chkBackup.ticked() ? 1 : 0;
    save_page_options(app_.ini, app_.settings);
    if (!delimited_file) return;
    NamePage::save(app_.settings);
    AddressPage::save(app_.settings);
    save_header_options(app_.ini, app_.settings);
    SaveSelections();
    remember_header();
  }).or_go_on();
}

void fMain::remember_header() {
  const ImportSettings& settings = app_.settings;
  const ColumnChoice columns = ColumnPage::choice();
  save_header_choice(
      app_.ini, header(),
      {.columns = {columns.names, columns.numbers, columns.addresses[0], columns.addresses[1]},
       .name_flip = settings.name_flip,
       .address_flip = settings.address_flip,
       .add_check = settings.add_check,
       .suffixes = settings.name_ext});
}

void fMain::adopt(const HeaderChoice& choice) {
  ImportSettings& settings = app_.settings;
  settings.name_flip = choice.name_flip;
  settings.address_flip = choice.address_flip;
  settings.add_check = choice.add_check;
  settings.name_ext = choice.suffixes;
  wizard.loading = true;
  NamePage::load(settings);
  AddressPage::load(settings);
  wizard.loading = false;
}

}  // namespace quenda
