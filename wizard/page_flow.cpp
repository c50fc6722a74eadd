#include "wizard/page_flow.h"

namespace quenda {

PageStep step_forward(Page page, Source source) {
  switch (page) {
    case Page::kSource:
      if (source == Source::kIspy) return {Page::kEntries, PageWork::kIspyLog};
      if (source == Source::kOutlook) return {Page::kEntries, PageWork::kOutlook};
      return {Page::kColumns, PageWork::kColumns};
    case Page::kColumns:
      return {Page::kNames, PageWork::kNames};
    case Page::kNames:
      return {Page::kAddresses, PageWork::kAddresses};
    case Page::kAddresses:
      return {Page::kEntries, PageWork::kEntries};
    case Page::kEntries:
      return {Page::kWrite, PageWork::kWrite};
    case Page::kWrite:
      break;
  }
  return {page, PageWork::kNone};
}

Page page_before(Page page) {
  return page == Page::kSource ? page : static_cast<Page>(static_cast<int>(page) - 1);
}

}  // namespace quenda
