// Copies one picture of a vertical strip into the image column of a picker. Private to the library.
//
// A strip is black on white at the agreed size. For a host that follows the system there are larger ones, in
// which black and white stand for the colours of texts and windows.
#pragma once

#include <afxwin.h>
#include <ktui/pickers/strip_look.h>

/// Copies `width` by `height` pixels of `strip` from its left edge at `top` to the left top corner of `image`
/// (logical units of `dc`). Nothing for an empty strip. `memory` is made on the first call, with the strip
/// selected in it, and belongs to the caller, who lets it go before the strip: making one for each picture,
/// or selecting the strip anew, costs more than the copy.
void DrawStripPicture(CDC& dc, const RECT& image, CDC& memory, CBitmap& strip, int top, int width,
                      int height);

/// Loads the library's own bitmap `id` into `strip`, which stays empty if there is no such bitmap.
void LoadStrip(CBitmap& strip, UINT id);

/// Side in pixels of the pictures for a control: `agreed`, or for a host that follows the system the one of
/// `agreed`, 20, 24 and 32 that suits the resolution of `window`.
int StripSize(HWND window, int agreed);

/// Loads `strip` anew if it should look otherwise than `look` says, for a host that follows the system. The
/// strip of pictures of another size than `agreed` has the id `largerIds` plus their side. `memory` is the
/// context that pictures are copied through; it goes with the former strip.
void RefreshStrip(CDC& memory, CBitmap& strip, StripLook& look, int size, int agreed, UINT agreedId,
                  UINT largerIds);
