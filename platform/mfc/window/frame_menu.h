// The menu of a frame, which a bar may show in place of the system.
#pragma once

#include <windows.h>

namespace kmfc {

/// Sent to a frame: WPARAM the menu that its bar is to show, or 0. The answer is the menu that the bar shows
/// then; 0 without a bar.
extern UINT frame_menu_message;

/// The menu that a frame shows, whoever does; null for none.
HMENU menu_of_frame(HWND frame);

/// Gives a frame of documents another menu, and another one in which they are listed (null for the same); the
/// former.
HMENU set_frame_menu(HWND frame, HWND documents, HMENU menu, HMENU windows);

}  // namespace kmfc
