#pragma once

#include <string>
#include <string_view>

namespace quenda {

/// How the characters of an INI file are stored. Only a byte order mark tells a file from plain
/// Windows-1252.
enum class IniEncoding { kWindows1252, kUtf8, kUtf16, kUtf16Swapped };

IniEncoding ini_encoding(std::string_view content);

/// The content without byte order mark in a form whose lines can be edited byte by byte: UTF-16
/// becomes UTF-8 (unit by unit, so that nothing is lost on the way back), all else stays.
std::string editable_ini(std::string_view content, IniEncoding encoding);

/// The content of a file again.
std::string stored_ini(std::string_view editable, IniEncoding encoding);

/// A Windows-1252 text as it stands in the editable form, and back; characters that Windows-1252
/// lacks become "?".
std::string to_editable(std::string_view text, IniEncoding encoding);
std::string from_editable(std::string_view editable, IniEncoding encoding);

}  // namespace quenda
