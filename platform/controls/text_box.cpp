#include "platform/controls/text_box.h"

#include <algorithm>

namespace quenda {
namespace {

/// The keys below the blank that handlers know: backspace, Enter and Escape.
bool edits_by_itself(std::int16_t code) {
  return code > 0 && code < ' ' && code != 8 && code != 13 && code != 27;
}

}  // namespace

void TextBox::set_text(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  refresh(Aspect::kText);
  if (on_change) on_change();
}

void TextBox::select(int start, int length) {
  const int size = static_cast<int>(text_.size());
  selection_start_ = std::clamp(start, 0, size);
  selection_length_ = std::clamp(length, 0, size - selection_start_);
  refresh(Aspect::kSelection);
}

void TextBox::take_user_text(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  if (on_change) on_change();
}

std::int16_t TextBox::take_user_key(std::int16_t code) {
  if (on_key_press && !edits_by_itself(code)) on_key_press(code);
  return code;
}

void TextBox::type(std::string_view keys) {
  for (const char key : keys) {
    const auto code = take_user_key(static_cast<unsigned char>(key));
    if (code >= ' ') set_text(text_ + static_cast<char>(code));
  }
}

}  // namespace quenda
