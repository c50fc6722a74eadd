#pragma once

#include <cstddef>

namespace quenda {

/// What of a control has changed and has to be shown anew.
enum class Aspect {
  kCaption,
  kText,   // text box content, status panel texts
  kValue,  // tick, option, progress
  kEnabled,
  kVisible,
  kColour,
  kPlace,
  kItems,      // entries of a list or combo list
  kIndex,      // chosen entry of a list, combo list or list view
  kSelection,  // selected entries, or the selected range of a text box
  kColumns,    // columns of a list view: number, headings, colours
  kRows,       // number and texts of a list view's rows
  kZOrder,     // bring to the front
  kFocus,      // take the keyboard focus
  kPointer,    // mouse pointer of a form
};

/// The native side of one control. It reads the control's state when told to, and reports what the
/// user does through the control's take_user_ operations; it holds no state of its own.
class ControlPeer {
 public:
  virtual ~ControlPeer() = default;
  virtual void refresh(Aspect aspect) = 0;
};

}  // namespace quenda
