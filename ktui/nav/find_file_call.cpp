#include <ktui/nav/find_file_call.h>

#include <utility>

namespace {

decltype(&ktuiFindFileDialog) findFileDialog = &ktuiFindFileDialog;

}  // namespace

bool CallFindFileDialog(const wchar_t* filter, int filterIndex, const wchar_t* folder, OdString& outFolder,
                        OdString& outFile) {
    return findFileDialog(filter, filterIndex, folder, outFolder, outFile);
}

decltype(&ktuiFindFileDialog) ExchangeFindFileDialog(decltype(&ktuiFindFileDialog) dialog) {
    return std::exchange(findFileDialog, dialog);
}
