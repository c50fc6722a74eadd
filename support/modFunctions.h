#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quenda {

class clsErrorHandling;

/// The text functions that forms share, as procedures that report their faults. Other programs of
/// the suite use them; this one calls the functions themselves.
namespace modFunctions {

/// `strip_characters`; empty after a fault.
std::string fStringClear(clsErrorHandling& errors, std::string_view text,
                         std::string_view characters, std::string_view replacement);

/// `count_occurrences`; 0 after a fault.
std::size_t fAnzahlZeichen(clsErrorHandling& errors, std::string_view text, std::string_view part);

}  // namespace modFunctions
}  // namespace quenda
