#include "book/import_report.h"

#include <array>

#include "book/report_cells.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::string_view kCsvHeader =
    "Zeile;Datensatz;Rufnummer Nr.;Name;Rufnummer;Rufnummer im Export;Adresse;Ergebnis;Grund\r\n";

/// How the entry that a number gave way to is told behind the reason.
constexpr std::string_view kBeforeLine = " (Zeile ";
constexpr std::string_view kBehindLine = ")";
constexpr std::string_view kBeforeName = " (im Telefonbuch: \"";
constexpr std::string_view kBehindName = "\")";

/// What is the same in all rows of a fate.
struct FateCells {
  std::string plain;   // word and reason
  std::string quoted;  // the same, with a quote that is still open
};

std::string in_quotes(std::string_view text) {
  std::string quoted(room_for_csv(text), '\0');
  quoted.resize(static_cast<std::size_t>(put_csv_quoted(quoted.data(), text) - quoted.data()));
  return quoted;
}

const FateCells& cells_of(Fate fate) {
  static const std::array<FateCells, kFates> kCells = [] {
    std::array<FateCells, kFates> cells;
    for (std::size_t i = 0; i < kFates; ++i) {
      // None of these words needs quotes by itself.
      const FateWords& words = words_of(static_cast<Fate>(i));
      const std::string reason = to_utf8(words.reason);
      cells.at(i) = {concat(to_utf8(words.word), ";", reason),
                     concat(to_utf8(words.word), ";\"", reason)};
    }
    return cells;
  }();
  return kCells[static_cast<std::size_t>(fate)];
}

/// One object of JSON; members are added in the order of the calls.
class JsonObject {
 public:
  explicit JsonObject(ReportText& out) : out_(out) { out_.add("{"); }
  void text(std::string_view key, std::string_view value) {
    name(key);
    out_.end_at(put_json_text(out_.room(room_for_json(value)), value));
  }
  /// A number, true, false or null.
  void plain(std::string_view key, std::string_view value) {
    name(key);
    out_.add(value);
  }
  void number(std::string_view key, std::uint64_t value) {
    name(key);
    out_.end_at(put_number(out_.room(kMostDigits), value));
  }
  JsonObject object(std::string_view key) {
    name(key);
    return JsonObject(out_);
  }
  void end() { out_.add("}"); }

 private:
  void name(std::string_view key) {
    if (!first_) out_.add(",");
    first_ = false;
    out_.end_at(put_json_text(out_.room(room_for_json(key)), key));
    out_.add(":");
  }

  ReportText& out_;
  bool first_ = true;
};

void append_json_head(ReportText& out, const ReportHead& head) {
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
  out.add("\n");
}

void append_json_row(ReportText& out, const ReportRow& row) {
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
  out.add("\n");
}

/// The last cells of a row: what became of the number, and why.
char* put_fate(char* to, const ReportRow& row) {
  const FateCells& cells = cells_of(row.fate);
  to = put(to, row.existing ? cells.quoted : cells.plain);
  if (row.with) {
    to = put(to, kBeforeLine);
    to = put_number(to, *row.with);
    to = put(to, kBehindLine);
  }
  if (row.existing) {
    // The name has quotes around it, and so the cell has some, too.
    static const std::string kBefore = in_quotes(kBeforeName);
    static const std::string kBehind = in_quotes(kBehindName) + '"';
    to = put(to, kBefore);
    to = put_csv_quoted(to, *row.existing);
    to = put(to, kBehind);
  }
  return to;
}

/// Bytes that a row has to have room for.
std::size_t room_for_row(const ReportRow& row) {
  constexpr std::size_t kRoomBesideTexts = 512;
  return kRoomBesideTexts + room_for_csv(row.name) + room_for_csv(row.number) +
         room_for_csv(row.raw) + room_for_csv(row.address) +
         (row.existing ? room_for_csv(*row.existing) : 0);
}

char* put_field(char* to, CountedNumber& counted, std::uint64_t number) {
  to = counted.put(to, number);
  *to++ = ';';
  return to;
}

char* put_field(char* to, std::string_view text) {
  to = put_csv_cell(to, text);
  *to++ = ';';
  return to;
}

void append_csv_row(ReportText& out, const ReportRow& row) {
  char* to = out.room(room_for_row(row));
  to = put_field(to, out.line, row.line);
  to = put_field(to, out.record, row.record);
  to = put_field(to, out.column, static_cast<std::uint64_t>(row.row));
  to = put_field(to, row.name);
  to = put_field(to, row.number);
  to = put_field(to, row.raw);
  to = put_field(to, row.address);
  to = put_fate(to, row);
  out.end_at(put(to, kCrLf));
}

}  // namespace

ReportFormat report_format(std::string_view path) {
  return to_lower(std::string(path)).ends_with(".json") ? ReportFormat::kJsonLines
                                                        : ReportFormat::kCsv;
}

void append_report_head(ReportText& out, ReportFormat format, const ReportHead& head) {
  if (format == ReportFormat::kJsonLines) {
    append_json_head(out, head);
  } else {
    out.add(kMark);
    out.add(kCsvHeader);
  }
}

void append_report_row(ReportText& out, ReportFormat format, const ReportRow& row) {
  if (format == ReportFormat::kJsonLines) {
    append_json_row(out, row);
  } else {
    append_csv_row(out, row);
  }
}

}  // namespace quenda
