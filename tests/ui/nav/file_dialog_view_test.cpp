// The list of files: the file it begins with, and the memory of how it was shown.
#include <shlobj.h>

#include "shown_fixture.h"

namespace {

constexpr UINT kDetails = 4, kList = 3;

/// Calls `use` with the view that the dialog shows.
void withView(HWND window, const std::function<void(IShellView&, IFolderView&)>& use) {
    auto* const browser = reinterpret_cast<IShellBrowser*>(::SendMessageW(window, WM_USER + 7, 0, 0));
    IShellView* view = nullptr;
    IFolderView* folder = nullptr;
    ASSERT_NE(browser, nullptr);
    ASSERT_EQ(browser->QueryActiveShellView(&view), S_OK);
    ASSERT_EQ(view->QueryInterface(IID_IFolderView, reinterpret_cast<void**>(&folder)), S_OK);
    use(*view, *folder);
    folder->Release();
    view->Release();
}

UINT modeOf(HWND window) {
    FOLDERSETTINGS settings = {};
    withView(window, [&](IShellView& view, IFolderView&) { view.GetCurrentInfo(&settings); });
    return settings.ViewMode;
}

void showAs(HWND window, UINT mode) {
    withView(window,
             [&](IShellView&, IFolderView& folder) { EXPECT_EQ(folder.SetCurrentViewMode(mode), S_OK); });
}

HWND headerOf(HWND list) { return reinterpret_cast<HWND>(::SendMessageW(list, LVM_GETHEADER, 0, 0)); }

void mark(HWND list, int column, int bits) {
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    const HWND header = headerOf(list);
    ::SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    item.fmt = (item.fmt & ~(HDF_SORTUP | HDF_SORTDOWN)) | bits;
    EXPECT_TRUE(
        ::SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item)));
}

/// A click on a column's header, as the parent of a list hears of it.
struct Click {
    int item, column;
    bool operator==(const Click&) const = default;
};

class FileDialogView : public ShownTest {
protected:
    FileDialogView() { dialog.SetDialogName(L"shown"); }
    std::optional<unsigned long> storedMode() {
        unsigned long mode = 0;
        if (!dialog.GetDialogData(L"ViewMode", mode)) return std::nullopt;
        return mode;
    }
    /// Runs the dialog once its list was painted first, and cancels it.
    void look(std::function<void(HWND)> at, int end = IDCANCEL) {
        run([&](HWND window) {
            ::RedrawWindow(own(window), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
            at(window);
            if (end == IDOK) ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
            press(window, end);
        });
    }
    /// Shows details with `bits` at `column`, and leaves; answers the clicks that the next dialog makes when
    /// its column has `bitsThen`.
    std::vector<Click> clicksAfter(int column, int bits, int bitsThen) {
        look([&](HWND window) {
            showAs(window, kDetails);
            for (int each = 0; each < 4; ++each) mark(fileList(window), each, 0);
            if (bits != 0) mark(fileList(window), column, bits);
        });
        return clicksThen(column, bitsThen);
    }
    /// The clicks that the next dialog makes when its column has `bits`.
    std::vector<Click> clicksThen(int column, int bits) {
        std::vector<Click> clicks;
        bool prepared = false;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.message >= WM_CTLCOLORMSGBOX && message.message <= WM_CTLCOLORSTATIC && !prepared) {
                const HWND list = fileList(::GetParent(message.hwnd));
                if (list == nullptr) return;
                prepared = true;
                for (int each = 0; each < 4; ++each) mark(list, each, 0);
                if (column < columnsThen) mark(list, column, bits);
                for (int each = 8; each >= columnsThen; --each)
                    ::SendMessageW(list, LVM_DELETECOLUMN, static_cast<WPARAM>(each), 0);
            }
            if (message.message != WM_NOTIFY) return;
            const auto& notice = *reinterpret_cast<NMLISTVIEW*>(message.lParam);
            if (notice.hdr.code == static_cast<UINT>(LVN_COLUMNCLICK) &&
                message.hwnd == ::GetParent(notice.hdr.hwndFrom))
                clicks.push_back({notice.iItem, notice.iSubItem});
        });
        look([](HWND) {});
        EXPECT_TRUE(prepared);
        return clicks;
    }
    int columnsThen = 5;  ///< that the list of the next dialog has
};

/// A system that has no memory of views.
class FileDialogViewBefore6 : public FileDialogView {
    SystemOfMajor m_system{5};
};

TEST_F(FileDialogViewBefore6, TheModeIsKeptAtCancel) {
    EXPECT_EQ(storedMode(), std::nullopt);
    look([](HWND window) { showAs(window, kDetails); });
    EXPECT_EQ(storedMode(), kDetails);
    look([](HWND window) {
        EXPECT_EQ(modeOf(window), kDetails);
        showAs(window, FVM_ICON);
    });
    EXPECT_EQ(storedMode(), static_cast<unsigned long>(FVM_ICON));
}

TEST_F(FileDialogViewBefore6, TheModeIsKeptAtOk) {
    look([](HWND window) { showAs(window, kDetails); }, IDOK);
    EXPECT_EQ(storedMode(), kDetails);
    EXPECT_EQ(data.GetCount(), 1);
}

TEST_F(FileDialogView, LaterSystemsKeepItThemselves) {
    for (const DWORD major : {6, 10}) {
        const SystemOfMajor system(major);
        look([](HWND window) { showAs(window, kDetails); });
        EXPECT_EQ(storedMode(), std::nullopt) << major;
        dialog.SetDialogData(L"ViewMode", static_cast<unsigned long>(FVM_ICON));
        look([](HWND window) { EXPECT_EQ(modeOf(window), kList); });
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test");
    }
}

using Clicks = std::vector<Click>;

TEST_F(FileDialogViewBefore6, AnOrderUpwardsIsOneClick) {
    EXPECT_EQ(clicksAfter(2, HDF_SORTUP, 0), (Clicks{{-1, 2}}));
}

TEST_F(FileDialogViewBefore6, AnOrderDownwardsIsTwo) {
    EXPECT_EQ(clicksAfter(1, HDF_SORTDOWN, 0), (Clicks{{-1, 1}, {-1, 1}}));
    EXPECT_EQ(clicksAfter(1, HDF_SORTDOWN, HDF_SORTUP), (Clicks{{-1, 1}}));
}

TEST_F(FileDialogViewBefore6, AnOrderThatIsThereIsNone) {
    EXPECT_EQ(clicksAfter(3, HDF_SORTDOWN, HDF_SORTDOWN), Clicks{});
    EXPECT_EQ(clicksAfter(0, HDF_SORTUP, HDF_SORTUP), Clicks{});
}

TEST_F(FileDialogViewBefore6, AColumnThatIsGoneIsNotClicked) {
    columnsThen = 2;
    EXPECT_EQ(clicksAfter(3, HDF_SORTUP, 0), Clicks{});
    columnsThen = 4;
    EXPECT_EQ(clicksAfter(3, HDF_SORTUP, 0), (Clicks{{-1, 3}}));
}

TEST_F(FileDialogViewBefore6, TheFirstColumnWithAMarkCounts) {
    look([&](HWND window) {
        showAs(window, kDetails);
        for (int each = 0; each < 4; ++each) mark(fileList(window), each, each == 0 ? 0 : HDF_SORTUP);
    });
    EXPECT_EQ(clicksThen(1, 0), (Clicks{{-1, 1}}));
}

TEST_F(FileDialogViewBefore6, WithoutMarksTheFormerOrderStays) {
    clicksAfter(2, HDF_SORTUP, 0);
    EXPECT_EQ(clicksAfter(2, 0, 0), (Clicks{{-1, 2}}));
}

TEST_F(FileDialogViewBefore6, EachDialogHasItsOwnOrder) {
    EXPECT_EQ(clicksAfter(2, HDF_SORTUP, 0), (Clicks{{-1, 2}}));
    CNavDataArray otherData;
    ShownDialog other{otherData, filters};
    other.SetAppRootKey(L"Software\\ktui test\\Dialogs\\");
    other.SetDialogName(L"other order");
    other.SetDialogCaption(L"chooser");
    other.SetForceInitialFolder(folder);
    other.SetDialogData(L"ViewMode", static_cast<unsigned long>(kDetails));
    int clicks = 0;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        clicks += message.message == WM_NOTIFY &&
                  reinterpret_cast<NMHDR*>(message.lParam)->code == static_cast<UINT>(LVN_COLUMNCLICK);
    });
    when_dialog(L"chooser", [](HWND window) {
        ::RedrawWindow(own(window), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        EXPECT_EQ(modeOf(window), kDetails);
        press(window, IDCANCEL);
    });
    other.DoModal();
    EXPECT_EQ(clicks, 0);
}

TEST_F(FileDialogViewBefore6, OtherModesHaveNoOrder) {
    clicksAfter(2, HDF_SORTUP, 0);
    dialog.SetDialogData(L"ViewMode", static_cast<unsigned long>(kList));
    int clicks = 0;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        clicks += message.message == WM_NOTIFY &&
                  reinterpret_cast<NMHDR*>(message.lParam)->code == static_cast<UINT>(LVN_COLUMNCLICK);
    });
    look([](HWND window) { mark(fileList(window), 1, HDF_SORTUP); });
    EXPECT_EQ(clicks, 0);
}

TEST_F(FileDialogViewBefore6, OtherModesLeaveTheOrderAlone) {
    clicksAfter(2, HDF_SORTUP, 0);
    look([](HWND window) {
        showAs(window, kList);
        for (int each = 0; each < 4; ++each) mark(fileList(window), each, each == 1 ? HDF_SORTDOWN : 0);
    });
    EXPECT_EQ(storedMode(), static_cast<unsigned long>(kList));
    dialog.SetDialogData(L"ViewMode", static_cast<unsigned long>(kDetails));
    EXPECT_EQ(clicksThen(2, 0), (Clicks{{-1, 2}}));
}

/// The row of a file in a list, or -1.
int rowOf(HWND list, const wchar_t* name) {
    const int rows = static_cast<int>(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < rows; ++row) {
        wchar_t text[MAX_PATH] = {};
        LVITEMW item = {};
        item.pszText = text;
        item.cchTextMax = MAX_PATH;
        ::SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        if (CString(text) == name) return row;
    }
    return -1;
}

UINT stateOf(HWND list, int row) {
    return static_cast<UINT>(
        ::SendMessageW(list, LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED | LVIS_FOCUSED));
}

int selectedCount(HWND list) { return static_cast<int>(::SendMessageW(list, LVM_GETSELECTEDCOUNT, 0, 0)); }

class FirstFile : public FileDialogView {
protected:
    /// The dialog starts with a whole path, as it does from the folder of the last time.
    void startWith(const wchar_t* name) {
        dialog.SetForceInitialFolder(L"");
        dialog.SetDialogData(L"InitialDirectory", folder);
        dialog.SetInitialFileName(name);
    }
};

TEST_F(FirstFile, IsSelected) {
    startWith(L"two.dwg");
    look([&](HWND window) {
        const HWND list = fileList(window);
        const int row = rowOf(list, L"two.dwg");
        ASSERT_GE(row, 0);
        EXPECT_EQ(stateOf(list, row), static_cast<UINT>(LVIS_SELECTED | LVIS_FOCUSED));
        EXPECT_EQ(selectedCount(list), 1);
    });
}

TEST_F(FirstFile, IsScrolledIntoView) {
    startWith(L"two.dwg");
    int row = -1;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.message == LVM_ENSUREVISIBLE) row = static_cast<int>(message.wParam);
    });
    look([&](HWND window) { EXPECT_EQ(row, rowOf(fileList(window), L"two.dwg")); });
    EXPECT_GE(row, 0);
}

TEST_F(FirstFile, IsNamedExactly) {
    startWith(L"TWO.dwg");
    look([&](HWND window) { EXPECT_EQ(selectedCount(fileList(window)), 0); });
}

TEST_F(FirstFile, OfAnOpenDialogHasAFolder) {
    dialog.SetInitialFileName(L"two.dwg");
    look([&](HWND window) { EXPECT_EQ(selectedCount(fileList(window)), 0); });
    dialog.SetCreatingFile(1);
    look([&](HWND window) {
        EXPECT_EQ(stateOf(fileList(window), rowOf(fileList(window), L"two.dwg")),
                  static_cast<UINT>(LVIS_SELECTED | LVIS_FOCUSED));
    });
}

TEST_F(FirstFile, IsSelectedOnce) {
    startWith(L"two.dwg");
    look([&](HWND window) {
        const HWND list = fileList(window);
        LVITEMW item = {};
        item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        ::SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(selectedCount(list), 0);
        ::SendMessageW(list, WM_SHOWWINDOW, TRUE, 0);
        EXPECT_EQ(selectedCount(list), 0);
    });
}

TEST_F(FirstFile, IsWaitedForUntilTheListHasFiles) {
    startWith(L"two.dwg");
    CWnd* extended = nullptr;
    bool emptied = false;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (emptied || message.message < WM_CTLCOLORMSGBOX || message.message > WM_CTLCOLORSTATIC) return;
        const HWND list = fileList(::GetParent(message.hwnd));
        if (list == nullptr) return;
        emptied = true;
        ::SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    });
    look([&](HWND window) {
        ASSERT_TRUE(emptied);
        const HWND list = fileList(window);
        extended = CWnd::FromHandlePermanent(list);
        ASSERT_NE(extended, nullptr);
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.pszText = const_cast<wchar_t*>(L"two.dwg");
        ::SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        item.iItem = 1;
        ::SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(selectedCount(list), 0);
        ::SendMessageW(list, WM_SHOWWINDOW, FALSE, 0);
        EXPECT_EQ(selectedCount(list), 0);
        ::SendMessageW(list, WM_SHOWWINDOW, TRUE, 0);
        EXPECT_EQ(stateOf(list, 0), static_cast<UINT>(LVIS_SELECTED | LVIS_FOCUSED));
        EXPECT_EQ(selectedCount(list), 1) << "of equal names the first";
        ::SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    });
}

TEST_F(FirstFile, OnlyTheFirstListIsWatched) {
    look([&](HWND window) {
        EXPECT_NE(CWnd::FromHandlePermanent(fileList(window)), nullptr);
        const HWND first = fileList(window);
        EXPECT_EQ(dialog.NavigateToFolder(folder + L"templates\\"), 1);
        EXPECT_NE(fileList(window), first);
        ::RedrawWindow(own(window), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        EXPECT_EQ(CWnd::FromHandlePermanent(fileList(window)), nullptr);
    });
}

}  // namespace
