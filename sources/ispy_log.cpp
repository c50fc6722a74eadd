#include "sources/ispy_log.h"

#include "text/conversions.h"
#include "text/text.h"

namespace quenda {

std::optional<IspyCaller> ispy_caller(std::string_view line) {
  constexpr std::string_view kNumberMark = "[#";
  const auto first_blank = line.find(' ');
  if (first_blank == line.npos) return std::nullopt;
  const auto second_blank = line.find(' ', first_blank + 1);
  if (second_blank == line.npos) return std::nullopt;
  const std::string_view rest = line.substr(second_blank);
  const auto bracket = rest.find('[');
  const auto mark = line.find(kNumberMark);
  if (bracket == rest.npos || mark == line.npos) return std::nullopt;
  const std::string_view after_mark = line.substr(mark + kNumberMark.size());
  const auto end = after_mark.find(']');
  if (end == after_mark.npos) return std::nullopt;

  const IspyCaller caller{trim(rest.substr(0, bracket)), after_mark.substr(0, end)};
  const bool placeholder = caller.name.find_first_of("<>") != caller.name.npos;
  if (placeholder || !is_numeric(caller.number) || is_numeric(caller.name)) return std::nullopt;
  return caller;
}

}  // namespace quenda
