#pragma once

namespace quenda {

struct App;

/// Opens the suite's help about the import.
void open_help(App& app);

}  // namespace quenda
