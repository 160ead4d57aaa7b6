#include <afxwin.h>
#include <ktui/host/message_box.h>

int KtUiMessageBox(const wchar_t*, const wchar_t* text, UINT type) {
    // Kept: the platform's box heads itself with the application's name. Callers rely on their caption not
    // counting here.
    return AfxMessageBox(text, type, 0);
}
