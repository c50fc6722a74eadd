#pragma once

#include <cstdint>

// The page machine of the wizard as rules: where a button leads, and what has to be done there.
namespace quenda {

enum class Source { kFile, kIspy, kOutlook };

/// Where the wizard stands. While the book is written, the page of entries stays in sight.
enum class Page : std::int16_t { kSource, kColumns, kNames, kAddresses, kEntries, kWrite };

/// The work that a step forward brings with it.
enum class PageWork { kNone, kColumns, kNames, kAddresses, kEntries, kIspyLog, kOutlook, kWrite };

struct PageStep {
  Page page;
  PageWork work;
  friend bool operator==(const PageStep&, const PageStep&) = default;
};

/// Where "forward" leads from a page. A call log and Outlook skip the pages about columns.
PageStep step_forward(Page page, Source source);

/// The page before, in a delimited file's order; the first one stays.
Page page_before(Page page);

}  // namespace quenda
