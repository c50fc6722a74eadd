#pragma once

#include "platform/win32/windows_headers.h"

namespace quenda {

/// A plain area that holds controls.
inline constexpr const wchar_t* kPanelClass = L"QuendaPanel";
/// An area that a peer paints itself.
inline constexpr const wchar_t* kPictureClass = L"QuendaPicture";
/// A border that the mouse drags up and down.
inline constexpr const wchar_t* kSplitterClass = L"QuendaSplitter";
/// The window of a form.
inline constexpr const wchar_t* kFormClass = L"QuendaForm";

/// Registers the classes above; again is no harm. That of the border by itself, since no form shows
/// one when it comes up.
void register_window_classes();
void register_splitter_class();

/// Passes the notices of controls that lie in an area on to the window that the area lies in.
/// True when the message was one of those.
bool forward_to_parent(HWND area, UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result);

}  // namespace quenda
