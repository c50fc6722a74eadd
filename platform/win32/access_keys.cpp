#include "platform/win32/access_keys.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "platform/win32/layout.h"
#include "support/text.h"

namespace quenda {
namespace {

using Letters = std::array<bool, 256>;

unsigned char folded(char character) { return static_cast<unsigned char>(to_lower(character)); }

bool is_letter(char character) {
  const unsigned char c = folded(character);
  return (c >= 'a' && c <= 'z') || (c >= 0xDF && c != 0xF7);
}

/// Position of the letter behind the caption's own "&"; npos for none. Two stand for the sign.
std::size_t own_key(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return i + 1;
    ++i;
  }
  return std::string_view::npos;
}

std::size_t free_letter(std::string_view caption, const Letters& taken, bool only_beginnings) {
  for (std::size_t i = 0; i < caption.size(); ++i) {
    const bool beginning = i == 0 || caption[i - 1] == ' ' || caption[i - 1] == '-';
    if (only_beginnings && !beginning) continue;
    if (is_letter(caption[i]) && !taken[folded(caption[i])]) return i;
  }
  return std::string_view::npos;
}

/// Whether a label before the control speaks for it.
bool is_field(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kTextBox:
    case ControlKind::kListBox:
    case ControlKind::kComboList:
    case ControlKind::kListView:
      return true;
    default:
      return false;
  }
}

void collect(const ControlHost& form, const Control* frame, std::vector<Control*>& found) {
  const auto ordered = in_tab_order(form, frame);
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    Control& control = *ordered[i];
    if (!control.visible()) continue;
    switch (control.kind()) {
      case ControlKind::kFrame:
        collect(form, &control, found);
        break;
      case ControlKind::kButton:
      case ControlKind::kCheckBox:
      case ControlKind::kOptionButton:
        found.push_back(&control);
        break;
      case ControlKind::kLabel:
        if (i + 1 < ordered.size() && is_field(*ordered[i + 1])) found.push_back(&control);
        break;
      default:
        break;
    }
  }
}

std::vector<std::size_t> rare_captions_first(const std::vector<std::string>& captions) {
  std::vector<std::size_t> positions(captions.size());
  std::iota(positions.begin(), positions.end(), std::size_t{0});
  std::stable_partition(positions.begin(), positions.end(), [&](std::size_t position) {
    return std::count(captions.begin(), captions.end(), captions[position]) == 1;
  });
  return positions;
}

}  // namespace

std::vector<std::string> with_access_keys(const std::vector<std::string>& captions) {
  Letters taken{};
  for (const std::string& caption : captions) {
    const std::size_t own = own_key(caption);
    if (own != std::string::npos) taken[folded(caption[own])] = true;
  }
  std::vector<std::string> result = captions;
  for (const std::size_t position : rare_captions_first(captions)) {
    std::string& caption = result[position];
    if (caption.size() < 2 || own_key(caption) != std::string::npos) continue;
    std::size_t at = free_letter(caption, taken, true);
    if (at == std::string::npos) at = free_letter(caption, taken, false);
    if (at == std::string::npos) continue;
    taken[folded(caption[at])] = true;
    caption.insert(at, 1, '&');
  }
  return result;
}

std::vector<Control*> keyed_controls(const ControlHost& form) {
  std::vector<Control*> found;
  collect(form, nullptr, found);
  std::stable_partition(found.begin(), found.end(),
                        [](const Control* control) { return control->parent() == nullptr; });
  return found;
}

std::string without_access_key(std::string_view caption) { return replace_all(caption, "&", "&&"); }

}  // namespace quenda
