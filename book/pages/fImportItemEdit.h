#pragma once

#include <string>

#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"

namespace quenda {

struct App;
/// Stands for "no row" where a row of the final list is meant.
inline constexpr int kNoRow = -1;

/// What the dialog hands back: an entry and the row that it belongs to, no row when it was left
/// without saving.
struct EditedItem {
  int row = kNoRow;
  bool changed = false;  // some field has text; nothing asks for it
  std::string name;
  std::string number;
  std::string address;
};

/// Edits one entry of the final list.
class fImportItemEdit : public Form {
 public:
  explicit fImportItemEdit(App& app);

  /// What the user has saved.
  EditedItem answer;

  /// Tells the dialog which row it edits, -1 for none. It opens over the main form.
  void SettVars(int row);
  void Form_Load();
  void Form_Unload();
  void Language();
  /// Button 0 saves the entry into `answer`; every button closes the dialog.
  void cmdEdit_Click(int index);
  void cmdHelp_Click();

  Label labName{*this, "labName"};
  TextBox txtName{*this, "txtName"};
  Label labNumber{*this, "labNumber"};
  TextBox txtNumber{*this, "txtNumber"};
  Label labAdress{*this, "labAdress"};
  TextBox txtAdress{*this, "txtAdress"};
  ControlArray<Button> cmdEdit{*this, "cmdEdit", {0, 1}};
  Button cmdHelp{*this, "cmdHelp"};
  Label labMissing{*this, "labMissing"};  // which field has to be filled first

 private:
  /// Tells the user that a field has to be filled; whether it has to.
  bool misses(TextBox& box, const Label& name);
  void design();
  void connect();

  App& app_;
  int row_ = kNoRow;
};

}  // namespace quenda
