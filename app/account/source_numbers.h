#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "book/fate.h"
#include "sources/outlook_contacts.h"
#include "sources/record_table.h"
#include "sources/source_lines.h"
#include "wizard/composition.h"

// Walks over every number of a source in its order, those that give no entry included, and tells
// what the rules make of each before the merge. The rules are those of the import itself. The walk
// over a delimited file is in file_walk.h. All return the count of records.
namespace quenda {

/// One number of the source. The texts are as the final list shows them, and good only while one is
/// told of the number. Name, number and address are left out where the list shows them anyway.
struct SourceNumber {
  std::uint64_t line = 0;    // of the source file, from 1; 0 for Outlook
  std::size_t record = 0;    // from 1; 0 is the header of a file
  int row = 0;               // number column or kind, from 1; 0 for a record without any number
  std::uint32_t origin = 0;  // as rows of the final list carry it
  std::string_view raw;
  std::string_view number;
  std::string_view name;
  std::string_view address;
  /// Why the number gives no entry, or `kSplit`, which may give a broken one; nothing for a number
  /// that gives an entry, unless another line equals its own.
  std::optional<Fate> fate;
  /// Its place among the rows that were composed, repeats included; nothing for one without a row.
  std::optional<std::uint32_t> composed;
};
using OnSourceNumber = std::function<void(const SourceNumber&)>;

/// The lines of a call log.
std::size_t walk_call_log(const RecordTable& lines, const SourceLines& source_lines,
                          std::string_view delimiter, const OnSourceNumber& on_number);

/// Contacts of Outlook, with the ticked kinds of numbers.
std::size_t walk_contacts(const ContactTable& contacts, const OutlookChoice& choice,
                          const CleanNumber& clean, bool suppress_short_names,
                          const OnSourceNumber& on_number);

}  // namespace quenda
