#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "sources/column_suggestion.h"
#include "sources/file_facts.h"
#include "sources/lost_characters.h"
#include "sources/source_lines.h"
#include "sources/table_facts.h"

// What the user is told about a file, as keys of the language files and the values that go into
// their texts.
namespace quenda {

struct Finding {
  std::string_view key;
  std::vector<std::string> values;
};

/// The text of a finding, from the text of its key: "%1" to "%9" are its values.
std::string finding_text(std::string_view text, const std::vector<std::string>& values);

/// Whether there is anything in a file that reading it could adapt.
bool is_adaptable(const FileFacts& facts);

/// What a file says about itself: what would come out wrong, or, where it is going to be adapted,
/// that it will. Nothing for a file that the tool reads as it is.
std::vector<Finding> file_findings(const FileFacts& facts, bool convert);

/// The same for a place with room for two sentences: of more than two findings all but the first
/// are only named.
std::vector<Finding> short_file_findings(const FileFacts& facts, bool convert);

/// What concerns the columns. `lines` tells where records stand in the file.
std::vector<Finding> table_findings(const TableFacts& facts, const SourceLines& lines);

/// What a conversion could not keep.
std::vector<Finding> loss_findings(const LostCharacters& losses, const SourceLines& lines);

/// Numbers that will not be taken since their columns are not chosen.
std::vector<Finding> unchosen_findings(const std::vector<ColumnNumbers>& unchosen);

}  // namespace quenda
