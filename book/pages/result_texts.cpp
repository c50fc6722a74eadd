#include "book/pages/result_texts.h"

#include <cstddef>

#include "settings/app.h"
#include "text/text.h"

namespace quenda {
namespace {

/// In the order of the fates.
constexpr std::array<TextKey, kFates> kWords = {
    "Import_Fate_Added",      "Import_Fate_Same",     "Import_Fate_Replaced",
    "Import_Fate_Kept",       "Import_Fate_Asked",    "Import_Fate_Withheld",
    "Import_Fate_Repeated",   "Import_Fate_Double",   "Import_Fate_NoNumber",
    "Import_Fate_NotNumeric", "Import_Fate_TooShort", "Import_Fate_ShortName",
    "Import_Fate_Split",      "Import_Fate_Removed",  "Import_Fate_NoName",
    "Import_Fate_Unread"};

constexpr std::array<TextKey, kFates> kReasons = {
    "Import_Reason_Added",      "Import_Reason_Same",     "Import_Reason_Replaced",
    "Import_Reason_Kept",       "Import_Reason_Asked",    "Import_Reason_Withheld",
    "Import_Reason_Repeated",   "Import_Reason_Double",   "Import_Reason_NoNumber",
    "Import_Reason_NotNumeric", "Import_Reason_TooShort", "Import_Reason_ShortName",
    "Import_Reason_Split",      "Import_Reason_Removed",  "Import_Reason_NoName",
    "Import_Reason_Unread"};

/// In the order of the doubts, of which the first is none.
constexpr std::array<TextKey, 4> kDoubts = {"Import_Doubt_NoAreaCode", "Import_Doubt_Exponent",
                                            "Import_Doubt_Letters", "Import_Doubt_Several"};

}  // namespace

void ResultTexts::load(App& app) {
  for (std::size_t i = 0; i < kFates; ++i) {
    words_.at(i) = app.text(kWords.at(i));
    reasons_.at(i) = app.text(kReasons.at(i));
  }
  for (std::size_t i = 0; i < kDoubts.size(); ++i) {
    doubts_.at(i + 1) = app.text(kDoubts.at(i));
  }
  replaced_ = app.text("Import_Result_Replaced");
  nameless_ = app.text("Import_Result_ReplacedNameless");
  kept_ = app.text("Import_Result_Kept");
  with_line_ = app.text("Import_Reason_WithLine");
  in_book_ = app.text("Import_Reason_InBook");
}

const std::string& ResultTexts::word(Fate fate) const {
  return words_.at(static_cast<std::size_t>(fate));
}

std::string ResultTexts::of_row(Fate fate, const std::string_view* in_book) const {
  if (in_book != nullptr && fate == Fate::kReplaced) {
    return in_book->empty() ? nameless_ : replace_all(replaced_, "%1", *in_book);
  }
  if (in_book != nullptr && fate == Fate::kKept) return replace_all(kept_, "%1", *in_book);
  return word(fate);
}

std::string ResultTexts::reason(const ReportRow& row) const {
  std::string reason = reasons_.at(static_cast<std::size_t>(row.fate));
  if (row.with && *row.with > 0) {
    reason += concat(" ", replace_all(with_line_, "%1", std::to_string(*row.with)));
  }
  if (row.existing) reason += concat(" ", replace_all(in_book_, "%1", *row.existing));
  return reason;
}

const std::string& ResultTexts::of_doubt(NumberDoubt doubt) const {
  return doubts_.at(static_cast<std::size_t>(doubt));
}

}  // namespace quenda
