#include "tools/outlook/outlook_script.h"

#include <algorithm>
#include <utility>

#include "text/text.h"

namespace quenda {
namespace {

std::wstring units_of(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring units(text.size(), L'\0');
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, units.data(), size);
  units.resize(static_cast<std::size_t>(length));
  return units;
}

/// The parts before and behind the first "=".
std::pair<std::string_view, std::string_view> key_and_value(std::string_view text) {
  const std::size_t end = std::min(text.find('='), text.size());
  return {text.substr(0, end), text.substr(std::min(end + 1, text.size()))};
}

ScriptedItem contact_of(std::string_view text) {
  ScriptedItem item;
  for (const std::string_view property : split(text, "|")) {
    const auto [name, value] = key_and_value(property);
    item.properties[units_of(name)] = units_of(replace_all(value, "\\n", "\r\n"));
  }
  return item;
}

ScriptedItem made_up_contact(std::size_t number) {
  const std::wstring digits = std::to_wstring(1'000'000 + number);
  return {true,
          {{L"FirstName", L"Eva"},
           {L"LastName", L"Muster" + digits},
           {L"HomeTelephoneNumber", L"+49 30 " + digits},
           {L"HomeAddressPostalCode", L"12345"},
           {L"HomeAddressCity", L"Berlin"},
           {L"HomeAddressStreet", L"Weg " + digits}}};
}

}  // namespace

OutlookScript read_outlook_script(std::string_view text) {
  OutlookScript script;
  for (const std::string_view line : split(text, "\n")) {
    const auto [key, value_of_key] = key_and_value(line);
    const std::string value(value_of_key);
    const auto number = [&] { return std::stoul(value); };
    if (key == "version") script.version = units_of(value);
    if (key == "types" && value == "class") script.types = TypeNews::kClass;
    if (key == "types" && value == "nothing") script.types = TypeNews::kNothing;
    if (key == "refuses") script.refuses = value == "yes";
    if (key == "leaves") script.leaves = number();
    if (key == "busy_from") script.busy_from = number();
    if (key == "busy_for") script.busy_for = number();
    if (key == "starts_after") script.starts_after = number();
    if (key == "hangs_at") script.hangs_at = number();
    if (key == "dies_at") script.dies_at = number();
    if (key == "missing") script.missing = units_of(value);
    if (key == "report") script.report = value;
    if (key == "contact") script.items.push_back(contact_of(value));
    if (key == "list") script.items.push_back({false, {}});
    for (std::size_t i = 0; key == "contacts" && i < number(); ++i) {
      script.items.push_back(made_up_contact(i));
    }
  }
  return script;
}

}  // namespace quenda
