#include "settings/ini/ini_text.h"
#include "tests/settings/ini/ini_profile.h"

namespace quenda::ini_profile {

std::string text(const std::string& content, const std::string& section, const std::string& key,
                 const std::string& standard) {
  return IniText(content).text(section, key, standard);
}

std::int32_t number(const std::string& content, const std::string& section, const std::string& key,
                    std::int32_t standard) {
  return IniText(content).number(section, key, standard);
}

std::string written(const std::string& content, const std::string& section, const std::string& key,
                    const std::string& value) {
  return replace_ini_value(content, section, key, value);
}

}  // namespace quenda::ini_profile
