#include "platform/win32/windows/access_keys.h"

#include <algorithm>
#include <array>

#include "platform/win32/windows/layout.h"
#include "text/text.h"

namespace quenda {
namespace {

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

/// Gives each caption a letter of its own. A caption whose letters are all taken asks their holders
/// to move to another one of theirs.
class Letters {
 public:
  /// The first `settled` captions keep the letters that they get first.
  Letters(const std::vector<std::string>& captions, std::size_t settled)
      : captions_(captions),
        places_(captions.size(), std::string::npos),
        settled_(static_cast<int>(settled)) {
    holders_.fill(kFree);
    for (const std::string& caption : captions) {
      const std::size_t own = own_key(caption);
      if (own != std::string::npos) holders_[folded(caption[own])] = kFixed;
    }
  }

  void give(std::size_t caption, bool may_ask) {
    std::array<bool, 256> asked{};
    const auto position = static_cast<int>(caption);
    if (!take_free(position) && may_ask) take_from_another(position, asked);
  }
  /// Where the letter of a caption stands in it; npos without one.
  [[nodiscard]] std::size_t place(std::size_t caption) const { return places_[caption]; }

 private:
  static constexpr int kFree = -1;
  static constexpr int kFixed = -2;

  /// The places of a caption's letters, beginnings of words first.
  [[nodiscard]] std::vector<std::size_t> candidates(int caption) const {
    const std::string& text = captions_[static_cast<std::size_t>(caption)];
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (is_letter(text[i])) found.push_back(i);
    }
    std::stable_partition(found.begin(), found.end(), [&](std::size_t i) {
      return i == 0 || text[i - 1] == ' ' || text[i - 1] == '-';
    });
    return found;
  }

  [[nodiscard]] unsigned char letter_at(int caption, std::size_t place) const {
    return folded(captions_[static_cast<std::size_t>(caption)][place]);
  }

  void take(int caption, std::size_t place) {
    holders_[letter_at(caption, place)] = caption;
    places_[static_cast<std::size_t>(caption)] = place;
  }

  bool take_free(int caption) {
    return std::ranges::any_of(candidates(caption), [&](std::size_t place) {
      const bool free = holders_[letter_at(caption, place)] == kFree;
      if (free) take(caption, place);
      return free;
    });
  }

  bool take_from_another(int caption, std::array<bool, 256>& asked) {
    for (const std::size_t place : candidates(caption)) {
      const unsigned char letter = letter_at(caption, place);
      const int holder = holders_[letter];
      if (holder < settled_ || asked[letter]) continue;
      asked[letter] = true;
      if (!take_free(holder) && !take_from_another(holder, asked)) continue;
      take(caption, place);
      return true;
    }
    return false;
  }

  const std::vector<std::string>& captions_;
  std::vector<std::size_t> places_;
  std::array<int, 256> holders_{};
  int settled_;
};

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

bool repeats(const std::vector<std::string>& captions, const std::string& caption) {
  return std::count(captions.begin(), captions.end(), caption) > 1;
}

}  // namespace

std::vector<std::string> with_access_keys(const std::vector<std::string>& captions,
                                          std::size_t settled) {
  Letters letters(captions, settled);
  for (const bool repeating : {false, true}) {
    for (std::size_t i = 0; i < captions.size(); ++i) {
      if (captions[i].size() < 2 || own_key(captions[i]) != std::string::npos) continue;
      if (repeats(captions, captions[i]) == repeating) letters.give(i, !repeating);
    }
  }
  std::vector<std::string> result = captions;
  for (std::size_t i = 0; i < result.size(); ++i) {
    if (letters.place(i) != std::string::npos) result[i].insert(letters.place(i), 1, '&');
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

std::string label_of_list(const ControlHost& form, const Control& control) {
  if (!is_field(control) || control.kind() == ControlKind::kTextBox) return {};
  const Control* before = nullptr;
  for (const Control* sibling : in_tab_order(form, control.parent())) {
    if (sibling == &control) break;
    before = sibling;
  }
  return before != nullptr && before->kind() == ControlKind::kLabel ? before->caption() : "";
}

std::string without_access_key(std::string_view caption) { return replace_all(caption, "&", "&&"); }

}  // namespace quenda
