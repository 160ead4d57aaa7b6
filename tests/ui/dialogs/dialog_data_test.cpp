// The name and the key of a dialog's data, how it lies in the registry, and the columns of its lists.
#include "dialog_fixture.h"
#include "watched_registry.h"

namespace {

using ui_test::WatchedRegistry;

constexpr REGSAM kRead = KEY_READ, kWrite = KEY_WRITE;

/// A dialog whose root becomes a key that no registry can make, from the given question for it on.
class RootlessDialog : public OpenDialog {
public:
    using OpenDialog::OpenDialog;
    int asked = 0;
    int goodRoots = 0;

protected:
    const wchar_t* AppRootKey() override {
        static const CString impossible = CString(kTestRoot) + CString(L'x', 300) + L"\\";
        return ++asked > goodRoots ? impossible.GetString() : kTestRoot;
    }
};

class DialogData : public DialogTest {
protected:
    DialogData() : dialog(IDD_ELASTIC, &parent) { dialog.SetDialogName(L"data"); }
    /// Type and bytes of a value below the dialog's key.
    static std::vector<BYTE> bytesOf(const wchar_t* value, DWORD& type) {
        BYTE buffer[200] = {};
        DWORD size = sizeof buffer;
        const CString key = CString(kTestRoot) + L"data";
        if (::RegGetValueW(HKEY_CURRENT_USER, key, value, RRF_RT_ANY, &type, buffer, &size)) size = 0;
        return {buffer, buffer + size};
    }
    static void put(const wchar_t* value, DWORD type, const void* data, DWORD size) {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, CString(kTestRoot) + L"data", value, type, data, size);
    }
    OpenDialog dialog;
};

TEST_F(DialogData, TheNameIsTheCurrentResourceModulesInCapitalsWithTemplateAndModality) {
    OpenDialog plain(0xBEEF), named;
    const HINSTANCE former = AfxGetResourceHandle();
    AfxSetResourceHandle(::GetModuleHandleW(L"ktui.dll"));
    CString name;
    EXPECT_EQ(plain.GetDialogName(name), 1);
    AfxSetResourceHandle(former);
    EXPECT_EQ(name, L"KTUI.DLL-BEEF-0");
    plain.m_isModal = 1;
    plain.GetDialogName(name);
    EXPECT_EQ(name, L"KTUI.DLL-BEEF-0") << "it is formed once";
    named.m_isModal = 1;
    AfxSetResourceHandle(AfxGetInstanceHandle());
    named.GetDialogName(name);
    AfxSetResourceHandle(former);
    EXPECT_EQ(name, L"UI_DIALOGS_TEST.EXE-C8-1");
}

TEST_F(DialogData, ANameIsTrimmedAndTakesTheHelpTagWithItUnlessThereIsOne) {
    OpenDialog tagged;
    tagged.SetDialogHelpTag(L"tag");
    tagged.SetDialogName(L"\t own name ");
    CString text;
    tagged.GetDialogName(text);
    EXPECT_EQ(text, L"own name");
    tagged.GetDialogHelpTag(text);
    EXPECT_EQ(text, L"tag");
    OpenDialog blank;
    blank.SetDialogName(L"  ");
    blank.GetDialogHelpTag(text);
    EXPECT_EQ(text, L"  ");
    blank.SetDialogName(L"then");
    blank.GetDialogName(text);
    EXPECT_EQ(text, L"then") << "a blank name is none";
    blank.GetDialogHelpTag(text);
    EXPECT_EQ(text, L"  ");
    OpenDialog used;
    used.GetDialogName(text);
    used.SetDialogName(L"late");
    used.GetDialogHelpTag(text);
    EXPECT_EQ(text, L"") << "a name that was used is fixed";
}

TEST_F(DialogData, TheRootGoesByTwoNames) {
    dialog.SetRootKey(L"Software\\ktui test\\other\\");
    CString key = L"old";
    EXPECT_EQ(dialog.GetDialogKey(key), 1);
    EXPECT_EQ(key, L"Software\\ktui test\\other\\data\\");
    EXPECT_STREQ(dialog.AppRootKey(), L"Software\\ktui test\\other\\");
}

TEST_F(DialogData, IsWrittenAndReadWithTheRightsThatTakes) {
    WatchedRegistry registry;
    unsigned long number = 0;
    CString text;
    dialog.SetDialogData(L"Number", 5UL);
    dialog.SetDialogData(L"Text", L"five");
    dialog.GetDialogData(L"Number", number);
    dialog.GetDialogData(L"Text", text);
    ASSERT_EQ(registry.calls.size(), 4u) << "one key for each access";
    for (std::size_t i = 0; i < 4; ++i) {
        const auto& call = registry.calls[i];
        EXPECT_EQ(call.made, i < 2);
        EXPECT_EQ(call.parent, HKEY_CURRENT_USER);
        EXPECT_EQ(call.key, CString(kTestRoot) + L"data\\");
        EXPECT_EQ(call.rights, i < 2 ? kWrite : kRead);
        EXPECT_EQ(call.className, i < 2 ? L"CKbUiRegistryWriteAccess" : L"");
    }
}

TEST_F(DialogData, LiesAsNumbersOfFourBytesAndTextsWithTheirEnd) {
    EXPECT_EQ(dialog.SetDialogData(L"Number", 0x04030201UL), 1);
    EXPECT_EQ(dialog.SetDialogData(L"Text", L"ab"), 1);
    DWORD type = 0;
    EXPECT_EQ(bytesOf(L"Number", type), (std::vector<BYTE>{1, 2, 3, 4}));
    EXPECT_EQ(type, DWORD{REG_DWORD});
    EXPECT_EQ(bytesOf(L"Text", type), (std::vector<BYTE>{'a', 0, 'b', 0, 0, 0}));
    EXPECT_EQ(type, DWORD{REG_SZ});
}

TEST_F(DialogData, AShortNumberIsFilledUpAndALongOneIsRefused) {
    const BYTE two[] = {0x34, 0x12}, eight[8] = {1};
    put(L"Short", REG_BINARY, two, 2);
    put(L"Long", REG_BINARY, eight, 8);
    unsigned long number = 77;
    EXPECT_EQ(dialog.GetDialogData(L"Short", number), 1);
    EXPECT_EQ(number, 0x1234UL);
    number = 77;
    EXPECT_EQ(dialog.GetDialogData(L"Long", number), 0);
    number = 77;
    EXPECT_EQ(dialog.GetDialogData(L"Missing", number), 0);
    EXPECT_EQ(number, 0UL);
    CString text = L"old";
    EXPECT_EQ(dialog.GetDialogData(L"Missing", text), 0);
    EXPECT_EQ(text, L"");
    dialog.SetDialogData(L"Empty", L"");
    text = L"old";
    EXPECT_EQ(dialog.GetDialogData(L"Empty", text), 1);
    EXPECT_EQ(text, L"");
}

TEST_F(DialogData, AKeyThatCannotBeMadeStoresNothing) {
    RootlessDialog rootless;
    rootless.SetDialogName(L"data");
    EXPECT_EQ(rootless.SetDialogData(L"Number", 5UL), 0);
    EXPECT_EQ(rootless.SetDialogData(L"Text", L"five"), 0);
    unsigned long number = 7;
    EXPECT_EQ(rootless.GetDialogData(L"Number", number), 0);
    EXPECT_EQ(number, 0UL);
    CString text = L"old";
    EXPECT_EQ(rootless.GetDialogData(L"Text", text), 0);
    EXPECT_EQ(text, L"");
}

TEST_F(DialogData, APlacementStopsAtTheFirstValueThatCannotBeWritten) {
    const wchar_t* const names[] = {L"X", L"Y", L"Width", L"Height"};
    for (int good = 0; good <= 4; ++good) {
        clean();
        RootlessDialog rootless(IDD_ELASTIC, &parent);
        rootless.SetDialogName(L"data");
        rootless.Create(IDD_ELASTIC, &parent);
        rootless.asked = 0;
        rootless.goodRoots = good;
        EXPECT_EQ(rootless.StorePixelData(), good == 4 ? 1 : 0);
        EXPECT_EQ(rootless.asked, good == 4 ? 4 : good + 1);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(stored(L"data", names[i]) != -1, i < good) << good << i;
    }
}

TEST_F(DialogData, APlacementNeedsAllFourValues) {
    dialog.Create(IDD_ELASTIC, &parent);
    for (const wchar_t* missing : {L"X", L"Y", L"Width", L"Height"}) {
        store(L"data", CRect(10, 20, 40, 60));
        CRect rect;
        ASSERT_EQ(dialog.GetPixelData(rect), 1);
        EXPECT_EQ(rect, CRect(10, 20, 40, 60));
        ::RegDeleteKeyValueW(HKEY_CURRENT_USER, CString(kTestRoot) + L"data", missing);
        EXPECT_EQ(dialog.GetPixelData(rect), 0);
        EXPECT_EQ(rect, dialog.windowRect());
    }
    OpenDialog windowless;
    windowless.SetDialogName(L"none");
    CRect untouched(1, 2, 3, 4);
    EXPECT_EQ(windowless.GetPixelData(untouched), 0);
    EXPECT_EQ(untouched, CRect(1, 2, 3, 4));
}

class ListColumns : public DialogData {
protected:
    ListColumns() {
        dialog.Create(IDD_ELASTIC, &parent);
        list.SubclassDlgItem(IDC_LIST, &dialog);
        for (int i = 0; i < 3; ++i) list.InsertColumn(i, L"c", LVCFMT_LEFT, 50 + i);
    }
    ~ListColumns() override { list.UnsubclassWindow(); }
    CListCtrl list;
};

TEST_F(ListColumns, TheKeyKeepsItsDoubledBackslashBothWays) {
    WatchedRegistry registry;
    EXPECT_EQ(dialog.SaveColumnSizes(&list), 1);
    EXPECT_EQ(dialog.GetColumnSizes(&list), 1);
    ASSERT_EQ(registry.calls.size(), 2u);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(registry.calls[i].key, CString(kTestRoot) + L"data\\\\ListView-1004");
        EXPECT_EQ(registry.calls[i].made, i == 0);
        EXPECT_EQ(registry.calls[i].rights, i == 0 ? kWrite : kRead);
    }
}

TEST_F(ListColumns, EachWidthHasItsOwnValueCountedFromOne) {
    EXPECT_EQ(dialog.SaveColumnSizes(&list), 1);
    EXPECT_EQ(stored(L"data\\ListView-1004", L"Column0"), -1);
    EXPECT_EQ(stored(L"data\\ListView-1004", L"Column1"), 50);
    EXPECT_EQ(stored(L"data\\ListView-1004", L"Column2"), 51);
    EXPECT_EQ(stored(L"data\\ListView-1004", L"Column3"), 52);
    EXPECT_EQ(stored(L"data\\ListView-1004", L"Column4"), -1);
    for (int i = 0; i < 3; ++i) list.SetColumnWidth(i, 20);
    ::RegDeleteKeyValueW(HKEY_CURRENT_USER, CString(kTestRoot) + L"data\\ListView-1004", L"Column1");
    const DWORD wide = 0x1002B;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, CString(kTestRoot) + L"data\\ListView-1004", L"Column2", REG_DWORD,
                      &wide, sizeof wide);
    EXPECT_EQ(dialog.GetColumnSizes(&list), 1);
    EXPECT_EQ(list.GetColumnWidth(0), 20) << "a missing value leaves the column";
    EXPECT_EQ(list.GetColumnWidth(1), 0x2B) << "the low half of the number counts";
    EXPECT_EQ(list.GetColumnWidth(2), 52);
}

namespace {

/// Counts the columns that are given a width.
class CountingList : public CListCtrl {
public:
    int widths = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == LVM_SETCOLUMNWIDTH) ++widths;
        return CListCtrl::WindowProc(message, wParam, lParam);
    }
};

}  // namespace

TEST_F(ListColumns, AWidthForAColumnThatIsNotThereIsNotRead) {
    dialog.SaveColumnSizes(&list);
    const DWORD more = 70;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, CString(kTestRoot) + L"data\\ListView-1004", L"Column4", REG_DWORD,
                      &more, sizeof more);
    list.UnsubclassWindow();
    CountingList counting;
    counting.SubclassDlgItem(IDC_LIST, &dialog);
    EXPECT_EQ(dialog.GetColumnSizes(&counting), 1);
    EXPECT_EQ(counting.widths, 3);
    counting.UnsubclassWindow();
    list.SubclassDlgItem(IDC_LIST, &dialog);
}

TEST_F(ListColumns, TheAnswerIsOneWhateverTheRegistryDid) {
    EXPECT_EQ(dialog.GetColumnSizes(&list), 1);
    EXPECT_EQ(list.GetColumnWidth(0), 50);
    dialog.SetRootKey(CString(kTestRoot) + CString(L'x', 300) + L"\\");
    EXPECT_EQ(dialog.SaveColumnSizes(&list), 1);
    EXPECT_EQ(dialog.GetColumnSizes(&list), 1);
    EXPECT_EQ(list.GetColumnWidth(2), 52);
}

TEST_F(ListColumns, AListThatHidesItsHeaderIsLeftAloneThoughItHasColumns) {
    CListCtrl bare;
    bare.SubclassDlgItem(IDC_BARE_LIST, &dialog);
    bare.InsertColumn(0, L"a", LVCFMT_LEFT, 33);
    EXPECT_EQ(dialog.SaveColumnSizes(&bare), 0);
    EXPECT_EQ(stored(L"data\\ListView-1005", L"Column1"), -1);
    EXPECT_EQ(dialog.GetColumnSizes(&bare), 0);
    bare.UnsubclassWindow();
}

}  // namespace
