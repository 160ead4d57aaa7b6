// The GetSafe... functions, which may be called by a null pointer. This unit alone is compiled so that a
// member function keeps its test for that.
#include <kmfc/image_list.h>
#include <kmfc/wnd.h>

HWND CWnd::GetSafeHwnd() const { return kmfc::safe_handle(this); }
HDC CDC::GetSafeHdc() const { return kmfc::safe_handle(this); }
HGDIOBJ CGdiObject::GetSafeHandle() const { return kmfc::safe_handle(this); }
HMENU CMenu::GetSafeHmenu() const { return kmfc::safe_handle(this); }
HIMAGELIST CImageList::GetSafeHandle() const { return kmfc::safe_handle(this); }
