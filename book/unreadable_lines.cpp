#include "book/unreadable_lines.h"

namespace quenda {

void make_unreadable(std::string& lines) {
  constexpr int kFirstFlag = 3;
  int separators = 0;
  for (char& character : lines) {
    if (character == '\n') {
      separators = 0;
    } else if (separators == kFirstFlag) {
      character = '?';
      ++separators;
    } else if (character == ';') {
      if (separators > kFirstFlag) character = '?';
      ++separators;
    }
  }
}

}  // namespace quenda
