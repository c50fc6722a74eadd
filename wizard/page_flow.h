#pragma once

// The page machine of the wizard as rules: where a button leads, and what has to be done there.
namespace quenda {

enum class Source { kFile, kIspy, kOutlook };

inline constexpr int kFirstPage = 0;
inline constexpr int kEntryPage = 4;  // the entries, the last page that is shown
inline constexpr int kWritePage = 5;  // reached by the last "forward"; no page of its own

/// The work that a step forward brings with it.
enum class PageWork { kNone, kColumns, kNames, kAddresses, kEntries, kIspyLog, kOutlook, kWrite };

struct PageStep {
  int page;
  PageWork work;
  friend bool operator==(const PageStep&, const PageStep&) = default;
};

/// Where "forward" leads from a page. A call log and Outlook skip the pages about columns.
PageStep step_forward(int page, Source source);

}  // namespace quenda
