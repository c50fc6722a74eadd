#include "sources/pages/source_page.h"

#include <string>

#include "platform/files.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/text.h"
#include "wizard/shell/design.h"

namespace quenda {
namespace {

constexpr DesignRow<SourcePage> kDesign[] = {
    {.control = control_at<&SourcePage::labFile>,
     .place = {0, 90, 7800, 255},
     .tab = 1,
     .caption = "Import_Label_FileForImport"},
    {.control = control_at<&SourcePage::txtImpFile>,
     .place = {0, 375, 7800, 345},
     .tab = 2,
     .across = Anchor::kBoth},
    {.control = control_at<&SourcePage::cmdFile>,
     .place = {7980, 352, 2460, 390},
     .tab = 3,
     .caption = "Import_Button_ImportCSV",
     .across = Anchor::kEnd},
    {.control = control_at<&SourcePage::labLimiter>,
     .place = {0, 930, 2340, 255},
     .tab = 4,
     .caption = "Import_Label_Delimiter"},
    {.control = control_at<&SourcePage::cmbLimiter>, .place = {2520, 885, 2400, 345}, .tab = 5},
    {.control = control_at<&SourcePage::labLimError>,
     .place = {5100, 930, 5340, 255},
     .caption = "Import_Label_DetectFail"},
    {.control = control_at<&SourcePage::cmdIspy>,
     .place = {0, 1740, 2340, 390},
     .tab = 6,
     .caption = "Import_Button_ImportISpy"},
    {.control = control_at<&SourcePage::labIspy>,
     .place = {2520, 1695, 7920, 660},
     .caption = "Multiline_Import",
     .across = Anchor::kBoth},
    {.control = control_at<&SourcePage::cmdOutlook>,
     .place = {0, 2640, 2340, 390},
     .tab = 7,
     .caption = "Import_Button_ImportOutlook"},
    {.control = control_at<&SourcePage::labOLver>,
     .place = {2520, 2715, 7920, 255},
     .across = Anchor::kBoth},
    {.control = control_at<&SourcePage::labOLhint>,
     .place = {2520, 3000, 7920, 540},
     .caption = "Import_Label_OutlookExport",
     .across = Anchor::kBoth},
    {.control = control_at<&SourcePage::chkNameLen>,
     .place = {0, 4020, 7800, 300},
     .tab = 8,
     .caption = "Import_ChkBox_NameMin3Chars"},
    {.control = control_at<&SourcePage::labFacts>,
     .place = {2520, 1245, 7920, 450},
     .across = Anchor::kBoth},
    {.control = control_at<&SourcePage::chkConvert>,
     .place = {0, 3630, 7800, 300},
     .tab = 9,
     .caption = "Import_ChkBox_Convert"},
};

}  // namespace

SourcePage::SourcePage(WizardShell& shell)
    : WizardPage(shell), outlook(app_.errors, app_.machine.automation) {
  shell_.set_page(Page::kSource, *this);
  design();
  connect();
}

void SourcePage::design() {
  apply_design(*this, kDesign, &shell_.frmImp(0));
  labLimError.set_visible(false);
  labOLhint.set_visible(false);
  labFacts.set_visible(false);
  for (Label* told : {&labLimError, &labOLver, &labOLhint, &labFacts}) told->set_announced();
  chkConvert.set_visible(false);
}

void SourcePage::connect() {
  cmdFile.on_click = [this] { cmdFile_Click(); };
  cmdIspy.on_click = [this] { cmdIspy_Click(); };
  txtImpFile.on_change = [this] { txtImpFile_Change(); };
  cmbLimiter.on_click = [this] { cmbLimiter_Click(); };
  chkConvert.on_click = [this] { chkConvert_Click(); };
  shell_.tmOLcheck.on_timer = [this] { tmOLcheck_Timer(); };
  shell_.on_drop_file = [this](std::string_view path) {
    // A dropped file is taken like a chosen one, as long as a source can be chosen.
    if (!txtImpFile.reachable() || !app_.machine.files.exists(path)) return;
    txtImpFile.set_text("");
    txtImpFile.set_text(path);
  };
  shell_.on_unusable_path = [this](std::string_view nearest) { app_.refuse_path(nearest); };
}

void SourcePage::load_captions() {
  quenda::load_captions(*this, kDesign, app_);
  // Callers of a log come in with names of any length.
  chkNameLen.set_caption(
      concat(chkNameLen.caption(), " (", app_.text("Import_String_FileAndOutlook"), ")"));
}

void SourcePage::load(const ImportSettings& settings) {
  skip_faults({[&] { chkNameLen.set_value(settings.min_name_length); },
               [&] { chkConvert.set_value(settings.convert); }});
}

void SourcePage::save(ImportSettings& settings) const {
  settings.min_name_length = chkNameLen.value();
  settings.convert = chkConvert.value();
}

void SourcePage::cmdFile_Click() {
  procedure(app_.errors, "fMain.cmdFile_Click", {}, [&] {
    choose_file(FilterSet::kAll);
  }).or_go_on();
}

void SourcePage::cmdIspy_Click() {
  procedure(app_.errors, "fMain.cmdIspy_Click", {}, [&] {
    choose_file(FilterSet::kISpy);
  }).or_go_on();
}

void SourcePage::choose_file(FilterSet filters) {
  txtImpFile.set_text("");
  const std::string path = app_.open_file(filters);
  if (path.empty()) return;
  txtImpFile.set_text(path);
  // Where the user's next step is; the button that was pressed would open the dialog again.
  if (shell_.cmdFor.reachable()) {
    shell_.cmdFor.set_focus();
  } else if (detection_failed_ && cmbLimiter.reachable()) {
    cmbLimiter.set_focus();
  }
}

void SourcePage::open_choice(bool open) {
  choice_open_ = open;
  for (Control* control : {static_cast<Control*>(&cmdFile), static_cast<Control*>(&cmdIspy),
                           static_cast<Control*>(&txtImpFile)}) {
    control->set_enabled(open);
  }
  enable_outlook();
}

void SourcePage::enable_outlook() {
  cmdOutlook.set_enabled(choice_open_ && outlook.installed() && outlook.contact_count() > 0);
}

void SourcePage::start_outlook_search() {
  searching_outlook_ = true;
  shell_.tmOLcheck.set_enabled(true);
  shell_.StatusBar.set_panel(2, shell_.texts["Import_Info_OutlookSearch"]);
}

void SourcePage::tmOLcheck_Timer() {
  procedure(app_.errors, "fMain.tmOLcheck_Timer", {}, [&] {
    const MainTexts& texts = shell_.texts;
    shell_.tmOLcheck.set_enabled(false);
    outlook.isOutlookInstalled(true);
    const bool installed = outlook.installed();
    labOLhint.set_visible(!installed);
    enable_outlook();
    std::string label = texts["Import_Info_OutlookNotInst"];
    std::string result = texts["Import_Info_OutlookNotInst"];
    if (installed) {
      label = concat(outlook.version_name(), "  v", outlook.major_version());
      if (outlook.contact_count() == 0) label.append(" ").append(texts["Import_Info_DataNotFound"]);
      result =
          concat(std::to_string(outlook.contact_count()), " ", texts["Import_Info_ContactsFound"]);
    }
    labOLver.set_caption(label);
    // Outlook may take its time to answer; what a file taken meanwhile has to say is worth more.
    if (searching_outlook_) shell_.StatusBar.set_panel(2, result);
    searching_outlook_ = false;
  }).or_go_on();
}

}  // namespace quenda
