#pragma once

#include <cstdint>
#include <string>

namespace quenda {

/// The profile functions as the contract sees them, on the bytes of a file. Two programs carry them
/// out: the tool's own reader, and Windows.
namespace ini_profile {

std::string text(const std::string& content, const std::string& section, const std::string& key,
                 const std::string& standard);
std::int32_t number(const std::string& content, const std::string& section, const std::string& key,
                    std::int32_t standard);
/// The bytes of the file after the value has been set.
std::string written(const std::string& content, const std::string& section, const std::string& key,
                    const std::string& value);

}  // namespace ini_profile
}  // namespace quenda
