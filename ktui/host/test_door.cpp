#include <ktui/host/test_door.h>

const KtUiTestEntries& KtUiTestDoor() {
    static constexpr KtUiTestEntries entries = {
        &::ExchangeThemeApi,   &::LoadedToolkit,        &::StringLibrary,          &::SplitButtonMessage,
        &::SplitButtonWndProc, &::SplitButtonTextFlags, &::ExchangeFindFileDialog, &::AddToRecentFolder};
    return entries;
}
