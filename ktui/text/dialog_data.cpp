#include <ktui/text/dialog_data.h>

#include <kh_system.h>
#include <ktut.h>
#include <ktui/text/dialog_root.h>
#include <ktui/text/registry_access.h>

CString ProductDialogRoot() {
    CString root;
    root.Format(L"%s\\%s\\%s\\Dialogs\\", ktutProfileFileName().c_str(), ktutProfileRootName().c_str(),
                CKhSystem::instance()->productInfo()->profileVersionKey());
    return root;
}

CString DialogDataKey(const wchar_t* root, const CString& dialogName) { return root + dialogName + L"\\"; }

int KtUiSetDialogData(const CString& rootKey, const CString& dialogName, const CString& valueName,
                      const CString& value) {
    if (dialogName.IsEmpty()) return 0;
    const CString root = rootKey.IsEmpty() ? ProductDialogRoot() : rootKey;
    CKbUiRegistryWriteAccess key(HKEY_CURRENT_USER, DialogDataKey(root, dialogName));
    return key.SetString(valueName, value) ? 1 : 0;
}
