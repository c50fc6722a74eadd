#include "sources/file_findings.h"

#include "sources/character_conversion.h"
#include "text/text.h"

namespace quenda {
namespace {

/// The sentence about a file that is only named.
std::string_view kind_key(FileKind kind) {
  switch (kind) {
    case FileKind::kTable:
    case FileKind::kVcard:
      break;
    case FileKind::kWorkbook:
    case FileKind::kOldWorkbook:
      return "Import_File_Workbook";
    case FileKind::kOpenDocument:
      return "Import_File_OpenDocument";
    case FileKind::kZip:
      return "Import_File_Zip";
    case FileKind::kLdif:
      return "Import_File_Ldif";
    case FileKind::kSections:
      return "Import_File_Sections";
    case FileKind::kXml:
      return "Import_File_Xml";
    case FileKind::kHtml:
      return "Import_File_Html";
    case FileKind::kPdf:
      return "Import_File_Pdf";
  }
  return {};
}

std::string_view encoding_name(FileEncoding encoding) {
  switch (encoding) {
    case FileEncoding::kAscii:
    case FileEncoding::kWindows1252:
      break;
    case FileEncoding::kUtf8:
      return "UTF-8";
    case FileEncoding::kUtf16Little:
    case FileEncoding::kUtf16Big:
      return "UTF-16";
    case FileEncoding::kMixed:
      return "UTF-8 + Windows-1252";
  }
  return {};
}

/// What will be adapted, in words of every language.
std::vector<std::string_view> adaptation_names(const FileFacts& facts) {
  std::vector<std::string_view> list;
  const auto add = [&](std::string_view what) {
    if (!what.empty()) list.push_back(what);
  };
  if (facts.kind == FileKind::kVcard) add("vCard");
  add(encoding_name(facts.encoding));
  if (facts.kind == FileKind::kVcard) return list;
  if (facts.line_ends == LineEnds::kLf) add("LF");
  if (facts.line_ends == LineEnds::kCr) add("CR");
  if (facts.line_ends == LineEnds::kMixed) add("CR/LF");
  if (facts.sep_line) add("sep=");
  if (facts.labelled) add("Label");
  if (facts.nul_bytes) add("NUL");
  return list;
}

/// "UTF-8, LF", from one of the names on.
std::string adaptations(const FileFacts& facts, std::size_t from = 0) {
  const std::vector<std::string_view> names = adaptation_names(facts);
  std::string list;
  for (std::size_t i = from; i < names.size(); ++i) {
    if (!list.empty()) list += ", ";
    list += names[i];
  }
  return list;
}

void add_encoding(const FileFacts& facts, std::vector<Finding>& findings) {
  if (facts.encoding == FileEncoding::kUtf8 && !facts.sample.empty()) {
    LostCharacters losses;
    const std::string right = text_to_1252(facts.sample, 0, losses);
    findings.push_back({"Import_File_Utf8Sample", {facts.sample, right}});
  } else if (facts.encoding == FileEncoding::kUtf8) {
    findings.push_back({facts.mark ? "Import_File_Mark" : "Import_File_Utf8", {}});
  } else if (facts.is_utf16()) {
    findings.push_back({"Import_File_Utf16", {}});
  } else if (facts.encoding == FileEncoding::kMixed) {
    findings.push_back({"Import_File_Mixed", {}});
  }
}

/// "3, 17, 20 ..."
std::string line_list(const std::vector<std::size_t>& records, const SourceLines& lines) {
  std::string list;
  for (const std::size_t record : records) {
    if (!list.empty()) list += ", ";
    list += std::to_string(lines.line_of(record));
  }
  if (records.size() == LostCharacters::kMostRecords) list += " ...";
  return list;
}

}  // namespace

std::string finding_text(std::string_view text, const std::vector<std::string>& values) {
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool place =
        text[at] == '%' && at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9';
    if (!place) {
      filled += text[at];
      continue;
    }
    const auto value = static_cast<std::size_t>(text[++at] - '1');
    if (value < values.size()) filled += values[value];
  }
  return filled;
}

bool is_adaptable(const FileFacts& facts) {
  return facts.readable() &&
         (facts.mark || facts.empty_column || facts.odd_cells || !adaptations(facts).empty());
}

std::vector<Finding> file_findings(const FileFacts& facts, bool convert) {
  std::vector<Finding> findings;
  if (const std::string_view key = kind_key(facts.kind); !key.empty()) return {{key, {}}};
  if (convert) {
    if (facts.empty_column) findings.push_back({"Import_File_ColumnDropped", {}});
    if (facts.odd_cells) findings.push_back({"Import_File_CellsAdapted", {}});
    if (!findings.empty()) return findings;
    if (is_adaptable(facts)) findings.push_back({"Import_File_Adapted", {adaptations(facts)}});
    return findings;
  }
  if (facts.kind == FileKind::kVcard) return {{"Import_File_Vcard", {}}};
  add_encoding(facts, findings);
  if (facts.line_ends == LineEnds::kLf || facts.line_ends == LineEnds::kCr) {
    const std::string_view name = facts.line_ends == LineEnds::kLf ? "LF" : "CR";
    findings.push_back({"Import_File_LineEnds", {std::string(name)}});
  } else if (facts.line_ends == LineEnds::kMixed) {
    findings.push_back({"Import_File_MixedLineEnds", {}});
  }
  if (facts.sep_line) findings.push_back({"Import_File_SepLine", {}});
  if (facts.nul_bytes) findings.push_back({"Import_File_NulBytes", {}});
  if (facts.odd_cells) {
    findings.push_back({"Import_File_Cells", {}});
  } else if (facts.empty_column) {
    findings.push_back({"Import_File_EmptyColumn", {}});
  }
  return findings;
}

std::vector<Finding> short_file_findings(const FileFacts& facts, bool convert) {
  constexpr std::size_t kMost = 2;
  std::vector<Finding> findings = file_findings(facts, convert);
  if (findings.size() <= kMost) return findings;
  // Findings and names stand in the same order.
  findings.resize(1);
  findings.push_back({"Import_File_Besides", {adaptations(facts, 1)}});
  return findings;
}

std::vector<Finding> table_findings(const TableFacts& facts, const SourceLines& lines) {
  std::vector<Finding> findings;
  if (!facts.number_in_header.empty()) {
    findings.push_back({"Import_Table_NumberInHeader", {facts.number_in_header}});
  }
  if (!facts.repeated_name.empty()) {
    findings.push_back({"Import_Table_RepeatedName", {facts.repeated_name}});
  }
  if (facts.unnamed_columns > 0) {
    findings.push_back({"Import_Table_UnnamedColumns", {std::to_string(facts.unnamed_columns)}});
  }
  if (facts.uneven_records > 0) {
    findings.push_back({"Import_Table_UnevenRecords",
                        {std::to_string(facts.uneven_records),
                         std::to_string(lines.line_of(facts.first_uneven))}});
  }
  return findings;
}

std::vector<Finding> loss_findings(const LostCharacters& losses, const SourceLines& lines) {
  std::vector<Finding> findings;
  if (losses.changed > 0) {
    findings.push_back(
        {losses.changed == 1 ? "Import_File_CharacterChanged" : "Import_File_CharactersChanged",
         {std::to_string(losses.changed), line_list(losses.changed_in, lines)}});
  }
  if (losses.lost > 0) {
    findings.push_back(
        {losses.lost == 1 ? "Import_File_CharacterLost" : "Import_File_CharactersLost",
         {std::to_string(losses.lost), line_list(losses.lost_in, lines)}});
  }
  return findings;
}

std::vector<Finding> unchosen_findings(const std::vector<ColumnNumbers>& unchosen) {
  if (unchosen.empty()) return {};
  std::size_t count = 0;
  std::string headings;
  for (const ColumnNumbers& numbers : unchosen) {
    count += numbers.count;
    if (!headings.empty()) headings += ", ";
    headings += numbers.heading;
  }
  std::string_view key = "Import_Table_UnchosenNumbers";
  if (unchosen.size() == 1) key = "Import_Table_UnchosenInOneColumn";
  if (count == 1) key = "Import_Table_UnchosenNumber";
  return {{key, {std::to_string(count), std::to_string(unchosen.size()), headings}}};
}

}  // namespace quenda
