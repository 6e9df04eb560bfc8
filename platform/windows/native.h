#pragma once

/// The system's own headers, for the files of this back-end alone, without those of its macros that
/// stand for names of the layer. A namesake of the system's is called with "::" ahead.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#undef HWND_TOPMOST
#undef HWND_NOTOPMOST
#undef SWP_NOSIZE
#undef SWP_NOMOVE

// These lean on the one above.
#include <commctrl.h>
#include <mmsystem.h>
#include <ole2.h>
#include <oleacc.h>
#include <winspool.h>
