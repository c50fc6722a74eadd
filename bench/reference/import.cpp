// The measured import with a packaged CSV reader and the standard library's hash set.
#include <libfccp/csv.h>

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unordered_set>

namespace {

std::string dialled(const char* number) {
  std::string result;
  for (; *number != '\0'; ++number) {
    if (*number == '+') {
      result += "00";
    } else if (std::string_view(" -()/").find(*number) == std::string_view::npos) {
      result += *number;
    }
  }
  if (result.starts_with("0049")) {
    for (auto at = result.find("0049"); at != result.npos; at = result.find("0049", at)) {
      result.erase(at, 4);
    }
    result.insert(0, 1, '0');
  }
  return result;
}

}  // namespace

int main(int /*argc*/, char** argv) {
  std::ifstream book(argv[2], std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(book), {}};
  std::unordered_set<std::string> numbers;
  for (std::size_t line = 0; line < text.size(); line = text.find("\r\n", line) + 2) {
    const std::size_t start = text.find(';', line) + 1;
    numbers.insert(text.substr(start, text.find(';', start) - start));
  }

  io::CSVReader<8, io::trim_chars<>, io::double_quote_escape<';', '"'>> contacts(argv[1]);
  contacts.next_line();
  char *surname, *name, *phone, *street, *postal_code, *city, *customer, *remark;
  std::string fresh;
  while (contacts.read_row(surname, name, phone, street, postal_code, city, customer, remark)) {
    std::string number = dialled(phone);
    if (number.size() < 8) continue;
    if (const auto [place, added] = numbers.insert(std::move(number)); added) {
      fresh.append(surname).append(" ").append(name).append(";").append(*place);
      fresh.append(";0;0;0;0;").append(postal_code).append(" ").append(city);
      fresh.append(";;[vcd()vcd]\r\n");
    }
  }
  std::ofstream(argv[2], std::ios::binary | std::ios::app) << fresh;
}
