#include "sources/known_exports.h"

#include "text/literal_1252.h"

namespace quenda {
namespace {

using enum NumberKind;
using Telling = std::string_view;

constexpr Telling kOutlookGermanTelling[] = {"Vorname", "Nachname", "Mobiltelefon",
                                             "Telefon (privat)"};
constexpr NumberColumn kOutlookGermanNumbers[] = {
    {"Mobiltelefon", kMobile},
    {"Telefon (privat)", kHome},
    {u8"Telefon geschäftlich"_de, kWork},
    {"Mobiltelefon 2", kMobile},
    {"Telefon (privat 2)", kHome},
    {u8"Telefon geschäftlich 2"_de, kWork},
    {"Haupttelefon", kOther},
    {"Telefon Firma", kOther},
    {"Autotelefon", kOther},
    {"Weiteres Telefon", kOther},
    {"Telefon Assistent", kOther},
    {u8"Rückmeldung"_de, kOther},
    {"ISDN", kOther},
    {"Fax privat", kHomeFax},
    {u8"Fax geschäftlich"_de, kWorkFax},
    {"Weiteres Fax", kHomeFax},
    {"Pager", kOther},
};

constexpr NumberColumn kOutlookEnglishNumbers[] = {
    {"Mobile Phone", kMobile},      {"Home Phone", kHome},       {"Business Phone", kWork},
    {"Home Phone 2", kHome},        {"Business Phone 2", kWork}, {"Primary Phone", kOther},
    {"Company Main Phone", kOther}, {"Car Phone", kOther},       {"Other Phone", kOther},
    {"Assistant's Phone", kOther},  {"Callback", kOther},        {"ISDN", kOther},
    {"Radio Phone", kOther},        {"Home Fax", kHomeFax},      {"Business Fax", kWorkFax},
    {"Other Fax", kHomeFax},        {"Pager", kOther},
};
constexpr AddressColumns kHomeEnglish = {"Home Street", "Home Postal Code", "Home City"};
constexpr AddressColumns kWorkEnglish = {"Business Street", "Business Postal Code",
                                         "Business City"};
constexpr Telling kOutlookComTelling[] = {"Given Yomi", "Home Phone", "Mobile Phone"};
constexpr Telling kOutlookEnglishTelling[] = {"First Name", "Last Name", "Business Phone",
                                              "Home Phone", "Mobile Phone"};

// Each number has its kind in a column beside it.
constexpr NumberColumn kGoogleNumbers[] = {
    {"Phone 1 - Value", kOther}, {"Phone 2 - Value", kOther}, {"Phone 3 - Value", kOther},
    {"Phone 4 - Value", kOther}, {"Phone 5 - Value", kOther}, {"Phone 6 - Value", kOther},
    {"Phone 7 - Value", kOther}, {"Phone 8 - Value", kOther}, {"Phone 9 - Value", kOther},
};
constexpr AddressColumns kGoogleAddress = {"Address 1 - Street", "Address 1 - Postal Code",
                                           "Address 1 - City"};
constexpr Telling kGoogleNewTelling[] = {"First Name", "Last Name", "Phone 1 - Value"};
constexpr Telling kGoogleOldTelling[] = {"Given Name", "Family Name", "Phone 1 - Value"};

constexpr Telling kMailEnglishTelling[] = {"First Name", "Last Name", "Work Phone", "Home Phone",
                                           "Mobile Number"};
constexpr NumberColumn kMailEnglishNumbers[] = {
    {"Mobile Number", kMobile}, {"Home Phone", kHome},    {"Work Phone", kWork},
    {"Fax Number", kHomeFax},   {"Pager Number", kOther},
};
constexpr Telling kMailGermanTelling[] = {"Vorname", "Nachname", "Tel. dienstlich", "Tel. privat"};
constexpr NumberColumn kMailGermanNumbers[] = {
    {"Mobil-Tel.-Nr.", kMobile}, {"Tel. privat", kHome},   {"Tel. dienstlich", kWork},
    {"Fax-Nummer", kHomeFax},    {"Pager-Nummer", kOther},
};

constexpr Telling kYahooTelling[] = {"First", "Last", "Yahoo! Phone"};
constexpr NumberColumn kYahooNumbers[] = {
    {"Mobile", kMobile}, {"Home", kHome},          {"Work", kWork},   {"Primary", kOther},
    {"Other", kOther},   {"Yahoo! Phone", kOther}, {"Fax", kHomeFax}, {"Pager", kOther},
};

constexpr Telling kMacTelling[] = {"Vorname", "Nachname", "Arbeit Telefon", "Privat Telefon"};
constexpr NumberColumn kMacNumbers[] = {
    {"Mobiltelefon", kMobile}, {"Privat Telefon", kHome},        {"Arbeit Telefon", kWork},
    {"Hauptnummer", kOther},   {"Andere Telefonnummer", kOther}, {"Privat Fax", kHomeFax},
    {"Arbeit Fax", kWorkFax},  {"Pager Nummer", kOther},
};

constexpr Telling kWebMailTelling[] = {"Display Name", "Home Mobile", "Home Phone",
                                       "Business Phone"};
constexpr NumberColumn kWebMailNumbers[] = {
    {"Home Mobile", kMobile}, {"Home Phone", kHome},       {"Business Phone", kWork},
    {"Home Phone 2", kHome},  {"Business Phone 2", kWork}, {"Primary Phone", kOther},
    {"Car Phone", kOther},    {"Other Phone", kOther},     {"Assistant's Phone", kOther},
    {"Phone Video", kOther},  {"Home Fax", kHomeFax},      {"Business Fax", kWorkFax},
    {"Pager", kOther},
};

constexpr Telling kRouterTelling[] = {"Typ", "Datum", "Name", "Rufnummer", "Nebenstelle"};
constexpr NumberColumn kRouterNumbers[] = {{"Rufnummer", kOther}};

constexpr Telling kListTelling[] = {"NAME", "VORNAME", "TELEFON", "MOBILFON"};
constexpr NumberColumn kListNumbers[] = {
    {"MOBILFON", kMobile},
    {"TELEFON", kOther},
    {"TELEFAX", kHomeFax},
};

constexpr KnownExport kKnownExports[] = {
    {.name = "Outlook",
     .telling = kOutlookGermanTelling,
     .last_name = "Nachname",
     .first_name = "Vorname",
     .display_name = {},
     .company = "Firma",
     .numbers = kOutlookGermanNumbers,
     .home = {u8"Straße privat"_de, "Postleitzahl privat", "Ort privat"},
     .work = {u8"Straße geschäftlich"_de, u8"Postleitzahl geschäftlich"_de,
              u8"Ort geschäftlich"_de}},
    {.name = "Outlook.com",
     .telling = kOutlookComTelling,
     .last_name = "Last Name",
     .first_name = "First Name",
     .display_name = {},
     .company = "Company",
     .numbers = kOutlookEnglishNumbers,
     .home = kHomeEnglish,
     .work = kWorkEnglish},
    {.name = "Web-Mail",
     .telling = kWebMailTelling,
     .last_name = "Last Name",
     .first_name = "First Name",
     .display_name = "Display Name",
     .company = "Company",
     .numbers = kWebMailNumbers,
     .home = {"Home Street", "Home Zip", "Home City"},
     .work = {"Business Street", "Work Zip", "Work City"}},
    {.name = "Outlook (englisch)",
     .telling = kOutlookEnglishTelling,
     .last_name = "Last Name",
     .first_name = "First Name",
     .display_name = {},
     .company = "Company",
     .numbers = kOutlookEnglishNumbers,
     .home = kHomeEnglish,
     .work = kWorkEnglish},
    {.name = kLabelledExport,
     .telling = kGoogleNewTelling,
     .last_name = "Last Name",
     .first_name = "First Name",
     .display_name = "File As",
     .company = "Organization Name",
     .numbers = kGoogleNumbers,
     .home = kGoogleAddress,
     .work = {}},
    {.name = kLabelledExport,
     .telling = kGoogleOldTelling,
     .last_name = "Family Name",
     .first_name = "Given Name",
     .display_name = "Name",
     .company = "Organization 1 - Name",
     .numbers = kGoogleNumbers,
     .home = kGoogleAddress,
     .work = {}},
    {.name = "Thunderbird",
     .telling = kMailEnglishTelling,
     .last_name = "Last Name",
     .first_name = "First Name",
     .display_name = "Display Name",
     .company = "Organization",
     .numbers = kMailEnglishNumbers,
     .home = {"Home Address", "Home ZipCode", "Home City"},
     .work = {"Work Address", "Work ZipCode", "Work City"}},
    {.name = "Thunderbird",
     .telling = kMailGermanTelling,
     .last_name = "Nachname",
     .first_name = "Vorname",
     .display_name = "Anzeigename",
     .company = "Organisation",
     .numbers = kMailGermanNumbers,
     .home = {"Privat: Adresse", "Privat: PLZ", "Privat: Ort"},
     .work = {"Dienstlich: Adresse", "Dienstlich: PLZ", "Dienstlich: Ort"}},
    {.name = "Yahoo",
     .telling = kYahooTelling,
     .last_name = "Last",
     .first_name = "First",
     .display_name = {},
     .company = "Company",
     .numbers = kYahooNumbers,
     .home = {"Home Address", "Home ZIP", "Home City"},
     .work = {"Work Address", "Work ZIP", "Work City"}},
    {.name = "macOS-Adressbuch",
     .telling = kMacTelling,
     .last_name = "Nachname",
     .first_name = "Vorname",
     .display_name = {},
     .company = "Firma",
     .numbers = kMacNumbers,
     .home = {"Andere Adr. Strasse", "Andere Adr. PLZ", "Andere Adr. Stadt"},
     .work = {"Arbeitsadresse Strasse", "Arbeitsadresse PLZ", "Arbeitsadresse Stadt"}},
    {.name = "Anrufliste des Routers",
     .telling = kRouterTelling,
     .last_name = {},
     .first_name = {},
     .display_name = "Name",
     .company = {},
     .numbers = kRouterNumbers,
     .home = {},
     .work = {}},
    {.name = "Telefonliste",
     .telling = kListTelling,
     .last_name = "NAME",
     .first_name = "VORNAME",
     .display_name = "BEZCHNG",
     .company = "FIRMA",
     .numbers = kListNumbers,
     .home = {"STRASSE", "PLZ", "ORT"},
     .work = {}},
};

}  // namespace

std::span<const KnownExport> known_exports() { return kKnownExports; }

}  // namespace quenda
