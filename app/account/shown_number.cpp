#include "app/account/shown_number.h"

#include <algorithm>

#include "book/entry_list.h"
#include "text/text.h"

namespace quenda {
namespace {

void put_with_commas(std::string_view text, std::string& shown) {
  shown = text;
  std::replace(shown.begin(), shown.end(), '|', ',');
}

}  // namespace

SourceNumber ShownNumber::make(std::string_view raw, std::string_view number, std::string_view name,
                               std::string_view address) {
  put_with_commas(name, name_);
  // A ";" in the address cuts it off there, as a split of the entry's line does.
  put_with_commas(address.substr(0, address.find(';')), address_);
  SourceNumber made;
  made.raw = raw;
  made.number = number;
  made.name = trim(name_);
  made.address = trim(address_);
  return made;
}

bool has_separator(std::string_view text) { return text.find(';') != text.npos; }

std::optional<Fate> fate_before_merge(std::string_view number, bool numeric, std::string_view name,
                                      bool suppress_short_names) {
  if (!numeric) return Fate::kNotNumeric;
  if (has_separator(name)) return Fate::kSplit;
  if (!number_importable(number)) return Fate::kTooShort;
  if (suppress_short_names && name_too_short(name)) return Fate::kShortName;
  return std::nullopt;
}

}  // namespace quenda
