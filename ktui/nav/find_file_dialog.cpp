#include <ktui/nav/find_file_dialog.h>

bool ktuiFindFileDialog(const wchar_t*, int, const wchar_t*, OdString&, OdString&) { return false; }
