#pragma once

#include <span>
#include <string_view>

#include "platform/controls/control.h"

namespace quenda {

struct App;
class Form;

/// One control as a form is designed: where it lies and which text it carries.
struct DesignEntry {
  std::string_view name;
  int index;               // in its control array, -1 for none
  std::string_view frame;  // the frame that holds it, empty for the form itself
  int frame_index;
  Place place;               // twips, inside the frame
  int tab_index;             // -1 is never reached by the Tab key
  std::string_view caption;  // key of the caption, empty for none
};

/// Puts the form's controls to their places. Fault 340 when the form lacks one of them.
void apply_design(Form& form, std::span<const DesignEntry> design);

/// Sets the captions by their keys, in the language of the program.
void load_captions(Form& form, std::span<const DesignEntry> design, App& app);

}  // namespace quenda
