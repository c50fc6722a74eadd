#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quenda {

class modAPI_INI;

/// What columns are remembered for: names, numbers, address 1 and address 2, up to three columns
/// each.
inline constexpr std::size_t kRememberedKinds = 4;
using RememberedColumns = std::array<std::array<std::string, 3>, kRememberedKinds>;

/// Number boxes of the Outlook page, and characters of its address text.
inline constexpr std::size_t kOutlookNumbers = 11;
inline constexpr std::size_t kOutlookAddresses = 14;

/// What the tool remembers from one run to the next, as values. What has not been loaded has its
/// default.
struct ImportSettings {
  // The suite's general settings; read only.
  std::string own_country_code = "49";
  std::string own_area_code;
  /// As they are dialled: "0049" and "030".
  [[nodiscard]] std::string dialled_country_code() const { return "00" + own_country_code; }
  [[nodiscard]] std::string dialled_area_code() const { return "0" + own_area_code; }
  std::int32_t log_count = 25;
  std::int32_t backup_count = 9;

  // Position of the main window in twips.
  std::int32_t top = 500;
  std::int32_t left = 500;
  // How much of the page of columns lies above its preview, in thousandths; 0 as designed.
  std::int32_t preview_border = 0;

  // The merge and the Outlook page.
  std::int32_t ask = 0;
  std::int32_t min_name_length = 1;  // 1 keeps names below 3 characters out
  std::int32_t convert = 0;          // 1 adapts files of other encodings and kinds
  std::int32_t backup = 0;           // 1 copies the book before it is written
  std::string report;                // file that tells of every number; set by hand
  std::int32_t ol_name_flip = 0;
  std::int32_t ol_address_flip = 0;
  std::string ol_number = "10010010000";                 // one "1" or "0" per number box
  std::string ol_adress = "10010000000000";              // one "1" or "0" per address box
  std::array<std::string, kOutlookNumbers> ol_name_ext;  // saved and never read back

  // The header texts of the chosen columns, and how many there are.
  RememberedColumns selections;
  std::array<std::int32_t, kRememberedKinds> selection_counts{};

  // The header pages. A suffix that is not in the file keeps the text that it has here.
  std::int32_t name_flip = 0;
  std::int32_t address_flip = 0;
  std::array<std::string, 3> name_ext;
  std::array<std::array<std::int32_t, 2>, 3> add_check{};
};

/// The tool's own settings file.
inline constexpr std::string_view kImportSettingsFile = "\\data\\sett_import.ini";

/// Each reads its group and leaves the rest alone. A value that cannot be read is left out, or
/// else it would cost all those behind it.
void load_general_values(modAPI_INI& ini, ImportSettings& settings);
void load_window_position(modAPI_INI& ini, ImportSettings& settings);
void load_page_options(modAPI_INI& ini, ImportSettings& settings);
void load_selections(modAPI_INI& ini, ImportSettings& settings);
void load_header_options(modAPI_INI& ini, ImportSettings& settings);

void save_window_position(modAPI_INI& ini, const ImportSettings& settings);
void save_page_options(modAPI_INI& ini, const ImportSettings& settings);
/// Of each kind as many texts as its count says, the rest empty.
void save_selections(modAPI_INI& ini, const ImportSettings& settings);
void save_header_options(modAPI_INI& ini, const ImportSettings& settings);

}  // namespace quenda
