#include "tools/pictures/capture.h"

#include <objidl.h>
// gdiplus.h needs objidl.h first.
#include <gdiplus.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
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
  explicit Picture(const RECT& place)
      : width_(static_cast<int>(place.right - place.left)),
        height_(static_cast<int>(place.bottom - place.top)) {
    const WindowDc screen(nullptr);
    const MemoryDc memory(CreateCompatibleDC(screen.get()));
    bitmap_.reset(CreateCompatibleBitmap(screen.get(), width_, height_));
    {
      const Selected selected(memory.get(), bitmap_.get());
      BitBlt(memory.get(), 0, 0, width_, height_, screen.get(), place.left, place.top, SRCCOPY);
    }
    BITMAPINFO layout{};
    layout.bmiHeader = {sizeof(BITMAPINFOHEADER), width_, -height_, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    colors_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
    GetDIBits(memory.get(), bitmap_.get(), 0, static_cast<UINT>(height_), colors_.data(), &layout,
              DIB_RGB_COLORS);
  }

  [[nodiscard]] bool shows_the_same(const Picture& other) const { return colors_ == other.colors_; }
  /// As a PNG file, with a palette where that holds all colours: it takes half of the space.
  [[nodiscard]] bool save(const std::string& path) const {
    const Graphics graphics;
    std::vector<DWORD> palette = colors_;
    std::sort(palette.begin(), palette.end());
    palette.erase(std::unique(palette.begin(), palette.end()), palette.end());
    const auto write = [&](Gdiplus::Bitmap& image) {
      return image.Save(wide(path).c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
    };
    if (palette.size() > kMostColors) {
      Gdiplus::Bitmap image(bitmap_.get(), nullptr);
      return write(image);
    }
    const int stride = (width_ + 3) / 4 * 4;  // lines begin at multiples of four
    std::vector<BYTE> places(static_cast<std::size_t>(stride) * static_cast<std::size_t>(height_));
    for (std::size_t at = 0; at < colors_.size(); ++at) {
      const auto found = std::lower_bound(palette.begin(), palette.end(), colors_[at]);
      const std::size_t line = at / static_cast<std::size_t>(width_);
      places[line * static_cast<std::size_t>(stride) + at % static_cast<std::size_t>(width_)] =
          static_cast<BYTE>(found - palette.begin());
    }
    std::vector<DWORD> listed = {0, static_cast<DWORD>(palette.size())};  // flags, count
    for (const DWORD color : palette) listed.push_back(color | kOpaque);
    Gdiplus::Bitmap image(width_, height_, stride, PixelFormat8bppIndexed, places.data());
    static_assert(sizeof(Gdiplus::ColorPalette) == 3 * sizeof(DWORD));
    image.SetPalette(reinterpret_cast<const Gdiplus::ColorPalette*>(listed.data()));
    return write(image);
  }

 private:
  static constexpr std::size_t kMostColors = 256;
  static constexpr DWORD kOpaque = 0xFF000000;

  int width_;
  int height_;
  Bitmap bitmap_;
  std::vector<DWORD> colors_;  // line by line from the top, 0x00RRGGBB
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
  return last->save(path);
}

}  // namespace quenda
