#include <string_view>

#include "app/fMain.h"
#include "app/main_anchors.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/literal_1252.h"
#include "text/text.h"
#include "wizard/shell/design.h"

// Where the controls of the main form lie and which texts they carry. Each label stands right
// before its field in the tab order, so that screen readers name the field by it.
namespace quenda {
namespace {

constexpr int kWindowWidth = 10920;  // with its frame
constexpr int kPageWidth = 10440;
constexpr int kPageHeight = 5400;

constexpr Place kPage = {0, 0, kPageWidth, kPageHeight};
// The preview stands below these pages.
constexpr Place kUpperPage = {0, 0, kPageWidth, 2430};
constexpr Place kHelpLine = {180, 420, 10260, 420};

constexpr DesignEntry kFrames[] = {
    {"frmTitle", -1, "", -1, {0, 0, 10920, 870}, -1, ""},
    {"labTitle", -1, "frmTitle", -1, {180, 90, 10260, 330}, -1, ""},
    {"labHelp", 1, "frmTitle", -1, kHelpLine, -1, "Import_Label_Help1"},
    {"labHelp", 2, "frmTitle", -1, kHelpLine, -1, "Import_Label_Help2"},
    {"labHelp", 3, "frmTitle", -1, kHelpLine, -1, "Import_Label_Help3"},
    {"labHelp", 4, "frmTitle", -1, kHelpLine, -1, "Import_Label_Help4"},
    {"labHelp", 5, "frmTitle", -1, kHelpLine, -1, "Import_Label_Help5"},
    {"labHelp", 6, "frmTitle", -1, kHelpLine, -1, "Import_Label_Help6"},
    {"frmPages", -1, "", -1, {120, 1020, kPageWidth, kPageHeight}, -1, ""},
    {"frmImp", 0, "frmPages", -1, kPage, -1, ""},
    {"frmImp", 1, "frmPages", -1, kUpperPage, -1, ""},
    {"frmImp", 2, "frmPages", -1, kUpperPage, -1, ""},
    {"frmImp", 3, "frmPages", -1, kPage, -1, ""},
    {"frmImp", 4, "frmPages", -1, kPage, -1, ""},
    {"frmImpOL", -1, "frmPages", -1, kPage, -1, ""},
    {"PicProgress", -1, "", -1, {120, 6510, kPageWidth, 270}, -1, ""},
    {"cmdBack", -1, "", -1, {5820, 6900, 1500, 390}, 200, "Button_Prev"},
    {"cmdFor", -1, "", -1, {7440, 6900, 1500, 390}, 201, "Button_Next"},
    {"cmdCancel", -1, "", -1, {9060, 6900, 1500, 390}, 202, "Button_Cancel"},
    {"cmdHelp", -1, "", -1, {120, 6900, 1500, 390}, 203, "Button_Help"},
    {"StatusBar", -1, "", -1, {0, 7350, kWindowWidth, 330}, -1, ""},
};

constexpr DesignEntry kSourcePage[] = {
    {"labFile", -1, "frmImp", 0, {0, 90, 7800, 255}, 1, "Import_Label_FileForImport"},
    {"txtImpFile", -1, "frmImp", 0, {0, 375, 7800, 345}, 2, ""},
    {"cmdFile", -1, "frmImp", 0, {7980, 352, 2460, 390}, 3, "Import_Button_ImportCSV"},
    {"labLimiter", -1, "frmImp", 0, {0, 930, 2340, 255}, 4, "Import_Label_Delimiter"},
    {"cmbLimiter", -1, "frmImp", 0, {2520, 885, 2400, 345}, 5, ""},
    {"labLimError", -1, "frmImp", 0, {5100, 930, 5340, 255}, -1, "Import_Label_DetectFail"},
    {"cmdIspy", -1, "frmImp", 0, {0, 1740, 2340, 390}, 6, "Import_Button_ImportISpy"},
    {"labIspy", -1, "frmImp", 0, {2520, 1695, 7920, 660}, -1, "Multiline_Import"},
    {"cmdOutlook", -1, "frmImp", 0, {0, 2640, 2340, 390}, 7, "Import_Button_ImportOutlook"},
    {"labOLver", -1, "frmImp", 0, {2520, 2715, 7920, 255}, -1, ""},
    {"labOLhint", -1, "frmImp", 0, {2520, 3000, 7920, 540}, -1, "Import_Label_OutlookExport"},
    {"chkNameLen", -1, "frmImp", 0, {0, 4020, 7800, 300}, 8, "Import_ChkBox_NameMin3Chars"},
};

constexpr DesignEntry kColumnPage[] = {
    {"labHeader", 0, "frmImp", 1, {0, 0, 2490, 255}, 20, "Import_Label_ColumnsNames"},
    {"lstHeader", 0, "frmImp", 1, {0, 285, 2490, 2070}, 21, ""},
    {"labHeader", 1, "frmImp", 1, {2650, 0, 2490, 255}, 22, "Import_Label_ColumnsNumbers"},
    {"lstHeader", 1, "frmImp", 1, {2650, 285, 2490, 2070}, 23, ""},
    {"labHeader", 2, "frmImp", 1, {5300, 0, 2490, 255}, 24, "Import_Label_ColumnsAddresses"},
    {"lstHeader", 2, "frmImp", 1, {5300, 285, 2490, 2070}, 25, ""},
    {"labHeader", 3, "frmImp", 1, {7950, 0, 2490, 255}, 26, "Import_Label_ColumnsAddresses"},
    {"lstHeader", 3, "frmImp", 1, {7950, 285, 2490, 2070}, 27, ""},
    {"labShow", -1, "frmPages", -1, {0, 2460, kPageWidth, 255}, 100, "Import_Label_PreviewData"},
    {"lstShow", -1, "frmPages", -1, {0, 2745, kPageWidth, 2655}, 101, ""},
};

constexpr DesignEntry kNamePage[] = {
    {"labHeadName", -1, "frmImp", 2, {0, 60, 2340, 255}, 30, "Import_Label_NameInfo"},
    {"txtHeadName", -1, "frmImp", 2, {2520, 15, 4200, 345}, 31, ""},
    {"chkFlip", -1, "frmImp", 2, {6900, 45, 3540, 300}, 32, "Import_ChkBox_FlipNames"},
    {"labHeadNumber", -1, "frmImp", 2, {2520, 570, 4200, 255}, -1, "Import_Label_NumberInfo"},
    {"labNameExt", -1, "frmImp", 2, {6900, 570, 3540, 255}, -1, "Import_Label_NameExt"},
    {"labHead", 0, "frmImp", 2, {0, 915, 2340, 255}, 33, "Import_String_PhoneNumber"},
    {"txtHead", 0, "frmImp", 2, {2520, 870, 4200, 345}, 34, ""},
    {"txtIndex", 0, "frmImp", 2, {6900, 870, 3540, 345}, 35, ""},
    {"labHead", 1, "frmImp", 2, {0, 1365, 2340, 255}, 36, "Import_String_PhoneNumber"},
    {"txtHead", 1, "frmImp", 2, {2520, 1320, 4200, 345}, 37, ""},
    {"txtIndex", 1, "frmImp", 2, {6900, 1320, 3540, 345}, 38, ""},
    {"labHead", 2, "frmImp", 2, {0, 1815, 2340, 255}, 39, "Import_String_PhoneNumber"},
    {"txtHead", 2, "frmImp", 2, {2520, 1770, 4200, 345}, 40, ""},
    {"txtIndex", 2, "frmImp", 2, {6900, 1770, 3540, 345}, 41, ""},
};

constexpr DesignEntry kAddressPage[] = {
    {"labFlipAdress", -1, "frmImp", 3, {0, 60, 2340, 255}, 50, "Import_Label_SortOrder"},
    {"cmbFlipAdress", -1, "frmImp", 3, {2520, 15, 7920, 345}, 51, ""},
    {"labAdres", 0, "frmImp", 3, {0, 600, 2340, 255}, 52, "Import_Label_AddressInfo1"},
    {"txtAdres", 0, "frmImp", 3, {2520, 555, 7920, 345}, 53, ""},
    {"labAdres", 1, "frmImp", 3, {0, 1050, 2340, 255}, 54, "Import_Label_AddressInfo2"},
    {"txtAdres", 1, "frmImp", 3, {2520, 1005, 7920, 345}, 55, ""},
    {"labAdresBind",
     -1,
     "frmImp",
     3,
     {0, 1650, kPageWidth, 255},
     -1,
     "Import_Label_SelectedAddressAlloc"},
    {"frmBind", 0, "frmImp", 3, {0, 1980, kPageWidth, 870}, -1, ""},
    {"chk1", 0, "frmBind", 0, {180, 375, 1050, 300}, 56, ""},
    {"chk1", 1, "frmBind", 0, {1320, 375, 1050, 300}, 57, ""},
    {"txtAdresBind", 0, "frmBind", 0, {2520, 345, 7740, 345}, 58, ""},
    {"frmBind", 1, "frmImp", 3, {0, 2970, kPageWidth, 870}, -1, ""},
    {"chk2", 0, "frmBind", 1, {180, 375, 1050, 300}, 59, ""},
    {"chk2", 1, "frmBind", 1, {1320, 375, 1050, 300}, 60, ""},
    {"txtAdresBind", 1, "frmBind", 1, {2520, 345, 7740, 345}, 61, ""},
    {"frmBind", 2, "frmImp", 3, {0, 3960, kPageWidth, 870}, -1, ""},
    {"chk3", 0, "frmBind", 2, {180, 375, 1050, 300}, 62, ""},
    {"chk3", 1, "frmBind", 2, {1320, 375, 1050, 300}, 63, ""},
    {"txtAdresBind", 2, "frmBind", 2, {2520, 345, 7740, 345}, 64, ""},
};

constexpr DesignEntry kEntryPage_[] = {
    {"labImpFinal", -1, "frmImp", 4, {0, 0, 7320, 255}, 70, "Journal_Info_Items"},
    {"lstImpFinal", -1, "frmImp", 4, {0, 285, 7320, 5115}, 71, ""},
    {"cmdEditItems", -1, "frmImp", 4, {7500, 285, 2940, 390}, 72, "Menu_Edit"},
    {"cmdDel", -1, "frmImp", 4, {7500, 765, 2940, 390}, 73, "Settings_Button_Remove"},
    {"labDelete", -1, "frmImp", 4, {7500, 1215, 2940, 480}, -1, "Import_Label_Delete"},
    {"frmAsk", -1, "frmImp", 4, {7500, 1800, 2940, 1830}, -1, "Import_Label_BehaviorExistNumber"},
    {"optAsk", 0, "frmAsk", -1, {150, 330, 2700, 420}, 74, "Import_Option_AskDataSet"},
    {"optAsk", 1, "frmAsk", -1, {150, 795, 2700, 420}, 75, "Import_Option_NewDataSet"},
    {"optAsk", 2, "frmAsk", -1, {150, 1260, 2700, 420}, 76, "Import_Option_RetainDataSet"},
    {"labStateCode", -1, "frmImp", 4, {7500, 3810, 1560, 255}, 77, "Settings_Label_CountryCode"},
    {"txtStateCode", -1, "frmImp", 4, {9120, 3765, 1320, 345}, 78, ""},
    {"labOVW", -1, "frmImp", 4, {7500, 4260, 1560, 255}, 79, "Import_Label_MissingAreaCode1"},
    {"txtOVW", -1, "frmImp", 4, {9120, 4215, 1320, 345}, 80, ""},
    {"labOVWhint", -1, "frmImp", 4, {7500, 4680, 2940, 480}, -1, "Import_Label_MissingAreaCode2"},
};

constexpr DesignEntry kOutlookHead[] = {
    {"labImport", 0, "frmImpOL", -1, {0, 0, 2400, 255}, -1, "Import_Label_Contacts"},
    {"labImport", 1, "frmImpOL", -1, {2460, 0, 1500, 255}, -1, "Import_Label_NameExt"},
    {"labImport", 2, "frmImpOL", -1, {4020, 0, 1560, 255}, -1, "Import_Label_AddressAlloc"},
    {"labPreview", -1, "frmImpOL", -1, {5700, 0, 4740, 255}, 162, "Import_Label_PreviewData"},
    {"lstImport", -1, "frmImpOL", -1, {5700, 285, 4740, 5115}, 163, ""},
    {"chkFlipName", -1, "frmImpOL", -1, {0, 4680, 5580, 300}, 160, "Import_ChkBox_FlipName"},
    {"chkFlipAdress", -1, "frmImpOL", -1, {0, 5010, 5580, 300}, 161, "Import_ChkBox_FlipAddress"},
};

constexpr std::span<const DesignEntry> kDesign[] = {
    kFrames, kSourcePage, kColumnPage, kNamePage, kAddressPage, kEntryPage_, kOutlookHead};

/// The eleven number kinds of the Outlook page: what the box says, and what is added to the name
/// until the user types something else.
struct NumberKindRow {
  std::string_view caption[3];  // keys, joined with blanks
  std::string_view suffix;      // key
};
constexpr NumberKindRow kNumberKindRows[] = {
    {{"Import_String_PhoneNumber", "Import_ChkBox_ShortPrivate", ""}, "Import_Text_Private"},
    {{"Import_String_PhoneNumber", "2", "Import_ChkBox_ShortPrivate"}, "Import_Text_Private"},
    {{"Import_String_FAXNumber", "Import_ChkBox_ShortPrivate", ""}, "Import_Text_Private"},
    {{"Import_String_PhoneNumber", "Import_ChkBox_ShortCommercial", ""}, "Import_Text_Office"},
    {{"Import_String_PhoneNumber", "2", "Import_ChkBox_ShortCommercial"}, "Import_Text_Office"},
    {{"Import_String_FAXNumber", "Import_ChkBox_ShortCommercial", ""}, "Import_Text_Office"},
    {{"Import_ChkBox_MobileNumber", "", ""}, "Import_Text_Mobile"},
    {{"ISDN", "Import_String_PhoneNumber", ""}, "Import_Text_Private"},
    {{"Import_ChkBox_ShortMainNumber", "", ""}, "Import_Text_Primary"},
    {{"Import_ChkBox_ShortMainNumber", "Import_ChkBox_ShortCommercial", ""}, "Import_Text_Firm"},
    {{"Import_ChkBox_Other", "", ""}, "Import_Text_Alternate"},
};

/// Names of the pages: 1 to 5, and the Outlook page.
constexpr std::string_view kTitles[] = {
    "Import_Label_Contacts",         "Import_Label_OverviewData", "Import_Label_NameInfo",
    "Import_Label_FormattingOutput", "Import_Label_ImportedData", "Import_Button_ImportOutlook"};

}  // namespace

void fMain::design() {
  for (const auto part : kDesign) apply_design(*this, part);
  constexpr int kRowHeight = 390;
  for (const auto& box : chkImport) {
    const int kind = box->index();
    const int top = 300 + (kind - 1) * kRowHeight;
    const int tab = 105 + 4 * kind;
    const auto place_in_row = [&](Control& control, int left, int width, int column) {
      control.set_parent(&frmImpOL);
      control.set_place({left, top, width, 345});
      control.set_tab_index(tab + column);
    };
    const bool two = has_two_addresses(static_cast<std::size_t>(kind));
    place_in_row(*box, 0, 2400, 0);
    place_in_row(txtImport(kind), 2460, 1440, 1);
    place_in_row(chkAdr(kind), 4020, two ? 780 : 1560, 2);
    if (two) place_in_row(chkAdr(kind + 10), 4830, 780, 3);
  }
  const Place& cancel = cmdCancel.place();
  set_place({500, 500, 0, cancel.top + cancel.height + StatusBar.place().height + 60});
  set_outer_width(kWindowWidth);
  anchor_main_controls(*this);
  labTitle.set_heading(true);
  frmTitle.set_back_color(BackColor::kWindow);
  for (TextBox* preview : {&txtHeadName, &txtHead(0), &txtHead(1), &txtHead(2), &txtAdres(0),
                           &txtAdres(1), &txtAdresBind(0), &txtAdresBind(1), &txtAdresBind(2)}) {
    preview->set_locked(true);
    preview->set_back_color(BackColor::kButtonFace);
  }
  lstImport.set_columns({{"", 2000}, {"", 1750}, {"", 3000}});
  lstImpFinal.set_columns({{"", 2600}, {"", 1800}, {"", 2550}});
  txtDDE.set_visible(false);
  labLimError.set_visible(false);
  labOLhint.set_visible(false);
  PicProgress.set_visible(false);
  default_button = &cmdFor;
  cancel_button = &cmdCancel;
}

void fMain::Language() {
  procedure(app_.errors, "fMain.Language", {}, [&] {
    set_caption(concat("Quenda - ", app_.text("Import_Title")));
    for (const MainText& text : kMainTexts) texts.*text.field = app_.text(text.key);
    for (const auto part : kDesign) load_captions(*this, part, app_);
    for (const int address : {1, 2}) {
      const std::string number = concat(" ", std::to_string(address));
      labHeader(address + 1).set_caption(concat(labHeader(address + 1).caption(), number));
    }
    for (const auto& label : labHead) {
      label->set_caption(concat(label->caption(), " ", std::to_string(label->index() + 1)));
    }
    name_address_boxes();
    name_number_kinds();
    for (ListView* list : {&lstImport, &lstImpFinal}) {
      list->set_column_heading(0, texts.name);
      list->set_column_heading(1, texts.number);
      list->set_column_heading(2, texts.address);
    }
  }).or_go_on();
}

void fMain::name_address_boxes() {
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    const std::string number = concat(texts.number, " ", std::to_string(row + 1));
    const auto index = static_cast<int>(row);
    txtIndex(index).set_spoken_name(concat(number, ": ", labNameExt.caption()));
    txtAdresBind(index).set_spoken_name(concat(number, ": ", texts.address));
    for (const auto& box : address_boxes(row)) {
      const std::string address = std::to_string(box->index() + 1);
      box->set_caption(address);
      // Read aloud, "1" alone would say nothing.
      box->set_spoken_name(concat(app_.text("Import_Label_AddressSelect"), ": ", number, ", ",
                                  texts.address, " ", address));
    }
  }
}

void fMain::name_number_kinds() {
  const auto word = [&](std::string_view key) {
    return key.find('_') == key.npos ? std::string(key) : app_.text(key);
  };
  for (const auto& box : chkImport) {
    const NumberKindRow& row = kNumberKindRows[box->index() - 1];
    std::string caption;
    for (const std::string_view key : row.caption) {
      if (key.empty()) continue;
      if (!caption.empty()) caption += ' ';
      caption += word(key);
    }
    box->set_caption(caption);
    const int kind = box->index();
    txtImport(kind).set_text(app_.text(row.suffix));
    txtImport(kind).set_spoken_name(concat(caption, ": ", labImport(1).caption()));
    const bool two = has_two_addresses(static_cast<std::size_t>(kind));
    chkAdr(kind).set_caption(two ? "1" : texts.address);
    chkAdr(kind).set_spoken_name(concat(caption, ": ", texts.address, two ? " 1" : ""));
    if (!two) continue;
    chkAdr(kind + 10).set_caption("2");
    chkAdr(kind + 10).set_spoken_name(concat(caption, ": ", texts.address, " 2"));
  }
}

void fMain::show_title(int page) {
  labTitle.set_caption(app_.text(kTitles[page - 1]));
  for (const auto& help : labHelp) help->set_visible(help->index() == page);
}

}  // namespace quenda
