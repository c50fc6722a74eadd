#include "platform/controls/splitter.h"

#include <algorithm>

namespace quenda {
namespace {

int scaled(int value, int factor, int divisor) {
  return static_cast<int>((static_cast<long long>(value) * factor + divisor / 2) / divisor);
}

bool can_move(const BorderRoom& room) {
  return room.whole > 0 && room.least_before + room.least_after <= room.whole;
}

int within(const BorderRoom& room, int border) {
  return std::clamp(border, room.least_before, room.whole - room.least_after);
}

}  // namespace

int border_at(const BorderRoom& room, int share) {
  if (share <= 0 || !can_move(room)) return room.usual;
  return within(room, scaled(room.whole, share, kWholeShare));
}

int share_of(const BorderRoom& room, int border, int before) {
  if (!can_move(room)) return before;
  return std::clamp(scaled(within(room, border), kWholeShare, room.whole), 1, kWholeShare);
}

int share_after(const BorderRoom& room, int share, BorderMove move, int step) {
  constexpr int kSmallOnesInAFarOne = 5;
  const int far = kSmallOnesInAFarOne * step;
  const int now = border_at(room, share);
  const auto to = [&](int border) { return share_of(room, border, share); };
  switch (move) {
    case BorderMove::kBack:
      return to(now - step);
    case BorderMove::kOn:
      return to(now + step);
    case BorderMove::kFarBack:
      return to(now - far);
    case BorderMove::kFarOn:
      return to(now + far);
    case BorderMove::kToStart:
      return to(0);
    default:
      return to(room.whole);
  }
}

void Splitter::set_share(int share) {
  share = std::clamp(share, 0, kWholeShare);
  if (share_ == share) return;
  share_ = share;
  refresh(Aspect::kValue);
}

const Splitter* splitter_beside(const Control& control) {
  for (const Control* other : control.host().controls()) {
    if (other->kind() == ControlKind::kSplitter && other->parent() == control.parent()) {
      return static_cast<const Splitter*>(other);
    }
  }
  return nullptr;
}

}  // namespace quenda
