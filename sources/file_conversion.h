#pragma once

#include <functional>
#include <string_view>

#include "sources/file_facts.h"
#include "sources/table_conversion.h"

namespace quenda {

/// The delimiter of a file that is going to be adapted: the one that its "sep=" line names, else
/// the one that its header has most of, else the one that the file has most of; 0 for no clear one.
/// That of vCards is settled.
char conversion_delimiter(std::string_view bytes, const FileFacts& facts);

/// Makes of a file what the reader of delimited text reads, whatever it is: a table of any
/// encoding, one with its labels in columns, or vCards. The result has its own delimiter.
ConvertedTable convert_file(
    std::string_view bytes, const FileFacts& facts, char delimiter,
    const std::function<void()>& on_step = [] {});

}  // namespace quenda
