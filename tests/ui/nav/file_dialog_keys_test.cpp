// The hot keys: which keys act, when, and that a nested dialog has its keys to itself.
#include <kh_security.h>

#include "open_drawing.h"
#include "shown_fixture.h"

namespace {

HOOKPROC hookProcedure = nullptr;
int hooks = 0;  ///< in force
std::vector<std::string> hookCalls;
bool altHeld = false;
int passedOn = 0;

HHOOK WINAPI setHook(int kind, HOOKPROC procedure, HINSTANCE module, DWORD thread) {
    if (kind == WH_KEYBOARD) {
        hookProcedure = procedure;
        ++hooks;
        hookCalls.push_back("set");
    }
    return ::SetWindowsHookExW(kind, procedure, module, thread);
}
BOOL WINAPI removeHook(HHOOK hook) {
    --hooks;
    hookCalls.push_back("removed");
    return ::UnhookWindowsHookEx(hook);
}
SHORT WINAPI keyState(int key) { return key == VK_MENU && altHeld ? SHORT{-32768} : SHORT{1}; }
LRESULT WINAPI callNext(HHOOK, int, WPARAM, LPARAM) {
    ++passedOn;
    return 77;
}

bool findAnswer = false;
int findCalls = 0;
std::vector<std::string> findSaw;
bool findFile(const wchar_t*, int, const wchar_t*, OdString&, OdString&) {
    ++findCalls;
    findSaw.push_back(hooks == 0 ? "no hook" : "hook");
    return findAnswer;
}

class Security final : public CKhSecurity {
public:
    int calls = 0;
    int hooksThen = -1;
    void showSecurityOptions() override {
        ++calls;
        hooksThen = hooks;
    }
};

class FileDialogKeys : public ShownTest {
protected:
    ui_test::OpenDrawing open{host};  // the options ask it
    FileDialogKeys() {
        hookProcedure = nullptr;
        hooks = 0;
        hookCalls.clear();
        altHeld = false;
        passedOn = 0;
        findCalls = 0;
        findAnswer = false;
        findSaw.clear();
        m_formerFind = KtUiTestDoor().exchangeFindFileDialog(&findFile);
        host.services[kKhSecurityService] = &security;
        dialog.ConvertFlagsToState(0x8080);
    }
    ~FileDialogKeys() override { KtUiTestDoor().exchangeFindFileDialog(m_formerFind); }
    void look(std::function<void(HWND)> at) {
        run([&](HWND window) {
            at(window);
            press(window, IDCANCEL);
        });
    }
    /// A key as the system reports it.
    static LRESULT key(WPARAM code, int hookCode = HC_ACTION, LPARAM state = 1) {
        return hookProcedure(hookCode, code, state);
    }
    static void hide(HWND window, int id) { ::ShowWindow(own(window, id), SW_HIDE); }

    Security security;
    FindFileDialogCall m_formerFind;
    ui_test::ReplacedImport m_set{toolkit(), "SetWindowsHookExW", &setHook};
    ui_test::ReplacedImport m_remove{toolkit(), "UnhookWindowsHookEx", &removeHook};
    ui_test::ReplacedImport m_state{toolkit(), "GetKeyState", &keyState};
    ui_test::ReplacedImport m_next{toolkit(), "CallNextHookEx", &callNext};
};

constexpr LPARAM kReleased = static_cast<LPARAM>(0xC0000001);

TEST_F(FileDialogKeys, ListensWhileTheDialogIsShown) {
    ASSERT_TRUE(m_set.isThere() && m_remove.isThere() && m_state.isThere() && m_next.isThere());
    look([&](HWND) { EXPECT_EQ(hooks, 1); });
    EXPECT_EQ(hooks, 0);
    EXPECT_EQ(hookCalls, (std::vector<std::string>{"set", "removed"}));
}

TEST_F(FileDialogKeys, F1IsHelp) {
    look([&](HWND) {
        EXPECT_EQ(key(VK_F1), 1);
        EXPECT_EQ(host.helpCalls, 1);
        host.hasUiHost = false;
        EXPECT_EQ(key(VK_F1), 1);
        host.hasUiHost = true;
        EXPECT_EQ(host.helpCalls, 1);
        EXPECT_EQ(passedOn, 0);
    });
}

TEST_F(FileDialogKeys, NeitherTheCodeNorTheTransitionCounts) {
    look([&](HWND) {
        EXPECT_EQ(key(VK_F1, HC_NOREMOVE), 1);
        EXPECT_EQ(key(VK_F1, -1), 1);
        EXPECT_EQ(key(VK_F1, HC_ACTION, kReleased), 1);
        EXPECT_EQ(host.helpCalls, 3);
    });
}

TEST_F(FileDialogKeys, AltAndALetterAct) {
    look([&](HWND) {
        altHeld = true;
        EXPECT_EQ(key('F'), 1);
        EXPECT_EQ(findCalls, 1);
        EXPECT_EQ(key('f'), 1);
        EXPECT_EQ(findCalls, 2);
        EXPECT_EQ(key('E'), 1);
        EXPECT_EQ(key('e'), 1);
        EXPECT_EQ(security.calls, 2);
        EXPECT_EQ(passedOn, 0);
    });
}

TEST_F(FileDialogKeys, AltAndLLocates) {
    look([&](HWND window) {
        altHeld = true;
        for (const WPARAM letter : {'L', 'l'}) {
            ::SetDlgItemTextW(window, kNameBox, L"  ");
            answerMessage();
            EXPECT_EQ(key(letter), 1);
        }
        EXPECT_EQ(messages.size(), 2u);
    });
}

/// Ends the next top-level window that isn't the dialog, and says that it was there.
void endNext(int& ended) {
    ui_test::when_window(
        [](HWND window) { return text_of(window) != L"chooser" && text_of(window) != L"parent"; },
        [&ended](HWND window) {
            ++ended;
            ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        });
}

TEST_F(FileDialogKeys, AltAndOIsTheOptions) {
    look([&](HWND) {
        altHeld = true;
        int ended = 0;
        for (const WPARAM letter : {'O', 'o'}) {
            endNext(ended);
            EXPECT_EQ(key(letter), 1);
        }
        EXPECT_EQ(ended, 2);
    });
}

TEST_F(FileDialogKeys, WithoutAltALetterIsALetter) {
    look([&](HWND) {
        for (const WPARAM letter : {'F', 'f', 'L', 'l', 'O', 'o', 'E', 'e'}) EXPECT_EQ(key(letter), 77);
        EXPECT_EQ(passedOn, 8);
        EXPECT_EQ(findCalls + security.calls, 0);
    });
}

TEST_F(FileDialogKeys, OtherKeysArePassedOn) {
    look([&](HWND) {
        altHeld = true;
        for (const WPARAM other : {WPARAM{'A'}, WPARAM{VK_RETURN}, WPARAM{VK_F2}, WPARAM{'G'}, WPARAM{0}})
            EXPECT_EQ(key(other), 77);
        EXPECT_EQ(passedOn, 5);
    });
}

TEST_F(FileDialogKeys, AButtonThatIsHiddenHasNoKey) {
    look([&](HWND window) {
        altHeld = true;
        for (const int id : {57011, 57012, 57013, 57014}) hide(window, id);
        for (const WPARAM letter : {'F', 'l', 'O', 'e'}) EXPECT_EQ(key(letter), 77);
        EXPECT_EQ(findCalls + security.calls, 0);
        ::ShowWindow(own(window, 57014), SW_SHOW);
        EXPECT_EQ(key('E'), 1);
        EXPECT_EQ(security.calls, 1);
    });
}

TEST_F(FileDialogKeys, EachActionTakesTheKeysAway) {
    look([&](HWND window) {
        hookCalls.clear();
        click(window, 57014);
        EXPECT_EQ(security.hooksThen, 0);
        click(window, 57012);
        EXPECT_EQ(findSaw, (std::vector<std::string>{"no hook"}));
        ::SetDlgItemTextW(window, kNameBox, L"");
        click(window, 57011);
        int ended = 0;
        endNext(ended);
        click(window, 57013);
        EXPECT_EQ(hooks, 1);
        EXPECT_EQ(hookCalls, (std::vector<std::string>{"removed", "set", "removed", "set", "removed", "set",
                                                       "removed", "set"}));
    });
}

TEST_F(FileDialogKeys, AMissingServiceIsNoMatter) {
    host.services.clear();
    look([&](HWND window) {
        click(window, 57014);
        EXPECT_EQ(hooks, 1);
    });
}

TEST_F(FileDialogKeys, ASecondDialogTakesTheKeysOver) {
    look([&](HWND first) {
        CNavDataArray otherData;
        ShownDialog other{otherData, filters};
        other.SetAppRootKey(L"Software\\ktui test\\Dialogs\\");
        other.SetDialogName(L"second");
        other.SetDialogCaption(L"second");
        other.SetForceInitialFolder(folder);
        when_dialog(L"second", [&](HWND window) {
            altHeld = true;
            EXPECT_EQ(key('E'), 77) << "its own button is hidden";
            EXPECT_EQ(security.calls, 0);
            press(window, IDCANCEL);
        });
        other.DoModal();
        EXPECT_EQ(key('E'), 77) << "Kept: nobody has them now";
        EXPECT_EQ(hooks, 0);
        click(first, 57014);
        EXPECT_EQ(hooks, 0) << "an action gives them to nobody";
    });
}

}  // namespace
