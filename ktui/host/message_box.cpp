#include <afxwin.h>
#include <ktui/host/message_box.h>

int KtUiMessageBox(const wchar_t*, const wchar_t* text, UINT type) {
    // Kept: the caption doesn't count; the box is headed by the application's name.
    return AfxMessageBox(text, type, 0);
}
