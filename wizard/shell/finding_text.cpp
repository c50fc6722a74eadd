#include "wizard/shell/finding_text.h"

#include "settings/app.h"
#include "settings/ini/language_keys.h"
#include "sources/file_findings.h"

namespace quenda {

std::string text_of(App& app, const Finding& finding) {
  const std::string text = app.language.LoadLangKey(finding.key, german_text(finding.key));
  return finding_text(text, finding.values);
}

}  // namespace quenda
