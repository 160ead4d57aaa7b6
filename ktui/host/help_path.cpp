#include <ktui/host/help_path.h>

#include <kh_system.h>
#include <od_string.h>

int KbUiFindContextHelpFullPath(const wchar_t* name, CString& path) {
    OdString found;
    CKhSystem::instance()->runtimeHost()->findFile(found, name, nullptr, 0);
    if (found.isEmpty()) return 0;
    path = found.c_str();
    return 1;
}
