#include "platform/win32/windows/layout.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quenda {
namespace {

constexpr int kTwipsPerInch = 1440;
constexpr int kNoPosition = std::numeric_limits<int>::max();

int scaled(int value, int factor, int divisor) {
  const long long product = static_cast<long long>(value) * factor;
  const long long half = product < 0 ? -divisor / 2 : divisor / 2;
  return static_cast<int>((product + half) / divisor);
}

/// The part of the growth that belongs to what lies before a position.
int share(int growth, int position, int whole) {
  return scaled(growth, position, std::max(whole, 1));
}

/// One axis of a control: where it starts and how long it is, after its parent, `whole` as
/// designed, has grown.
std::pair<int, int> along(Anchor anchor, int start, int size, int growth, int whole) {
  switch (anchor) {
    case Anchor::kEnd:
      return {start + growth, size};
    case Anchor::kBoth:
      return {start, std::max(size + growth, 0)};
    case Anchor::kShare: {
      const int share_before = share(growth, start, whole);
      return {start + share_before,
              std::max(size + share(growth, start + size, whole) - share_before, 0)};
    }
    case Anchor::kShareStart:
      return {start + share(growth, start, whole), size};
    default:
      return {start, size};
  }
}

/// How much a control itself grows when its form does.
Growth growth_of(const Control* control, Growth form) {
  if (control == nullptr) return form;
  const Growth parent = growth_of(control->parent(), form);
  const Place& place = control->place();
  const Place around = control->parent() == nullptr ? Place{} : control->parent()->place();
  const auto gained = [](Anchor anchor, int start, int size, int growth, int whole) {
    if (anchor == Anchor::kShare) {
      return share(growth, start + size, whole) - share(growth, start, whole);
    }
    return anchor == Anchor::kBoth ? growth : 0;
  };
  return {gained(control->anchor_across(), place.left, place.width, parent.across, around.width),
          gained(control->anchor_down(), place.top, place.height, parent.down, around.height)};
}

int tab_position(const ControlHost& host, const Control& control) {
  if (control.kind() != ControlKind::kFrame) {
    return control.tab_index() < 0 ? kNoPosition : control.tab_index();
  }
  int first = control.tab_index() < 0 ? kNoPosition : control.tab_index();
  for (const Control* child : host.controls()) {
    if (child->parent() == &control) first = std::min(first, tab_position(host, *child));
  }
  return first;
}

}  // namespace

int pixels_of(int twips, int dpi) { return scaled(twips, dpi, kTwipsPerInch); }

int twips_of(int pixels, int dpi) { return scaled(pixels, kTwipsPerInch, dpi); }

Pixels laid_out(const Control& control, int dpi, Growth form) {
  const Place& place = control.place();
  const int left = pixels_of(place.left, dpi);
  const int top = pixels_of(place.top, dpi);
  const int width = pixels_of(place.left + place.width, dpi) - left;
  const int height = pixels_of(place.top + place.height, dpi) - top;
  const Growth growth = growth_of(control.parent(), form);
  const Place around = control.parent() == nullptr ? Place{} : control.parent()->place();
  const auto across =
      along(control.anchor_across(), left, width, growth.across, pixels_of(around.width, dpi));
  const auto down =
      along(control.anchor_down(), top, height, growth.down, pixels_of(around.height, dpi));
  return {across.first, down.first, across.second, down.second};
}

std::vector<Control*> in_tab_order(const ControlHost& host, const Control* parent) {
  std::vector<std::pair<int, Control*>> ordered;
  for (Control* control : host.controls()) {
    if (control->parent() == parent) ordered.emplace_back(tab_position(host, *control), control);
  }
  int next = kNoPosition;
  for (std::size_t i = ordered.size(); i-- > 0;) {
    if (ordered[i].first == kNoPosition) ordered[i].first = next;
    next = ordered[i].first;
  }
  std::stable_sort(ordered.begin(), ordered.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<Control*> result;
  result.reserve(ordered.size());
  for (const auto& entry : ordered) result.push_back(entry.second);
  return result;
}

}  // namespace quenda
