#pragma once

#include <array>

#include "settings/ini/language_key.h"
#include "text/literal_1252.h"

namespace quenda {

/// The texts about what becomes of an import, and about its way back. "%1" and so on stand for what
/// is named.
inline constexpr std::array kResultKeys = {
    // The copy of the book, and the way back.
    LanguageKey{"Import_ChkBox_Backup", "Telefonbuch vorher sichern"},
    LanguageKey{"Import_Button_Undo", u8"Letzten Import zurücknehmen"_de},
    LanguageKey{"Import_Msg_BackupFailed",
                u8"Das Telefonbuch konnte nicht im Ordner %1 gesichert werden. Es ist nichts "
                u8"eingelesen worden, das Telefonbuch ist unverändert."_de},
    LanguageKey{"Import_Msg_BackupIs", "Das Telefonbuch von vorher ist %1"},
    LanguageKey{"Import_Msg_UndoDamaged",
                u8"Die Aufzeichnung des letzten Imports ist beschädigt. Die Sicherungen des "
                u8"Telefonbuchs liegen im Ordner %1"_de},
    LanguageKey{"Import_Msg_UndoBookKeepsChanging",
                u8"Andere Programme ändern das Telefonbuch immerzu. Es ist nichts zurückgenommen "
                u8"worden."_de},
    LanguageKey{"Import_Msg_UndoQuestion",
                u8"Soll der Import vom %1 zurückgenommen werden?<CR>Was er in das Telefonbuch "
                u8"geschrieben hat, wird entfernt; was er ersetzt hat, kommt zurück."_de},
    LanguageKey{"Import_Msg_UndoDone",
                u8"Der Import vom %1 ist zurückgenommen. Das Telefonbuch ist wieder wie davor."_de},
    LanguageKey{"Import_Msg_UndoPartly",
                u8"Das Telefonbuch ist nach dem Import vom %1 geändert worden. Zurückgenommen "
                u8"sind nur dessen Einträge: %2."_de},
    LanguageKey{"Import_Msg_UndoNothingLeft",
                u8"Das Telefonbuch ist nach dem Import vom %1 geändert worden und hat keinen "
                u8"Eintrag mehr, wie er ihn geschrieben hat. Es ist nichts zurückgenommen "
                u8"worden.<CR>Das Telefonbuch von damals liegt im Ordner %2"_de},
    LanguageKey{"Import_Msg_UndoUntouched",
                u8"Seither geändert oder gelöscht und deshalb so gelassen: %1"_de},
    LanguageKey{"Import_Msg_UndoNothing",
                u8"Es gibt keinen Import, der zurückgenommen werden "
                u8"kann: Das Telefonbuch ist, wie es davor war."_de},
    // What becomes of each number, in a word or two.
    LanguageKey{"Import_Column_Result", "Ergebnis"},
    LanguageKey{"Import_Fate_Added", "neu"},
    LanguageKey{"Import_Fate_Same", "schon vorhanden"},
    LanguageKey{"Import_Fate_Replaced", "ersetzt"},
    LanguageKey{"Import_Fate_Kept", "behalten"},
    LanguageKey{"Import_Fate_Asked", u8"Rückfrage"_de},
    LanguageKey{"Import_Fate_Withheld", u8"zurückgehalten"_de},
    LanguageKey{"Import_Fate_Repeated", "wiederholt"},
    LanguageKey{"Import_Fate_Double", "doppelt"},
    LanguageKey{"Import_Fate_NoNumber", "ohne Rufnummer"},
    LanguageKey{"Import_Fate_NotNumeric", "nicht lesbar"},
    LanguageKey{"Import_Fate_TooShort", "zu kurz"},
    LanguageKey{"Import_Fate_ShortName", "Name zu kurz"},
    LanguageKey{"Import_Fate_Split", "zerteilt"},
    LanguageKey{"Import_Fate_Removed", "entfernt"},
    LanguageKey{"Import_Fate_NoName", "ohne Namen"},
    LanguageKey{"Import_Fate_Unread", "nicht gelesen"},
    // The same with the entry of the book that it is about.
    LanguageKey{"Import_Result_Replaced", "ersetzt \"%1\""},
    LanguageKey{"Import_Result_ReplacedNameless", "ersetzt einen Eintrag ohne Namen"},
    LanguageKey{"Import_Result_Kept", u8"behält \"%1\""_de},
    // Why it does.
    LanguageKey{"Import_Reason_Added", "wird in das Telefonbuch aufgenommen"},
    LanguageKey{"Import_Reason_Same", "steht so schon im Telefonbuch"},
    LanguageKey{"Import_Reason_Replaced", "ersetzt einen Eintrag mit derselben Nummer"},
    LanguageKey{"Import_Reason_Kept", "der Eintrag des Telefonbuchs bleibt"},
    LanguageKey{"Import_Reason_Asked", "die Nummer ist unter anderem Namen da: Sie werden gefragt"},
    LanguageKey{
        "Import_Reason_Withheld",
        u8"doppelte Nummern des Telefonbuchs wiegen die neuen Einträge auf: nichts wird geschrieben"_de},
    LanguageKey{"Import_Reason_Repeated", "gleicht einer anderen Zeile"},
    LanguageKey{"Import_Reason_Double", "dieselbe Nummer kommt in diesem Import noch einmal vor"},
    LanguageKey{"Import_Reason_NoNumber", "keine Rufnummer in der Spalte"},
    LanguageKey{"Import_Reason_NotNumeric", u8"keine wählbare Rufnummer"_de},
    LanguageKey{"Import_Reason_TooShort", "weniger als 8 Stellen"},
    LanguageKey{"Import_Reason_ShortName", u8"der Name ist kürzer als 3 Zeichen"_de},
    LanguageKey{"Import_Reason_Split", "ein Semikolon im Namen zerteilt den Eintrag"},
    LanguageKey{"Import_Reason_Removed", "von Ihnen aus der Liste genommen"},
    LanguageKey{"Import_Reason_NoName", "kein brauchbarer Name"},
    LanguageKey{"Import_Reason_Unread", "das Einlesen endete vorher"},
    LanguageKey{"Import_Reason_WithLine", "(Zeile %1)"},
    LanguageKey{"Import_Reason_InBook", "(im Telefonbuch: \"%1\")"},
    // What is doubtful about a number.
    LanguageKey{"Import_Doubt_NoAreaCode", "(!) ohne Vorwahl"},
    LanguageKey{"Import_Doubt_Exponent", "(!) Exponent"},
    LanguageKey{"Import_Doubt_Letters", "(!) Buchstaben"},
    LanguageKey{"Import_Doubt_Several", "(!) mehrere Nummern"},
    // The report in a window.
    LanguageKey{"Import_Button_Report", "Bericht ..."},
    LanguageKey{"Import_Report_Title", "Bericht"},
    LanguageKey{"Import_Report_Sum", "%1 Nummern gelesen"},
    LanguageKey{"Import_Report_Thousands", "."},
    LanguageKey{"Import_Report_Show", "Anzeigen"},
    LanguageKey{"Import_Report_All", "alle (%1)"},
    LanguageKey{"Import_Report_Line", "Zeile"},
    LanguageKey{"Import_Report_Contact", "Kontakt"},
    LanguageKey{"Import_Report_Reason", "Grund"},
    LanguageKey{"Import_Report_Hint",
                "Doppelklick: Eintrag in der Liste zeigen. Strg+C: kopieren, was hier steht."},
    LanguageKey{"Import_Report_Save", "Speichern unter ..."},
    LanguageKey{"Import_Report_Close", u8"Schließen"_de},
    LanguageKey{"Import_Report_FileName", "Bericht.csv"},
    // The report.
    LanguageKey{"Import_Msg_ReportFailed", u8"Der Bericht kann nicht geschrieben werden: %1"_de},
};

}  // namespace quenda
