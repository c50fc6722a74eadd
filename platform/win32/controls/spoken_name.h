#pragma once

#include <memory>
#include <string_view>

#include "platform/win32/windows_headers.h"

namespace quenda {

/// Gives windows names that screen readers say in place of their texts.
class SpokenNames {
 public:
  SpokenNames();
  SpokenNames(const SpokenNames&) = delete;
  SpokenNames& operator=(const SpokenNames&) = delete;
  ~SpokenNames();
  /// False on a system that keeps no such names, as Wine.
  bool set(HWND window, std::string_view name);
  /// What readers say of the window beside its name.
  void describe(HWND window, std::string_view description);
  /// Has readers say what changes in the window, as soon as they have nothing else to say.
  void tell_changes_of(HWND window);

 private:
  struct Service;
  std::unique_ptr<Service> service_;
};

}  // namespace quenda
