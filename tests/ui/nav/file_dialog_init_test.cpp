// What the navigation file dialog makes of the platform's dialog before the user sees it, and in which order.
#include <ktui/nav/thumbnail_ctrl.h>

#include "shown_fixture.h"

namespace {

/// What was done, in order, as the library asked the system for it.
std::vector<std::string> steps;

int idOf(HWND window) { return ::GetDlgCtrlID(window); }

HICON WINAPI loadIcon(HINSTANCE module, LPCWSTR name) {
    if (module == ::GetModuleHandleW(L"ktui.dll"))
        steps.push_back("icon " + std::to_string(reinterpret_cast<ULONG_PTR>(name)));
    return ::LoadIconW(module, name);
}
BOOL WINAPI showWindow(HWND window, int how) {
    if (window != nullptr && how == SW_HIDE) steps.push_back("hide " + std::to_string(idOf(window)));
    return ::ShowWindow(window, how);
}
LONG_PTR WINAPI setWindowLong(HWND window, int index, LONG_PTR value) {
    if (index == GWLP_USERDATA) steps.push_back("object");
    if (index == GWLP_WNDPROC) steps.push_back("procedure");
    return ::SetWindowLongPtrW(window, index, value);
}
HHOOK WINAPI setHook(int kind, HOOKPROC procedure, HINSTANCE module, DWORD thread) {
    steps.push_back("hook " + std::to_string(kind) +
                    (thread == ::GetCurrentThreadId() ? " here" : " elsewhere"));
    return ::SetWindowsHookExW(kind, procedure, module, thread);
}
HWND WINAPI setFocus(HWND window) {
    steps.push_back("focus " + std::to_string(idOf(window)));
    return ::SetFocus(window);
}
BOOL WINAPI setCurrentDirectory(LPCWSTR folder) {
    steps.push_back("folder");
    return ::SetCurrentDirectoryW(folder);
}

class FileDialogInit : public ShownTest {
protected:
    FileDialogInit() {
        ::GetCurrentDirectoryW(MAX_PATH, m_formerFolder);
        steps.clear();
    }
    ~FileDialogInit() override { ::SetCurrentDirectoryW(m_formerFolder); }
    /// Runs `look` in the dialog and cancels it.
    void look(std::function<void(HWND)> at) {
        EXPECT_EQ(run([&](HWND window) {
                      at(window);
                      press(window, IDCANCEL);
                  }),
                  IDCANCEL);
    }
    /// The ids of the toolkit's controls that are shown.
    std::vector<int> shownControls(HWND window) {
        std::vector<int> ids;
        for (int id = 57011; id <= 57022; ++id)
            if (isShown(own(window, id))) ids.push_back(id);
        return ids;
    }
    wchar_t m_formerFolder[MAX_PATH] = {};
};

using Ids = std::vector<int>;

TEST_F(FileDialogInit, DoesItsStepsInOrder) {
    giveRecentFolder();
    const ui_test::ReplacedImport imports[] = {
        {toolkit(), "LoadIconW", &loadIcon},
        {toolkit(), "ShowWindow", &showWindow},
        {toolkit(), "SetWindowLongPtrW", &setWindowLong},
        {toolkit(), "SetWindowsHookExW", &setHook},
        {toolkit(), "SetFocus", &setFocus},
        {toolkit(), "SetCurrentDirectoryW", &setCurrentDirectory},
    };
    for (const auto& each : imports) ASSERT_TRUE(each.isThere());
    size_t during = 0;
    dialog.onRecent = [] { steps.push_back("recent"); };
    {
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            const int id = idOf(message.hwnd);
            if (message.message == WM_SETICON)
                steps.push_back(message.wParam == ICON_BIG ? "set big" : "set small");
            if (message.message == WM_SETICON && message.wParam == ICON_BIG) {
                const HWND find = own(message.hwnd, 57012);
                ::SetWindowLongPtrW(find, GWL_STYLE, ::GetWindowLongPtrW(find, GWL_STYLE) | BS_DEFPUSHBUTTON);
            }
            if (message.message == WM_STYLECHANGED && id == IDOK &&
                (reinterpret_cast<STYLESTRUCT*>(message.lParam)->styleNew & BS_SPLITBUTTON) == BS_SPLITBUTTON)
                steps.push_back("split button");
            if (message.message == WM_STYLECHANGED && id == 57012 &&
                (reinterpret_cast<STYLESTRUCT*>(message.lParam)->styleNew & BS_DEFPUSHBUTTON) == 0)
                steps.push_back("plain find");
            if (message.message == WM_WINDOWPOSCHANGED && id == 57015 && !steps.empty() &&
                steps.back() == "hide 1184")
                steps.push_back("lay out");
        });
        look([&](HWND) { during = steps.size(); });
    }
    std::vector<std::string> made(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(during));
    const auto at = [&](const std::string& step) {
        const auto found = std::find(made.begin(), made.end(), step);
        EXPECT_NE(found, made.end()) << step;
        return found - made.begin();
    };
    const std::vector<std::string> order = {"icon 1017",  "set big",     "set small",    "hide 57013",
                                            "hide 57014", "recent",      "hide 1184",    "lay out",
                                            "object",     "procedure",   "split button", "plain find",
                                            "folder",     "hook 2 here", "focus 1148"};
    for (size_t i = 1; i < order.size(); ++i)
        EXPECT_LT(at(order[i - 1]), at(order[i])) << order[i - 1] << " before " << order[i];
}

TEST_F(FileDialogInit, TheWindowTakesTheIconAndLosesItsFrameAndItsQuestionMark) {
    LONG_PTR formerly = 0;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.message != WM_SETICON || formerly != 0) return;
        formerly = ::GetWindowLongPtrW(message.hwnd, GWL_EXSTYLE) | WS_EX_CONTEXTHELP | WS_EX_DLGMODALFRAME;
        ::SetWindowLongPtrW(message.hwnd, GWL_EXSTYLE, formerly);
    });
    look([&](HWND window) {
        const auto icon = reinterpret_cast<LRESULT>(::LoadIconW(toolkit(), MAKEINTRESOURCEW(1017)));
        EXPECT_NE(icon, 0);
        EXPECT_EQ(::SendMessageW(window, WM_GETICON, ICON_BIG, 0), icon);
        EXPECT_EQ(::SendMessageW(window, WM_GETICON, ICON_SMALL, 0), icon);
        EXPECT_EQ(::GetWindowLongPtrW(window, GWL_EXSTYLE) & (WS_EX_CONTEXTHELP | WS_EX_DLGMODALFRAME), 0);
    });
    EXPECT_NE(formerly, 0);
}

TEST_F(FileDialogInit, AnOpenDialogHasLocateAndFind) {
    look([&](HWND window) {
        EXPECT_EQ(shownControls(window), (Ids{57011, 57012, 57015}));
        EXPECT_NE(own(window, 57013), nullptr);
        EXPECT_NE(own(window, 57014), nullptr);
        EXPECT_EQ(own(window, 57022), nullptr);
    });
}

TEST_F(FileDialogInit, OptionsAndSecurityAreShownWhenTheyAreWanted) {
    dialog.ConvertFlagsToState(0x8000);
    look([&](HWND window) { EXPECT_EQ(shownControls(window), (Ids{57011, 57012, 57013, 57015})); });
    dialog.ConvertFlagsToState(0x80);
    look([&](HWND window) { EXPECT_EQ(shownControls(window), (Ids{57011, 57012, 57014, 57015})); });
    dialog.ConvertFlagsToState(0x8080);
    look([&](HWND window) { EXPECT_EQ(shownControls(window), (Ids{57011, 57012, 57013, 57014, 57015})); });
}

TEST_F(FileDialogInit, ASaveDialogHasNeitherLocateNorFind) {
    dialog.SetCreatingFile(1);
    dialog.ConvertFlagsToState(0x8080);
    look([&](HWND window) {
        EXPECT_EQ(shownControls(window), (Ids{57013, 57014, 57015}));
        EXPECT_NE(own(window, 57011), nullptr);
        EXPECT_NE(own(window, 57012), nullptr);
    });
    dialog.ConvertFlagsToState(0);
    look([&](HWND window) {
        EXPECT_EQ(shownControls(window), (Ids{57015}));
        EXPECT_EQ(own(window, 57011), nullptr);
    });
}

TEST_F(FileDialogInit, OutsideTheApplicationsModeThePlatformsBarStays) {
    dialog.GetImpObject()->m_applicationMode = 0;
    look([&](HWND window) {
        EXPECT_EQ(shownControls(window), (Ids{57011, 57012}));
        EXPECT_TRUE(isShown(::GetDlgItem(window, 1184)));
        EXPECT_EQ(dialog.count("recent"), 0);
    });
    dialog.SetCreatingFile(1);
    look([&](HWND window) { EXPECT_EQ(own(window, 57015), nullptr); });
}

TEST_F(FileDialogInit, ThePreviewIsShownWhereItIsWanted) {
    dialog.SetPreviewVisible(1);
    look([&](HWND window) {
        EXPECT_EQ(shownControls(window), (Ids{57011, 57012, 57015, 57022}));
        EXPECT_NE(dynamic_cast<CThumbnailCtrl*>(CWnd::FromHandlePermanent(own(window, 57022))), nullptr);
    });
}

TEST_F(FileDialogInit, ThePreviewShowsTheFirstFileSelected) {
    dialog.SetPreviewVisible(1);
    dialog.SetMultiSelectAllowed(1);
    look([&](HWND window) {
        auto* const preview = dynamic_cast<CThumbnailCtrl*>(CWnd::FromHandlePermanent(own(window, 57022)));
        ASSERT_NE(preview, nullptr);
        bool repainted = false;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            repainted |= message.message == WM_PAINT && message.hwnd == preview->m_hWnd;
        });
        const auto change = [&](const wchar_t* name) {
            ::SetDlgItemTextW(window, kNameBox, name);
            OFNOTIFYW notice = {};
            notice.hdr = {window, 0, static_cast<UINT>(CDN_SELCHANGE)};
            notice.lpOFN = &dialog.GetImpObject()->m_fileDialog->GetOFN();
            repainted = false;
            ::SendMessageW(own(window), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
            EXPECT_TRUE(repainted);
        };
        change(L"two.dwg");
        EXPECT_EQ(preview->m_path, folder + L"two.dwg");
        change(L"\"one.dwg\" \"two.dwg\"");
        EXPECT_EQ(preview->m_path, folder + L"one.dwg");
    });
}

TEST_F(FileDialogInit, AChangedNameIsShownThenToldThenSelected) {
    dialog.SetPreviewVisible(1);
    look([&](HWND window) {
        const HWND preview = own(window, 57022), box = ::GetDlgItem(window, kNameBox);
        const HWND combo = ::GetWindow(box, GW_CHILD);
        const HWND edit = ::FindWindowExW(combo != nullptr ? combo : box, nullptr, L"Edit", nullptr);
        ASSERT_NE(edit, nullptr);
        ::SetFocus(edit);
        ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
        OFNOTIFYW notice = {};
        notice.hdr = {window, 0, static_cast<UINT>(CDN_SELCHANGE)};
        dialog.calls.clear();
        {
            ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
                if (message.hwnd == preview && message.message == WM_PAINT) dialog.calls.push_back("preview");
                if (message.hwnd == edit && message.message == EM_SETSEL) dialog.calls.push_back("select");
                if (message.hwnd == edit && message.message == EM_SCROLLCARET)
                    dialog.calls.push_back("scroll");
            });
            ::SendMessageW(own(window), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
        }
        EXPECT_EQ(dialog.calls, (std::vector<std::string>{"preview", "name", "select", "scroll"}));
    });
}

TEST_F(FileDialogInit, AChangedTypeIsSelectedBeforeTheOwnerHearsOfIt) {
    look([&](HWND window) {
        OFNOTIFYW notice = {};
        notice.hdr = {window, 0, static_cast<UINT>(CDN_TYPECHANGE)};
        notice.lpOFN = &dialog.GetImpObject()->m_fileDialog->GetOFN();
        notice.lpOFN->nFilterIndex = 3;
        dialog.calls.clear();
        {
            ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
                if (message.message == CB_SETCURSEL && message.hwnd == ::GetDlgItem(window, kTypeBox))
                    dialog.calls.push_back("select " + std::to_string(static_cast<int>(message.wParam)));
            });
            ::SendMessageW(own(window), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
        }
        EXPECT_EQ(dialog.calls, (std::vector<std::string>{"select 2", "filter"}));
    });
}

TEST_F(FileDialogInit, TheRecentFolderIsTheDialogsOwnAndIsMade) {
    giveRecentFolder();
    look([&](HWND) { EXPECT_TRUE(::GetFileAttributesW(recentFolder()) & FILE_ATTRIBUTE_DIRECTORY); });
    EXPECT_NE(::GetFileAttributesW(recentFolder()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(dialog.count("recent"), 1);
}

TEST_F(FileDialogInit, TheFolderShownIsTheProcessesOwn) {
    look([&](HWND) {
        wchar_t current[MAX_PATH] = {};
        ::GetCurrentDirectoryW(MAX_PATH, current);
        EXPECT_EQ(CString(current) + L"\\", folder);
    });
}

TEST_F(FileDialogInit, FindIsNotTheDefaultButton) {
    bool given = false;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.message != WM_SETICON || given) return;
        const HWND find = own(message.hwnd, 57012);
        given = find != nullptr;
        ::SetWindowLongPtrW(find, GWL_STYLE, ::GetWindowLongPtrW(find, GWL_STYLE) | BS_DEFPUSHBUTTON);
    });
    look([&](HWND window) {
        EXPECT_EQ(::GetWindowLongPtrW(own(window, 57012), GWL_STYLE) & BS_DEFPUSHBUTTON, 0);
    });
    EXPECT_TRUE(given);
}

TEST_F(FileDialogInit, ThePlatformsWindowKeepsTheObjectAndGivesItsProcedureBack) {
    LONG_PTR during = 0, atEnd = 0;
    HWND platform = nullptr;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.message == WM_NCDESTROY && message.hwnd == platform)
            atEnd = ::GetWindowLongPtrW(message.hwnd, GWLP_WNDPROC);
    });
    look([&](HWND window) {
        platform = window;
        during = ::GetWindowLongPtrW(window, GWLP_WNDPROC);
        EXPECT_EQ(::GetWindowLongPtrW(window, GWLP_USERDATA),
                  reinterpret_cast<LONG_PTR>(dialog.GetImpObject()->m_fileDialog.get()));
    });
    EXPECT_NE(atEnd, 0);
    EXPECT_NE(atEnd, during);
}

TEST_F(FileDialogInit, WithoutItsObjectTheProcedureAnswersOne) {
    look([&](HWND window) {
        const LONG_PTR object = ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        EXPECT_EQ(::SendMessageW(window, WM_USER + 1234, 0, 0), 1);
        EXPECT_EQ(::SendMessageW(window, WM_GETTEXTLENGTH, 0, 0), 1);
        ::SetWindowLongPtrW(window, GWLP_USERDATA, object);
        EXPECT_EQ(::SendMessageW(window, WM_GETTEXTLENGTH, 0, 0), 7);
    });
}

/// Messages that the library hands to the platform's procedure, and to those of buttons.
std::vector<UINT> handedOn;

LRESULT WINAPI callProcedure(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    handedOn.push_back(message);
    return ::CallWindowProcW(procedure, window, message, wParam, lParam);
}

TEST_F(FileDialogInit, HelpIsSwallowedAndTheRestHandedOn) {
    const ui_test::ReplacedImport calls(toolkit(), "CallWindowProcW", &callProcedure);
    ASSERT_TRUE(calls.isThere());
    look([&](HWND window) {
        HELPINFO help = {};
        help.cbSize = sizeof help;
        handedOn.clear();
        EXPECT_EQ(::SendMessageW(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&help)), 0);
        EXPECT_EQ(handedOn, std::vector<UINT>{});
        for (const UINT message : {WM_EXITSIZEMOVE, WM_USER + 1234}) {
            handedOn.clear();
            ::SendMessageW(window, message, 0, 0);
            EXPECT_EQ(handedOn, std::vector<UINT>{message});
        }
    });
}

/// Where a window lies in the dialog that the user sees.
CRect placeOf(HWND window) {
    CRect place;
    ::GetWindowRect(window, &place);
    return place;
}

TEST_F(FileDialogInit, ThePlacesLieOverTheBarAndFollowIt) {
    look([&](HWND window) {
        const HWND bar = ::GetDlgItem(window, 1184), places = own(window, 57015);
        EXPECT_FALSE(isShown(bar));
        EXPECT_EQ(placeOf(places), placeOf(bar));
        const CRect before = placeOf(bar);
        ::SetWindowPos(window, nullptr, 0, 0, 900, 700, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_GT(placeOf(bar).Height(), before.Height());
        EXPECT_EQ(placeOf(places), before) << "Kept: the bar is moved later";
        ::SetWindowPos(window, nullptr, 0, 0, 900, 701, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_GT(placeOf(places).Height(), before.Height());
        ::SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
        EXPECT_EQ(placeOf(places), placeOf(bar));
    });
}

TEST_F(FileDialogInit, TheButtonsLieClearOfTheSizeGrip) {
    dialog.ConvertFlagsToState(0x8080);
    for (const int preview : {0, 1}) {
        dialog.SetPreviewVisible(preview);
        look([&](HWND window) {
            const HWND grip = ::FindWindowExW(window, nullptr, L"ScrollBar", nullptr);
            ASSERT_NE(grip, nullptr);
            for (int id = 57011; id <= 57014; ++id)
                EXPECT_TRUE((placeOf(own(window, id)) & placeOf(grip)).IsRectEmpty()) << id;
        });
    }
}

TEST_F(FileDialogInit, TheEndOfASizingLaysThePlacesOut) {
    look([&](HWND window) {
        const HWND bar = ::GetDlgItem(window, 1184), places = own(window, 57015);
        ::MoveWindow(bar, 10, 40, 70, 200, FALSE);
        EXPECT_NE(placeOf(places), placeOf(bar));
        ::ValidateRect(places, nullptr);
        ::SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
        EXPECT_EQ(placeOf(places), placeOf(bar));
        ::RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        EXPECT_FALSE(::GetUpdateRect(places, nullptr, FALSE));
        ::SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
        EXPECT_TRUE(::GetUpdateRect(places, nullptr, FALSE)) << "it is painted anew, even in its place";
    });
}

TEST_F(FileDialogInit, TheirParentGrowsToTheBottomOfTheBar) {
    look([&](HWND window) {
        const HWND bar = ::GetDlgItem(window, 1184), holder = own(window);
        const CRect place = placeOf(holder);
        ::SetWindowPos(holder, nullptr, 3, 5, place.Width(), 50, SWP_NOZORDER);
        const CPoint corner = placeOf(holder).TopLeft();
        ASSERT_NE(corner, place.TopLeft());
        {
            std::vector<UINT> flags;
            const ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
                if (message.hwnd == holder && message.message == WM_WINDOWPOSCHANGING)
                    flags.push_back(ui_test::position_flags(message));
            });
            ::SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
            EXPECT_EQ(flags, (std::vector<UINT>{SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE}));
        }
        EXPECT_EQ(placeOf(holder).TopLeft(), corner) << "in its place";
        EXPECT_EQ(placeOf(holder).bottom, placeOf(bar).bottom);
        EXPECT_EQ(placeOf(holder).Width(), place.Width());
        EXPECT_EQ(placeOf(own(window, 57015)), placeOf(bar));
        ::SetWindowPos(holder, nullptr, 0, 0, place.Width(), 900, SWP_NOMOVE | SWP_NOZORDER);
        ::SendMessageW(window, WM_EXITSIZEMOVE, 0, 0);
        EXPECT_EQ(placeOf(holder).Height(), 900) << "it never shrinks";
    });
}

TEST_F(FileDialogInit, ANameThatIsBeingTypedIsSelectedAtEachChange) {
    look([&](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
        const HWND box = ::GetDlgItem(window, kNameBox);
        const HWND combo = ::GetWindow(box, GW_CHILD);
        const HWND edit = ::FindWindowExW(combo != nullptr ? combo : box, nullptr, L"Edit", nullptr);
        ASSERT_NE(edit, nullptr);
        ::SetFocus(edit);
        ::SendMessageW(edit, EM_SETSEL, 3, 3);
        bool scrolled = false, selectedElsewhere = false;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            selectedElsewhere |=
                message.message == EM_SETSEL && message.hwnd == ::GetDlgItem(window, IDCANCEL);
            scrolled |= message.message == EM_SCROLLCARET && message.hwnd == edit;
        });
        OFNOTIFYW notice = {};
        notice.hdr = {window, 0, static_cast<UINT>(CDN_SELCHANGE)};
        ::SendMessageW(own(window), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
        EXPECT_EQ(::SendMessageW(edit, EM_GETSEL, 0, 0), MAKELONG(0, 7));
        EXPECT_TRUE(scrolled);
        ::SendMessageW(edit, EM_SETSEL, 3, 3);
        ::SetFocus(::GetDlgItem(window, IDCANCEL));
        ::SendMessageW(edit, EM_SETSEL, 3, 3);
        ::SendMessageW(own(window), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
        EXPECT_EQ(::SendMessageW(edit, EM_GETSEL, 0, 0), MAKELONG(3, 3));
        EXPECT_FALSE(selectedElsewhere);
    });
}

}  // namespace
