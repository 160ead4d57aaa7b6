#include <ktui/nav/find_file_dialog.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/resource_scope.h>
#include <ktui/nav/find_file_dlg.h>

bool ktuiFindFileDialog(const wchar_t* filter, int filterIndex, const wchar_t* folder, OdString& outFolder,
                        OdString& outFile) {
    const ResourceScope scope(LoadedToolkit().resourceLibrary);
    CFindFileDlg dialog(filter, filterIndex, folder);
    if (dialog.DoModal() != IDOK) return false;
    outFolder = dialog.ResultFolder().GetString();
    outFile = dialog.ResultFile().GetString();
    return true;
}
