#pragma once

#include <map>
#include <string>

#include "platform/controls/form.h"

namespace quenda {

/// The captions of a form's controls with the letters by which Alt leads to them.
class KeyedCaptions {
 public:
  explicit KeyedCaptions(Form& form) : form_(form) {}

  [[nodiscard]] std::string of(const Control& control) const;
  /// A caption is another or a control has come into view, so letters can have to change.
  void changed() { changed_ = true; }
  /// Gives the letters anew after a change; controls whose letter is another show it.
  void renew();

 private:
  Form& form_;
  std::map<const Control*, std::string> keyed_;
  bool changed_ = true;
};

}  // namespace quenda
