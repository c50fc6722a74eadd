#include "book/fate.h"

#include <algorithm>

#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::array<FateWords, kFates> kWords = {{
    {"added", "neu", "wird in das Telefonbuch aufgenommen"},
    {"same", "vorhanden", "steht so schon im Telefonbuch"},
    {"replaced", "ersetzt", "ersetzt einen Eintrag mit derselben Nummer"},
    {"kept", "behalten", "der Eintrag des Telefonbuchs bleibt"},
    {"asked", u8"Rückfrage"_de, u8"die Nummer ist unter anderem Namen da: Rückfrage nötig"_de},
    {"withheld", u8"zurückgehalten"_de,
     u8"doppelte Nummern des Telefonbuchs wiegen die neuen Einträge auf: nichts geschrieben"_de},
    {"repeated", "wiederholt", "gleicht einer anderen Zeile"},
    {"double", "doppelt", "dieselbe Nummer kommt in diesem Import noch einmal vor"},
    {"no_number", "leer", "keine Rufnummer in der Spalte"},
    {"not_numeric", "unlesbar", u8"keine wählbare Rufnummer"_de},
    {"too_short", "kurz", "weniger als 8 Stellen"},
    {"short_name", "Kurzname", u8"der Name ist kürzer als 3 Zeichen"_de},
    {"split", "zerteilt", "ein Semikolon im Namen zerteilt den Eintrag"},
    {"removed", "entfernt", "vom Benutzer aus der Liste genommen"},
    {"no_name", "namenlos", "kein brauchbarer Name"},
    {"unread", "ungelesen", "das Einlesen endete vorher"},
}};

constexpr std::array kLost = {Fate::kNotNumeric, Fate::kSplit,    Fate::kTooShort, Fate::kShortName,
                              Fate::kKept,       Fate::kWithheld, Fate::kUnread,   Fate::kNoName};

/// "1204" as "1.204", as German readers want large numbers.
std::string grouped(std::size_t number) {
  std::string digits = std::to_string(number);
  for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, 1, '.');
  return digits;
}

}  // namespace

const FateWords& words_of(Fate fate) { return kWords.at(static_cast<std::size_t>(fate)); }

bool is_lost(Fate fate) { return std::find(kLost.begin(), kLost.end(), fate) != kLost.end(); }

std::size_t count_lost(const FateCounts& counts) {
  std::size_t lost = 0;
  for (const Fate fate : kLost) lost += counts.at(static_cast<std::size_t>(fate));
  return lost;
}

std::string fate_summary(const FateCounts& counts) {
  std::size_t total = 0;
  std::string parts;
  for (std::size_t i = 0; i < kFates; ++i) {
    total += counts.at(i);
    if (counts.at(i) == 0) continue;
    parts += concat(parts.empty() ? ": " : ", ", grouped(counts.at(i)), " ", kWords.at(i).word);
  }
  return concat(grouped(total), total == 1 ? " Nummer gelesen" : " Nummern gelesen", parts, ".");
}

}  // namespace quenda
