#pragma once

#include <string>

#include "platform/controls/text_box.h"
#include "text/entry_text.h"

namespace quenda {

/// A separator that is pasted would split the entry's line; the key filter sees typed ones only.
inline void keep_separators_out(TextBox& box) {
  if (box.text().find(';') != std::string::npos) box.set_text(entry_text(box.text()));
}

}  // namespace quenda
