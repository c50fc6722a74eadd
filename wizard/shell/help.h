#pragma once

namespace quenda {

struct App;

/// Opens the suite's help about the import; where that address cannot be opened, offers the
/// handbook that was installed with the tool.
void open_help(App& app);

}  // namespace quenda
