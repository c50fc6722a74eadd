#pragma once

#include <array>
#include <span>
#include <string_view>

#include "settings/ini/file_report_keys.h"
#include "settings/ini/language_key.h"
#include "settings/ini/result_keys.h"
#include "text/literal_1252.h"

namespace quenda {

/// Every text that the program asks for, but those about the file to be read and those about what
/// becomes of an import, which have tables of their own. "<CR>" stands for a line break, as in
/// language files.
inline constexpr std::array kLanguageKeys = {
    // Shared by all programs of the suite.
    LanguageKey{"Message_BackupExists", "Es existiert eine Sicherungskopie!"},
    LanguageKey{"Message_RemoveFileExtByRename",
                "Entfernen Sie die Endung  \".bak\" durch Umbenennen!"},
    LanguageKey{"Message_ConfigFileFault", "Die Konfigurationsdatei ist defekt!"},
    LanguageKey{"Message_CreateNewFile", "Die Datei wird neu angelegt!"},
    LanguageKey{"Message_FaultFileRename", "Die defekte Datei wurde umbenannt!"},
    LanguageKey{"Message_FaultFileDelete", u8"Die defekte Datei wurde gelöscht!"_de},
    LanguageKey{"Message_PleaseDeleteFile", u8"Bitte löschen Sie folgende Dateien von Hand:"_de},
    LanguageKey{"Message_ReConfigTheProgram", "Das Programm muss leider neu konfiguriert werden!"},
    LanguageKey{"Button_OK", "OK"},
    LanguageKey{"Button_Cancel", "Abbrechen"},
    LanguageKey{"Button_Resume", u8"Übernehmen"_de},
    LanguageKey{"Button_Next", "Weiter"},
    LanguageKey{"Button_Yes", "Ja"},
    LanguageKey{"Button_No", "Nein"},
    LanguageKey{"Button_Help", "Hilfe"},
    LanguageKey{"String_Number", "Nummer"},
    LanguageKey{"String_Name", "Name"},
    LanguageKey{"String_Address", "Adresse"},
    LanguageKey{"String_FilesAll", "Alle Dateien"},
    LanguageKey{"String_Pictures", "Bilder"},
    LanguageKey{"Message_WriteFail", "Quenda konnte einen Schreibzugriff nicht beenden!"},
    LanguageKey{"Message_WriteFail1", u8"Bitte überprüfen sie die Daten im"_de},
    LanguageKey{"Message_WriteFail2",
                "Die Sicherungsdateien (.bak .b0x) befinden sich im Verzeichnis"},
    // Faults and tracing.
    LanguageKey{"Message_ErrorRaised", "Es ist ein Fehler aufgetreten!"},
    LanguageKey{"Message_SeeFile", "siehe Datei"},
    LanguageKey{"Message_TracingIsActive", "Die Ablaufverfolgung ist aktiv!"},
    LanguageKey{"Message_MuchDataInShortTime",
                "Es werden in kurzer Zeit extrem viele Daten gespeichert!"},
    // Start.
    LanguageKey{"Import_Msg_DirectCallNotProvided",
                "Ein Direktaufruf dieses Tools ist nicht vorgesehen!"},
    LanguageKey{"Import_Msg_UseMenuInBook",
                u8"Der Aufruf erfolgt über den Menüeintrag \"Import\" im Quenda-Telefonbuch!"_de},
    // Messages and status texts.
    LanguageKey{"Import_Title", "Import"},
    LanguageKey{"Import_Info_DDEexit", "Telefonbuch DDE-Verbindung: beendet"},
    LanguageKey{"Import_Info_DDEbreak", "Telefonbuch DDE-Verbindung: abgebrochen"},
    LanguageKey{"Import_Info_DDEactive", "Telefonbuch DDE-Verbindung: aktiv"},
    LanguageKey{"Import_Msg_SelectionFail1", "Der letzte Import hatte eine andere Datenstruktur!"},
    LanguageKey{"Import_Msg_SelectionFail2",
                u8"Die Spalten konnten nicht automatisch ausgewählt werden!"_de},
    LanguageKey{"Import_Msg_SelectionFail3", u8"Bitte überprüfen Sie folgende Bereiche:"_de},
    LanguageKey{"Import_Info_OutlookSearch", "Suche Outlook"},
    LanguageKey{"Import_Info_ItemsAnalyze", u8"Einträge analysieren"_de},
    LanguageKey{"Journal_Info_Items", u8"Einträge"_de},
    LanguageKey{"Import_Info_EraseMultible", "Mehrfache entfernen"},
    LanguageKey{"Import_Info_ItemsRecycle", u8"Einträge aufbereiten"_de},
    LanguageKey{"Import_Info_ItemsValid", u8"gültige Einträge"_de},
    LanguageKey{"Import_Info_LoadBook", "Telefonbuch laden"},
    LanguageKey{"Import_Info_FilterData", "Importdaten filtern"},
    LanguageKey{"Import_Info_WriteBook", "Telefonbuch schreiben"},
    LanguageKey{"Import_Info_BookHasLf", "Telefonbuch mit LF statt CR LF gelesen"},
    LanguageKey{"Import_Msg_BookLineEnds",
                u8"Das Telefonbuch wurde nicht geändert, weil seine Zeilen verschieden enden!"_de},
    LanguageKey{"Import_Msg_BookLineWithoutEnd", "Zeile ohne CR LF am Ende:"},
    LanguageKey{"Import_Msg_BookChanged",
                u8"Das Telefonbuch ist inzwischen von einem anderen Programm geändert worden. "
                u8"Es ist nichts geschrieben worden; \"Übernehmen\" liest es neu."_de},
    LanguageKey{"Import_Msg_BookUnchanged", u8"Das Telefonbuch ist unverändert."_de},
    LanguageKey{
        "Import_Msg_BookLonger",
        u8"Das Telefonbuch enthält alle bisherigen Zeilen unverändert; hinter Zeile %1 stehen "
        u8"neue, die letzte kann unvollständig sein."_de},
    LanguageKey{"Import_Msg_BookDamaged",
                u8"Das Telefonbuch ist ab Zeile %1 (\"%2\") beschädigt und davor unverändert."_de},
    LanguageKey{"Import_Msg_BookRestAtEnd", "Was dort fehlt, steht an seinem Ende."},
    LanguageKey{"Import_Msg_HelpShipped",
                u8"Die Hilfeseite lässt sich nicht öffnen. Soll das mitgelieferte Handbuch "
                u8"geöffnet werden?"_de},
    LanguageKey{"Import_Msg_BookTooLarge",
                u8"Das Telefonbuch ist größer als 2 GB, oder der Import würde es so groß machen. "
                u8"Es ist unverändert."_de},
    LanguageKey{"Import_Msg_DDENotConnect", "Es besteht keine DDE-Verbindung zu Quenda!"},
    LanguageKey{"Import_Msg_RefreshInfo",
                "Nach dem Import ist es erforderlich das Telefonbuch durch \"Aktualisieren\" (F5) "
                "neu einzulesen!"},
    LanguageKey{"Import_Info_ReadingFile", "Datei einlesen"},
    LanguageKey{"Import_Info_GetDelimiter", "Trennzeichen ermitteln"},
    LanguageKey{"Import_Info_DelimiterOk", "Trennzeichen erkannt"},
    LanguageKey{"Import_Info_FileRead", u8"Einträge gelesen"_de},
    LanguageKey{"Import_Info_NoDelimiterFound",
                u8"Keine zulässigen Trennzeichen gefunden oder Format ungültig!"_de},
    LanguageKey{"Import_Info_ImportNotAvailable", u8"Ein Import der Daten ist nicht möglich!"_de},
    LanguageKey{"Import_Msg_HeaderFault", u8"Die Kopfzeile ist unvollständig!"_de},
    LanguageKey{"Import_Msg_ErrorFreeNoWarranted",
                "Ein fehlerfreier Import kann nicht garantiert werden!"},
    LanguageKey{"Import_Info_FieldConvert", "Datenfelder konvertieren"},
    LanguageKey{"Import_Info_SelectionPrepare", "Auswahl vorbereiten"},
    LanguageKey{"Import_Info_DataSetClean", u8"Datensätze bereinigen"_de},
    LanguageKey{"Import_Info_DataNotFound", "Keine Daten gefunden!"},
    LanguageKey{"Import_Info_OutlookNotInst", "Outlook nicht installiert!"},
    LanguageKey{"Import_Info_ItemsForImport", u8"Einträge zum Import"_de},
    LanguageKey{"Import_Info_ItemsFound", u8"Einträge gefunden"_de},
    LanguageKey{"Import_Info_ContactsFound", "Kontakte gefunden"},
    // Buttons.
    LanguageKey{"Button_Prev", u8"Zurück"_de},
    LanguageKey{"Button_Save", "Speichern"},
    LanguageKey{"Menu_Edit", "Bearbeiten"},
    LanguageKey{"Settings_Button_Remove", "Entfernen"},
    // The wizard's help, one sentence per page: source, columns, names, addresses, entries,
    // Outlook.
    LanguageKey{
        "Import_Label_Help1",
        u8"Wählen Sie die Datei mit Ihren Kontakten, eine Logdatei von ISpy oder Outlook als Quelle."_de},
    LanguageKey{"Import_Label_Help2",
                "Markieren Sie die Spalten, die Namen, Rufnummern und Adressen enthalten."},
    LanguageKey{
        "Import_Label_Help3",
        u8"Prüfen Sie den Namen. Jede Rufnummer kann einen Namenszusatz erhalten, zum Beispiel mobil."_de},
    LanguageKey{
        "Import_Label_Help4",
        u8"Wählen Sie den Aufbau der Adressen und ordnen Sie jeder Rufnummer eine Adresse zu."_de},
    LanguageKey{
        "Import_Label_Help5",
        u8"Prüfen Sie die Einträge. Mit \"Übernehmen\" werden sie in das Telefonbuch geschrieben."_de},
    LanguageKey{
        "Import_Label_Help6",
        u8"Wählen Sie die Rufnummern und Adressen, die aus den Outlook-Kontakten übernommen werden."_de},
    // The source.
    LanguageKey{"Import_Label_FileForImport", u8"Datei für den Import"_de},
    LanguageKey{"Import_Button_ImportCSV", u8"Datei wählen ..."_de},
    LanguageKey{"Import_Label_Delimiter", "Trennzeichen"},
    LanguageKey{"Import_Label_DetectFail", "Kein Trennzeichen erkannt!"},
    LanguageKey{"Import_String_Semicolon", "Semikolon"},
    LanguageKey{"Import_String_Comma", "Komma"},
    LanguageKey{"Import_String_Tabulator", "Tabulator"},
    LanguageKey{"Import_Button_ImportISpy", u8"ISpy-Log wählen ..."_de},
    LanguageKey{
        "Multiline_Import",
        u8"ISpy-Format:<CR>Eine vorhandene Logdatei von ISpy enthält Rufnummern und Namen. Mehrfach vorhandene Einträge werden aussortiert!"_de},
    LanguageKey{"Import_Button_ImportOutlook", "Outlook-Kontakte"},
    LanguageKey{
        "Import_Label_OutlookExport",
        u8"Ohne automatisierbares Outlook (auch das neue Outlook ist keines): Exportieren Sie die "
        u8"Kontakte dort als CSV-Datei, und wählen Sie diese hier aus."_de},
    LanguageKey{"Import_ChkBox_NameMin3Chars", u8"keine Namen kürzer als 3 Zeichen"_de},
    LanguageKey{"Import_String_FileAndOutlook", "Datei und Outlook"},
    // The columns.
    LanguageKey{"Import_Label_ColumnsNames", "Spalten Name"},
    LanguageKey{"Import_Label_ColumnsNumbers", "Spalten Rufnummer"},
    LanguageKey{"Import_Label_ColumnsAddresses", "Spalten Adresse"},
    LanguageKey{"Import_Label_OverviewData", "Spalten der Datei"},
    LanguageKey{"Import_Label_PreviewBorder", "Grenze zwischen Spalten und Vorschau"},
    // Names and suffixes.
    LanguageKey{"Import_Label_NameInfo", "Name im Telefonbuch"},
    LanguageKey{"Import_ChkBox_FlipNames", "Vor- und Nachname tauschen"},
    LanguageKey{"Import_Label_NumberInfo", "Rufnummern"},
    LanguageKey{"Import_Label_NameExt", "Namenszusatz"},
    // Addresses.
    LanguageKey{"Import_Label_FormattingOutput", "Aufbau der Adresse"},
    LanguageKey{"Import_Label_SortOrder", "Reihenfolge"},
    LanguageKey{"Import_Label_AddressInfo1", "Adresse 1"},
    LanguageKey{"Import_Label_AddressInfo2", "Adresse 2"},
    LanguageKey{"Import_Label_AddressAlloc", "Adresszuordnung"},
    LanguageKey{"Import_Label_AddressSelect", u8"Adresse wählen"_de},
    LanguageKey{"Import_Label_SelectedAddressAlloc", "Zugeordnete Adresse je Rufnummer"},
    // The entries.
    LanguageKey{"Import_Label_ImportedData", u8"Einträge für das Telefonbuch"_de},
    LanguageKey{"Import_Label_Delete", u8"Auch die Taste Entf entfernt den markierten Eintrag."_de},
    LanguageKey{"Import_Label_EditsGetLost",
                u8"\"Zurück\" verwirft Ihre Änderungen in dieser Liste."_de},
    LanguageKey{"Import_Label_IsMissing", "fehlt"},
    LanguageKey{"Import_Label_CodesPurpose", u8"Sie ergänzen die Nummern."_de},
    LanguageKey{"Import_Button_ComposeAgain", "Neu anwenden"},
    LanguageKey{"Import_Label_BehaviorExistNumber", "Rufnummer bereits vorhanden"},
    LanguageKey{"Import_Option_AskDataSet", "nachfragen"},
    LanguageKey{"Import_Option_NewDataSet", u8"neuen Datensatz übernehmen"_de},
    LanguageKey{"Import_Option_RetainDataSet", "vorhandenen Datensatz erhalten"},
    LanguageKey{"Settings_Label_CountryCode", "Landesvorwahl"},
    LanguageKey{"Import_Label_MissingAreaCode1", "Ortsvorwahl"},
    LanguageKey{"Import_Label_MissingAreaCode2",
                u8"Eigene Vorwahlen, zum Beispiel 0049 und 030."_de},
    // The Outlook page.
    LanguageKey{"Import_String_PhoneNumber", "Rufnummer"},
    LanguageKey{"Import_String_FAXNumber", "Faxnummer"},
    LanguageKey{"Import_Text_Private", "privat"},
    LanguageKey{"Import_Text_Office", u8"geschäftlich"_de},
    LanguageKey{"Import_Text_Mobile", "mobil"},
    LanguageKey{"Import_Text_Firm", "Firma"},
    LanguageKey{"Import_Text_Primary", u8"primär"_de},
    LanguageKey{"Import_Text_Alternate", "weitere"},
    LanguageKey{"Import_ChkBox_MobileNumber", "Mobilfunknummer"},
    LanguageKey{"Import_ChkBox_ShortPrivate", "privat"},
    LanguageKey{"Import_ChkBox_ShortCommercial", "gesch."},
    LanguageKey{"Import_ChkBox_ShortMainNumber", "Hauptnummer"},
    LanguageKey{"Import_ChkBox_Other", "Weitere Rufnummer"},
    LanguageKey{"Import_ChkBox_FlipName", "Name tauschen"},
    LanguageKey{"Import_ChkBox_FlipAddress", "Adresse tauschen"},
    LanguageKey{"Import_Label_PreviewData", "Vorschau der Daten"},
    // Dialogs.
    LanguageKey{"Import_Label_Contacts", "Kontakte importieren"},
    LanguageKey{"Import_Label_ItemExistWithNumber", "Eintrag vorhanden mit der Rufnummer"},
    LanguageKey{"Import_Option_AskAgain", "weiterhin nachfragen"},
    LanguageKey{"Import_Option_ApplyAll", u8"für alle weiteren übernehmen"_de},
    LanguageKey{"Import_Button_Retain", "Erhalten"},
    LanguageKey{"Import_Button_Details", "Details"},
    LanguageKey{"Import_Msg_NoTraceLog",
                "Eine Datei mit dem Fehler entsteht nur bei eingeschalteter Ablaufverfolgung:"},
    LanguageKey{
        "Import_Msg_TraceNotWritten",
        u8"Die Ablaufverfolgung ist eingeschaltet, aber diese Datei lässt sich nicht schreiben:"_de},
    LanguageKey{"Import_Label_QuestionOf", "%1 von %2"},
    LanguageKey{"Import_Label_RowOf", "Zeile %1 von %2"},
    LanguageKey{"Import_Label_AnswerOne",
                u8"\"Erhalten\" behält den vorhandenen, \"Übernehmen\" nimmt den neuen Datensatz - "
                u8"nur für diese Rufnummer."_de},
    LanguageKey{
        "Import_Label_AnswerAll",
        u8"\"Erhalten\" behält ab jetzt alle vorhandenen, \"Übernehmen\" nimmt ab jetzt alle "
        u8"neuen Datensätze - ohne weitere Fragen."_de},
    LanguageKey{
        "Import_Label_ImportRequiredCodes",
        u8"Für den Import werden die eigene Landesvorwahl und die eigene Ortsvorwahl benötigt."_de},
    LanguageKey{"Import_Label_SettingsWithoutAreaCode",
                "In den Einstellungen von Quenda ist keine Ortsvorwahl eingetragen."},
    LanguageKey{"Import_Label_OwnArea", "Eigener Standort"},
    LanguageKey{"Import_Label_FormatCountryCode", "Format: 0049"},
    LanguageKey{"Import_Label_FormatAreaCode", "Format: 030"},
};

/// All tables of texts.
inline constexpr std::array<std::span<const LanguageKey>, 3> kLanguageTables = {
    kLanguageKeys, kFileReportKeys, kResultKeys};

namespace language_detail {
/// The entry of a key; without key where there is none. A value, no pointer: g++ 12 takes the
/// comparison of such a pointer for no constant expression under its sanitizer.
constexpr LanguageKey find(std::string_view key) {
  for (const auto table : kLanguageTables) {
    for (const LanguageKey& entry : table) {
      if (entry.key == key) return entry;
    }
  }
  return {};
}
/// Not a constant expression: what the compiler names when a key is mistyped.
void no_such_text_key();
}  // namespace language_detail

/// The German text of a key that is known only at run time; empty for one that is not in the table.
constexpr std::string_view german_text(std::string_view key) {
  return language_detail::find(key).german;
}

/// A key that is in the table: a mistyped one does not compile.
class TextKey {
 public:
  /// No text.
  constexpr TextKey() = default;
  consteval TextKey(const char* key) : entry_(language_detail::find(key)) {
    if (empty()) language_detail::no_such_text_key();
  }
  [[nodiscard]] constexpr bool empty() const { return entry_.key.empty(); }
  [[nodiscard]] constexpr std::string_view key() const { return entry_.key; }
  [[nodiscard]] constexpr std::string_view german() const { return entry_.german; }

 private:
  LanguageKey entry_;
};

}  // namespace quenda
