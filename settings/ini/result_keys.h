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
    // The report.
    LanguageKey{"Import_Msg_ReportFailed", u8"Der Bericht kann nicht geschrieben werden: %1"_de},
};

}  // namespace quenda
