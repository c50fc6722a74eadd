#pragma once

namespace quenda {

class Form;

/// Lets the lists and long fields of the main form grow with its window.
void anchor_main_controls(Form& form);

}  // namespace quenda
