// A Places list beside a stand-in of the platform's dialog: a window that tells its folder, with a box for
// the name and an OK button that goes to the folder typed.
#pragma once

#include <ktui/host/message_box.h>
#include <ktui/nav/place_item.h>
#include <ktui/nav/place_list.h>

#include <dlgs.h>
#include <shellapi.h>
#include <shlobj.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "nav_fixture.h"
#include "resting_mouse.h"

/// What the platform's dialog answers and does as far as places go.
class StandInDialog : public CWnd {
public:
    StandInDialog() {
        CreateEx(0, AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), L"stand-in",
                 WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 650, 750), nullptr, 0);
        ::CreateWindowW(L"EDIT", L"typed", WS_CHILD | WS_VISIBLE, 200, 10, 200, 24, m_hWnd,
                        reinterpret_cast<HMENU>(cmb13), nullptr, nullptr);
        ::CreateWindowW(L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE, 420, 10, 60, 24, m_hWnd,
                        reinterpret_cast<HMENU>(IDOK), nullptr, nullptr);
        SetForegroundWindow();
        ui_test::pump();
    }
    ~StandInDialog() override { DestroyWindow(); }

    // Answers; a message that is not known fails.
    bool knowsFolder = true, knowsFile = true;
    CString folder = L"C:\\";
    CString file = L"C:\\file";
    int listFolder = -1;  ///< CSIDL of the identifier list told; -1 fails

    std::vector<std::string> asked;
    std::vector<std::wstring> visited;  ///< what OK was pressed for

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case CDM_GETFOLDERPATH: return tell("folder", knowsFolder, folder, wParam, lParam);
            case CDM_GETFILEPATH: return tell("file", knowsFile, file, wParam, lParam);
            case CDM_GETFOLDERIDLIST: return tellList(wParam, lParam);
            default: break;
        }
        if (message == WM_COMMAND && wParam == IDOK) {
            visited.push_back(ui_test::text_of(::GetDlgItem(m_hWnd, cmb13)).GetString());
            folder = visited.back().c_str();
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    LRESULT tell(const char* name, bool isKnown, const CString& text, WPARAM room, LPARAM place) {
        asked.push_back(name);
        if (!isKnown) return -1;
        ::lstrcpynW(reinterpret_cast<wchar_t*>(place), text, static_cast<int>(room));
        return text.GetLength() + 1;
    }
    LRESULT tellList(WPARAM room, LPARAM place) {
        asked.push_back("list");
        LPITEMIDLIST list = nullptr;
        if (listFolder < 0 || FAILED(::SHGetSpecialFolderLocation(nullptr, listFolder, &list))) return -1;
        const UINT size = ::ILGetSize(list);
        if (place != 0 && room >= size) std::memcpy(reinterpret_cast<void*>(place), list, size);
        ::CoTaskMemFree(list);
        return static_cast<LRESULT>(size);
    }
};

/// A dialog that notes that its folder was changed.
class NotedNavDialog : public CKtUiNavDialog {
public:
    using CKtUiNavDialog::CKtUiNavDialog;
    std::vector<std::wstring> folderChanges;  ///< the folder shown at each
    StandInDialog* shown = nullptr;

    void OnFolderChange() override {
        folderChanges.push_back(shown != nullptr ? shown->folder.GetString() : L"");
    }
};

/// A message that the list showed.
struct Shown {
    bool hasCaption;
    std::wstring text;
    UINT type;
    bool operator==(const Shown&) const = default;
};

/// Folders and shortcuts on disk, and messages answered by the test.
class PlacesTest : public NavTest {
protected:
    PlacesTest()
        : m_messages(::GetModuleHandleW(nullptr), "_Z14KtUiMessageBoxPKwS0_j", &answerMessage),
          dialog(data, filters) {
        ::CoInitialize(nullptr);
        EXPECT_TRUE(m_messages.isThere() && m_cursor.isThere() && m_track.isThere());
        toldCursor() = {1200, 900};
        messages().clear();
        messageAnswer() = IDYES;
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        ::GetLongPathNameW(temporary, temporary, MAX_PATH);
        scratch = CString(temporary) + L"ktui places";
        for (const CString& each : {scratch, scratch + L"\\one", scratch + L"\\two", scratch + L"\\Three"})
            ::CreateDirectoryW(each, nullptr);
        ::CloseHandle(
            ::CreateFileW(scratch + L"\\file.dwg", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        addThreeFilters();
        dialog.shown = &platform;
        settled(dialog).DoModal();  // makes the file dialog; "the user" cancels
        child = ::CreateWindowW(L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 40, 580, 620, platform.m_hWnd,
                                nullptr, nullptr, nullptr);
        fileDialog().SubclassWindow(child);
        font.CreatePointFont(90, L"Tahoma");
        fileDialog().SetFont(&font);
        ::CreateWindowW(L"LISTBOX", L"",
                        WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS |
                            LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                        0, 0, 110, 500, child, reinterpret_cast<HMENU>(57015), nullptr, nullptr);
    }
    ~PlacesTest() override {
        list.reset();
        fileDialog().UnsubclassWindow();
        ::DestroyWindow(child);
        ::DeleteFileW(scratch + L"\\file.dwg");
        for (const CString& each : {scratch + L"\\one", scratch + L"\\two", scratch + L"\\Three", scratch})
            ::RemoveDirectoryW(each);
        ::CoUninitialize();
    }
    CNavFileDlg& fileDialog() { return *dialog.GetImpObject()->m_fileDialog; }

    /// Makes the list, anew, on the control, which reads what is stored.
    CPlaceList& open(const wchar_t* recent = L"C:\\recent") {
        if (list) list->FreePlaces();
        list = std::make_unique<CPlaceList>(&fileDialog(), kTestRoot, recent);
        list->SubclassDlgItem(57015, &fileDialog());
        ui_test::pump();
        return *list;
    }
    /// The same with the user's folders of the scratch folder, each by its name.
    CPlaceList& openWith(std::initializer_list<const wchar_t*> names) {
        int index = 0;
        for (const wchar_t* name : names) storePlace(index++, folder(name), name);
        storePlace(index, L"", nullptr);
        return open();
    }
    CString folder(const wchar_t* name) const { return scratch + L"\\" + name; }

    static CString placesKey() { return CString(kTestRoot) + L"AllAnavDialogs"; }
    static void storeValue(const CString& value, const wchar_t* text) {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, placesKey(), value, REG_SZ, text,
                          static_cast<DWORD>((::lstrlenW(text) + 1) * sizeof(wchar_t)));
    }
    /// Stores a place; without a display, its name alone.
    static void storePlace(int index, const CString& name, const wchar_t* display) {
        CString value;
        value.Format(L"PlacesOrder%d", index);
        storeValue(value, name);
        if (display != nullptr) storeValue(value + L"Display", display);
    }
    /// All stored values as "NAME=TEXT", in the order of their enumeration; of another type "NAME:TYPE".
    static std::vector<std::wstring> storedValues() {
        std::vector<std::wstring> all;
        HKEY key = nullptr;
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, placesKey(), 0, KEY_READ, &key)) return all;
        wchar_t name[256], text[1000];
        for (DWORD i = 0;; ++i) {
            DWORD nameRoom = 256, room = sizeof text, type = 0;
            *text = L'\0';
            if (::RegEnumValueW(key, i, name, &nameRoom, nullptr, &type, reinterpret_cast<BYTE*>(text),
                                &room))
                break;
            all.push_back(type == REG_SZ ? std::wstring(name) + L"=" + text
                                         : std::wstring(name) + L":" + std::to_wstring(type));
        }
        ::RegCloseKey(key);
        return all;
    }

    const PlaceItem& item(int row) const {
        return *reinterpret_cast<const PlaceItem*>(list->GetItemData(row));
    }
    std::vector<int> types() const {
        std::vector<int> all;
        for (int row = 0; row < list->GetCount(); ++row) all.push_back(item(row).m_type);
        return all;
    }
    /// The captions, with "|" between them.
    std::wstring captions() const {
        std::wstring all;
        for (int row = 0; row < list->GetCount(); ++row)
            all += (row ? L"|" : L"") + std::wstring(item(row).m_display.GetString());
        return all;
    }
    std::wstring path(int row) const { return item(row).m_path.GetString(); }

    CRect rectOf(int row) const {
        CRect rect;
        list->GetItemRect(row, &rect);
        return rect;
    }
    CPoint in(int row) const { return rectOf(row).CenterPoint(); }
    CPoint beneath() const { return {20, rectOf(list->GetCount() - 1).bottom + 20}; }
    /// The list finds the mouse at a point of its own from now on.
    void setTold(CPoint point) {
        list->ClientToScreen(&point);
        toldCursor() = point;
    }
    /// The same, and it hears of it.
    void pointAt(CPoint point) {
        setTold(point);
        send(WM_MOUSEMOVE, point);
        ui_test::pump();
    }
    /// Rests the real mouse at a point of the list until `done`; false after some seconds.
    bool restAt(CPoint point, const std::function<bool()>& done) {
        toldCursor().reset();
        list->ClientToScreen(&point);
        return RestMouse(point, done);
    }
    LRESULT send(UINT message, CPoint at, WPARAM keys = 0) {
        return list->SendMessage(message, keys, MAKELPARAM(at.x, at.y));
    }
    void click(int row) {
        send(WM_LBUTTONDOWN, in(row), MK_LBUTTON);
        send(WM_LBUTTONUP, in(row));
    }
    void drag(int from, CPoint to) {
        send(WM_LBUTTONDOWN, in(from), MK_LBUTTON);
        send(WM_MOUSEMOVE, in(from), MK_LBUTTON);
        send(WM_MOUSEMOVE, to, MK_LBUTTON);
        send(WM_LBUTTONUP, to);
    }
    /// Whether the list counts as changed: what it stores is seen, since the key was emptied before.
    bool savesSomething() {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, placesKey());
        EXPECT_EQ(list->SavePlaces(0), 1);
        return !storedValues().empty();
    }
    /// Drops names as the shell does.
    void drop(std::initializer_list<CString> names) {
        std::wstring all;
        for (const CString& name : names) all += std::wstring(name.GetString()) + L'\0';
        all += L'\0';
        const HGLOBAL memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + all.size() * sizeof(wchar_t));
        auto* const dropped = static_cast<DROPFILES*>(::GlobalLock(memory));
        dropped->pFiles = sizeof(DROPFILES);
        dropped->fWide = TRUE;
        std::memcpy(dropped + 1, all.data(), all.size() * sizeof(wchar_t));
        ::GlobalUnlock(memory);
        list->SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
    }

    /// What the system was asked to track.
    static std::vector<TRACKMOUSEEVENT>& trackedMouse() {
        static std::vector<TRACKMOUSEEVENT> all;
        return all;
    }
    static std::vector<Shown>& messages() {
        static std::vector<Shown> all;
        return all;
    }
    static int& messageAnswer() {
        static int answer = IDYES;
        return answer;
    }

private:
    static std::optional<POINT>& toldCursor() {
        static std::optional<POINT> told;
        return told;
    }
    template <class Function>
    static Function* systems(const char* name) {
        return reinterpret_cast<Function*>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), name)));
    }
    static BOOL WINAPI cursorPlace(POINT* place) {
        if (!toldCursor()) return systems<decltype(cursorPlace)>("GetCursorPos")(place);
        *place = *toldCursor();
        return TRUE;
    }
    static BOOL WINAPI trackMouse(TRACKMOUSEEVENT* asked) {
        trackedMouse().push_back(*asked);
        // The system would tell at once that the mouse has left.
        return toldCursor() || systems<decltype(trackMouse)>("TrackMouseEvent")(asked);
    }
    static int answerMessage(const wchar_t* caption, const wchar_t* text, UINT type) {
        messages().push_back({caption != nullptr, text, type});
        return messageAnswer();
    }
    ui_test::ReplacedImport m_messages, m_cursor{::GetModuleHandleW(nullptr), "GetCursorPos", &cursorPlace},
        m_track{::GetModuleHandleW(nullptr), "TrackMouseEvent", &trackMouse};

protected:
    StandInDialog platform;
    NotedNavDialog dialog;
    CFont font;
    HWND child = nullptr;
    CString scratch;  ///< with the folders "one", "two" and "Three" and the file "file.dwg"
    std::unique_ptr<CPlaceList> list;
};
