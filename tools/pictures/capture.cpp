#include "tools/pictures/capture.h"

#include <objidl.h>
// gdiplus.h needs objidl.h first.
#include <gdiplus.h>

#include <optional>
#include <utility>
#include <vector>

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

/// What the screen shows at a place.
class Picture {
 public:
  explicit Picture(const RECT& place) {
    const int width = static_cast<int>(place.right - place.left);
    const int height = static_cast<int>(place.bottom - place.top);
    const WindowDc screen(nullptr);
    const MemoryDc memory(CreateCompatibleDC(screen.get()));
    bitmap_.reset(CreateCompatibleBitmap(screen.get(), width, height));
    {
      const Selected selected(memory.get(), bitmap_.get());
      BitBlt(memory.get(), 0, 0, width, height, screen.get(), place.left, place.top, SRCCOPY);
    }
    BITMAPINFO layout{};
    layout.bmiHeader = {sizeof(BITMAPINFOHEADER), width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    colors_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    GetDIBits(memory.get(), bitmap_.get(), 0, static_cast<UINT>(height), colors_.data(), &layout,
              DIB_RGB_COLORS);
  }

  [[nodiscard]] bool shows_the_same(const Picture& other) const { return colors_ == other.colors_; }
  [[nodiscard]] HBITMAP bitmap() const { return bitmap_.get(); }

 private:
  Bitmap bitmap_;
  std::vector<DWORD> colors_;
};

}  // namespace

bool capture(const Window& window, const std::string& path) {
  constexpr DWORD kPause = 150;  // milliseconds between two looks
  SetCursorPos(1, 1);
  RedrawWindow(window.handle(), nullptr, nullptr,
               RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
  std::optional<Picture> last;
  const bool still = becomes([&] {
    Sleep(kPause);
    const std::optional<Picture> before = std::exchange(last, Picture(window.place()));
    return before && before->shows_the_same(*last);
  });
  if (!still) return false;
  const Graphics graphics;
  Gdiplus::Bitmap image(last->bitmap(), nullptr);
  return image.Save(wide(path).c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

}  // namespace quenda
