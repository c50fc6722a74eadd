#pragma once

#include <cstddef>
#include <vector>

namespace quenda {

/// How many characters a conversion could not keep, and in which of the first records.
struct LostCharacters {
  static constexpr std::size_t kMostRecords = 10;

  std::size_t changed = 0;  // nearest letters stand in
  std::size_t lost = 0;     // gone, or "?"
  std::vector<std::size_t> changed_in;
  std::vector<std::size_t> lost_in;

  void count_changed(std::size_t record) { count(changed, changed_in, record); }
  void count_lost(std::size_t record) { count(lost, lost_in, record); }

 private:
  static void count(std::size_t& characters, std::vector<std::size_t>& records,
                    std::size_t record) {
    ++characters;
    const bool known = !records.empty() && records.back() == record;
    if (!known && records.size() < kMostRecords) records.push_back(record);
  }
};

}  // namespace quenda
