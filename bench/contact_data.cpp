#include "bench/contact_data.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::size_t kBytesPerRow = 110;
constexpr std::array<std::string_view, 12> kNames = {
    "Br\xFC"
    "ckner",
    "Petersen",
    "Mayr",
    "Wei\xDF",
    "Dvorak",
    "Falk",
    "Kr\xFCger",
    "Jansen",
    "Li",
    "Schmidt",
    "von Heide",
    "L\xFCttich"};
constexpr std::array<std::string_view, 8> kFirstNames = {
    "Anneliese", "J\xF6rg", "Maren", "Otto", "Marlene", "Karl-Heinz", "Ida", "Piet"};
constexpr std::array<std::string_view, 6> kStreets = {"Gartenweg",
                                                      "M\xFChlgasse",
                                                      "Lindenallee",
                                                      "Poststra\xDF"
                                                      "e",
                                                      "Am Markt",
                                                      "Deichweg"};
constexpr std::array<std::string_view, 6> kTowns = {"Berlin",  "M\xFCnchen", "K\xF6ln",
                                                    "Hamburg", "Frankfurt",  "Leipzig"};

/// Numbers that look random and are the same everywhere.
class Sequence {
 public:
  explicit Sequence(std::uint64_t seed) : state_(seed) {}
  std::uint64_t below(std::uint64_t limit) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return (state_ >> 33U) % limit;
  }

 private:
  std::uint64_t state_;
};

template <class Texts>
std::string_view one_of(const Texts& texts, Sequence& sequence) {
  return texts[sequence.below(texts.size())];
}

/// Number of the entry at a place of the book; contacts between them have odd ones.
std::string digits_of(std::uint64_t place) {
  std::string digits = std::to_string(place);
  return std::string(8 - digits.size(), '0') + digits;
}

void add(std::string& text, std::initializer_list<std::string_view> parts) {
  for (const std::string_view part : parts) text += part;
}

}  // namespace

std::string contact_file(std::size_t contacts) {
  std::string text =
      "Nachname;Vorname;Telefon;Stra\xDF"
      "e;PLZ;Ort;Kundennummer;Bemerkung\r\n";
  text.reserve(text.size() + contacts * kBytesPerRow);
  Sequence sequence(1);
  for (std::size_t i = 0; i < contacts; ++i) {
    const bool in_book = i % 2 == 0;
    const std::string digits = digits_of(in_book ? i : 50'000'000 + i);
    add(text, {one_of(kNames, sequence),
               i % 4 == 0 ? "" : "-Neu",
               ";",
               one_of(kFirstNames, sequence),
               ";+49 (30) ",
               digits.substr(0, 4),
               "-",
               digits.substr(4),
               ";\"",
               one_of(kStreets, sequence),
               " ",
               std::to_string(1 + sequence.below(120)),
               "\";",
               std::to_string(10'000 + sequence.below(80'000)),
               ";",
               one_of(kTowns, sequence),
               ";K-",
               digits,
               ";\"seit ",
               std::to_string(1990 + sequence.below(30)),
               ", Rabatt\"\r\n"});
  }
  return text;
}

std::string contacts_of_shape(std::string_view shape, std::size_t contacts) {
  const std::string plain = contact_file(contacts);
  if (shape == "plain" || shape == "dry-run" || shape == "report") return plain;
  if (shape == "convert") return to_utf8(replace_all(plain, kCrLf, "\n"));
  std::string text;
  text.reserve(2 * plain.size());
  bool header = true;
  std::size_t number = 0;
  for (std::size_t start = 0; start < plain.size(); header = false) {
    const std::size_t end = plain.find('\r', start);
    const std::string_view line = std::string_view(plain).substr(start, end - start);
    start = end + 2;
    ++number;
    if (shape == "wide") {
      text += line;
      for (int column = 0; column < 22; ++column) {
        add(text, {";", header ? "S" : "Wert ", std::to_string(column)});
      }
    } else if (shape == "numbers") {
      text += line;
      const std::string digits = digits_of(number);
      add(text, {header ? ";Telefon2;Telefon3" : ";0171 ", header ? "" : digits,
                 header ? "" : ";0049 40 ", header ? "" : digits});
    } else {
      std::size_t field = 0;
      std::array<std::string_view, 8> fields;
      for (std::size_t at = 0; field < fields.size(); ++field) {
        const std::size_t next = std::min(line.find(';', at), line.size());
        fields[field] = line.substr(at, next - at);
        if (fields[field].starts_with('"')) fields[field] = fields[field].substr(1, next - at - 2);
        at = next + 1;
      }
      if (shape == "quoted") {
        for (field = 0; field < fields.size(); ++field) {
          add(text, {field == 0 ? "\"" : ";\"", fields[field], "\""});
        }
      } else if (!header) {
        add(text, {"2014-03-02 17:05:09 ", fields[0], " ", fields[1], " [#030", fields[6].substr(2),
                   "] ok"});
      }
    }
    if (shape != "log" || !header) text += "\r\n";
  }
  return text;
}

std::string phone_book(std::size_t entries) {
  std::string text;
  text.reserve(entries * kBytesPerRow);
  Sequence sequence(2);
  for (std::size_t i = 0; i < entries; ++i) {
    add(text, {one_of(kNames, sequence), " ", one_of(kFirstNames, sequence), ";030", digits_of(i),
               ";0;0;", std::to_string(sequence.below(40)), ";0;", one_of(kStreets, sequence), " ",
               std::to_string(1 + sequence.below(120)), " ", one_of(kTowns, sequence),
               ";;[vcd(N:", one_of(kNames, sequence), " TEL:+4930", digits_of(i), ")vcd]\r\n"});
  }
  return text;
}

}  // namespace quenda
