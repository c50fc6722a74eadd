#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "sources/file_facts.h"
#include "sources/lost_characters.h"
#include "sources/source_lines.h"

namespace quenda {

/// A file made ready for the reader of delimited text: Windows-1252, each record ended by CR LF,
/// without quotes, "|" where a field has the delimiter in it.
struct ConvertedTable {
  std::string text;
  char delimiter = '\0';
  bool made = false;        // a contact table, whose records leave out what is empty at their end
  std::size_t records = 0;  // as far as they have been counted
  SourceLines lines;
  LostCharacters losses;
};

/// Converts a table of any encoding and any line ends. `delimiter` is the one that its fields are
/// separated by. `on_step` is called every megabyte.
ConvertedTable convert_table(
    std::string_view bytes, const FileFacts& facts, char delimiter,
    const std::function<void()>& on_step = [] {});

}  // namespace quenda
