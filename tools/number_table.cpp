#include <array>
#include <iostream>
#include <string>
#include <string_view>

#include "book/entry_list.h"
#include "book/number_cleaning.h"
#include "text/text.h"

// Prints the handbook's table of what happens to a number, in the language given (de or en). The
// second column is what the program itself makes of the first one.
namespace {

constexpr std::string_view kOwnCountryCode = "0049";

struct Example {
  const char* number;
  const char* german;
  const char* english;
};

constexpr std::array kExamples = {
    Example{"030 23125-701", "Satzzeichen und Leerzeichen entfallen", "punctuation and blanks go"},
    Example{"+49 30 23125701", "„+“ wird zu „00“, die eigene Landesvorwahl entfällt",
            "“+” becomes “00”, the own country code goes"},
    Example{"+49 (0)30 23125701", "die „(0“ entfällt, die führende „0“ wird gesetzt",
            "the “(0” goes, the leading “0” is set"},
    Example{"0049 30 23125701", "wie mit „+49“", "as with “+49”"},
    Example{"49 30 23125701",
            "ohne „+“ oder „00“ ist es keine Landesvorwahl: die Nummer wird falsch",
            "without “+” or “00” it is no country code: the number gets wrong"},
    Example{"+43 1 5880012", "fremde Landesvorwahl bleibt", "another country's code stays"},
    Example{"(030) 23125701", "auch hier entfällt die „(0“, und die „0“ kommt wieder",
            "here, too, the “(0” goes, and the “0” comes back"},
    Example{"0171/3920056", "der Schrägstrich entfällt", "the slash goes"},
    Example{"23125701",
            "ohne Ortsvorwahl: es wird nur eine „0“ davorgesetzt, also bitte mit Vorwahl ausführen",
            "without area code: only a “0” is put in front, so export numbers with their codes"},
    Example{"110", "mit der „0“ davor kürzer als 8 Zeichen",
            "shorter than 8 characters, “0” included"},
    Example{"0341 555-SHOP", "Buchstaben", "letters"},
    Example{"030 23125701 (Büro)", "Buchstaben: die Bemerkung gehört nicht in die Nummer",
            "letters: the remark does not belong into the number"},
    Example{"030 23125701; 0171 3920056",
            "zwei Nummern in einer Zelle: das Semikolon ist keine Ziffer",
            "two numbers in one cell: the semicolon is no digit"},
    Example{"4,93023E+11",
            "in einer Tabellenkalkulation zerstört: die fehlenden Ziffern sind verloren",
            "destroyed by a spreadsheet: the missing digits are lost"},
    Example{"", "keine Nummer", "no number"},
};

}  // namespace

int main(int count, char** arguments) {
  const bool english = count > 1 && std::string_view(arguments[1]) == "en";
  std::cout << (english ? "| In the file | In the phone book | Why |\n|---|---|---|\n"
                        : "| In der Datei | Im Telefonbuch | Warum |\n|---|---|---|\n");
  for (const Example& example : kExamples) {
    const std::string cleaned =
        quenda::clean_number(quenda::from_utf8(example.number).value_or(""), kOwnCountryCode);
    const bool taken = example.number[0] != '\0' && quenda::number_importable(cleaned);
    std::cout << "| " << (example.number[0] == '\0' ? "" : "`") << example.number
              << (example.number[0] == '\0' ? (english ? "(empty)" : "(leer)") : "`") << " | "
              << (taken     ? "`" + cleaned + "`"
                  : english ? "not taken"
                            : "wird nicht übernommen")
              << " | " << (english ? example.english : example.german) << " |\n";
  }
  return 0;
}
