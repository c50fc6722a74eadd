#include "book/import_report.h"

#include <array>

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kCsvHeader =
    "Zeile;Datensatz;Rufnummer Nr.;Name;Rufnummer;Rufnummer im Export;Adresse;Ergebnis;Grund\r\n";

/// A cell in quotes where a reader of CSV needs them.
void append_csv_cell(std::string& out, std::string_view text) {
  if (text.find_first_of(";\"\r\n") == text.npos) {
    out += to_utf8(text);
    return;
  }
  out += '"';
  out += to_utf8(replace_all(text, "\"", "\"\""));
  out += '"';
}

void append_json_text(std::string& out, std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  out += '"';
  for (const char c : to_utf8(text)) {
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (code < 0x20 || code == 0x7F) {
      out += "\\u00";
      out += kHex[code >> 4U];
      out += kHex[code & 0xFU];
    } else {
      out += c;
    }
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
  void number(std::string_view key, std::uint64_t value) { plain(key, std::to_string(value)); }
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
  out += concat(std::to_string(row.line), ";", std::to_string(row.record), ";",
                std::to_string(row.row), ";");
  const std::string reason = reason_of(row.fate, row.with, row.existing);
  const std::array<std::string_view, 6> cells = {
      row.name, row.number, row.raw, row.address, words_of(row.fate).word, reason};
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) out += ';';
    append_csv_cell(out, cells.at(i));
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
