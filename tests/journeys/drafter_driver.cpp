#include "drafter_driver.h"

#include <algorithm>

#include "paths.h"

namespace {

constexpr int kTabs = 0xE8FE;
constexpr int kBars = 0xE81B;    // the site of the bars at the top
constexpr int kMiddle = 0xE900;  // what bars and palettes leave of a frame
constexpr const wchar_t* kDialogs = L"Software\\Velmora\\ktui\\Default\\1.0\\Dialogs\\";

std::wstring commandOf(const std::wstring& drawing, const std::wstring& folder,
                       const std::wstring& switches) {
    std::wstring command = L"\"" + (folder.empty() ? journey::programFolder() : folder) + L"drafter.exe\"";
    if (!switches.empty()) command += L" " + switches;
    if (!drawing.empty()) command += L" \"" + drawing + L"\"";
    return command;
}

bool isFrame(HWND window) {
    return ::GetWindow(window, GW_OWNER) == nullptr &&
           journey::textOf(window).find(L"Drafter") != std::wstring::npos &&
           ::GetDlgItem(window, kBars) != nullptr;
}

}  // namespace

namespace journey {

Drafter::Drafter(const std::wstring& drawing, const std::wstring& folder, const std::wstring& switches)
    : Program(commandOf(drawing, folder, switches), isFrame) {}

HWND Drafter::drawing() const {
    const HWND all = ::GetDlgItem(frame(), kMiddle);
    return reinterpret_cast<HWND>(::SendMessageW(all, WM_MDIGETACTIVE, 0, 0));
}

HWND Drafter::tabs() const { return ::GetDlgItem(frame(), kTabs); }

POINT Drafter::chooseTab(const std::wstring& title) {
    constexpr int kStep = 24, kBelow = 100;  // pixels; the step is less than any tab
    const RECT strip = rectOf(tabs());
    for (POINT at = {kStep, (strip.bottom - strip.top) / 2}; at.x < strip.right - strip.left; at.x += kStep) {
        // Let go elsewhere, a sign that closes does nothing.
        drag(tabs(), at, {at.x, kBelow});
        if (textOf(drawing()) == title) return at;
    }
    return {-1, -1};
}

std::vector<std::wstring> Drafter::drawings() const {
    std::vector<HWND> windows;
    const HWND all = ::GetDlgItem(frame(), kMiddle);
    for (HWND each = ::GetWindow(all, GW_CHILD); each != nullptr; each = ::GetWindow(each, GW_HWNDNEXT))
        windows.push_back(each);
    // The system numbers them as they come, and closes the gaps.
    std::ranges::sort(windows, {}, [](HWND each) { return ::GetDlgCtrlID(each); });
    std::vector<std::wstring> titles;
    for (const HWND each : windows) titles.push_back(textOf(each));
    return titles;
}

HWND Drafter::view() const { return ::GetDlgItem(drawing(), kMiddle); }

void Drafter::openDrawing(const std::wstring& path) {
    activate(frame());
    key('O', true);
    HWND dialog = waitForDialog(L"Open");
    type(path);
    key(VK_RETURN);
    waitUntilGone(dialog);
}

HWND Drafter::openProperties() {
    activate(frame());
    key('1', true);
    return waitForDialog(L"Properties");
}

HWND Drafter::panelWith(int control) const {
    struct Search {
        int control;
        HWND panel;
    } search = {control, nullptr};
    // Its palette may float.
    findWindow([&](HWND window) {
        ::EnumChildWindows(
            window,
            [](HWND child, LPARAM parameter) -> BOOL {
                auto& s = *reinterpret_cast<Search*>(parameter);
                if (::GetDlgCtrlID(child) != s.control || !::IsWindowVisible(child)) return TRUE;
                s.panel = ::GetParent(child);
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&search));
        return search.panel != nullptr;
    });
    return search.panel;
}

HWND Drafter::openLayers() {
    activate(frame());
    key('L', true);
    HWND panel = nullptr;
    waitUntil([&] {
        panel = panelWith(kLayersPanel);
        return panel != nullptr && ::IsChild(panel, focusOf(panel));
    });
    return panel;
}

std::wstring drawingsFolder() { return KTUI_DRAWINGS; }

std::wstring scratchPath(const std::wstring& name) {
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    return folder + name;
}

std::wstring scratchCopy(const std::wstring& drawing) {
    const std::wstring copy = scratchPath(drawing);
    ::CopyFileW((drawingsFolder() + drawing).c_str(), copy.c_str(), FALSE);
    return copy;
}

void forgetSettings() {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Velmora\\ktui\\Default\\1.0\\Dialogs");
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Velmora\\Drafter\\Recent File List");
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Velmora\\Drafter\\Workspace");
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Velmora\\ktui\\Default\\Export");
}

int setting(const std::wstring& dialog, const std::wstring& value, bool& found) {
    DWORD number = 0, size = sizeof(number);
    found = ::RegGetValueW(HKEY_CURRENT_USER, (kDialogs + dialog).c_str(), value.c_str(), RRF_RT_REG_DWORD,
                           nullptr, &number, &size) == ERROR_SUCCESS;
    return static_cast<int>(number);
}

void storeSetting(const std::wstring& dialog, const std::wstring& value, int number) {
    ::RegSetKeyValueW(HKEY_CURRENT_USER, (kDialogs + dialog).c_str(), value.c_str(), REG_DWORD, &number,
                      sizeof(DWORD));
}

}  // namespace journey
