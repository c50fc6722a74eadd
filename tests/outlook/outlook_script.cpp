#include "tests/outlook/outlook_script.h"

#include <utility>

namespace quenda {
namespace {

std::wstring from_utf8(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring units(text.size(), L'\0');
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, units.data(), size);
  units.resize(static_cast<std::size_t>(length));
  return units;
}

/// Cuts the part before the separator off.
std::string_view cut(std::string_view& rest, std::string_view separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + separator.size());
  return part;
}

std::wstring property_text(std::string_view text) {
  std::string unfolded;
  while (!text.empty()) {
    const bool last = text.find("\\n") == std::string_view::npos;
    unfolded += cut(text, "\\n");
    if (!last) unfolded += "\r\n";
  }
  return from_utf8(unfolded);
}

ScriptedItem contact_of(std::string_view text) {
  ScriptedItem item;
  while (!text.empty()) {
    std::string_view property = cut(text, "|");
    const std::wstring name = from_utf8(cut(property, "="));
    item.properties[name] = property_text(property);
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
  while (!text.empty()) {
    std::string_view line = cut(text, "\n");
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const std::string key(cut(line, "="));
    const std::string value(line);
    const auto number = [&] { return std::stoul(value); };
    if (key == "version") script.version = from_utf8(value);
    if (key == "types" && value == "class") script.types = TypeNews::kClass;
    if (key == "types" && value == "nothing") script.types = TypeNews::kNothing;
    if (key == "refuses") script.refuses = value == "yes";
    if (key == "leaves") script.leaves = number();
    if (key == "busy_from") script.busy_from = number();
    if (key == "busy_for") script.busy_for = number();
    if (key == "dies_at") script.dies_at = number();
    if (key == "missing") script.missing = from_utf8(value);
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
