#include <ktui/text/dialog_data.h>

#include <ktui/text/dialog_root.h>
#include <ktui/text/registry_access.h>

int KtUiSetDialogData(const CString& rootKey, const CString& dialogName, const CString& valueName,
                      const CString& value) {
    if (dialogName.IsEmpty()) return 0;
    const CString root = rootKey.IsEmpty() ? ProductDialogRoot() : rootKey;
    CKbUiRegistryWriteAccess key(HKEY_CURRENT_USER, DialogDataKey(root, dialogName));
    return key.SetString(valueName, value) ? 1 : 0;
}
