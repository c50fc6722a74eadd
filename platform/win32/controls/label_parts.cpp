#include "platform/win32/controls/label_parts.h"

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"

namespace quenda {
namespace {

constexpr UINT kWrapped = DT_NOPREFIX | DT_WORDBREAK | DT_EDITCONTROL | DT_END_ELLIPSIS;
constexpr std::wstring_view kSign = L"\x2260 ";  // not equal

void draw(HDC dc, std::wstring_view text, RECT area) {
  DrawTextW(dc, text.data(), static_cast<int>(text.size()), &area, kWrapped);
}

Font bold_of(HFONT plain) {
  LOGFONTW wanted{};
  GetObjectW(plain, sizeof wanted, &wanted);
  wanted.lfWeight = FW_BOLD;
  return Font(CreateFontIndirectW(&wanted));
}

}  // namespace

void draw_parts(HWND window, const std::vector<PartsLabel::Part>& parts, HFONT plain) {
  const Font bold = bold_of(plain);
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(window, &paint);
  RECT area{};
  GetClientRect(window, &area);
  // The form says its colours as it does to labels that draw themselves.
  const LRESULT brush =
      SendMessageW(GetParent(window), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                   reinterpret_cast<LPARAM>(window));
  FillRect(dc, &area, reinterpret_cast<HBRUSH>(brush));
  SetBkMode(dc, TRANSPARENT);
  SIZE sign{};
  {
    const Selected font(dc, bold.get());
    GetTextExtentPoint32W(dc, kSign.data(), static_cast<int>(kSign.size()), &sign);
  }
  const LONG height = area.bottom / static_cast<LONG>(parts.size());
  RECT at{area.left, area.top, area.right, area.top + height};
  for (const PartsLabel::Part& part : parts) {
    const Selected font(dc, part.marked ? bold.get() : plain);
    if (part.marked) draw(dc, kSign, at);
    RECT text = at;
    text.left += sign.cx;
    draw(dc, wide(part.text), text);
    OffsetRect(&at, 0, height);
  }
  EndPaint(window, &paint);
}

}  // namespace quenda
