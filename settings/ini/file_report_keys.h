#pragma once

#include <array>

#include "settings/ini/language_key.h"
#include "text/literal_1252.h"

namespace quenda {

/// The texts about a file that is going to be read: what it is, what would come out wrong, and what
/// can be done. "%1" and so on stand for what was found.
inline constexpr std::array kFileReportKeys = {
    // Controls.
    LanguageKey{"Import_ChkBox_Convert", "Datei beim Einlesen anpassen"},
    LanguageKey{"Import_Button_Suggestion", "Vorschlag: %1"},
    // What is going to be adapted: "UTF-8, LF".
    LanguageKey{"Import_File_Adapted", "Die Datei wird beim Einlesen angepasst (%1)."},
    LanguageKey{"Import_File_Besides", u8"Außerdem anzupassen: %1."_de},
    LanguageKey{"Import_File_ColumnDropped",
                "Eine leere Spalte am Ende wird beim Einlesen weggelassen."},
    LanguageKey{"Import_File_CellsAdapted",
                u8"Fehlende Namen werden ersetzt, Felder mit mehreren Nummern oder Zusätzen "
                u8"angepasst."_de},
    // What would come out wrong.
    LanguageKey{"Import_File_Utf8",
                u8"Die Datei ist in UTF-8 geschrieben: Umlaute kämen falsch an."_de},
    LanguageKey{
        "Import_File_Utf8Sample",
        u8"Die Datei ist in UTF-8 geschrieben: Umlaute kämen falsch an (\"%1\" statt \"%2\")."_de},
    LanguageKey{
        "Import_File_Mark",
        u8"Die Datei beginnt mit einer UTF-8-Kennung: Sie käme zum ersten Spaltennamen."_de},
    LanguageKey{"Import_File_Utf16",
                u8"Die Datei ist in UTF-16 geschrieben: So käme sie nicht lesbar an."_de},
    LanguageKey{"Import_File_Mixed",
                u8"Die Datei ist teils in UTF-8, teils in Windows-1252 geschrieben: Manche Umlaute "
                u8"kämen falsch an."_de},
    LanguageKey{"Import_File_LineEnds",
                u8"Die Zeilen enden nur mit %1: Die ganze Datei käme als ein einziger Datensatz "
                u8"an."_de},
    LanguageKey{"Import_File_MixedLineEnds",
                u8"Die Zeilen enden uneinheitlich: Manche Datensätze kämen zusammengezogen an."_de},
    LanguageKey{
        "Import_File_SepLine",
        u8"Die erste Zeile nennt das Trennzeichen (\"sep=\"): Sie käme als Kopfzeile an."_de},
    LanguageKey{"Import_File_NulBytes",
                u8"Die Datei enthält NUL-Zeichen: Sie ist vielleicht beschädigt."_de},
    LanguageKey{
        "Import_File_EmptyColumn",
        u8"Die Kopfzeile endet mit einem Trennzeichen: Eine Spalte ohne Namen käme dazu."_de},
    LanguageKey{"Import_File_Cells",
                u8"Manche Kontakte kämen nicht richtig an: Namen fehlen, oder Felder haben "
                u8"mehrere Nummern oder Zusätze."_de},
    LanguageKey{"Import_File_Vcard",
                u8"Die Datei enthält Kontakte als vCard: Sie müssen beim Einlesen angepasst "
                u8"werden."_de},
    // What cannot be read.
    LanguageKey{"Import_File_TooLarge",
                u8"Die Datei ist größer als 2 GB: Teilen Sie sie, und lesen Sie die Teile "
                u8"nacheinander ein."_de},
    LanguageKey{
        "Import_File_Workbook",
        u8"Die Datei ist eine Arbeitsmappe: Speichern Sie sie in der Tabellenkalkulation als "
        u8"CSV-Datei, und wählen Sie diese."_de},
    LanguageKey{"Import_File_OpenDocument",
                u8"Die Datei ist ein OpenDocument-Dokument: Speichern Sie es in der "
                u8"Tabellenkalkulation als CSV-Datei, und wählen Sie diese."_de},
    LanguageKey{"Import_File_Zip",
                u8"Die Datei ist ein ZIP-Archiv: Entpacken Sie es, und wählen Sie die CSV-Datei "
                u8"oder vCard darin."_de},
    LanguageKey{"Import_File_Ldif",
                u8"Die Datei ist ein Adressbuch im Format LDIF: Exportieren Sie die Kontakte als "
                u8"CSV-Datei oder vCard, und wählen Sie diese."_de},
    LanguageKey{"Import_File_Sections",
                u8"Die Datei ist ein Adressbuch mit Abschnitten: Exportieren Sie die Kontakte als "
                u8"CSV-Datei, und wählen Sie diese."_de},
    LanguageKey{
        "Import_File_Xml",
        u8"Die Datei ist in XML geschrieben: Exportieren Sie die Kontakte als CSV-Datei oder "
        u8"vCard, und wählen Sie diese."_de},
    LanguageKey{"Import_File_Html",
                u8"Die Datei ist eine Internetseite (HTML): Exportieren Sie die Kontakte als "
                u8"CSV-Datei, und wählen Sie diese."_de},
    LanguageKey{"Import_File_Pdf",
                u8"Die Datei ist ein PDF-Dokument: Exportieren Sie die Kontakte als CSV-Datei, und "
                u8"wählen Sie diese."_de},
    // What the adapting could not keep.
    LanguageKey{"Import_File_CharactersChanged",
                u8"%1 Zeichen wurden durch ähnliche ersetzt (Zeile %2)."_de},
    LanguageKey{"Import_File_CharacterChanged",
                u8"1 Zeichen wurde durch ein ähnliches ersetzt (Zeile %2)."_de},
    LanguageKey{"Import_File_CharactersLost", u8"%1 Zeichen gingen verloren (Zeile %2)."_de},
    LanguageKey{"Import_File_CharacterLost", "1 Zeichen ging verloren (Zeile %2)."},
    LanguageKey{"Import_File_NoContacts",
                u8"Die Datei enthält keine Kontakte: Keine ihrer Karten hat einen Namen oder eine "
                u8"Rufnummer."_de},
    // The columns.
    LanguageKey{"Import_Table_NumberInHeader",
                u8"Die erste Zeile enthält eine Rufnummer (\"%1\"): Fehlt der Datei die "
                u8"Kopfzeile?"_de},
    LanguageKey{"Import_Table_RepeatedName", u8"Der Spaltenname \"%1\" kommt mehrfach vor."_de},
    LanguageKey{"Import_Table_UnnamedColumns", "Spalten ohne Namen: %1."},
    LanguageKey{"Import_Table_UnevenRecords",
                u8"Datensätze mit mehr oder weniger Feldern als die Kopfzeile: %1, der erste in "
                u8"Zeile %2."_de},
    LanguageKey{"Import_Table_UnchosenNumbers", "%1 Nummern in %2 weiteren Spalten: %3"},
    LanguageKey{"Import_Table_UnchosenInOneColumn", "%1 Nummern in 1 weiteren Spalte: %3"},
    LanguageKey{"Import_Table_UnchosenNumber", "1 Nummer in 1 weiteren Spalte: %3"},
};

}  // namespace quenda
