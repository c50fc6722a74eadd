#include "book/book_file.h"

#include <algorithm>

namespace quenda {

BookChange compose_book(std::string_view old_text, const std::vector<BookEntry>& entries,
                        const std::function<void(std::size_t, std::size_t)>& on_step) {
  BookChange change;
  std::string line;
  std::size_t done = 0;
  for (const BookEntry& entry : entries) {
    on_step(++done, entries.size());
    if (entry.Number.empty()) continue;
    if (!change.tail.empty()) {
      append_book_line(change.tail, entry);
      continue;
    }
    line.clear();
    append_book_line(line, entry);
    const std::string_view old_rest = old_text.substr(change.keep);
    if (old_rest.starts_with(line)) {
      change.keep += line.size();
      continue;
    }
    const auto differs =
        std::mismatch(line.begin(), line.end(), old_rest.begin(), old_rest.end()).first;
    change.keep += static_cast<std::uint64_t>(differs - line.begin());
    change.tail.assign(differs, line.end());
  }
  return change;
}

}  // namespace quenda
