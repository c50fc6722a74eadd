#pragma once

#include <cstddef>
#include <string>

namespace quenda {

/// A delimited file of that many made-up contacts, about 100 bytes each, with header; the same on
/// every machine. Every other number is one that the book has, half of those under another name.
std::string contact_file(std::size_t contacts);

/// A phone book of that many entries, about 98 bytes each.
std::string phone_book(std::size_t entries);

}  // namespace quenda
