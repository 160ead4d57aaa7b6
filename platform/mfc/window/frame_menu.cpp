#include "frame_menu.h"

namespace kmfc {

UINT frame_menu_message = ::RegisterWindowMessageW(L"kmfc: the menu that a frame shows in a bar");

namespace {

HMENU ask(HWND frame, HMENU menu) {
    return reinterpret_cast<HMENU>(
        ::SendMessageW(frame, frame_menu_message, reinterpret_cast<WPARAM>(menu), 0));
}

}  // namespace

HMENU menu_of_frame(HWND frame) {
    const HMENU shown = ask(frame, nullptr);
    return shown != nullptr ? shown : ::GetMenu(frame);
}

HMENU set_frame_menu(HWND frame, HWND documents, HMENU menu, HMENU windows) {
    const HMENU inBar = ask(frame, nullptr);
    if (inBar != nullptr && menu != nullptr) ask(frame, menu);
    // With a bar the system learns of the list alone.
    const HMENU ofSystem = inBar == nullptr ? menu : nullptr;
    const auto former = reinterpret_cast<HMENU>(::SendMessageW(
        documents, WM_MDISETMENU, reinterpret_cast<WPARAM>(ofSystem), reinterpret_cast<LPARAM>(windows)));
    if (inBar == nullptr) ::DrawMenuBar(frame);
    return inBar != nullptr ? inBar : former;
}

}  // namespace kmfc
