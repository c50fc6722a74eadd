#include "book/pages/fImportItemEdit.h"

#include "settings/app.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/text.h"
#include "wizard/shell/design.h"
#include "wizard/shell/help.h"

namespace quenda {
namespace {

constexpr DesignRow<fImportItemEdit> kDesign[] = {
    {.control = control_at<&fImportItemEdit::labName>,
     .place = {180, 180, 1400, 255},
     .tab = 0,
     .caption = "String_Name"},
    {.control = control_at<&fImportItemEdit::txtName>, .place = {1620, 135, 4380, 345}, .tab = 1},
    {.control = control_at<&fImportItemEdit::labNumber>,
     .place = {180, 660, 1400, 255},
     .tab = 2,
     .caption = "String_Number"},
    {.control = control_at<&fImportItemEdit::txtNumber>, .place = {1620, 615, 4380, 345}, .tab = 3},
    {.control = control_at<&fImportItemEdit::labAdress>,
     .place = {180, 1140, 1400, 255},
     .tab = 4,
     .caption = "String_Address"},
    {.control = control_at<&fImportItemEdit::txtAdress>,
     .place = {1620, 1095, 4380, 345},
     .tab = 5},
    {.control = control_at<&fImportItemEdit::labMissing>, .place = {1620, 1500, 4380, 255}},
    {.control = control_at<&fImportItemEdit::cmdEdit, 0>,
     .place = {3060, 1860, 1400, 390},
     .tab = 6,
     .caption = "Button_Save"},
    {.control = control_at<&fImportItemEdit::cmdEdit, 1>,
     .place = {4600, 1860, 1400, 390},
     .tab = 7,
     .caption = "Button_Cancel"},
    {.control = control_at<&fImportItemEdit::cmdHelp>,
     .place = {180, 1860, 1400, 390},
     .tab = 8,
     .caption = "Button_Help"},
};

}  // namespace

fImportItemEdit::fImportItemEdit(App& app) : Form("fImportItemEdit"), app_(app) {
  design();
  connect();
  Form_Load();
}

void fImportItemEdit::design() {
  apply_design(*this, kDesign);
  set_place({0, 0, 6180, 2430});
  labMissing.set_announced();
  default_button = &cmdEdit(0);
  cancel_button = &cmdEdit(1);
}

void fImportItemEdit::connect() {
  for (const auto& button : cmdEdit) {
    button->on_click = [this, index = button->index()] { cmdEdit_Click(index); };
  }
  // No typed text may break the phone book's field separator; numbers take digits only.
  const auto without_semicolon = [](std::int16_t& code) {
    code = filter_key(code, KeyFilter::kNoSem);
  };
  txtName.on_key_press = without_semicolon;
  txtAdress.on_key_press = without_semicolon;
  txtNumber.on_key_press = [](std::int16_t& code) { code = filter_key(code, KeyFilter::kNum); };
  const auto size_of = [](const TextBox& box) { return static_cast<int>(box.text().size()); };
  txtName.on_got_focus = [this, size_of] { txtName.select(0, size_of(txtName)); };
  txtAdress.on_got_focus = [this, size_of] { txtAdress.select(0, size_of(txtAdress)); };
  // As long as the name, not the number, is selected here: a number longer than the name stays
  // partly unselected.
  txtNumber.on_got_focus = [this, size_of] { txtNumber.select(0, size_of(txtName)); };
  on_unload = [this] { Form_Unload(); };
  cmdHelp.on_click = [this] { cmdHelp_Click(); };
  on_help = cmdHelp.on_click;
  on_got_focus = [this] { txtName.set_focus(); };
}

void fImportItemEdit::Form_Load() {
  procedure(app_.errors, "fImportItemEdit.Form_Load", {}, [&] { Language(); }).or_go_on();
}

void fImportItemEdit::Form_Unload() {
  procedure(app_.errors, "fImportItemEdit.Form_Unload", {}, [&] { row_ = kNoRow; }).or_go_on();
}

void fImportItemEdit::Language() {
  procedure(app_.errors, "fImportItemEdit.Language", {}, [&] {
    set_caption(concat("Quenda - ", app_.text("Import_Label_Contacts")));
    load_captions(*this, kDesign, app_);
  }).or_go_on();
}

void fImportItemEdit::SettVars(int row) {
  procedure(app_.errors, "fImportItemEdit.SettVars", {row}, [&] { row_ = row; }).or_go_on();
}

bool fImportItemEdit::misses(TextBox& box, const Label& name) {
  if (!trim(box.text()).empty()) return false;
  labMissing.set_caption(concat(name.caption(), " ", app_.text("Import_Label_IsMissing")));
  box.set_focus();
  return true;
}

void fImportItemEdit::cmdEdit_Click(int index) {
  procedure(app_.errors, "fImportItemEdit.cmdEdit_Click", {index}, [&] {
    if (index == 0) {
      // The book has no use for an entry without them.
      if (misses(txtName, labName) || misses(txtNumber, labNumber)) return;
      answer = {.row = row_,
                .changed = !(txtName.text().empty() && txtNumber.text().empty() &&
                             txtAdress.text().empty()),
                .name = txtName.text(),
                .number = txtNumber.text(),
                .address = txtAdress.text()};
    }
    unload();
  }).or_go_on();
}

void fImportItemEdit::cmdHelp_Click() {
  procedure(app_.errors, "fImportItemEdit.cmdHelp_Click", {}, [&] { open_help(app_); }).or_go_on();
}

}  // namespace quenda
