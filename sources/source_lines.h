#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quenda {

/// In which physical line of its file each record begins. Most records take one line, so only those
/// are kept at which the distance between record and line changes: 8 bytes for each.
class SourceLines {
 public:
  /// Says where a record begins; records come in rising order, lines count from 1.
  void begin_record(std::size_t record, std::size_t line) {
    if (line_of(steps_.size(), record) == line) return;
    steps_.push_back({static_cast<std::uint32_t>(record), static_cast<std::uint32_t>(line)});
  }

  /// The line of a record; without any step, record 0 is line 1.
  [[nodiscard]] std::size_t line_of(std::size_t record) const {
    const auto after =
        std::upper_bound(steps_.begin(), steps_.end(), record,
                         [](std::size_t wanted, const Step& step) { return wanted < step.record; });
    return line_of(static_cast<std::size_t>(after - steps_.begin()), record);
  }

  [[nodiscard]] std::size_t steps() const { return steps_.size(); }
  /// Forgets the steps behind the first ones.
  void cut_steps(std::size_t steps) { steps_.resize(std::min(steps, steps_.size())); }

 private:
  struct Step {
    std::uint32_t record;
    std::uint32_t line;
  };

  [[nodiscard]] std::size_t line_of(std::size_t steps, std::size_t record) const {
    if (steps == 0) return record + 1;
    return steps_[steps - 1].line + (record - steps_[steps - 1].record);
  }

  std::vector<Step> steps_;
};

/// The lines of records of a text, of which all after the first begin at these places.
[[nodiscard]] SourceLines lines_at(std::string_view text, const std::vector<std::size_t>& begins);

}  // namespace quenda
