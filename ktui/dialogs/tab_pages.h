// The arithmetic of a tabbed dialog: where its pages stand and on which page it opens. Knows no window.
// Private to the library; its tests link it by itself.
#pragma once

#include <functional>

#include <afx.h>

/// The rectangle of a page. `strip` is the tab control's client area and `rowHeight` the height of one of its
/// items; the strip is taken to be one row high. All in pixels, in the parent dialog's client coordinates.
CRect TabPageArea(CRect strip, int rowHeight);

/// The text of item `index`; false if there is no such item.
using TabItemText = std::function<bool(int index, CString& text)>;

/// The page that a dialog of `count` items is to open on, as `request` names it by number or by the text of
/// an item; -1 for an empty request, 0 for one that names no page.
int InitialTabIndex(const CString& request, int count, const TabItemText& itemText);
