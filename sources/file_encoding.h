#pragma once

#include <string_view>

namespace quenda {

/// How a text file seems to have been saved.
enum class FileEncoding { kWindows1252, kUtf8, kUtf16 };

/// Guesses the encoding of a file that is taken for Windows-1252 anyway, so that the user can be
/// warned. A byte order mark tells; UTF-8 is also what has characters beyond ASCII and is valid
/// throughout.
FileEncoding guess_encoding(std::string_view text);

}  // namespace quenda
