#include <algorithm>
#include <exception>
#include <iostream>
#include <string>
#include <utility>

#include "app/fMain.h"
#include "app/quenda-import/console_services.h"
#include "book/pages/fImportItemEdit.h"
#include "book/pages/fImportMsg.h"
#include "book/pages/fOVWInput.h"
#include "platform/native_services.h"
#include "platform/win32/text_win32.h"
#include "platform/win32/windows/look.h"
#include "settings/app.h"
#include "text/text.h"

// Prints the captions that are longer than their places, measured with the user's message font at
// 96 dots per inch: form, control, what the text needs, what there is, the text, separated by tabs.
// Usage: language_widths SUITE-FOLDER
//
// Measured is what the forms show from the start. Texts that come later (status bar, messages) have
// no place of their own to outgrow.
namespace quenda {
namespace {

constexpr int kDpi = 96;
constexpr int kTwipsPerInch = 1440;
constexpr int kNormalScale = 100;

int pixels(int twips) { return twips * kDpi / kTwipsPerInch; }

/// What a control needs beside its text: the box of a check box, the edges of a button.
int decoration(ControlKind kind) {
  switch (kind) {
    case ControlKind::kCheckBox:
    case ControlKind::kOptionButton:
      return 18;
    case ControlKind::kButton:
      return 12;
    case ControlKind::kFrame:
      return 18;
    default:
      return 0;
  }
}

bool has_text(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kButton:
    case ControlKind::kCheckBox:
    case ControlKind::kOptionButton:
      return !control.caption().empty();
    default:
      return false;
  }
}

/// Width and height that a text needs where `width` pixels are there.
std::pair<int, int> measure(HDC screen, HFONT font, const std::string& text, int width,
                            bool wraps) {
  const HGDIOBJ before = SelectObject(screen, font);
  const std::wstring letters = wide(text);
  RECT area{0, 0, width, 0};
  DrawTextW(screen, letters.data(), static_cast<int>(letters.size()), &area,
            DT_CALCRECT | DT_NOPREFIX | (wraps ? DT_WORDBREAK : DT_SINGLELINE));
  SelectObject(screen, before);
  return {area.right, area.bottom};
}

void check(const Form& form, HDC screen, const Fonts& fonts) {
  for (const Control* control : form.controls()) {
    if (!has_text(*control)) continue;
    const bool wraps =
        control->kind() != ControlKind::kButton && control->kind() != ControlKind::kFrame;
    const int width = pixels(control->place().width) - decoration(control->kind());
    const int height = pixels(control->place().height);
    const HFONT font = control->heading() ? fonts.heading.get() : fonts.plain.get();
    const auto [needs_width, needs_height] =
        measure(screen, font, control->caption(), width, wraps);
    if (needs_width <= width && (!wraps || needs_height <= std::max(height, 1))) continue;
    std::cout << form.name() << '\t' << control->name();
    if (control->index() >= 0) std::cout << '(' << control->index() << ')';
    std::cout << "\tneeds " << needs_width << 'x' << needs_height << "\thas " << width << 'x'
              << height << '\t' << to_utf8(control->caption()) << '\n';
  }
}

void check_forms(const std::string& suite) {
  const auto files = native_files();
  const auto clock = native_clock();
  const auto system = native_system();
  const auto automation = native_automation();
  ProgressLine progress(std::cerr);
  ConsoleDialogs dialogs(std::cerr, progress);
  ConsoleEvents events(*clock);
  ConsoleLink link;
  SuiteSystem suite_system(*system, suite);
  App app(Machine{*files, *clock, events, dialogs, suite_system, link, *automation});
  app.ini.write_protection = true;
  fMain main(app);
  main.Form_Load();

  const HDC screen = GetDC(nullptr);
  const Fonts fonts(kDpi, kNormalScale);
  check(main, screen, fonts);
  check(fImportItemEdit(app), screen, fonts);
  check(fImportMsg(app), screen, fonts);
  check(fOVWInput(app), screen, fonts);
  ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace quenda

int main(int count, char** arguments) {
  if (count != 2) return 2;
  try {
    quenda::check_forms(arguments[1]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
