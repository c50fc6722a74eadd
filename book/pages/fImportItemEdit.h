#pragma once

#include <cstdint>

#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"

namespace quenda {

struct App;
class fMain;

/// Edits one entry of the final list.
class fImportItemEdit : public Form {
 public:
  fImportItemEdit(App& app, fMain& main);

  /// Tells the dialog which row it edits, -1 for none. It opens over the main form.
  void SettVars(int row);
  void Form_Load();
  void Form_Unload();
  void Language();
  /// Button 0 hands the entry back to the main form; every button closes the dialog.
  void cmdEdit_Click(int index);

  Label labName{*this, "labName"};
  TextBox txtName{*this, "txtName"};
  Label labNumber{*this, "labNumber"};
  TextBox txtNumber{*this, "txtNumber"};
  Label labAdress{*this, "labAdress"};
  TextBox txtAdress{*this, "txtAdress"};
  ControlArray<Button> cmdEdit{*this, "cmdEdit", {0, 1}};

 private:
  void design();
  void connect();

  App& app_;
  fMain& main_;
  int row_ = -1;
};

}  // namespace quenda
