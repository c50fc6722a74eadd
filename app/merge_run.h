#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "book/book_list.h"
#include "book/merge_account.h"

namespace quenda {

/// One merge of the final list into the book, or a look at what it would do.
struct MergeRun {
  enum class End {
    kFailed,            // the user has been told why
    kNothingNew,        // the book stays as it is
    kToBeWritten,       // merged, and not written yet
    kChangedMeanwhile,  // another program was quicker; nothing is written
    kWritten,
  };

  End end = End::kFailed;
  MergeAccount::Questions questions = MergeAccount::Questions::kAnswered;
  bool has_book = false;  // or it is made now
  std::string book;       // its text as it was read
  std::size_t lines = 0;  // of the book; 0 where nobody has counted them
  std::string_view line;  // the line that is being read, for the report of a fault
  std::optional<BookList> list;
  std::optional<MergeAccount> account;  // where one is wanted
};

}  // namespace quenda
