#include "sources/vcard.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "sources/character_conversion.h"
#include "sources/contact_sheet.h"
#include "sources/unicode_text.h"
#include "sources/vcard_line.h"
#include "text/text.h"

namespace quenda {
namespace {

/// Numbers and addresses of one card that are kept: no card of a person comes near.
constexpr std::size_t kMostItems = 1000;

/// A label as an address book of a telephone writes its own ones: "_$!<Mobile>!$_".
std::string_view bare_label(std::string_view label) {
  constexpr std::string_view kOpen = "_$!<";
  constexpr std::string_view kClose = ">!$_";
  if (label.starts_with(kOpen)) label.remove_prefix(kOpen.size());
  if (label.ends_with(kClose)) label.remove_suffix(kClose.size());
  return label;
}

/// A number or an address, whose label may come later in the card.
struct Item {
  std::string group;
  std::string types;
  std::vector<std::string> parts;
  bool address = false;
};

class CardReader {
 public:
  ConvertedTable read(std::string_view text, const std::function<void()>& on_step) {
    constexpr std::size_t kStepBytes = 1024UL * 1024;
    VcardLines lines(text);
    std::size_t next_step = kStepBytes;
    while (lines.next()) {
      if (lines.position() >= next_step) {
        on_step();
        next_step = lines.position() + kStepBytes;
      }
      take_line(lines.line(), lines.number());
    }
    if (depth_ > 0) end_card();
    ConvertedTable table = table_.write();
    table.losses = std::move(losses_);
    return table;
  }

 private:
  void take_line(std::string_view line, std::size_t number) {
    const VcardProperty property = read_vcard_property(line);
    const bool card = equal_ignoring_case(trim(property.value), "VCARD");
    if (property.name == "BEGIN" && card) {
      // A card within a card is somebody's assistant.
      if (depth_++ == 0) begin_card(number);
    } else if (property.name == "END" && card) {
      if (depth_ > 0 && --depth_ == 0) end_card();
    } else if (depth_ == 1 && !property.base64) {
      take_property(property);
    }
  }

  void begin_card(std::size_t line) {
    table_.begin(line);
    items_.clear();
    labels_.clear();
    stand_in_.clear();
  }

  void end_card() {
    depth_ = 0;
    for (const Item& item : items_) {
      const std::string kind = concat(item.types, " ", label_of(item.group));
      if (item.address) {
        add_address(kind, item.parts);
      } else {
        table_.add_number(number_kind(kind), item.parts[0]);
      }
    }
    if (table_.empty()) table_.set_name(NameField::kDisplay, stand_in_);
    table_.end();
  }

  [[nodiscard]] std::string_view label_of(const std::string& group) const {
    if (group.empty()) return {};
    const auto found = std::find_if(labels_.begin(), labels_.end(),
                                    [&](const auto& label) { return label.first == group; });
    return found == labels_.end() ? std::string_view() : bare_label(found->second);
  }

  void add_address(std::string_view kind, std::vector<std::string> parts) {
    enum { kBox, kExtended, kStreet, kCity, kRegion, kCode, kCountry, kParts };
    parts.resize(kParts);
    const std::string& street = parts[kStreet].empty() ? parts[kBox] : parts[kStreet];
    table_.set_address(address_kind(kind), {street, parts[kCode], parts[kCity], parts[kCountry]});
  }

  /// The value as Windows-1252, still in the notation of the card.
  std::string value_of(const VcardProperty& property) {
    std::string bytes = property.quoted_printable ? decode_quoted_printable(property.value)
                                                  : std::string(property.value);
    const std::size_t record = table_.contacts() + 1;
    return property.latin ? bytes : text_to_1252(bytes, record, losses_);
  }

  void take_property(const VcardProperty& property) {
    const std::string& name = property.name;
    if (name == "FN") {
      table_.set_name(NameField::kDisplay, vcard_text(value_of(property)));
    } else if (name == "N") {
      std::vector<std::string> parts = vcard_parts(value_of(property));
      parts.resize(2);
      table_.set_name(NameField::kLast, parts[0]);
      table_.set_name(NameField::kFirst, parts[1]);
    } else if (name == "ORG") {
      table_.set_name(NameField::kCompany, vcard_parts(value_of(property))[0]);
    } else if (name == "X-ABLABEL") {
      if (labels_.size() < kMostItems) {
        labels_.emplace_back(property.group, vcard_text(value_of(property)));
      }
    } else if (name == "TEL" || name == "ADR") {
      take_item(property);
    } else if (name == "EMAIL" || name == "NICKNAME" || name == "NOTE" || name == "TITLE") {
      // A card of nothing else is still somebody's.
      if (stand_in_.empty()) stand_in_ = vcard_text(value_of(property));
    }
  }

  void take_item(const VcardProperty& property) {
    if (items_.size() >= kMostItems) return;
    Item item{.group = property.group, .types = {}, .parts = {}, .address = property.name == "ADR"};
    for (const std::string& type : property.types) item.types.append(type).append(" ");
    if (item.address) {
      item.parts = vcard_parts(value_of(property));
    } else {
      item.parts = {number_of(vcard_text(value_of(property)))};
    }
    items_.push_back(std::move(item));
  }

  /// Of "tel:+49-30-1234567;ext=12" the number.
  static std::string number_of(std::string_view text) {
    constexpr std::string_view kScheme = "tel:";
    text = trim(text);
    if (!equal_ignoring_case(text.substr(0, kScheme.size()), kScheme)) return std::string(text);
    text.remove_prefix(kScheme.size());
    return std::string(text.substr(0, text.find(';')));
  }

  ContactSheet table_;
  LostCharacters losses_;
  std::size_t depth_ = 0;
  std::vector<Item> items_;
  std::vector<std::pair<std::string, std::string>> labels_;
  std::string stand_in_;
};

}  // namespace

ConvertedTable read_vcards(std::string_view bytes, const FileFacts& facts,
                           const std::function<void()>& on_step) {
  std::string decoded;
  if (facts.is_utf16()) {
    decoded =
        utf16_to_utf8(bytes.substr(mark_length(bytes)), facts.encoding == FileEncoding::kUtf16Big);
    bytes = decoded;
  } else {
    bytes.remove_prefix(mark_length(bytes));
  }
  return CardReader().read(bytes, on_step);
}

}  // namespace quenda
