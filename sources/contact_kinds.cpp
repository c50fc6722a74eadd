#include "sources/contact_kinds.h"

#include <algorithm>
#include <array>
#include <string>

#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::array<std::string_view, 15> kMobileWords = {
    "mobil", "mobiel",  "cell",   "handy",   "iphone",     "smartphone", "android", "natel",
    "gsm",   "celular", "portab", "komorka", u8"móvil"_de, "movil",      "xmobile"};
constexpr std::array<std::string_view, 15> kWorkWords = {
    "work",    "business", "office",  "gesch",  "arbeit",  "dienst", u8"büro"_de, "buero",
    "travail", "bureau",   "trabajo", "lavoro", "ufficio", "werk",   "firma"};
constexpr std::array<std::string_view, 9> kHomeWords = {
    "home", "privat", "zuhause", "zu hause", "domicile", "casa", "thuis", "maison", "dom"};

template <std::size_t N>
bool names_any(std::string_view label, const std::array<std::string_view, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [&](std::string_view word) { return label.find(word) != label.npos; });
}

}  // namespace

NumberKind number_kind(std::string_view label) {
  const std::string lower = to_lower(label);
  const bool work = names_any(lower, kWorkWords);
  if (lower.find("fax") != std::string::npos) {
    return work ? NumberKind::kWorkFax : NumberKind::kHomeFax;
  }
  if (lower.find("pager") != std::string::npos) return NumberKind::kOther;
  if (names_any(lower, kMobileWords)) return NumberKind::kMobile;
  if (work) return NumberKind::kWork;
  return names_any(lower, kHomeWords) ? NumberKind::kHome : NumberKind::kOther;
}

AddressKind address_kind(std::string_view label) {
  return names_any(to_lower(label), kWorkWords) ? AddressKind::kWork : AddressKind::kHome;
}

}  // namespace quenda
