#include "wizard/page_flow.h"

namespace quenda {

PageStep step_forward(int page, Source source) {
  const int next = page + 1;
  switch (next) {
    case 1:
      if (source == Source::kIspy) return {kEntryPage, PageWork::kIspyLog};
      if (source == Source::kOutlook) return {kEntryPage, PageWork::kOutlook};
      return {next, PageWork::kColumns};
    case 2:
      return {next, PageWork::kNames};
    case 3:
      return {next, PageWork::kAddresses};
    case kEntryPage:
      return {next, PageWork::kEntries};
    case kWritePage:
      return {next, PageWork::kWrite};
    default:
      return {next, PageWork::kNone};
  }
}

}  // namespace quenda
