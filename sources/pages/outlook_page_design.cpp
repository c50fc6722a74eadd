#include <string>

#include "settings/app.h"
#include "sources/pages/outlook_page.h"
#include "text/text.h"
#include "wizard/shell/design.h"

// Where the controls of the Outlook page lie and what they are called.
namespace quenda {
namespace {

constexpr DesignRow<OutlookPage> kDesign[] = {
    {.control = control_at<&OutlookPage::labImport, 0>,
     .place = {0, 0, 2400, 255},
     .caption = "Import_Label_Contacts"},
    {.control = control_at<&OutlookPage::labImport, 1>,
     .place = {2460, 0, 1500, 255},
     .caption = "Import_Label_NameExt"},
    {.control = control_at<&OutlookPage::labImport, 2>,
     .place = {4020, 0, 1560, 255},
     .caption = "Import_Label_AddressAlloc"},
    {.control = control_at<&OutlookPage::labPreview>,
     .place = {5700, 0, 4740, 255},
     .tab = 162,
     .caption = "Import_Label_PreviewData"},
    {.control = control_at<&OutlookPage::lstImport>,
     .place = {5700, 285, 4740, 5115},
     .tab = 163,
     .across = Anchor::kBoth,
     .down = Anchor::kBoth},
    {.control = control_at<&OutlookPage::chkFlipName>,
     .place = {0, 4680, 5580, 300},
     .tab = 160,
     .caption = "Import_ChkBox_FlipName"},
    {.control = control_at<&OutlookPage::chkFlipAdress>,
     .place = {0, 5010, 5580, 300},
     .tab = 161,
     .caption = "Import_ChkBox_FlipAddress"},
};

/// Where a key would stand, a word that is the same in every language.
struct Word {
  TextKey key;
  std::string_view plain;
  consteval Word(const char* key_or_plain)
      : key(std::string_view(key_or_plain).find('_') == std::string_view::npos
                ? TextKey()
                : TextKey(key_or_plain)),
        plain(key_or_plain) {}
};

/// The eleven number kinds of the page: what the box says, and what is added to the name until the
/// user types something else.
struct NumberKindRow {
  Word caption[3];  // joined with blanks
  TextKey suffix;
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

}  // namespace

void OutlookPage::design() {
  apply_design(*this, kDesign, &shell_.frmImpOL);
  constexpr int kRowHeight = 390;
  for (const auto& box : chkImport) {
    const int kind = box->index();
    const int top = 300 + (kind - 1) * kRowHeight;
    const int tab = 105 + 4 * kind;
    const auto place_in_row = [&](Control& control, int left, int width, int column) {
      control.set_parent(&shell_.frmImpOL);
      control.set_place({left, top, width, 345});
      control.set_tab_index(tab + column);
    };
    const bool two = has_two_addresses(static_cast<std::size_t>(kind));
    place_in_row(*box, 0, 2400, 0);
    place_in_row(txtImport(kind), 2460, 1440, 1);
    place_in_row(chkAdr(kind), 4020, two ? 780 : 1560, 2);
    if (two) place_in_row(chkAdr(kind + 10), 4830, 780, 3);
  }
  lstImport.set_columns({{"", 2000}, {"", 1750}, {"", 3000}});
}

void OutlookPage::load_captions() {
  quenda::load_captions(*this, kDesign, app_);
  name_number_kinds();
  const MainTexts& texts = shell_.texts;
  lstImport.set_column_heading(0, texts["String_Name"]);
  lstImport.set_column_heading(1, texts["String_Number"]);
  lstImport.set_column_heading(2, texts["String_Address"]);
}

void OutlookPage::name_number_kinds() {
  const std::string& address = shell_.texts["String_Address"];
  for (const auto& box : chkImport) {
    const NumberKindRow& row = kNumberKindRows[box->index() - 1];
    std::string caption;
    for (const Word& word : row.caption) {
      if (word.plain.empty()) continue;
      if (!caption.empty()) caption += ' ';
      caption += word.key.empty() ? std::string(word.plain) : app_.text(word.key);
    }
    box->set_caption(caption);
    const int kind = box->index();
    txtImport(kind).set_text(app_.text(row.suffix));
    txtImport(kind).set_spoken_name(concat(caption, ": ", labImport(1).caption()));
    const bool two = has_two_addresses(static_cast<std::size_t>(kind));
    chkAdr(kind).set_caption(two ? "1" : address);
    chkAdr(kind).set_spoken_name(concat(caption, ": ", address, two ? " 1" : ""));
    if (!two) continue;
    chkAdr(kind + 10).set_caption("2");
    chkAdr(kind + 10).set_spoken_name(concat(caption, ": ", address, " 2"));
  }
}

}  // namespace quenda
