#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Which columns of a file hold what: the saved choice matched with a new header, and the limits of
// a choice.
namespace quenda {

/// What a column can be chosen for, in the order of the four header lists.
enum HeaderKind : std::size_t { kNames, kNumbers, kAddress1, kAddress2, kHeaderKinds };

/// Most columns that can be chosen of a kind.
inline constexpr std::array<int, kHeaderKinds> kMostColumns = {2, 3, 3, 3};
constexpr std::size_t most_columns(std::size_t kind) {
  return static_cast<std::size_t>(kMostColumns.at(kind));
}

inline constexpr std::size_t kSelectionSlots = 3;

/// Header texts chosen in the last import: three slots per kind, unused ones empty.
using SelectionTable = std::array<std::array<std::string, kSelectionSlots>, kHeaderKinds>;

/// Positions to select in each list, from the top, and the kinds with a saved column that the
/// header does not have.
struct SelectionMatch {
  std::array<std::vector<int>, kHeaderKinds> positions;
  std::array<bool, kHeaderKinds> unmatched{};
};

/// Looks for the saved texts in a header. A text is used up by the first column that carries it,
/// also when it was saved twice: of two columns of one name only the first is selected. Settings
/// lose blanks and a pair of quotes around a text: what no column carries as it is, is looked for
/// among the header's texts as `stored` gives them back.
SelectionMatch match_selection(const std::vector<std::string>& header,
                               const std::vector<std::string>& stored, SelectionTable saved);

/// Texts that name the areas to check.
struct AreaNames {
  std::string_view name;
  std::string_view number;
  std::string_view address;
};

/// The areas that the user has to check, one line each. A missing address 2 is not named when
/// address 1 is: its line would only repeat that the addresses do not fit.
std::vector<std::string> areas_to_check(const std::array<bool, kHeaderKinds>& unmatched,
                                        const AreaNames& names);

/// Whether the wizard can go on: one or two name columns and one to three number columns.
bool columns_sufficient(int names, int numbers);

}  // namespace quenda
