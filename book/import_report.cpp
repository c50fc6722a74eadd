#include "book/import_report.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kCsvHeader =
    "Zeile;Datensatz;Rufnummer Nr.;Name;Rufnummer;Rufnummer im Export;Adresse;Ergebnis;Grund\r\n";

constexpr std::string_view kBreaking = ";\"\r\n";

/// Whether a text is a cell of CSV in UTF-8 as it stands: all ASCII, and nothing that wants quotes.
bool is_plain_cell(std::string_view text) {
  static constexpr std::array<bool, 256> kPlain = [] {
    std::array<bool, 256> plain{};
    for (std::size_t code = 0; code < 0x80; ++code) plain[code] = true;
    for (const char c : kBreaking) plain[static_cast<unsigned char>(c)] = false;
    return plain;
  }();
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return kPlain[static_cast<unsigned char>(c)]; });
}

/// A cell in quotes where a reader of CSV needs them.
void append_csv_cell(std::string& out, std::string_view text) {
  if (is_plain_cell(text)) {
    out += text;
    return;
  }
  const bool quoted = text.find_first_of(kBreaking) != text.npos;
  if (!quoted) return append_utf8(out, text);
  std::string_view part;
  for (bool first = true; next_part(text, "\"", part); first = false) {
    out += first ? "\"" : "\"\"";
    append_utf8(out, part);
  }
  out += '"';
}

/// What a fate is called, as cells.
struct FateCells {
  std::string word;
  std::string reason;
};

const FateCells& cells_of(Fate fate) {
  static const std::array<FateCells, kFates> kCells = [] {
    std::array<FateCells, kFates> cells;
    for (std::size_t i = 0; i < kFates; ++i) {
      const FateWords& words = words_of(static_cast<Fate>(i));
      append_csv_cell(cells.at(i).word, words.word);
      append_csv_cell(cells.at(i).reason, words.reason);
    }
    return cells;
  }();
  return kCells.at(static_cast<std::size_t>(fate));
}

void append_number(std::string& out, std::uint64_t number) {
  std::array<char, 20> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  out.append(digits.data(), end);
}

void append_json_text(std::string& out, std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  const auto is_plain = [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return code >= 0x20 && code != 0x7F && c != '"' && c != '\\';
  };
  out += '"';
  while (!text.empty()) {
    const auto end = std::find_if_not(text.begin(), text.end(), is_plain);
    const auto plain = static_cast<std::size_t>(end - text.begin());
    append_utf8(out, text.substr(0, plain));
    if (plain == text.size()) break;
    const char c = text[plain];
    const auto code = static_cast<unsigned char>(c);
    out += '\\';
    if (c == '"' || c == '\\') {
      out += c;
    } else {
      out += "u00";
      out += kHex[code >> 4U];
      out += kHex[code & 0xFU];
    }
    text.remove_prefix(plain + 1);
  }
  out += '"';
}

/// One object of JSON; members are added in the order of the calls.
class JsonObject {
 public:
  explicit JsonObject(std::string& out) : out_(out) { out_ += '{'; }
  void text(std::string_view key, std::string_view value) {
    name(key);
    append_json_text(out_, value);
  }
  /// A number, true, false or null.
  void plain(std::string_view key, std::string_view value) {
    name(key);
    out_ += value;
  }
  void number(std::string_view key, std::uint64_t value) {
    name(key);
    append_number(out_, value);
  }
  JsonObject object(std::string_view key) {
    name(key);
    return JsonObject(out_);
  }
  void end() { out_ += '}'; }

 private:
  void name(std::string_view key) {
    if (!first_) out_ += ',';
    first_ = false;
    append_json_text(out_, key);
    out_ += ':';
  }

  std::string& out_;
  bool first_ = true;
};

void append_json_head(std::string& out, const ReportHead& head) {
  std::size_t numbers = 0;
  for (const std::size_t count : head.fates) numbers += count;
  JsonObject object(out);
  object.text("program", "quenda-import");
  object.text("version", head.version);
  object.text("file", head.file);
  object.text("source", head.source);
  object.plain("dry_run", head.dry_run ? "true" : "false");
  object.number("records", head.records);
  object.number("numbers", numbers);
  object.text("result", head.result);
  JsonObject fates = object.object("fates");
  for (std::size_t i = 0; i < kFates; ++i) {
    if (head.fates.at(i) > 0) fates.number(words_of(static_cast<Fate>(i)).key, head.fates.at(i));
  }
  fates.end();
  JsonObject options = object.object("options");
  for (const auto& [key, value] : head.options) options.text(key, value);
  options.end();
  if (!head.unchosen.empty()) {
    JsonObject unchosen = object.object("unchosen");
    for (const auto& [column, count] : head.unchosen) unchosen.number(column, count);
    unchosen.end();
  }
  object.end();
  out += '\n';
}

void append_json_row(std::string& out, const ReportRow& row) {
  JsonObject object(out);
  object.number("line", row.line);
  object.number("record", row.record);
  object.number("row", static_cast<std::uint64_t>(row.row));
  object.text("name", row.name);
  object.text("number", row.number);
  object.text("raw", row.raw);
  object.text("address", row.address);
  object.text("fate", words_of(row.fate).key);
  if (row.with) {
    object.number("with", *row.with);
  } else {
    object.plain("with", "null");
  }
  if (row.existing) {
    object.text("existing", *row.existing);
  } else {
    object.plain("existing", "null");
  }
  object.end();
  out += '\n';
}

void append_csv_row(std::string& out, const ReportRow& row) {
  for (const std::uint64_t number :
       {row.line, static_cast<std::uint64_t>(row.record), static_cast<std::uint64_t>(row.row)}) {
    append_number(out, number);
    out += ';';
  }
  for (const std::string_view cell : {row.name, row.number, row.raw, row.address}) {
    append_csv_cell(out, cell);
    out += ';';
  }
  const FateCells& fate = cells_of(row.fate);
  out += fate.word;
  out += ';';
  if (row.with || row.existing) {
    append_csv_cell(out, reason_of(row.fate, row.with, row.existing));
  } else {
    out += fate.reason;
  }
  out += kCrLf;
}

}  // namespace

ReportFormat report_format(std::string_view path) {
  return to_lower(std::string(path)).ends_with(".json") ? ReportFormat::kJsonLines
                                                        : ReportFormat::kCsv;
}

void append_report_head(std::string& out, ReportFormat format, const ReportHead& head) {
  if (format == ReportFormat::kJsonLines) {
    append_json_head(out, head);
  } else {
    out += kMark;
    out += kCsvHeader;
  }
}

void append_report_row(std::string& out, ReportFormat format, const ReportRow& row) {
  if (format == ReportFormat::kJsonLines) {
    append_json_row(out, row);
  } else {
    append_csv_row(out, row);
  }
}

}  // namespace quenda
