#include "wizard/header_columns.h"

#include <algorithm>

#include "text/text.h"

namespace quenda {

SelectionMatch match_selection(const std::vector<std::string>& header,
                               const std::vector<std::string>& stored, SelectionTable saved) {
  SelectionMatch match;
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    auto& slots = saved[kind];
    auto& positions = match.positions[kind];
    for (const auto* texts : {&header, &stored}) {
      for (std::size_t i = 0; i < texts->size(); ++i) {
        for (std::string& slot : slots) {
          if (slot.empty() || slot != (*texts)[i]) continue;
          slot.clear();
          positions.push_back(static_cast<int>(i));
        }
      }
    }
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    match.unmatched[kind] = std::any_of(slots.begin(), slots.end(),
                                        [](const std::string& slot) { return !slot.empty(); });
  }
  return match;
}

std::vector<std::string> areas_to_check(const std::array<bool, kHeaderKinds>& unmatched,
                                        const AreaNames& names) {
  const std::string address1 = concat(names.address, " 1");
  const std::array<std::string, kHeaderKinds> areas = {
      std::string(names.name), std::string(names.number), address1, concat(names.address, " 2")};
  std::vector<std::string> lines;
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    // For address 2 too the question is whether address 1 stands in the list.
    const std::string& looked_for = kind == kAddress2 ? address1 : areas[kind];
    const bool listed = std::find(lines.begin(), lines.end(), looked_for) != lines.end();
    if (unmatched[kind] && !listed) lines.push_back(areas[kind]);
  }
  return lines;
}

bool columns_sufficient(int names, int numbers) {
  return names >= 1 && names <= kMostColumns[kNames] && numbers >= 1 &&
         numbers <= kMostColumns[kNumbers];
}

}  // namespace quenda
