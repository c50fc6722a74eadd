#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/control.h"

namespace quenda {

/// Gives every caption a letter by which Alt leads to its control, each letter once: captions with
/// an "&" before it, in the order given. A caption that has its "&" already keeps it. Beginnings of
/// words are taken first. A caption without a free letter gets one that another can spare, but not
/// of the first `settled` ones; one with a single character stays without. Captions that repeat, as
/// in the rows of a table, take what the others leave.
std::vector<std::string> with_access_keys(const std::vector<std::string>& captions,
                                          std::size_t settled = 0);

/// The visible controls of a form that a letter can lead to: those with a caption of their own, and
/// labels right before a field. The form's own buttons come first, so that their letters are the
/// same on every page.
std::vector<Control*> keyed_controls(const ControlHost& form);

/// The caption of the label right before a list, empty for other controls and without one. Screen
/// readers name a text box by its label on their own.
std::string label_of_list(const ControlHost& form, const Control& control);

/// The caption with every "&" shown as such.
std::string without_access_key(std::string_view caption);

}  // namespace quenda
