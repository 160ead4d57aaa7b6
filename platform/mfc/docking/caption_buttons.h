// What captions of panes and of floating frames do with their buttons. Coordinates are those of the window's
// corner unless said otherwise.
#pragma once

#include <functional>

#include <afxwin.h>
#include <kmfc/caption_button.h>

namespace kmfc::docking {

/// The shown button at a point, or null.
CMFCCaptionButton* button_at(const CObArray& buttons, CPoint point);
/// The button with a hit code, or null.
CMFCCaptionButton* button_with(const CObArray& buttons, LRESULT hit);
void add_button(CObArray& buttons, LRESULT hit);
void delete_buttons(CObArray& buttons);
/// Gives the buttons their places in a caption; `shown` says which of them show.
void place_buttons_in(const CObArray& buttons, const CRect& caption,
                      const std::function<bool(const CMFCCaptionButton&)>& shown);
/// What the buttons leave for the caption's text.
CRect text_beside(const CObArray& buttons, const CRect& caption);
/// Marks the button under the mouse and the one that is pressed. Whether anything changed.
bool mark_buttons(const CObArray& buttons, UINT hot, UINT pressed);
/// Draws a caption's text in a colour, cut off with dots.
void draw_caption_text(CDC& dc, const CString& text, CRect place, COLORREF color);
/// A point of the screen in coordinates of a window's corner.
CPoint to_corner(HWND window, CPoint screen);

}  // namespace kmfc::docking
