#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace quenda {

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend bool operator==(const Color&, const Color&) = default;
};

/// How the user wants windows to look.
enum class LookMode { kLight, kDark, kContrast };

/// Colours that the system has for its own windows; the user can have changed every one.
enum class SystemColor {
  kFace,
  kShadow,
  kText,
  kWindow,
  kWindowText,
  kGreyText,
  kHighlight,
  kHighlightText,
};
inline constexpr std::size_t kSystemColors = 8;
using SystemColors = std::array<Color, kSystemColors>;

/// What a colour is for.
enum class Tone {
  kFace,  // of a window and the labels on it
  kText,
  kField,  // where the user types or chooses
  kFieldText,
  kGreyText,
  kLine,  // around fields, boxes and buttons
  kGrip,
  kButton,
  kHotButton,
  kPressedButton,
  kHeading,  // above the columns of a list
  kSelected,
  kSelectedText,
  kRestingSelection,  // in a list without the focus
  kName,              // columns that have been chosen for something
  kNumber,
  kAddress1,
  kAddress2,
  kChosenText,  // on those
};
inline constexpr std::size_t kTones = 19;

/// The colours of a window.
struct ColorScheme {
  LookMode mode = LookMode::kLight;
  std::array<Color, kTones> colors;
  [[nodiscard]] Color operator[](Tone tone) const { return colors[static_cast<std::size_t>(tone)]; }
};

/// High contrast outranks the wish for dark windows. Where the system's own windows are dark
/// without either, the user has colours of their own, which are respected as in high contrast.
LookMode look_mode(bool high_contrast, bool wants_dark, const SystemColors& system);

/// With light windows and in high contrast every colour is the system's, but for the chosen columns
/// of light windows. The system has no dark ones to ask for: those are chosen here.
ColorScheme color_scheme(LookMode mode, const SystemColors& system);

}  // namespace quenda
