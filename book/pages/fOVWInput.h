#pragma once

#include <optional>
#include <string>

#include "platform/controls/form.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"

namespace quenda {

struct App;

/// The own codes as they are dialled, "0049" and "030".
struct OwnCodes {
  std::string country;
  std::string area;
  friend bool operator==(const OwnCodes&, const OwnCodes&) = default;
};

/// Asks for the own country and area code, without which numbers cannot be completed.
class fOVWInput : public Form {
 public:
  explicit fOVWInput(App& app);

  /// What the user has confirmed; nothing when the dialog was closed.
  std::optional<OwnCodes> answer;

  void Form_Load();
  void Language();
  void txtLVW_Change();
  void txtOVW_Change();
  void cmdOK_Click();
  void cmdHelp_Click();

  Label labOwnArea{*this, "labOwnArea"};
  Label labRequired{*this, "labRequired"};
  Label labWithoutAreaCode{*this, "labWithoutAreaCode"};
  Label labLVW{*this, "labLVW"};
  TextBox txtLVW{*this, "txtLVW"};
  Label labFormatLVW{*this, "labFormatLVW"};
  Label labOVW{*this, "labOVW"};
  TextBox txtOVW{*this, "txtOVW"};
  Label labFormatOVW{*this, "labFormatOVW"};
  Button cmdHelp{*this, "cmdHelp"};
  Button cmdOK{*this, "cmdOK"};

 private:
  void design();
  void connect();
  void enable_ok();

  App& app_;
};

}  // namespace quenda
