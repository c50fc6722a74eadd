#pragma once

#include <string>
#include <string_view>

namespace quenda {

/// The text with every control character but the line feed as "\x1b": files, books and language
/// files could move the cursor of a terminal otherwise, or change what it shows.
std::string printable(std::string_view text);

/// The text with its line breaks shown in the same way, so that it stays one line.
std::string on_one_line(std::string_view text);

}  // namespace quenda
