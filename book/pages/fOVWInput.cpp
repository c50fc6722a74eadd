#include "book/pages/fOVWInput.h"

#include "book/number_cleaning.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/text.h"
#include "wizard/shell/design.h"
#include "wizard/shell/help.h"

namespace quenda {
namespace {

constexpr DesignRow<fOVWInput> kDesign[] = {
    {.control = control_at<&fOVWInput::labRequired>,
     .place = {240, 180, 6240, 510},
     .caption = "Import_Label_ImportRequiredCodes"},
    {.control = control_at<&fOVWInput::labWithoutAreaCode>,
     .place = {240, 180, 6240, 510},
     .caption = "Import_Label_SettingsWithoutAreaCode"},
    {.control = control_at<&fOVWInput::labOwnArea>,
     .place = {240, 780, 6240, 255},
     .caption = "Import_Label_OwnArea"},
    {.control = control_at<&fOVWInput::labLVW>,
     .place = {240, 1185, 2000, 255},
     .tab = 0,
     .caption = "Settings_Label_CountryCode"},
    {.control = control_at<&fOVWInput::txtLVW>, .place = {2340, 1140, 1300, 345}, .tab = 1},
    {.control = control_at<&fOVWInput::labFormatLVW>,
     .place = {3780, 1185, 2700, 255},
     .caption = "Import_Label_FormatCountryCode"},
    {.control = control_at<&fOVWInput::labOVW>,
     .place = {240, 1665, 2000, 255},
     .tab = 2,
     .caption = "Import_Label_MissingAreaCode1"},
    {.control = control_at<&fOVWInput::txtOVW>, .place = {2340, 1620, 1300, 345}, .tab = 3},
    {.control = control_at<&fOVWInput::labFormatOVW>,
     .place = {3780, 1665, 2700, 255},
     .caption = "Import_Label_FormatAreaCode"},
    {.control = control_at<&fOVWInput::cmdHelp>,
     .place = {240, 2220, 1400, 390},
     .tab = 5,
     .caption = "Button_Help"},
    {.control = control_at<&fOVWInput::cmdOK>,
     .place = {4880, 2220, 1600, 390},
     .tab = 4,
     .caption = "Button_Resume"},
};

}  // namespace

fOVWInput::fOVWInput(App& app) : Form("fOVWInput"), app_(app) {
  design();
  connect();
  Form_Load();
}

void fOVWInput::design() {
  apply_design(*this, kDesign);
  set_place({0, 0, 6720, 2790});
  default_button = &cmdOK;
}

void fOVWInput::connect() {
  const auto digits_only = [](std::int16_t& code) { code = filter_key(code, KeyFilter::kNum); };
  txtLVW.on_key_press = digits_only;
  txtOVW.on_key_press = digits_only;
  txtLVW.on_change = [this] { txtLVW_Change(); };
  txtOVW.on_change = [this] { txtOVW_Change(); };
  cmdOK.on_click = [this] { cmdOK_Click(); };
  cmdHelp.on_click = [this] { cmdHelp_Click(); };
  on_help = cmdHelp.on_click;
  // Where there is something to do.
  on_got_focus = [this] { (country_code_complete(txtLVW.text()) ? txtOVW : txtLVW).set_focus(); };
}

void fOVWInput::Form_Load() {
  procedure(app_.errors, "fOVWInput.Form_Load", {}, [&] {
    Language();
    const ImportSettings& settings = app_.settings;
    txtLVW.set_text(settings.dialled_country_code());
    txtOVW.set_text(settings.dialled_area_code());
    // Both stand in one place. Which one is shown says why the codes are asked for: the suite has
    // no area code, or those on the page before are not complete.
    const bool no_area_code = settings.own_area_code.empty();
    labWithoutAreaCode.set_visible(no_area_code);
    labRequired.set_visible(!no_area_code);
    enable_ok();
  }).or_go_on();
}

void fOVWInput::Language() {
  procedure(app_.errors, "fOVWInput.Language", {}, [&] {
    set_caption(concat("Quenda - ", app_.text("Import_Title")));
    load_captions(*this, kDesign, app_);
  }).or_go_on();
}

void fOVWInput::enable_ok() { cmdOK.set_enabled(own_codes_complete(txtLVW.text(), txtOVW.text())); }

void fOVWInput::txtLVW_Change() {
  procedure(app_.errors, "fOVWInput.txtLVW_Change", {}, [&] { enable_ok(); }).or_go_on();
}

void fOVWInput::txtOVW_Change() {
  procedure(app_.errors, "fOVWInput.txtOVW_Change", {}, [&] { enable_ok(); }).or_go_on();
}

void fOVWInput::cmdOK_Click() {
  procedure(app_.errors, "fOVWInput.cmdOK_Click", {}, [&] {
    answer = OwnCodes{.country = txtLVW.text(), .area = txtOVW.text()};
    unload();
  }).or_go_on();
}

void fOVWInput::cmdHelp_Click() {
  procedure(app_.errors, "fOVWInput.cmdHelp_Click", {}, [&] { open_help(app_); }).or_go_on();
}

}  // namespace quenda
