#pragma once

#include <string>

#include "settings/app.h"
#include "settings/ini/result_keys.h"

namespace quenda {

/// A text about the results of an import in the user's language.
inline std::string result_text(App& app, ResultKey key) {
  return app.language.LoadLangKey(key.key(), key.german());
}

}  // namespace quenda
