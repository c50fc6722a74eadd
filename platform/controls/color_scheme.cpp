#include "platform/controls/color_scheme.h"

#include <variant>

namespace quenda {
namespace {

/// A colour of the system, or one of our own.
using Source = std::variant<SystemColor, Color>;

struct ToneRow {
  Tone tone;
  Source light;
  Source dark;
  SystemColor contrast;
};

using enum SystemColor;

constexpr ToneRow kToneRows[] = {
    {Tone::kFace, kFace, Color{32, 32, 32}, kFace},
    {Tone::kText, kText, Color{240, 240, 240}, kText},
    {Tone::kField, kWindow, Color{25, 25, 25}, kWindow},
    {Tone::kFieldText, kWindowText, Color{240, 240, 240}, kWindowText},
    {Tone::kGreyText, kGreyText, Color{140, 140, 140}, kGreyText},
    {Tone::kLine, kShadow, Color{100, 100, 100}, kWindowText},
    {Tone::kGrip, kShadow, Color{130, 130, 130}, kText},
    {Tone::kButton, kFace, Color{51, 51, 51}, kFace},
    {Tone::kHotButton, kFace, Color{69, 69, 69}, kFace},
    {Tone::kPressedButton, kFace, Color{40, 40, 40}, kFace},
    {Tone::kHeading, kFace, Color{43, 43, 43}, kFace},
    {Tone::kSelected, kHighlight, kHighlight, kHighlight},
    {Tone::kSelectedText, kHighlightText, kHighlightText, kHighlightText},
    {Tone::kRestingSelection, kFace, Color{70, 70, 70}, kFace},
    {Tone::kName, Color{255, 247, 204}, Color{74, 64, 22}, kWindow},
    {Tone::kNumber, Color{216, 240, 216}, Color{28, 66, 36}, kWindow},
    {Tone::kAddress1, Color{214, 232, 250}, Color{24, 56, 88}, kWindow},
    {Tone::kAddress2, Color{240, 222, 246}, Color{70, 38, 80}, kWindow},
    {Tone::kChosenText, Color{0, 0, 0}, Color{245, 245, 245}, kWindowText},
};
static_assert(std::size(kToneRows) == kTones);

Color color_of(const Source& source, const SystemColors& system) {
  const auto* const own = std::get_if<Color>(&source);
  return own != nullptr ? *own : system[static_cast<std::size_t>(std::get<SystemColor>(source))];
}

/// By the weight that the eye gives each part.
bool is_dark(Color color) {
  return color.red * 299 + color.green * 587 + color.blue * 114 < 128 * 1000;
}

}  // namespace

LookMode look_mode(bool high_contrast, bool wants_dark, const SystemColors& system) {
  if (high_contrast || is_dark(system[static_cast<std::size_t>(kWindow)])) {
    return LookMode::kContrast;
  }
  return wants_dark ? LookMode::kDark : LookMode::kLight;
}

ColorScheme color_scheme(LookMode mode, const SystemColors& system) {
  ColorScheme scheme;
  scheme.mode = mode;
  for (const ToneRow& row : kToneRows) {
    const Source source = mode == LookMode::kLight  ? row.light
                          : mode == LookMode::kDark ? row.dark
                                                    : Source(row.contrast);
    scheme.colors[static_cast<std::size_t>(row.tone)] = color_of(source, system);
  }
  return scheme;
}

}  // namespace quenda
