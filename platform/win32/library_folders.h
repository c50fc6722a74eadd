#pragma once

namespace quenda {

/// From now on libraries come from the system's own folder only, those that are loaded late among
/// them: a file of the same name beside the program, or in the current folder, is left alone. To be
/// called before anything that loads one.
void load_from_system_folders_only() noexcept;

}  // namespace quenda
