#include <ktui/text/dialog_root.h>

#include <kh_system.h>
#include <ktut.h>

CString ProductDialogRoot() {
    CString root;
    root.Format(L"%s\\%s\\%s\\Dialogs\\", ktutProfileFileName().c_str(), ktutProfileRootName().c_str(),
                CKhSystem::instance()->productInfo()->profileVersionKey());
    return root;
}

CString DialogDataKey(const wchar_t* root, const CString& dialogName) { return root + dialogName + L"\\"; }
