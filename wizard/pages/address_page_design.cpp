#include "settings/app.h"
#include "text/text.h"
#include "wizard/pages/address_page.h"
#include "wizard/shell/design.h"

// Where the controls of the addresses' page lie and what they are called.
namespace quenda {
namespace {

constexpr int kPageWidth = 10440;

constexpr DesignRow<AddressPage> kDesign[] = {
    {.control = control_at<&AddressPage::labFlipAdress>,
     .place = {0, 60, 2340, 255},
     .tab = 50,
     .caption = "Import_Label_SortOrder"},
    {.control = control_at<&AddressPage::cmbFlipAdress>,
     .place = {2520, 15, 7920, 345},
     .tab = 51,
     .across = Anchor::kBoth},
    {.control = control_at<&AddressPage::labAdres, 0>,
     .place = {0, 600, 2340, 255},
     .tab = 52,
     .caption = "Import_Label_AddressInfo1"},
    {.control = control_at<&AddressPage::txtAdres, 0>,
     .place = {2520, 555, 7920, 345},
     .tab = 53,
     .across = Anchor::kBoth},
    {.control = control_at<&AddressPage::labAdres, 1>,
     .place = {0, 1050, 2340, 255},
     .tab = 54,
     .caption = "Import_Label_AddressInfo2"},
    {.control = control_at<&AddressPage::txtAdres, 1>,
     .place = {2520, 1005, 7920, 345},
     .tab = 55,
     .across = Anchor::kBoth},
    {.control = control_at<&AddressPage::labAdresBind>,
     .place = {0, 1650, kPageWidth, 255},
     .caption = "Import_Label_SelectedAddressAlloc"},
    {.control = control_at<&AddressPage::frmBind, 0>,
     .place = {0, 1980, kPageWidth, 870},
     .across = Anchor::kBoth},
    {.control = control_at<&AddressPage::chk1, 0>,
     .place = {180, 375, 1050, 300},
     .tab = 56,
     .frame = control_at<&AddressPage::frmBind, 0>},
    {.control = control_at<&AddressPage::chk1, 1>,
     .place = {1320, 375, 1050, 300},
     .tab = 57,
     .frame = control_at<&AddressPage::frmBind, 0>},
    {.control = control_at<&AddressPage::txtAdresBind, 0>,
     .place = {2520, 345, 7740, 345},
     .tab = 58,
     .frame = control_at<&AddressPage::frmBind, 0>,
     .across = Anchor::kBoth},
    {.control = control_at<&AddressPage::frmBind, 1>,
     .place = {0, 2970, kPageWidth, 870},
     .across = Anchor::kBoth},
    {.control = control_at<&AddressPage::chk2, 0>,
     .place = {180, 375, 1050, 300},
     .tab = 59,
     .frame = control_at<&AddressPage::frmBind, 1>},
    {.control = control_at<&AddressPage::chk2, 1>,
     .place = {1320, 375, 1050, 300},
     .tab = 60,
     .frame = control_at<&AddressPage::frmBind, 1>},
    {.control = control_at<&AddressPage::txtAdresBind, 1>,
     .place = {2520, 345, 7740, 345},
     .tab = 61,
     .frame = control_at<&AddressPage::frmBind, 1>,
     .across = Anchor::kBoth},
    {.control = control_at<&AddressPage::frmBind, 2>,
     .place = {0, 3960, kPageWidth, 870},
     .across = Anchor::kBoth},
    {.control = control_at<&AddressPage::chk3, 0>,
     .place = {180, 375, 1050, 300},
     .tab = 62,
     .frame = control_at<&AddressPage::frmBind, 2>},
    {.control = control_at<&AddressPage::chk3, 1>,
     .place = {1320, 375, 1050, 300},
     .tab = 63,
     .frame = control_at<&AddressPage::frmBind, 2>},
    {.control = control_at<&AddressPage::txtAdresBind, 2>,
     .place = {2520, 345, 7740, 345},
     .tab = 64,
     .frame = control_at<&AddressPage::frmBind, 2>,
     .across = Anchor::kBoth},
};

}  // namespace

void AddressPage::design() {
  apply_design(*this, kDesign, &shell_.frmImp(3));
  for (const auto* previews : {&txtAdres, &txtAdresBind}) {
    for (const auto& preview : *previews) {
      preview->set_locked(true);
      preview->set_back_color(BackColor::kButtonFace);
    }
  }
}

void AddressPage::load_captions() {
  quenda::load_captions(*this, kDesign, app_);
  const MainTexts& texts = shell_.texts;
  for (std::size_t row = 0; row < kNumberRows; ++row) {
    const std::string number = concat(texts["String_Number"], " ", std::to_string(row + 1));
    txtAdresBind(static_cast<int>(row))
        .set_spoken_name(concat(number, ": ", texts["String_Address"]));
    for (const auto& box : boxes(row)) {
      const std::string address = std::to_string(box->index() + 1);
      box->set_caption(address);
      // Read aloud, "1" alone would say nothing.
      box->set_spoken_name(concat(app_.text("Import_Label_AddressSelect"), ": ", number, ", ",
                                  texts["String_Address"], " ", address));
    }
  }
}

}  // namespace quenda
