// <windows.h> as this folder uses it, without the macros that would rename the ports' functions.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef STRICT
#define STRICT
#endif
#include <windows.h>
// After <windows.h>, on which they rely.
#include <commctrl.h>
#include <commdlg.h>
#include <ole2.h>
#include <windowsx.h>

#undef ChooseFont
#undef small
