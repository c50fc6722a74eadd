#pragma once

#include <string_view>

#include "platform/controls/control.h"

namespace quenda {

/// Where a border between two neighbours may lie along one axis, all in one unit, from the start of
/// what it parts.
struct BorderRoom {
  int whole = 0;         // the length of what it parts
  int usual = 0;         // where it lies until the user moves it
  int least_before = 0;  // what it leaves before it
  int least_after = 0;   // and from itself to the end
};

/// The share of the whole, in thousandths, that lies before a border; 0 means where it usually
/// lies.
inline constexpr int kWholeShare = 1000;

/// Where the border with that share lies: within the room, or where it usually does when there is
/// none to move it in.
int border_at(const BorderRoom& room, int share);
/// The share that puts the border to a place, or as near to it as the room allows; never 0. The one
/// before where there is no room.
int share_of(const BorderRoom& room, int border, int before);

/// What a key does to a border.
enum class BorderMove { kBack, kOn, kFarBack, kFarOn, kToStart, kToEnd };
/// The share after a move; `step` is the length of a small one.
int share_after(const BorderRoom& room, int share, BorderMove move, int step);

/// The border between what lies above it in its parent and what lies below. The user moves it, by
/// the mouse or the keyboard; neighbours whose anchor is a share end or begin at it. There is at
/// most one in a parent.
class Splitter : public Control {
 public:
  Splitter(ControlHost& host, std::string_view name)
      : Control(host, ControlKind::kSplitter, name) {}

  [[nodiscard]] int share() const { return share_; }
  /// Fits any number into 0 to `kWholeShare`.
  void set_share(int share);
  void take_user_share(int share) { set_share(share); }

  /// What it leaves above and below itself, in twips. Part of the design.
  void set_least(int above, int below) {
    least_above_ = above;
    least_below_ = below;
  }
  [[nodiscard]] int least_above() const { return least_above_; }
  [[nodiscard]] int least_below() const { return least_below_; }

 private:
  int share_ = 0;
  int least_above_ = 0;
  int least_below_ = 0;
};

/// The splitter that has the same parent as a control; null when there is none.
const Splitter* splitter_beside(const Control& control);

}  // namespace quenda
