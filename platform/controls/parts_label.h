#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/simple_controls.h"

namespace quenda {

/// A label that can show several texts below each other, in place of its caption. Other programs
/// still read the caption.
class PartsLabel : public Label {
 public:
  using Label::Label;

  /// One of several texts that share the height of the label.
  struct Part {
    std::string text;
    bool marked = false;  // shown in bold and with a sign
    friend bool operator==(const Part&, const Part&) = default;
  };
  [[nodiscard]] const std::vector<Part>& parts() const { return parts_; }
  void set_parts(std::vector<Part> parts) {
    parts_ = std::move(parts);
    refresh(Aspect::kColour);
  }

 private:
  std::vector<Part> parts_;
};

}  // namespace quenda
