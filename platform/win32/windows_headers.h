#pragma once

// The only door to the system's headers. Windows 10 is the oldest system that the manifest names,
// so its functions (sizes by DPI above all) are linked directly.
#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef STRICT
#define STRICT
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0A00
#undef WINVER
#define WINVER 0x0A00

#include <windows.h>
// windows.h has to come first.
#include <commctrl.h>
#include <windowsx.h>
