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

/// One axis of a control: where it starts and how long it is, after its parent has grown. `gained`
/// tells how much of the growth lies before a position.
template <class Gained>
std::pair<int, int> along(Anchor anchor, int start, int size, int growth, const Gained& gained) {
  switch (anchor) {
    case Anchor::kEnd:
      return {start + growth, size};
    case Anchor::kBoth:
      return {start, std::max(size + growth, 0)};
    case Anchor::kShare:
      return {start + gained(start), std::max(size + gained(start + size) - gained(start), 0)};
    case Anchor::kShareStart:
      return {start + gained(start), size};
    default:
      return {start, size};
  }
}

Pixels designed(const Control& control, int dpi) {
  const Place& place = control.place();
  const int left = pixels_of(place.left, dpi);
  const int top = pixels_of(place.top, dpi);
  return {left, top, pixels_of(place.left + place.width, dpi) - left,
          pixels_of(place.top + place.height, dpi) - top};
}

/// How much a parent, null for the form, grows when its form does.
Growth growth_of(const Control* parent, int dpi, Growth form) {
  if (parent == nullptr) return form;
  const Pixels before = designed(*parent, dpi);
  const Pixels now = laid_out(*parent, dpi, form);
  return {now.width - before.width, now.height - before.height};
}

Pixels around(const Control& control, int dpi) {
  return control.parent() == nullptr ? Pixels{} : designed(*control.parent(), dpi);
}

bool shares(const Control& control) {
  return control.anchor_down() == Anchor::kShare || control.anchor_down() == Anchor::kShareStart;
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
  const Pixels at = designed(control, dpi);
  const Growth growth = growth_of(control.parent(), dpi, form);
  const Pixels whole = around(control, dpi);
  const auto across =
      along(control.anchor_across(), at.left, at.width, growth.across,
            [&](int position) { return share(growth.across, position, whole.width); });
  const Splitter* const splitter = shares(control) ? splitter_beside(control) : nullptr;
  const auto down = along(control.anchor_down(), at.top, at.height, growth.down, [&](int position) {
    if (splitter == nullptr) return share(growth.down, position, whole.height);
    const int border = designed(*splitter, dpi).top;
    if (position < border) return 0;
    if (position >= whole.height) return growth.down;
    return border_at(room_of(*splitter, dpi, form), splitter->share()) - border;
  });
  return {across.first, down.first, across.second, down.second};
}

BorderRoom room_of(const Splitter& splitter, int dpi, Growth form) {
  const int whole = around(splitter, dpi).height;
  const int growth = growth_of(splitter.parent(), dpi, form).down;
  const int border = designed(splitter, dpi).top;
  return {.whole = whole + growth,
          .usual = border + share(growth, border, whole),
          .least_before = pixels_of(splitter.least_above(), dpi),
          .least_after = pixels_of(splitter.least_below(), dpi)};
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
