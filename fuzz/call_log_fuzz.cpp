// Lines of a call log: what is found is a part of the line, a name that is none and a number.
#include <cstdint>
#include <string_view>

#include "fuzz/oracle.h"
#include "sources/ispy_log.h"
#include "text/conversions.h"
#include "text/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quenda;
  for (const std::string_view line : split(text_of(data, size), kCrLf)) {
    const auto caller = ispy_caller(line);
    if (!caller) continue;
    expect("number between its marks",
           line.find(concat("[#", caller->number, "]")) != line.npos && is_numeric(caller->number));
    expect("name from the line", line.find(caller->name) != line.npos);
    expect("name without placeholder", caller->name.find_first_of("<>") == caller->name.npos);
    expect("name is no number", !is_numeric(caller->name));
  }
  return 0;
}
