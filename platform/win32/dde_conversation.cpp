#include "platform/win32/dde_conversation.h"

#include <dde.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

#include "platform/win32/text_win32.h"

namespace quenda {
namespace {

constexpr UINT_PTR kAccepted = 0x8000;  // the other bits of an answer mean nothing here

bool is_text(UINT format) { return format == CF_TEXT || format == CF_UNICODETEXT; }

/// The text with its end, as a message carries it; null when there is no memory.
HGLOBAL block_of(std::string_view text, UINT format, bool asked_for) {
  const std::wstring units = format == CF_UNICODETEXT ? wide(text) : std::wstring();
  const void* const bytes =
      format == CF_UNICODETEXT ? static_cast<const void*>(units.data()) : text.data();
  const std::size_t size = format == CF_UNICODETEXT ? units.size() * sizeof(wchar_t) : text.size();
  constexpr std::size_t kHead = offsetof(DDEDATA, Value);
  // The zeros behind the text are its end in either form.
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, kHead + size + sizeof(wchar_t));
  auto* const head = static_cast<DDEDATA*>(GlobalLock(block));
  if (head == nullptr) return nullptr;
  head->fResponse = asked_for ? 1 : 0;
  head->fRelease = 1;
  head->cfFormat = static_cast<short>(format);
  if (size > 0) std::memcpy(static_cast<char*>(static_cast<void*>(head)) + kHead, bytes, size);
  GlobalUnlock(block);
  return block;
}

}  // namespace

DdeConversation::DdeConversation(WindowHandle window, HWND host, std::string_view item)
    : window_(std::move(window)), host_(host), item_(wide(item)) {}

bool DdeConversation::offers(UINT format, ATOM item) const {
  return is_text(format) && item != 0 && item == GlobalFindAtomW(item_.c_str());
}

void DdeConversation::tell(std::string_view text) {
  for (Watch& watch : watches_) {
    if (watch.told == text) continue;
    watch.told = text;
    if (watch.warm) {
      post(nullptr);
    } else {
      send(text, watch.format, false);
    }
  }
}

void DdeConversation::answer(UINT message, LPARAM carried, std::string_view text) {
  UINT_PTR low = 0;
  UINT_PTR high = 0;
  if (UnpackDDElParam(message, carried, &low, &high) == FALSE) return;
  const auto item = static_cast<ATOM>(high);
  const auto format = static_cast<UINT>(low);
  switch (message) {
    case WM_DDE_ADVISE:
      acknowledge(message, carried, high, watch(reinterpret_cast<HGLOBAL>(low), item));
      break;
    case WM_DDE_UNADVISE:
      acknowledge(message, carried, high, forget(format, item));
      break;
    case WM_DDE_REQUEST:
      if (!offers(format, item)) {
        acknowledge(message, carried, high, false);
        break;
      }
      GlobalDeleteAtom(item);
      send(text, format, true);
      break;
    case WM_DDE_POKE:
    case WM_DDE_EXECUTE:
      acknowledge(message, carried, high, false);
      break;
    case WM_DDE_ACK:
      // Nothing that is sent asks for one.
      FreeDDElParam(message, carried);
      break;
    default:
      break;
  }
}

bool DdeConversation::watch(HGLOBAL options, ATOM item) {
  const auto* const wanted = static_cast<const DDEADVISE*>(GlobalLock(options));
  if (wanted == nullptr) return false;
  const Watch made{static_cast<UINT>(wanted->cfFormat), wanted->fDeferUpd != 0};
  GlobalUnlock(options);
  // What is refused stays the host's.
  if (!offers(made.format, item)) return false;
  GlobalFree(options);
  forget(made.format, item);
  watches_.push_back(made);
  return true;
}

/// No format means every form, no item every item.
bool DdeConversation::forget(UINT format, ATOM item) {
  if (item != 0 && item != GlobalFindAtomW(item_.c_str())) return false;
  const auto ended = [&](const Watch& watch) { return format == 0 || watch.format == format; };
  return std::erase_if(watches_, ended) > 0;
}

void DdeConversation::send(std::string_view text, UINT format, bool asked_for) const {
  const HGLOBAL block = block_of(text, format, asked_for);
  if (block != nullptr) post(block);
}

void DdeConversation::post(HGLOBAL data) const {
  const ATOM item = GlobalAddAtomW(item_.c_str());
  const LPARAM carried = PackDDElParam(WM_DDE_DATA, reinterpret_cast<UINT_PTR>(data), item);
  if (PostMessageW(host_, WM_DDE_DATA, reinterpret_cast<WPARAM>(window_.get()), carried) != 0) {
    return;
  }
  FreeDDElParam(WM_DDE_DATA, carried);
  GlobalDeleteAtom(item);
  GlobalFree(data);
}

void DdeConversation::acknowledge(UINT message, LPARAM carried, UINT_PTR about,
                                  bool accepted) const {
  const LPARAM packed =
      ReuseDDElParam(carried, message, WM_DDE_ACK, accepted ? kAccepted : 0, about);
  if (PostMessageW(host_, WM_DDE_ACK, reinterpret_cast<WPARAM>(window_.get()), packed) == 0) {
    FreeDDElParam(WM_DDE_ACK, packed);
  }
}

void DdeConversation::say_goodbye() const {
  PostMessageW(host_, WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(window_.get()), 0);
}

}  // namespace quenda
