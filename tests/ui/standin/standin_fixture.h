// What the tests of the stand-in host's dialogs start from: the host on a drawing, and hands to work a modal
// dialog with.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <afxcmn.h>
#include <od_db.h>
#include <standin_host.h>

#include "message_text.h"
#include "temporary_folder.h"
#include "ui_test.h"

namespace ui_test {

/// Caption of the host's messages.
inline const wchar_t* messageCaption() { return AfxGetAppName(); }

class StandinTest : public ::testing::Test {
protected:
    StandinTest() : host(*AfxGetApp()), drawing(new OdDbDatabase) {
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
        AfxGetApp()->m_pMainWnd = &parent;
    }
    ~StandinTest() override { AfxGetApp()->m_pMainWnd = nullptr; }

    /// Sends the click of a button; a dialog that it opens is over when this returns.
    static void click(HWND dialog, int id) {
        ::SendMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(id),
                       reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
    }
    /// Posts a key to the control that has the focus.
    static void pressKey(WPARAM key) {
        ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
        ::PostMessageW(::GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }
    /// Posts Alt and a letter.
    static void pressMnemonic(wchar_t letter) {
        ::PostMessageW(::GetFocus(), WM_SYSCHAR, letter, static_cast<LPARAM>(0x20000001));
    }
    static CString textOf(HWND dialog, int id) { return text_of(::GetDlgItem(dialog, id)); }

    /// Answers the next message box with `button` and puts its text into `text`.
    static void answerMessage(int button, CString& text) {
        when_dialog(messageCaption(), [button, &text](HWND box) {
            text = message_text(box).c_str();
            ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
    }
    /// The text that the message box says which `action` shows; it is confirmed.
    static CString messageOf(const std::function<void()>& action, int button = IDOK) {
        CString text;
        answerMessage(button, text);
        action();
        return text;
    }

    CStandinHost host;
    OdDbDatabasePtr drawing;
    ParentWindow parent;
    TemporaryFolder folder;
};

}  // namespace ui_test
