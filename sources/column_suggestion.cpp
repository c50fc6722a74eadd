#include "sources/column_suggestion.h"

#include <algorithm>

#include "sources/export_layout.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kNumberRows = 3;
constexpr std::size_t kNameColumns = 2;

using Columns = std::vector<std::size_t>;

/// How many records have something in each column; the header does not count.
Columns filled_cells(const RecordTable& records, char delimiter, std::size_t columns) {
  Columns filled(columns);
  for (std::size_t i = 1; i < records.size(); ++i) {
    std::string_view rest = records[i];
    std::string_view field;
    for (std::size_t column = 0;
         column < columns && next_part(rest, std::string_view(&delimiter, 1), field); ++column) {
      if (field.find_first_not_of(" \"") != field.npos) ++filled[column];
    }
  }
  return filled;
}

std::string_view suffix_of(NumberKind kind) {
  switch (kind) {
    case NumberKind::kMobile:
      return "(mobil)";
    case NumberKind::kHome:
      return "(privat)";
    case NumberKind::kWork:
      return u8"(geschäftl.)"_de;
    default:
      return {};
  }
}

bool is_business(NumberKind kind) {
  return kind == NumberKind::kWork || kind == NumberKind::kWorkFax;
}

/// Makes the choice for one layout.
class Suggestion {
 public:
  Suggestion(const ExportLayout& layout, Columns filled)
      : layout_(layout), filled_(std::move(filled)) {
    suggestion_.name = layout.name;
    choose_names();
    choose_numbers();
    choose_addresses();
  }

  [[nodiscard]] ColumnSuggestion take() { return std::move(suggestion_); }

 private:
  [[nodiscard]] bool used(const std::optional<std::size_t>& column) const {
    return column && filled_[*column] > 0;
  }

  void choose_names() {
    Columns& names = suggestion_.names;
    const bool parted = used(layout_.last_name) || used(layout_.first_name);
    if (parted || !used(layout_.display_name)) {
      for (const auto& column : {layout_.last_name, layout_.first_name}) {
        if (column) names.push_back(*column);
      }
    }
    for (const auto& column : {layout_.display_name, layout_.company}) {
      if (names.empty() && column) names.push_back(*column);
    }
    suggestion_.flip_name = names.size() == kNameColumns && names[0] > names[1];
    std::sort(names.begin(), names.end());
  }

  void choose_numbers() {
    for (const ExportLayout::Number& number : layout_.numbers) {
      const bool chosen = filled_[number.column] > 0 && numbers_.size() < kNumberRows;
      if (chosen) numbers_.push_back(number);
    }
    // The page can be left with a number column only, so an export without numbers gets its first.
    if (numbers_.empty() && !layout_.numbers.empty()) numbers_.push_back(layout_.numbers[0]);
    std::sort(numbers_.begin(), numbers_.end(),
              [](const auto& a, const auto& b) { return a.column < b.column; });
    for (std::size_t row = 0; row < numbers_.size(); ++row) {
      suggestion_.numbers.push_back(numbers_[row].column);
      suggestion_.suffixes.at(row) = suffix_of(numbers_[row].kind);
    }
  }

  void choose_addresses() {
    std::vector<const ExportLayout::Address*> addresses;
    std::array<int, 2> position{};
    for (std::size_t kind = 0; kind < layout_.addresses.size(); ++kind) {
      const ExportLayout::Address& address = layout_.addresses.at(kind);
      const bool any = std::any_of(address.parts.begin(), address.parts.end(),
                                   [&](std::size_t column) { return filled_[column] > 0; });
      if (!any) continue;
      addresses.push_back(&address);
      position.at(kind) = static_cast<int>(addresses.size());
    }
    for (std::size_t i = 0; i < addresses.size(); ++i) {
      suggestion_.addresses.at(i) = addresses[i]->parts;
      std::sort(suggestion_.addresses.at(i).begin(), suggestion_.addresses.at(i).end());
    }
    if (addresses.empty()) return;
    suggestion_.address_order = order_of(*addresses.front());
    for (std::size_t row = 0; row < numbers_.size(); ++row) {
      const int own = position.at(is_business(numbers_[row].kind) ? 1 : 0);
      suggestion_.bindings.at(row) = addresses.size() == 1 ? 1 : own;
    }
  }

  /// Which of the wizard's orders puts street, code and city behind each other.
  static int order_of(const ExportLayout::Address& address) {
    const Columns& parts = address.parts;
    if (parts.size() == 2) return parts[0] < parts[1] ? 0 : 1;
    if (parts.size() < 3) return 0;
    // The parts that the orders of the list put first, second and third.
    constexpr std::array<std::array<std::size_t, 3>, 6> kOrders = {
        {{0, 1, 2}, {0, 2, 1}, {1, 2, 0}, {1, 0, 2}, {2, 0, 1}, {2, 1, 0}}};
    std::array<std::size_t, 3> ranks{};
    for (std::size_t i = 0; i < 3; ++i) {
      ranks.at(i) = static_cast<std::size_t>(std::count_if(
          parts.begin(), parts.end(), [&](std::size_t column) { return column < parts[i]; }));
    }
    const auto found = std::find(kOrders.begin(), kOrders.end(), ranks);
    return static_cast<int>(found - kOrders.begin());
  }

  const ExportLayout& layout_;
  Columns filled_;
  std::vector<ExportLayout::Number> numbers_;
  ColumnSuggestion suggestion_;
};

std::optional<std::size_t> find_named(const std::vector<std::string>& header,
                                      std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) {
    for (std::size_t i = 0; i < header.size(); ++i) {
      if (equal_ignoring_case(header[i], name)) return i;
    }
  }
  return std::nullopt;
}

}  // namespace

std::string_view known_export_name(const std::vector<std::string>& header) {
  const auto layout = find_export_layout(header);
  return layout ? layout->name : std::string_view();
}

std::optional<ColumnSuggestion> suggest_columns(const std::vector<std::string>& header,
                                                const RecordTable& records, char delimiter) {
  const auto layout = find_export_layout(header);
  if (!layout) return std::nullopt;
  return Suggestion(*layout, filled_cells(records, delimiter, header.size())).take();
}

NameStandIns name_stand_ins(const std::vector<std::string>& header) {
  if (const auto layout = find_export_layout(header)) {
    return {layout->display_name, layout->company};
  }
  const std::vector<std::string> readable = readable_headings(header);
  return {find_named(readable, {"Anzeigename", "Display Name", "Displayname", "Name", "File As"}),
          find_named(readable, {"Firma", "Company", "Organisation", "Organization"})};
}

std::vector<ColumnNumbers> count_numbers(const std::vector<std::string>& header,
                                         const RecordTable& records, char delimiter) {
  std::vector<ColumnNumbers> numbers;
  const auto layout = find_export_layout(header);
  if (!layout) return numbers;
  const Columns filled = filled_cells(records, delimiter, header.size());
  const std::vector<std::string> headings = readable_headings(header);
  for (const ExportLayout::Number& number : layout->numbers) {
    const std::size_t column = number.column;
    if (filled[column] > 0) numbers.push_back({column, headings[column], filled[column]});
  }
  return numbers;
}

std::vector<ColumnNumbers> unchosen_numbers(std::vector<ColumnNumbers> numbers,
                                            const std::vector<std::size_t>& chosen) {
  std::erase_if(numbers, [&](const ColumnNumbers& in) {
    return std::find(chosen.begin(), chosen.end(), in.column) != chosen.end();
  });
  return numbers;
}

}  // namespace quenda
