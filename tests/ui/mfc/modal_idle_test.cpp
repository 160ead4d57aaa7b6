// What a modal loop does while nothing is to do, and the ways by which a dialog gets its template.
#include <afxcmn.h>
#include <afxext.h>

#include <functional>
#include <string>
#include <vector>

#include "ui_test.h"
#include "watchdog.h"

namespace {

/// An owner that notes which dialogs wait.
class Owner : public ui_test::ParentWindow {
public:
    std::vector<std::pair<WPARAM, HWND>> waits;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_ENTERIDLE) waits.emplace_back(wParam, reinterpret_cast<HWND>(lParam));
        return ParentWindow::WindowProc(message, wParam, lParam);
    }
};

/// A dialog that asks for three idle steps, and ends when it has been idle that often since `restarts`
/// messages have come.
class Idler : public CDialog {
public:
    explicit Idler(CWnd* parent, UINT id = 401) : CDialog(id, parent) {}
    Idler(CWnd* parent, LPCDLGTEMPLATE bytes, void* init = nullptr) {
        InitModalIndirect(bytes, parent, init);
    }
    using CDialog::m_lpszTemplateName;

    std::vector<std::pair<WPARAM, LPARAM>> steps;
    int restarts = 0;
    std::function<void(Idler&)> onStart;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (onStart) onStart(*this);
        return TRUE;
    }
    LRESULT OnKickIdle(WPARAM code, LPARAM count) {
        steps.emplace_back(code, count);
        if (count < 2) return TRUE;
        if (restarts-- > 0)
            PostMessage(WM_APP);
        else
            EndDialog(7);
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Idler, CDialog)
    ON_MESSAGE(WM_KICKIDLE, &Idler::OnKickIdle)
END_MESSAGE_MAP()

/// A template of one edit box (id 1001) and a button with the id of Cancel.
std::vector<WORD> edit_template(DWORD style, DWORD editStyle, DWORD buttonStyle = 0) {
    std::vector<WORD> words;
    const auto put = [&](DWORD both) {
        words.push_back(LOWORD(both));
        words.push_back(HIWORD(both));
    };
    put(WS_POPUP | WS_CAPTION | style);
    put(0);
    words.insert(words.end(), {2, 10, 10, 80, 30, 0, 0, 0});
    const auto control = [&](DWORD itsStyle, WORD x, WORD id, WORD kind) {
        if (words.size() % 2 != 0) words.push_back(0);
        put(WS_CHILD | WS_VISIBLE | WS_TABSTOP | itsStyle);
        put(0);
        words.insert(words.end(), {x, 2, 30, 12, id, 0xFFFF, kind, 0, 0});
    };
    control(editStyle, 2, 1001, 0x0081);
    control(buttonStyle, 40, IDCANCEL, 0x0080);
    return words;
}

LPCDLGTEMPLATE bytes_of(const std::vector<WORD>& words) {
    return reinterpret_cast<LPCDLGTEMPLATE>(words.data());
}

/// The same bytes in global memory, freed with the object.
struct GlobalBytes {
    explicit GlobalBytes(const std::vector<WORD>& words)
        : memory(::GlobalAlloc(GMEM_FIXED, words.size() * sizeof(WORD))) {
        memcpy(memory, words.data(), words.size() * sizeof(WORD));
    }
    ~GlobalBytes() { ::GlobalFree(memory); }
    GlobalBytes(const GlobalBytes&) = delete;
    GlobalBytes& operator=(const GlobalBytes&) = delete;
    HGLOBAL memory;
};

struct ModalIdle : ::testing::Test {
    const ui_test::Watchdog watchdog;
    Owner owner;
};

using Steps = std::vector<std::pair<WPARAM, LPARAM>>;

}  // namespace

TEST_F(ModalIdle, StepsAreCountedUntilNoneIsWanted) {
    Idler dialog(&owner);
    EXPECT_EQ(dialog.DoModal(), 7);
    EXPECT_EQ(dialog.steps, (Steps{{MSGF_DIALOGBOX, 0}, {MSGF_DIALOGBOX, 1}, {MSGF_DIALOGBOX, 2}}));
}

TEST_F(ModalIdle, AMessageBeginsTheCountAnew) {
    Idler dialog(&owner);
    dialog.restarts = 1;
    EXPECT_EQ(dialog.DoModal(), 7);
    ASSERT_GE(dialog.steps.size(), 6U);
    EXPECT_EQ(dialog.steps[3].second, 0);
    EXPECT_EQ(dialog.steps[5].second, 2);
}

TEST_F(ModalIdle, TheOwnerHearsOncePerPause) {
    Idler dialog(&owner);
    HWND window = nullptr;
    dialog.onStart = [&](Idler& it) { window = it.m_hWnd; };
    EXPECT_EQ(dialog.DoModal(), 7);
    ASSERT_EQ(owner.waits.size(), 1U) << "at the first of three steps";
    EXPECT_EQ(owner.waits[0].first, static_cast<WPARAM>(MSGF_DIALOGBOX));
    EXPECT_EQ(owner.waits[0].second, window);
}

TEST_F(ModalIdle, ATemplateMaySpareTheOwner) {
    const auto words = edit_template(DS_NOIDLEMSG, 0);
    Idler dialog(&owner, bytes_of(words));
    EXPECT_EQ(dialog.DoModal(), 7);
    EXPECT_TRUE(owner.waits.empty());
    EXPECT_EQ(dialog.steps.size(), 3U) << "the dialog itself is told all the same";
}

TEST_F(ModalIdle, TheDialogShowsWhenItIsIdleFirst) {
    Idler dialog(&owner);
    bool atStart = true, atIdle = false;
    dialog.onStart = [&](Idler& it) {
        atStart = it.IsWindowVisible() != FALSE;
        ui_test::later([&] { atIdle = it.IsWindowVisible() != FALSE; });
    };
    dialog.restarts = 1000;
    ui_test::later(
        [&] {
            dialog.restarts = 0;
            dialog.PostMessage(WM_APP);
        },
        30);
    dialog.DoModal();
    EXPECT_FALSE(atStart);
    EXPECT_TRUE(atIdle);
}

TEST_F(ModalIdle, ALoopOfAnyWindowGoesByItsFlags) {
    class Window : public CWnd {
    public:
        int kicks = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            kicks += message == WM_KICKIDLE;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    const auto run = [&](DWORD flags, bool& shown) {
        Window window;
        window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 20, 20), &owner, 0);
        ui_test::later(
            [&] {
                shown = window.IsWindowVisible() != FALSE;
                window.EndModalLoop(3);
            },
            20);
        EXPECT_EQ(window.RunModalLoop(flags), 3);
        window.DestroyWindow();
        return window.kicks;
    };
    bool shown = true;
    EXPECT_GT(run(0, shown), 0);
    EXPECT_FALSE(shown) << "nobody asked for it";
    EXPECT_FALSE(owner.waits.empty());
    owner.waits.clear();
    EXPECT_GT(run(MLF_NOIDLEMSG, shown), 0);
    EXPECT_TRUE(owner.waits.empty());
    EXPECT_EQ(run(MLF_NOKICKIDLE | MLF_SHOWONIDLE, shown), 0);
    EXPECT_TRUE(shown);
    EXPECT_FALSE(owner.waits.empty());
}

TEST_F(ModalIdle, AltShowsADialogThatIsNeverIdle) {
    // Messages keep coming, so that the loop never pauses; a system key shows what the user waits for.
    class Busy : public CWnd {
    public:
        int left = 40;
        bool before = true, after = false;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_APP) {
                if (left == 20) before = IsWindowVisible() != FALSE, PostMessage(WM_SYSKEYDOWN, VK_F9, 1);
                if (left == 1) after = IsWindowVisible() != FALSE;
                if (--left > 0)
                    PostMessage(WM_APP);
                else
                    EndModalLoop(1);
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Busy window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 20, 20), &owner, 0);
    window.PostMessage(WM_APP);
    EXPECT_EQ(window.RunModalLoop(MLF_SHOWONIDLE), 1);
    EXPECT_FALSE(window.before);
    EXPECT_TRUE(window.after);
    window.DestroyWindow();
}

TEST_F(ModalIdle, TemplatesComeFromMemoryToo) {
    const auto words = edit_template(0, 0);
    const GlobalBytes global(words);
    class Given : public CDialog {
    public:
        HWND itsOwner = nullptr;
        bool hasEdit = false;

    protected:
        BOOL OnInitDialog() override {
            CDialog::OnInitDialog();
            itsOwner = ::GetWindow(m_hWnd, GW_OWNER);
            hasEdit = ::GetDlgItem(m_hWnd, 1001) != nullptr;
            EndDialog(5);
            return TRUE;
        }
    };
    Given modal;
    EXPECT_TRUE(modal.InitModalIndirect(global.memory, &owner));
    EXPECT_EQ(modal.DoModal(), 5);
    EXPECT_TRUE(modal.hasEdit);
    EXPECT_EQ(modal.itsOwner, owner.m_hWnd);
    CDialog fromGlobal, fromBytes, none;
    ASSERT_TRUE(fromGlobal.CreateIndirect(global.memory, &owner));
    EXPECT_NE(fromGlobal.GetDlgItem(1001), nullptr);
    EXPECT_EQ(::GetWindow(fromGlobal.m_hWnd, GW_OWNER), owner.m_hWnd);
    ASSERT_TRUE(fromBytes.CreateIndirect(bytes_of(words), &owner, nullptr));
    EXPECT_NE(fromBytes.GetDlgItem(1001), nullptr);
    EXPECT_EQ(::GetWindow(fromBytes.m_hWnd, GW_OWNER), owner.m_hWnd);
    EXPECT_FALSE(none.CreateIndirect(static_cast<LPCDLGTEMPLATE>(nullptr), &owner, nullptr));
    fromGlobal.DestroyWindow();
    fromBytes.DestroyWindow();
}

TEST_F(ModalIdle, TemplatesMayLieInMemoryThatMoves) {
    const auto words = edit_template(0, 0);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, words.size() * sizeof(words[0]));
    memcpy(::GlobalLock(memory), words.data(), words.size() * sizeof(words[0]));
    ::GlobalUnlock(memory);
    CDialog modeless;
    ASSERT_TRUE(modeless.CreateIndirect(memory, &owner));
    EXPECT_NE(modeless.GetDlgItem(1001), nullptr);
    EXPECT_EQ(::GlobalFlags(memory) & GMEM_LOCKCOUNT, 0U) << "it may move again";
    modeless.DestroyWindow();
    class Held : public CDialog {
    public:
        HGLOBAL memory = nullptr;
        UINT locks = 0;

    protected:
        BOOL OnInitDialog() override {
            CDialog::OnInitDialog();
            locks = ::GlobalFlags(memory) & GMEM_LOCKCOUNT;
            EndDialog(GetDlgItem(1001) != nullptr ? 6 : 7);
            return TRUE;
        }
    };
    Held modal;
    modal.memory = memory;
    modal.InitModalIndirect(memory, &owner);
    EXPECT_EQ(modal.DoModal(), 6);
    EXPECT_EQ(modal.locks, 1U) << "it stays where it is for as long as the dialog";
    EXPECT_EQ(::GlobalFlags(memory) & GMEM_LOCKCOUNT, 0U);
    ::GlobalFree(memory);
    CDialog none;
    EXPECT_FALSE(none.CreateIndirect(static_cast<HGLOBAL>(nullptr), &owner));
    none.InitModalIndirect(static_cast<HGLOBAL>(nullptr), &owner);
    EXPECT_EQ(none.DoModal(), -1);
}

TEST_F(ModalIdle, WithoutAParentTheMainWindowOwnsADialog) {
    AfxGetApp()->m_pMainWnd = &owner;
    CDialog dialog;
    EXPECT_TRUE(dialog.Create(401));
    EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), owner.m_hWnd);
    dialog.DestroyWindow();
    AfxGetApp()->m_pMainWnd = nullptr;
}

TEST_F(ModalIdle, EscapeInABoxOfManyLinesAsksForCancel) {
    const auto escape = [&](DWORD editStyle, DWORD buttonStyle, WPARAM code = VK_ESCAPE) {
        class Asked : public CDialog {
        public:
            int cancels = 0;
            void OnCancel() override { ++cancels; }
        };
        const auto words = edit_template(0, editStyle, buttonStyle);
        Asked dialog;
        EXPECT_TRUE(dialog.CreateIndirect(bytes_of(words), &owner, nullptr));
        MSG message = {dialog.GetDlgItem(1001)->m_hWnd, WM_KEYDOWN, code, 1, 0, {}};
        const BOOL taken = dialog.PreTranslateMessage(&message);
        const int cancels = dialog.cancels;
        dialog.DestroyWindow();
        return std::pair(taken != FALSE, cancels);
    };
    EXPECT_EQ(escape(ES_MULTILINE, 0), std::pair(true, 1));
    EXPECT_EQ(escape(ES_MULTILINE, 0, VK_CANCEL), std::pair(true, 1));
    EXPECT_EQ(escape(ES_MULTILINE, WS_DISABLED).second, 0) << "a Cancel that can't be had isn't asked for";
    EXPECT_EQ(escape(0, 0), std::pair(true, 1)) << "a box of one line leaves it to the dialog";
}

TEST_F(ModalIdle, InitialDataFillsListsOfEveryKind) {
    // Control, message, length, text; the numbers are those of old.
    const auto record = [](WORD id, WORD message, const char* text) {
        std::vector<BYTE> bytes;
        const auto put = [&](DWORD value, int count) {
            for (int i = 0; i < count; ++i) bytes.push_back(static_cast<BYTE>(value >> (8 * i)));
        };
        const auto length = static_cast<DWORD>(strlen(text) + 1);
        put(id, 2), put(message, 2), put(length, 4);
        bytes.insert(bytes.end(), text, text + length);
        return bytes;
    };
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(401, &owner));
    CListBox list;
    CComboBox combo;
    CComboBoxEx rich;
    list.Create(WS_CHILD, CRect(0, 0, 50, 50), &dialog, 51);
    combo.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 50, 50), &dialog, 52);
    rich.Create(WS_CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 50, 50), &dialog, 53);
    std::vector<BYTE> all;
    for (const auto& one : {record(51, 0x401, "red"), record(51, 0x401, "green"), record(52, 0x403, "oak"),
                            record(53, 0x1234, "lead"), record(53, 0x1234, "tin")})
        all.insert(all.end(), one.begin(), one.end());
    all.insert(all.end(), {0, 0});
    EXPECT_TRUE(dialog.ExecuteDlgInit(all.data()));
    CString text;
    ASSERT_EQ(list.GetCount(), 2);
    list.GetText(1, text);
    EXPECT_EQ(text, L"green");
    ASSERT_EQ(combo.GetCount(), 1);
    combo.GetLBText(0, text);
    EXPECT_EQ(text, L"oak");
    ASSERT_EQ(rich.GetCount(), 2);
    wchar_t room[20] = {};
    COMBOBOXEXITEMW item = {};
    item.mask = CBEIF_TEXT;
    item.iItem = 1;
    item.pszText = room;
    item.cchTextMax = 20;
    ASSERT_TRUE(rich.GetItem(&item));
    EXPECT_STREQ(item.pszText, L"tin") << "added at the end";
    EXPECT_TRUE(dialog.ExecuteDlgInit(static_cast<LPVOID>(nullptr)));
    // What a box refuses has the whole fail, and the rest isn't tried.
    auto refused = record(52, 0x14D, "x");  // a line to be selected that isn't there
    const auto after = record(51, 0x401, "blue");
    refused.insert(refused.end(), after.begin(), after.end());
    refused.insert(refused.end(), {0, 0});
    EXPECT_FALSE(dialog.ExecuteDlgInit(refused.data()));
    EXPECT_EQ(list.GetCount(), 2);
    dialog.DestroyWindow();
}
