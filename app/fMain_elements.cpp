#include "app/fMain.h"
#include "settings/app.h"
#include "support/procedure.h"

// Locking and colouring of controls, and the check boxes that bind numbers to addresses.
namespace quenda {

void fMain::LockElements(bool lock) {
  procedure(app_.errors, "fMain.LockElements", {lock}, [&] {
    for (Control* control :
         {static_cast<Control*>(&cmdBack), static_cast<Control*>(&cmdHelp),
          static_cast<Control*>(&chkFlipName), static_cast<Control*>(&chkFlipAdress)}) {
      control->set_enabled(!lock);
    }
    for (const auto& box : chkImport) {
      const int kind = box->index();
      const bool ticked = !lock && box->ticked();
      box->set_enabled(!lock);
      chkAdr(kind).set_enabled(ticked);
      txtImport(kind).set_enabled(ticked);
      ObjectEnable(ticked, txtImport(kind));
      if (has_two_addresses(static_cast<std::size_t>(kind))) chkAdr(kind + 10).set_enabled(ticked);
    }
  }).or_go_on();
}

void fMain::ObjectEnable(bool enabled, Control& control) {
  procedure(app_.errors, "fMain.ObjectEnable", {enabled, control.name(), control.index()}, [&] {
    control.set_back_color(enabled ? BackColor::kWindow : BackColor::kButtonFace);
  }).or_go_on();
}

ControlArray<CheckBox>& fMain::address_boxes(std::size_t row) {
  ControlArray<CheckBox>* const rows[] = {&chk1, &chk2, &chk3};
  return *rows[row];
}

void fMain::bind_row(std::size_t row, int index) {
  ControlArray<CheckBox>& boxes = address_boxes(row);
  TextBox& bound = txtAdresBind(static_cast<int>(row));
  CheckBox& clicked = boxes(index);
  if (clicked.ticked()) {
    boxes(1 - index).set_ticked(false);
    bound.set_text(txtAdres(index).text());
    bindings_[row] = std::to_string(index);
  } else {
    bound.set_text("");
    bindings_[row].clear();
  }
}

void fMain::chk1_Click(int index) {
  procedure(app_.errors, "fMain.chk1_Click", {index}, [&] { bind_row(0, index); }).or_go_on();
}

void fMain::chk2_Click(int index) {
  procedure(app_.errors, "fMain.chk2_Click", {index}, [&] { bind_row(1, index); }).or_go_on();
}

void fMain::chk3_Click(int index) {
  procedure(app_.errors, "fMain.chk3_Click", {index}, [&] { bind_row(2, index); }).or_go_on();
}

}  // namespace quenda
