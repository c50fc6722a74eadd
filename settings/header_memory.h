#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/import_settings.h"

namespace quenda {

class modAPI_INI;

/// How many headers are remembered.
inline constexpr int kMostHeaders = 20;

/// What was chosen for a file with a certain header, so that sources taken in turn need not be
/// asked about each time.
struct HeaderChoice {
  std::array<std::vector<std::size_t>, kRememberedKinds> columns;  // positions in the header
  std::int32_t name_flip = 0;
  std::int32_t address_flip = 0;
  std::array<std::array<std::int32_t, 2>, 3> add_check{};
  std::array<std::string, 3> suffixes;
};

/// A choice as one line of the settings, with what tells its header from others.
std::string header_choice_text(const std::vector<std::string>& header, const HeaderChoice& choice);

/// The choice that such a line has for this header; nothing for one of another header, or one that
/// makes no sense.
std::optional<HeaderChoice> read_header_choice(const std::vector<std::string>& header,
                                               std::string_view line);

/// The choice made the last time for this header.
std::optional<HeaderChoice> load_header_choice(modAPI_INI& ini,
                                               const std::vector<std::string>& header);

/// Remembers a choice as the newest; the oldest gives way.
void save_header_choice(modAPI_INI& ini, const std::vector<std::string>& header,
                        const HeaderChoice& choice);

}  // namespace quenda
