#include "settings/import_settings.h"

#include <span>

#include "settings/modAPI_INI.h"
#include "support/procedure.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kSuiteSettings;  // no name stands for the suite's main settings file

struct NumberSetting {
  std::string_view section;
  std::string_view key;
  std::int32_t standard;
  std::int32_t min;
  std::int32_t max;  // 0 for no bound
  std::int32_t& (*field)(ImportSettings& settings);
};

struct TextSetting {
  std::string_view key;
  std::string_view standard;
  std::string& (*field)(ImportSettings& settings);
};

template <auto Member>
constexpr auto kField = [](ImportSettings& settings) -> auto& {
  return settings.*Member;
};

template <std::size_t Row, std::size_t Box>
constexpr auto kAddCheck = [](ImportSettings& settings) -> auto& {
  return settings.add_check[Row][Box];
};

constexpr std::array kGeneralNumbers = {
    NumberSetting{"General", "LogCount", 25, 10, 1000, kField<&ImportSettings::log_count>},
    NumberSetting{"General", "BackupCount", 9, 0, 9, kField<&ImportSettings::backup_count>},
};
constexpr std::array kGeneralTexts = {
    TextSetting{"myVWL", "49", kField<&ImportSettings::own_country_code>},
    TextSetting{"myVWO", "", kField<&ImportSettings::own_area_code>},
};
constexpr std::array kPosition = {
    NumberSetting{"Dimensions", "ImportTop", 500, 0, 0, kField<&ImportSettings::top>},
    NumberSetting{"Dimensions", "ImportLeft", 500, 0, 0, kField<&ImportSettings::left>},
};
constexpr std::array kPageNumbers = {
    NumberSetting{"Import", "Ask", 0, 0, 2, kField<&ImportSettings::ask>},
    NumberSetting{"Import", "Len", 1, 0, 1, kField<&ImportSettings::min_name_length>},
    NumberSetting{"Import", "OlNameFlip", 0, 0, 1, kField<&ImportSettings::ol_name_flip>},
    NumberSetting{"Import", "OlAdrFlip", 0, 0, 1, kField<&ImportSettings::ol_address_flip>},
};
constexpr std::array kPageTexts = {
    TextSetting{"OlNumber", "10010010000", kField<&ImportSettings::ol_number>},
    TextSetting{"OlAdress", "10010000000000", kField<&ImportSettings::ol_adress>},
};
constexpr std::array kHeaderNumbers = {
    NumberSetting{"Import", "NameFlip", 0, 0, 1, kField<&ImportSettings::name_flip>},
    NumberSetting{"Import", "AdrFlip", 0, 0, 5, kField<&ImportSettings::address_flip>},
    NumberSetting{"Import", "AddChk11", 0, 0, 1, kAddCheck<0, 0>},
    NumberSetting{"Import", "AddChk12", 0, 0, 1, kAddCheck<0, 1>},
    NumberSetting{"Import", "AddChk21", 0, 0, 1, kAddCheck<1, 0>},
    NumberSetting{"Import", "AddChk22", 0, 0, 1, kAddCheck<1, 1>},
    NumberSetting{"Import", "AddChk31", 0, 0, 1, kAddCheck<2, 0>},
    NumberSetting{"Import", "AddChk32", 0, 0, 1, kAddCheck<2, 1>},
};
struct SelectionSetting {
  std::string_view key;
  std::size_t columns;  // numbered from 1
};
constexpr std::array<SelectionSetting, kRememberedKinds> kSelections = {
    {{"SelNames", 2}, {"SelNumbers", 3}, {"SelAddress1", 3}, {"SelAddress2", 3}}};

std::string numbered(std::string_view key, std::size_t position) {
  return concat(key, std::to_string(position + 1));
}

void load_numbers(modAPI_INI& ini, ImportSettings& settings, std::span<const NumberSetting> table,
                  std::string_view file) {
  for (const NumberSetting& entry : table) {
    skip_faults({[&] {
      // Both bounds 0 would mean no clamping at all to the reader.
      const std::int32_t value =
          ini.GetSettLng(entry.section, entry.key, entry.standard, 0, 0, false, file);
      entry.field(settings) = ini.Range(entry.min, entry.max, value, false, entry.standard);
    }});
  }
}

void save_numbers(modAPI_INI& ini, const ImportSettings& settings,
                  std::span<const NumberSetting> table) {
  ImportSettings copy = settings;
  for (const NumberSetting& entry : table) {
    ini.SetSettStr(entry.section, entry.key, std::to_string(entry.field(copy)),
                   kImportSettingsFile);
  }
}

void load_texts(modAPI_INI& ini, ImportSettings& settings, std::span<const TextSetting> table,
                std::string_view section, std::string_view file) {
  for (const TextSetting& entry : table) {
    skip_faults({[&] {
      entry.field(settings) =
          ini.GetSettStr(section, entry.key, entry.standard, file, false, false);
    }});
  }
}

std::string load_import_text(modAPI_INI& ini, std::string_view key, std::string_view standard) {
  return ini.GetSettStr("Import", key, standard, kImportSettingsFile, false, false);
}

void save_import_text(modAPI_INI& ini, std::string_view key, std::string_view value) {
  ini.SetSettStr("Import", key, value, kImportSettingsFile);
}

}  // namespace

void load_general_values(modAPI_INI& ini, ImportSettings& settings) {
  load_texts(ini, settings, kGeneralTexts, "General", kSuiteSettings);
  load_numbers(ini, settings, kGeneralNumbers, kSuiteSettings);
}

void load_window_position(modAPI_INI& ini, ImportSettings& settings) {
  load_numbers(ini, settings, kPosition, kImportSettingsFile);
}

void load_page_options(modAPI_INI& ini, ImportSettings& settings) {
  load_numbers(ini, settings, kPageNumbers, kImportSettingsFile);
  load_texts(ini, settings, kPageTexts, "Import", kImportSettingsFile);
}

void load_selections(modAPI_INI& ini, ImportSettings& settings) {
  for (std::size_t kind = 0; kind < kRememberedKinds; ++kind) {
    settings.selection_counts[kind] = 0;
    for (std::size_t i = 0; i < kSelections[kind].columns; ++i) {
      skip_faults({[&] {
        std::string& text = settings.selections[kind][i];
        text = load_import_text(ini, numbered(kSelections[kind].key, i), "");
        if (!text.empty()) ++settings.selection_counts[kind];
      }});
    }
  }
}

void load_header_options(modAPI_INI& ini, ImportSettings& settings) {
  load_numbers(ini, settings, kHeaderNumbers, kImportSettingsFile);
  for (std::size_t i = 0; i < settings.name_ext.size(); ++i) {
    skip_faults({[&] {
      settings.name_ext[i] = load_import_text(ini, numbered("NameExt", i), settings.name_ext[i]);
    }});
  }
}

void save_window_position(modAPI_INI& ini, const ImportSettings& settings) {
  save_numbers(ini, settings, kPosition);
}

void save_page_options(modAPI_INI& ini, const ImportSettings& settings) {
  save_numbers(ini, settings, kPageNumbers);
  save_import_text(ini, "OlNumber", settings.ol_number);
  save_import_text(ini, "OlAdress", settings.ol_adress);
  for (std::size_t i = 0; i < settings.ol_name_ext.size(); ++i) {
    save_import_text(ini, numbered("OLNameExt", i), settings.ol_name_ext[i]);
  }
}

void save_selections(modAPI_INI& ini, const ImportSettings& settings) {
  for (std::size_t kind = 0; kind < kRememberedKinds; ++kind) {
    const auto count = static_cast<std::size_t>(settings.selection_counts[kind]);
    for (std::size_t i = 0; i < kSelections[kind].columns; ++i) {
      save_import_text(ini, numbered(kSelections[kind].key, i),
                       i < count ? settings.selections[kind][i] : std::string());
    }
  }
}

void save_header_options(modAPI_INI& ini, const ImportSettings& settings) {
  save_numbers(ini, settings, kHeaderNumbers);
  for (std::size_t i = 0; i < settings.name_ext.size(); ++i) {
    save_import_text(ini, numbered("NameExt", i), settings.name_ext[i]);
  }
}

}  // namespace quenda
