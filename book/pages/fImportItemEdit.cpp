#include "book/pages/fImportItemEdit.h"

#include "app/fMain.h"
#include "settings/app.h"
#include "support/procedure.h"
#include "text/characters.h"
#include "text/text.h"
#include "wizard/shell/design.h"

namespace quenda {
namespace {

constexpr DesignEntry kDesign[] = {
    {"labName", -1, "", -1, {180, 180, 1400, 255}, 0, "String_Name"},
    {"txtName", -1, "", -1, {1620, 135, 4380, 345}, 1, ""},
    {"labNumber", -1, "", -1, {180, 660, 1400, 255}, 2, "String_Number"},
    {"txtNumber", -1, "", -1, {1620, 615, 4380, 345}, 3, ""},
    {"labAdress", -1, "", -1, {180, 1140, 1400, 255}, 4, "String_Address"},
    {"txtAdress", -1, "", -1, {1620, 1095, 4380, 345}, 5, ""},
    {"cmdEdit", 0, "", -1, {3060, 1680, 1400, 390}, 6, "Button_Save"},
    {"cmdEdit", 1, "", -1, {4600, 1680, 1400, 390}, 7, "Button_Cancel"},
};

}  // namespace

fImportItemEdit::fImportItemEdit(App& app, fMain& main)
    : Form("fImportItemEdit"), app_(app), main_(main) {
  design();
  connect();
  Form_Load();
}

void fImportItemEdit::design() {
  apply_design(*this, kDesign);
  set_place({0, 0, 6180, 2250});
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

void fImportItemEdit::cmdEdit_Click(int index) {
  procedure(app_.errors, "fImportItemEdit.cmdEdit_Click", {index}, [&] {
    if (index == 0) {
      auto& edited = main_.edited;
      edited.row = row_;
      edited.changed =
          !(txtName.text().empty() && txtNumber.text().empty() && txtAdress.text().empty());
      edited.name = txtName.text();
      edited.address = txtAdress.text();
      edited.number = txtNumber.text();
      main_.ChangeItem();
    }
    unload();
  }).or_go_on();
}

}  // namespace quenda
