#pragma once

#include <optional>
#include <string_view>

#include "book/merge.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/parts_label.h"
#include "platform/controls/simple_controls.h"

namespace quenda {

struct App;

/// Asks what happens to a number that the book has under another name or address.
class fImportMsg : public Form {
 public:
  explicit fImportMsg(App& app);

  /// What the user has decided; nothing while the question stands.
  std::optional<DoubleAnswer> answer;

  /// The number, and the existing and the new entry in words.
  void fill(std::string_view number, std::string_view existing, std::string_view fresh);
  /// Shows the two entries part by part, with what differs marked, and which question this is.
  void compare(const DoubleQuestion& question);
  void Language();
  /// Says in a sentence what both buttons mean with the chosen option.
  void optAsk_Click();
  /// Button 0 keeps the existing entry, button 1 takes the new one.
  void cmdMsg_Click(int index);
  void cmdHelp_Click();
  /// The close box is no answer and is refused.
  void Form_QueryUnload(bool& cancel, CloseReason reason);

  Label labMsgNumber{*this, "labMsgNumber"};
  Label labCount{*this, "labCount"};
  Label labIn{*this, "labIn"};
  PartsLabel labMsgIn{*this, "labMsgIn"};
  Label labNew{*this, "labNew"};
  PartsLabel labMsgNew{*this, "labMsgNew"};
  Label labName{*this, "labName"};
  Label labAdress{*this, "labAdress"};
  Label labAnswer{*this, "labAnswer"};
  ControlArray<OptionButton> optAsk{*this, "optAsk", {0, 1}};
  ControlArray<Button> cmdMsg{*this, "cmdMsg", {0, 1}};
  Button cmdHelp{*this, "cmdHelp"};

 private:
  void design();
  void connect();

  App& app_;
};

}  // namespace quenda
