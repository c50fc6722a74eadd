#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/controls/control.h"

namespace quenda {

/// A field with one line of text.
class TextBox : public Control {
 public:
  TextBox(ControlHost& host, std::string_view name, int index = -1)
      : Control(host, ControlKind::kTextBox, name, index) {}

  [[nodiscard]] const std::string& text() const { return text_; }
  /// Raises Change when the text differs from the one before, and only then.
  void set_text(std::string_view text);

  /// First selected position (from 0) and number of selected characters.
  [[nodiscard]] int selection_start() const { return selection_start_; }
  [[nodiscard]] int selection_length() const { return selection_length_; }
  /// A length beyond the end selects to the end.
  void select(int start, int length);

  /// A locked field shows its text and takes no typing.
  [[nodiscard]] bool locked() const { return locked_; }
  void set_locked(bool locked) {
    locked_ = locked;
    refresh(Aspect::kEnabled);
  }

  std::function<void()> on_change;
  /// The Windows-1252 code of a typed key; the handler may change it, 0 swallows the key.
  std::function<void(std::int16_t& code)> on_key_press;

  /// The user changed the text.
  void take_user_text(std::string_view text);
  /// The user typed a key; the result is the code to insert, 0 for none. Keys that edit without
  /// being a character (copying, pasting, undoing) pass the handler by: it filters what is typed,
  /// and would lock them out.
  std::int16_t take_user_key(std::int16_t code);
  /// Types a text key by key at the end, through the key filter, as a user would.
  void type(std::string_view keys);

 private:
  std::string text_;
  int selection_start_ = 0;
  int selection_length_ = 0;
  bool locked_ = false;
};

}  // namespace quenda
