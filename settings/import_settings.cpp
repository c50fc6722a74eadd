#include "settings/import_settings.h"

#include <algorithm>
#include <array>

#include "settings/modAPI_INI.h"
#include "support/procedure.h"

namespace quenda {
namespace {

/// What is read or written together.
enum class Group { kGeneral, kPosition, kPage, kSelections, kHeader };

/// Where a group lies; no file name stands for the suite's main settings file.
struct Home {
  std::string_view file;
  std::string_view section;
};
constexpr Home home_of(Group group) {
  if (group == Group::kGeneral) return {"", "General"};
  return {kImportSettingsFile, group == Group::kPosition ? "Dimensions" : "Import"};
}

/// One remembered value: its key, the field that holds it, and what a number is bound to.
struct Setting {
  Group group;
  std::string_view key;
  std::int32_t& (*number)(ImportSettings& settings) = nullptr;
  std::int32_t standard = 0;
  std::int32_t min = 0;
  std::int32_t max = 0;  // 0 for no bound
  std::string& (*text)(ImportSettings& settings) = nullptr;
  std::string_view text_standard = {};
  bool keeps_text = false;    // the default is the text that the field has
  bool only_written = false;  // never read back
  bool only_read = false;     // set by hand
  bool optional = false;      // not written as long as it has its default and is not in the file
};

template <auto Member>
constexpr auto kField = [](ImportSettings& settings) -> auto& {
  return settings.*Member;
};
template <auto Member, std::size_t At>
constexpr auto kElement = [](ImportSettings& settings) -> auto& {
  return (settings.*Member)[At];
};
template <auto Member, std::size_t Row, std::size_t At>
constexpr auto kCell = [](ImportSettings& settings) -> auto& {
  return (settings.*Member)[Row][At];
};
template <std::size_t Row, std::size_t Box>
constexpr auto kAddCheck = kCell<&ImportSettings::add_check, Row, Box>;
template <std::size_t Kind, std::size_t Slot>
constexpr auto kColumn = kCell<&ImportSettings::selections, Kind, Slot>;
template <std::size_t Box>
constexpr auto kSuffix = kElement<&ImportSettings::name_ext, Box>;
template <std::size_t Kind>
constexpr auto kOutlookSuffix = kElement<&ImportSettings::ol_name_ext, Kind>;

constexpr Setting number(Group group, std::string_view key, std::int32_t standard, std::int32_t min,
                         std::int32_t max, std::int32_t& (*field)(ImportSettings&)) {
  return {
      .group = group, .key = key, .number = field, .standard = standard, .min = min, .max = max};
}
constexpr Setting text(Group group, std::string_view key, std::string_view standard,
                       std::string& (*field)(ImportSettings&)) {
  return {.group = group, .key = key, .text = field, .text_standard = standard};
}
constexpr Setting option(std::string_view key, std::int32_t& (*field)(ImportSettings&)) {
  return {.group = Group::kPage, .key = key, .number = field, .max = 1, .optional = true};
}
constexpr Setting set_by_hand(std::string_view key, std::string& (*field)(ImportSettings&)) {
  return {.group = Group::kPage, .key = key, .text = field, .only_read = true};
}
constexpr Setting suffix(std::string_view key, std::string& (*field)(ImportSettings&)) {
  return {.group = Group::kHeader, .key = key, .text = field, .keeps_text = true};
}
constexpr Setting outlook_suffix(std::string_view key, std::string& (*field)(ImportSettings&)) {
  return {.group = Group::kPage, .key = key, .text = field, .only_written = true};
}

constexpr std::array kSettings = {
    text(Group::kGeneral, "myVWL", "49", kField<&ImportSettings::own_country_code>),
    text(Group::kGeneral, "myVWO", "", kField<&ImportSettings::own_area_code>),
    number(Group::kGeneral, "LogCount", 25, 10, 1000, kField<&ImportSettings::log_count>),
    number(Group::kGeneral, "BackupCount", 9, 0, 9, kField<&ImportSettings::backup_count>),

    number(Group::kPosition, "ImportTop", 500, 0, 0, kField<&ImportSettings::top>),
    number(Group::kPosition, "ImportLeft", 500, 0, 0, kField<&ImportSettings::left>),
    Setting{.group = Group::kPosition,
            .key = "ImportPreviewBorder",
            .number = kField<&ImportSettings::preview_border>,
            .max = 1000,
            .optional = true},

    number(Group::kPage, "Ask", 0, 0, 2, kField<&ImportSettings::ask>),
    number(Group::kPage, "Len", 1, 0, 1, kField<&ImportSettings::min_name_length>),
    number(Group::kPage, "OlNameFlip", 0, 0, 1, kField<&ImportSettings::ol_name_flip>),
    number(Group::kPage, "OlAdrFlip", 0, 0, 1, kField<&ImportSettings::ol_address_flip>),
    text(Group::kPage, "OlNumber", "10010010000", kField<&ImportSettings::ol_number>),
    text(Group::kPage, "OlAdress", "10010000000000", kField<&ImportSettings::ol_adress>),
    option("Convert", kField<&ImportSettings::convert>),
    option("Backup", kField<&ImportSettings::backup>),
    set_by_hand("Report", kField<&ImportSettings::report>),
    outlook_suffix("OLNameExt1", kOutlookSuffix<0>),
    outlook_suffix("OLNameExt2", kOutlookSuffix<1>),
    outlook_suffix("OLNameExt3", kOutlookSuffix<2>),
    outlook_suffix("OLNameExt4", kOutlookSuffix<3>),
    outlook_suffix("OLNameExt5", kOutlookSuffix<4>),
    outlook_suffix("OLNameExt6", kOutlookSuffix<5>),
    outlook_suffix("OLNameExt7", kOutlookSuffix<6>),
    outlook_suffix("OLNameExt8", kOutlookSuffix<7>),
    outlook_suffix("OLNameExt9", kOutlookSuffix<8>),
    outlook_suffix("OLNameExt10", kOutlookSuffix<9>),
    outlook_suffix("OLNameExt11", kOutlookSuffix<10>),

    text(Group::kSelections, "SelNames1", "", kColumn<0, 0>),
    text(Group::kSelections, "SelNames2", "", kColumn<0, 1>),
    text(Group::kSelections, "SelNumbers1", "", kColumn<1, 0>),
    text(Group::kSelections, "SelNumbers2", "", kColumn<1, 1>),
    text(Group::kSelections, "SelNumbers3", "", kColumn<1, 2>),
    text(Group::kSelections, "SelAddress11", "", kColumn<2, 0>),
    text(Group::kSelections, "SelAddress12", "", kColumn<2, 1>),
    text(Group::kSelections, "SelAddress13", "", kColumn<2, 2>),
    text(Group::kSelections, "SelAddress21", "", kColumn<3, 0>),
    text(Group::kSelections, "SelAddress22", "", kColumn<3, 1>),
    text(Group::kSelections, "SelAddress23", "", kColumn<3, 2>),

    number(Group::kHeader, "NameFlip", 0, 0, 1, kField<&ImportSettings::name_flip>),
    number(Group::kHeader, "AdrFlip", 0, 0, 5, kField<&ImportSettings::address_flip>),
    number(Group::kHeader, "AddChk11", 0, 0, 1, kAddCheck<0, 0>),
    number(Group::kHeader, "AddChk12", 0, 0, 1, kAddCheck<0, 1>),
    number(Group::kHeader, "AddChk21", 0, 0, 1, kAddCheck<1, 0>),
    number(Group::kHeader, "AddChk22", 0, 0, 1, kAddCheck<1, 1>),
    number(Group::kHeader, "AddChk31", 0, 0, 1, kAddCheck<2, 0>),
    number(Group::kHeader, "AddChk32", 0, 0, 1, kAddCheck<2, 1>),
    suffix("NameExt1", kSuffix<0>),
    suffix("NameExt2", kSuffix<1>),
    suffix("NameExt3", kSuffix<2>),
};

void load(modAPI_INI& ini, ImportSettings& settings, const Setting& entry) {
  const Home home = home_of(entry.group);
  if (entry.number != nullptr) {
    // Both bounds 0 would mean no clamping at all to the reader.
    const std::int32_t value =
        ini.GetSettLng(home.section, entry.key, entry.standard, 0, 0, false, home.file);
    entry.number(settings) = ini.Range(entry.min, entry.max, value, false, entry.standard);
    return;
  }
  std::string& field = entry.text(settings);
  const std::string standard = entry.keeps_text ? field : std::string(entry.text_standard);
  field = ini.GetSettStr(home.section, entry.key, standard, home.file, false, false);
}

void load(modAPI_INI& ini, ImportSettings& settings, Group group) {
  for (const Setting& entry : kSettings) {
    if (entry.group != group || entry.only_written) continue;
    skip_faults({[&] { load(ini, settings, entry); }});
  }
}

void save(modAPI_INI& ini, const ImportSettings& settings, Group group) {
  ImportSettings copy = settings;
  const Home home = home_of(group);
  for (const Setting& entry : kSettings) {
    if (entry.group != group || entry.only_read) continue;
    const std::string value =
        entry.number != nullptr ? std::to_string(entry.number(copy)) : entry.text(copy);
    const bool standard = entry.optional && entry.number(copy) == entry.standard;
    if (standard && ini.GetSettStr(home.section, entry.key, "", home.file, false, false).empty()) {
      continue;
    }
    ini.SetSettStr(home.section, entry.key, value, home.file);
  }
}

}  // namespace

void load_general_values(modAPI_INI& ini, ImportSettings& settings) {
  load(ini, settings, Group::kGeneral);
}

void load_window_position(modAPI_INI& ini, ImportSettings& settings) {
  load(ini, settings, Group::kPosition);
}

void load_page_options(modAPI_INI& ini, ImportSettings& settings) {
  load(ini, settings, Group::kPage);
}

void load_selections(modAPI_INI& ini, ImportSettings& settings) {
  load(ini, settings, Group::kSelections);
  for (std::size_t kind = 0; kind < kRememberedKinds; ++kind) {
    settings.selection_counts[kind] = 0;
    for (const std::string& column : settings.selections[kind]) {
      if (!column.empty()) ++settings.selection_counts[kind];
    }
  }
}

void load_header_options(modAPI_INI& ini, ImportSettings& settings) {
  load(ini, settings, Group::kHeader);
}

void save_window_position(modAPI_INI& ini, const ImportSettings& settings) {
  save(ini, settings, Group::kPosition);
}

void save_page_options(modAPI_INI& ini, const ImportSettings& settings) {
  save(ini, settings, Group::kPage);
}

void save_selections(modAPI_INI& ini, const ImportSettings& settings) {
  ImportSettings counted = settings;
  for (std::size_t kind = 0; kind < kRememberedKinds; ++kind) {
    auto& columns = counted.selections[kind];
    std::fill(columns.begin() + settings.selection_counts[kind], columns.end(), std::string());
  }
  save(ini, counted, Group::kSelections);
}

void save_header_options(modAPI_INI& ini, const ImportSettings& settings) {
  save(ini, settings, Group::kHeader);
}

}  // namespace quenda
