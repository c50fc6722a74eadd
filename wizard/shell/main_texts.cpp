#include "wizard/shell/main_texts.h"

#include "settings/modLanguage.h"

namespace quenda {

void MainTexts::load(modLanguage& language) {
  for (std::size_t i = 0; i < kMainTexts.size(); ++i) {
    texts_[i] = language.LoadLangKey(kMainTexts[i]);
  }
}

}  // namespace quenda
