#include "tests/pictures/capture.h"

#include <objidl.h>
// gdiplus.h needs objidl.h first.
#include <gdiplus.h>

#include "platform/win32/handles.h"
#include "platform/win32/text_win32.h"

namespace quenda {
namespace {

// {557CF406-1A04-11D3-9A73-0000F81EF32E}: the encoder of PNG files.
constexpr CLSID kPngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

class Graphics {
 public:
  Graphics() {
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token_, &input, nullptr);
  }
  Graphics(const Graphics&) = delete;
  Graphics& operator=(const Graphics&) = delete;
  ~Graphics() { Gdiplus::GdiplusShutdown(token_); }

 private:
  ULONG_PTR token_ = 0;
};

}  // namespace

bool capture(const Window& window, const std::string& path) {
  SetCursorPos(1, 1);
  SendMessageW(window.handle(), WM_NULL, 0, 0);
  RedrawWindow(window.handle(), nullptr, nullptr,
               RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
  const Graphics graphics;
  const RECT place = window.place();
  const int width = static_cast<int>(place.right - place.left);
  const int height = static_cast<int>(place.bottom - place.top);
  const WindowDc screen(nullptr);
  const MemoryDc memory(CreateCompatibleDC(screen.get()));
  const Bitmap bitmap(CreateCompatibleBitmap(screen.get(), width, height));
  {
    const Selected selected(memory.get(), bitmap.get());
    BitBlt(memory.get(), 0, 0, width, height, screen.get(), place.left, place.top, SRCCOPY);
  }
  Gdiplus::Bitmap image(bitmap.get(), nullptr);
  return image.Save(wide(path).c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

}  // namespace quenda
