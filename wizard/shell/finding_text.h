#pragma once

#include <string>

namespace quenda {

struct App;
struct Finding;

/// What was found about a file, in the user's language.
std::string text_of(App& app, const Finding& finding);

}  // namespace quenda
