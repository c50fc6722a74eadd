#pragma once

#include <string>

namespace quenda {

/// Makes lines of the book unreadable without changing their lengths: the first flag gets a "?",
/// and no ";" follows it. The first byte that a line changes is the flag's, which alone makes it
/// unreadable, so that a line is never half an entry while the text is written over the old one.
void make_unreadable(std::string& lines);

}  // namespace quenda
