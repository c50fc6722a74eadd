#pragma once

#include <cstddef>
#include <type_traits>

#include "platform/controls/control.h"
#include "settings/app.h"
#include "settings/ini/language_keys.h"

// How a form is designed: one row per control, named by a pointer to the member that it is.
namespace quenda {

namespace design_detail {
template <class Member>
struct OwnerOf;
template <class Owner, class Type>
struct OwnerOf<Type Owner::*> {
  using type = Owner;
};
}  // namespace design_detail

/// Finds a control in its owner: `control_at<&SourcePage::labFile>`, and for a control of an array
/// `control_at<&NamePage::labHead, 0>`.
template <auto Member, int Index = -1>
Control& control_at(typename design_detail::OwnerOf<decltype(Member)>::type& owner) {
  if constexpr (Index < 0) {
    return owner.*Member;
  } else {
    return (owner.*Member)(Index);
  }
}

/// One control of a page or a dialog.
template <class Owner>
struct DesignRow {
  Control& (*control)(Owner& owner);
  Place place;           // twips, inside its frame
  int tab = -1;          // place in the tab order; -1 is never reached by the key
  TextKey caption = {};  // empty for none
  Control& (*frame)(Owner& owner) = nullptr;  // null: the frame that all rows lie in
  Anchor across = Anchor::kStart;
  Anchor down = Anchor::kStart;
};

/// Puts the controls to their places. `frame` holds those whose row names no other; null is the
/// form itself.
template <class Owner, std::size_t Count>
void apply_design(Owner& owner, const DesignRow<Owner> (&rows)[Count], Control* frame = nullptr) {
  for (const DesignRow<Owner>& row : rows) {
    Control& control = row.control(owner);
    control.set_place(row.place);
    control.set_tab_index(row.tab);
    control.set_anchors(row.across, row.down);
    control.set_parent(row.frame == nullptr ? frame : &row.frame(owner));
  }
}

/// Sets the captions in the language of the program.
template <class Owner, std::size_t Count>
void load_captions(Owner& owner, const DesignRow<Owner> (&rows)[Count], App& app) {
  for (const DesignRow<Owner>& row : rows) {
    if (!row.caption.empty()) row.control(owner).set_caption(app.text(row.caption));
  }
}

}  // namespace quenda
