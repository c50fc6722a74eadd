#include "sources/ispy_log.h"

#include "text/conversions.h"
#include "text/text.h"

namespace quenda {

IspyLine read_ispy_line(std::string_view line) {
  constexpr std::string_view kNumberMark = "[#";
  IspyLine parts;
  const auto mark = line.find(kNumberMark);
  if (mark == line.npos) return parts;
  const std::string_view after_mark = line.substr(mark + kNumberMark.size());
  const auto end = after_mark.find(']');
  if (end == after_mark.npos) return parts;
  parts.number = after_mark.substr(0, end);

  const auto first_blank = line.find(' ');
  if (first_blank == line.npos) return parts;
  const auto second_blank = line.find(' ', first_blank + 1);
  if (second_blank == line.npos) return parts;
  const std::string_view rest = line.substr(second_blank);
  const auto bracket = rest.find('[');
  if (bracket == rest.npos) return parts;
  parts.name = trim(rest.substr(0, bracket));
  parts.well_formed = true;
  return parts;
}

bool usable_caller_name(std::string_view name) {
  return name.find_first_of("<>") == name.npos && !is_numeric(name);
}

std::optional<IspyCaller> ispy_caller(std::string_view line) {
  const IspyLine parts = read_ispy_line(line);
  if (!parts.well_formed || !is_numeric(parts.number) || !usable_caller_name(parts.name)) {
    return std::nullopt;
  }
  return IspyCaller{parts.name, parts.number};
}

}  // namespace quenda
