#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quenda {

/// A delimited file of that many made-up contacts, about 100 bytes each, with header; the same on
/// every machine. Every other number is one that the book has, half of those under another name.
std::string contact_file(std::size_t contacts);

/// The same contacts in other shapes: "plain"; "wide" with 22 more columns; "quoted" with every
/// field in quotes; "numbers" with three numbers a contact; "log", a call log; "convert" in UTF-8
/// with LF; "dry-run" and "report" are plain.
std::string contacts_of_shape(std::string_view shape, std::size_t contacts);

/// A phone book of that many entries, about 98 bytes each.
std::string phone_book(std::size_t entries);

}  // namespace quenda
