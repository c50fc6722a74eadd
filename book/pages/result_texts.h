#pragma once

#include <array>
#include <string>
#include <string_view>

#include "book/fate.h"
#include "book/import_report.h"
#include "book/number_doubt.h"

namespace quenda {

struct App;

/// What users read about the fates of numbers, in their language.
class ResultTexts {
 public:
  void load(App& app);

  /// The fate in a word or two: "schon vorhanden".
  [[nodiscard]] const std::string& word(Fate fate) const;
  /// The same of a row of the final list; `in_book` is the name of the entry that it is about,
  /// where there is one.
  [[nodiscard]] std::string of_row(Fate fate, const std::string_view* in_book) const;
  /// Why a number has its fate, with what it gave way to.
  [[nodiscard]] std::string reason(const ReportRow& row) const;
  /// "(!) ohne Vorwahl"; empty for none.
  [[nodiscard]] const std::string& of_doubt(NumberDoubt doubt) const;

 private:
  std::array<std::string, kFates> words_;
  std::array<std::string, 5> doubts_;
  std::array<std::string, kFates> reasons_;
  std::string replaced_, nameless_, kept_, with_line_, in_book_;
};

}  // namespace quenda
