#include <ktui/text/dialog_data.h>

#include <kh_system.h>
#include <ktut.h>
#include <ktui/text/registry_access.h>

namespace {

CString DialogKey(const CString& rootKey, const CString& dialogName) {
    CString key;
    if (!rootKey.IsEmpty()) {
        key.Format(L"%s%s\\", rootKey.GetString(), dialogName.GetString());
        return key;
    }
    const OdString fileName = ktutProfileFileName();
    const OdString rootName = ktutProfileRootName();
    key.Format(L"%s\\%s\\%s\\Dialogs\\%s\\", fileName.c_str(), rootName.c_str(),
               CKhSystem::instance()->productInfo()->profileVersionKey(), dialogName.GetString());
    return key;
}

}  // namespace

int KtUiSetDialogData(const CString& rootKey, const CString& dialogName, const CString& valueName,
                      const CString& value) {
    if (dialogName.IsEmpty()) return 0;
    CKbUiRegistryWriteAccess key(HKEY_CURRENT_USER, DialogKey(rootKey, dialogName));
    return key.SetString(valueName, value) ? 1 : 0;
}
