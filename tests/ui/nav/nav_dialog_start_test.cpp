// What the platform's file dialog is given by a navigation dialog.
#include <ktui/nav/never_blocked.h>
#include <shlobj.h>

#include "nav_fixture.h"

namespace {

constexpr DWORD kAlways =
    OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING | OFN_ENABLEHOOK | OFN_NOCHANGEDIR;
constexpr DWORD kOpens = kAlways | OFN_ENABLETEMPLATE;

class NavStart : public NavTest {
protected:
    NavStart() {
        addThreeFilters();
        settled(plain);
        settled(dialog);
    }
    CNavDialog plain{data, filters};
    CKtUiNavDialog dialog{data, filters};
};

TEST_F(NavStart, OpensWithTheFewestFlags) {
    EXPECT_EQ(plain.DoModal(), IDCANCEL);
    EXPECT_EQ(shown, 1);
    EXPECT_FALSE(given.save);
    EXPECT_EQ(given.flags, kOpens);
    EXPECT_EQ(given.title, std::nullopt);
    EXPECT_EQ(given.file, L"");
    EXPECT_EQ(given.maxFile, 260u);
    EXPECT_EQ(given.filterIndex, 1u);
    EXPECT_EQ(given.filter, L"Drawing(*.dwg)|*.dwg|Template(*.dwt)|*.dwt|All(*.*)|*.*|");
    EXPECT_EQ(given.extension, L"dwg");
}

TEST_F(NavStart, EachSettingHasItsFlag) {
    plain.SetAcceptAnyFileExtension(1);
    plain.DoModal();
    EXPECT_EQ(given.flags, kOpens | OFN_EXTENSIONDIFFERENT);
    plain.SetAcceptAnyFileExtension(0);
    plain.SetConfirmReplace(1);
    plain.DoModal();
    EXPECT_EQ(given.flags, kOpens | OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST);
    plain.SetCreatingFile(1);
    plain.DoModal();
    EXPECT_TRUE(given.save);
    EXPECT_EQ(given.flags, kAlways | OFN_OVERWRITEPROMPT);
    plain.SetConfirmReplace(0);
    plain.SetMultiSelectAllowed(1);
    plain.DoModal();
    EXPECT_EQ(given.flags, kAlways | OFN_ALLOWMULTISELECT);
    dialog.ConvertFlagsToState(0x4000000);
    dialog.DoModal();
    EXPECT_EQ(given.flags, kOpens | OFN_DONTADDTORECENT);
}

TEST_F(NavStart, WithoutFiltersThereIsNoFilterText) {
    filters.RemoveAllData();
    plain.DoModal();
    EXPECT_EQ(given.filter, std::nullopt);
    EXPECT_EQ(given.filterIndex, 0u);
    EXPECT_EQ(given.extension, std::nullopt);
}

TEST_F(NavStart, FoldersOnlyHasAFilterOfItsOwnAndNoExtension) {
    plain.SetFoldersOnly(1);
    plain.DoModal();
    EXPECT_EQ(given.filter, L"Folders Only|");
    EXPECT_EQ(given.extension, std::nullopt);
    plain.SetCreatingFile(1);
    plain.DoModal();
    EXPECT_EQ(given.filter, std::nullopt);
}

TEST_F(NavStart, RunsWithTheResourceLibraryInForce) {
    const HINSTANCE former = AfxGetResourceHandle();
    int pushed = 0, popped = 0;
    onShown = [&](OPENFILENAMEW&) {
        pushed = host.pushes;
        popped = host.pops;
        return FALSE;
    };
    plain.DoModal();
    EXPECT_EQ(pushed, 1);
    EXPECT_EQ(popped, 0);
    EXPECT_EQ(given.resource, ::GetModuleHandleW(L"ktdsres.dll"));
    EXPECT_EQ(host.pops, 1);
    EXPECT_EQ(AfxGetResourceHandle(), former);
}

TEST_F(NavStart, TheCaptionIsTheTitle) {
    plain.SetDialogCaption(L"Choose");
    plain.DoModal();
    EXPECT_EQ(given.title, L"Choose");
}

TEST_F(NavStart, TheDefaultExtensionLosesItsWildcard) {
    plain.SetDefaultFileExtension(L"*.dxf");
    plain.DoModal();
    EXPECT_EQ(given.extension, L"dxf");
    plain.SetDefaultFileExtension(L"txt");
    plain.DoModal();
    EXPECT_EQ(given.extension, L"txt");
    plain.SetDefaultFileExtension(L"*.");
    plain.DoModal();
    EXPECT_EQ(given.extension, L"");
    plain.SetFoldersOnly(1);
    plain.SetDefaultFileExtension(L"*.dxf");
    plain.DoModal();
    EXPECT_EQ(given.extension, L"dxf");
}

TEST_F(NavStart, AFirstFilterWithoutPatternsThrowsAndPops) {
    filters.GetData(0)->RemoveAll();
    EXPECT_TRUE(throwsInvalidArgument(plain));
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(host.pushes, 1);
    EXPECT_EQ(host.pops, 1);
    plain.SetDefaultFileExtension(L"dwg");
    plain.DoModal();
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(given.filter, L"Drawing()|*.*|Template(*.dwt)|*.dwt|All(*.*)|*.*|");
}

TEST_F(NavStart, TheFilterIndexIsTheForcedTheStoredOrTheDefaultOne) {
    plain.SetDefaultFilterIndex(1);
    plain.DoModal();
    EXPECT_EQ(given.filterIndex, 2u);
    store(L"InitialFilterIndex", 2);
    plain.DoModal();
    EXPECT_EQ(given.filterIndex, 3u);
    plain.SetForceFilterIndex(99);
    plain.DoModal();
    EXPECT_EQ(given.filterIndex, 3u);
    plain.SetForceFilterIndex(0);
    plain.DoModal();
    EXPECT_EQ(given.filterIndex, 1u);
    plain.SetForceFilterIndex(-1);
    store(L"InitialFilterIndex", 7);
    plain.DoModal();
    EXPECT_EQ(given.filterIndex, 1u);
}

TEST_F(NavStart, SeveralFilesGetRoomThatBeginsWithTheName) {
    plain.SetMultiSelectAllowed(1);
    plain.SetForceInitialFolder(L"C:\\");
    plain.SetInitialFileName(L"one.dwg");
    plain.DoModal();
    EXPECT_EQ(given.maxFile, 8192u);
    EXPECT_EQ(given.file, L"one.dwg");
    const OPENFILENAMEW& ofn = plain.GetImpObject()->m_fileDialog->GetOFN();
    EXPECT_EQ(ofn.lpstrFile, nullptr);
    EXPECT_EQ(ofn.nMaxFile, 0u);
}

TEST_F(NavStart, TheRoomForSeveralFilesGoesAlsoWhenTheyWereChosen) {
    dialog.SetMultiSelectAllowed(1);
    accept([this](OPENFILENAMEW& ofn) {
        ofn.lpstrFile[8191] = L'\0';
        data.AddData()->SetText(L"C:\\a\\b.dwg");
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetImpObject()->m_fileDialog->GetOFN().lpstrFile, nullptr);
    EXPECT_EQ(dialog.GetImpObject()->m_fileDialog->GetOFN().nMaxFile, 0u);
}

TEST_F(NavStart, AfterwardsNothingPointsAtTheTextsOfTheRun) {
    plain.SetDialogCaption(L"Choose");
    plain.DoModal();
    const OPENFILENAMEW& ofn = plain.GetImpObject()->m_fileDialog->GetOFN();
    EXPECT_EQ(ofn.lpstrTitle, nullptr);
    EXPECT_EQ(ofn.lpstrDefExt, nullptr);
    EXPECT_EQ(ofn.lpstrInitialDir, nullptr);
}

TEST_F(NavStart, ANameWithATabOrALineEndIsDropped) {
    for (const wchar_t* name : {L"plan\t.dwg", L"plan\r.dwg", L"plan\n.dwg"}) {
        plain.SetInitialFileName(name);
        plain.DoModal();
        EXPECT_EQ(given.file, L"");
        EXPECT_STREQ(plain.GetInitialFileName(), name);
    }
}

TEST_F(NavStart, TheFolderIsTheForcedTheDefaultTheStoredOne) {
    store(L"InitialDirectory", L"D:\\stored\\");
    plain.DoModal();
    EXPECT_EQ(given.folder, L"D:\\stored\\");
    plain.SetDefaultInitialFolder(L"D:\\default");
    plain.DoModal();
    EXPECT_EQ(given.folder, L"D:\\default");
    plain.SetForceInitialFolder(L"D:\\forced");
    plain.DoModal();
    EXPECT_EQ(given.folder, L"D:\\forced");
}

HRESULT WINAPI tellsDocuments(HWND, int folder, HANDLE, DWORD, LPWSTR path) {
    ::lstrcpyW(path, folder == CSIDL_PERSONAL ? L"C:\\documents" : L"C:\\other");
    return S_OK;
}

HRESULT WINAPI tellsNone(HWND, int, HANDLE, DWORD, LPWSTR) { return E_FAIL; }

DWORD WINAPI tellsWorking(DWORD, LPWSTR path) {
    ::lstrcpyW(path, L"C:\\working");
    return 10;
}

TEST_F(NavStart, OtherwiseTheUsersDocumentsOrTheWorkingFolder) {
    const HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    const ui_test::ReplacedImport working(toolkit, "GetCurrentDirectoryW", &tellsWorking);
    {
        const ui_test::ReplacedImport documents(toolkit, "SHGetFolderPathW", &tellsDocuments);
        ASSERT_TRUE(documents.isThere() && working.isThere());
        plain.DoModal();
        EXPECT_EQ(given.folder, L"C:\\documents");
    }
    const ui_test::ReplacedImport none(toolkit, "SHGetFolderPathW", &tellsNone);
    plain.SetInitialFileName(L"C:\\a\\b.dwg");
    plain.DoModal();
    EXPECT_EQ(given.folder, L"C:\\working");
    EXPECT_EQ(given.file, L"C:\\working\\b.dwg");
}

TEST_F(NavStart, AStoredFolderIsCutToAPathsLength) {
    const CString longest(L'p', 300);
    store(L"InitialDirectory", longest);
    plain.DoModal();
    EXPECT_EQ(given.folder, std::wstring(259, L'p'));
    plain.SetForceInitialFolder(longest);
    plain.DoModal();
    EXPECT_EQ(given.folder, std::wstring(300, L'p'));
}

TEST_F(NavStart, ANameBehindAForcedOrADefaultFolderStandsAlone) {
    plain.SetInitialFileName(L"C:\\a\\b.dwg");
    plain.SetForceInitialFolder(L"D:\\work");
    plain.DoModal();
    EXPECT_EQ(given.file, L"b.dwg");
    plain.SetForceInitialFolder(L"");
    plain.SetDefaultInitialFolder(L"D:\\work");
    plain.DoModal();
    EXPECT_EQ(given.file, L"b.dwg");
}

TEST_F(NavStart, ANameBehindAStoredFolderFollowsIt) {
    store(L"InitialDirectory", L"D:\\work\\");
    plain.SetInitialFileName(L"C:\\a\\b.dwg");
    plain.DoModal();
    EXPECT_EQ(given.file, L"D:\\work\\b.dwg");
    EXPECT_EQ(given.folder, L"D:\\work\\");
    store(L"InitialDirectory", L"D:\\work");
    plain.DoModal();
    EXPECT_EQ(given.file, L"D:\\work\\b.dwg");
}

TEST_F(NavStart, ANameThatIsOnlyAFolderStays) {
    store(L"InitialDirectory", L"D:\\work\\");
    plain.SetInitialFileName(L"C:\\a\\");
    plain.DoModal();
    EXPECT_EQ(given.file, L"C:\\a\\");
}

TEST_F(NavStart, TemplatesComeFromTheirFolderEvenOverAForcedOne) {
    host.profileStrings[L"General/TemplatePath"] = L"C:\\templates";
    dialog.SetForceFilterIndex(1);
    dialog.SetForceInitialFolder(L"D:\\forced");
    dialog.SetInitialFileName(L"C:\\a\\b.dwt");
    dialog.DoModal();
    EXPECT_EQ(given.folder, L"C:\\templates");
    EXPECT_EQ(given.file, L"C:\\templates\\b.dwt");
    host.profileStrings[L"General/TemplatePath"] = std::wstring(300, L't');
    dialog.DoModal();
    EXPECT_EQ(given.folder, std::wstring(259, L't'));
}

TEST_F(NavStart, TemplatesHaveNoFolderOfTheirOwnElsewhere) {
    host.profileStrings[L"General/TemplatePath"] = L"C:\\templates";
    plain.SetForceFilterIndex(1);
    plain.SetForceInitialFolder(L"D:\\forced");
    plain.DoModal();
    EXPECT_EQ(given.folder, L"D:\\forced") << "not in application mode";
    dialog.SetForceInitialFolder(L"D:\\forced");
    dialog.SetForceFilterIndex(0);
    dialog.DoModal();
    EXPECT_EQ(given.folder, L"D:\\forced") << "not a filter of templates";
    dialog.SetForceFilterIndex(1);
    dialog.SetFoldersOnly(1);
    dialog.DoModal();
    EXPECT_EQ(given.folder, L"D:\\forced") << "folders only";
    dialog.SetFoldersOnly(0);
    host.profileStrings.clear();
    dialog.DoModal();
    EXPECT_EQ(given.folder, L"D:\\forced") << "the host has none";
}

TEST_F(NavStart, TheNameOfTheDialogsDataIsThatOfItsTemplateInTheResourceLibrary) {
    CNavDialog fresh(data, filters, 0xABC);
    fresh.DoModal();
    CString name;
    fresh.GetDialogName(name);
    EXPECT_EQ(name, L"KTDSRES.DLL-ABC-0");
}

TEST_F(NavStart, WhereNothingMayBlockAFolderThatAnswersIsBegunWith) {
    KtUiSetNeverBlocked(10000);
    plain.SetForceInitialFolder(L"C:\\windows");
    plain.DoModal();
    EXPECT_EQ(given.folder, L"C:\\windows");
    KtUiSetNeverBlocked(0);
}

TEST_F(NavStart, EachRunHasAFileDialogOfItsOwn) {
    const CNavFileDlg* during[2] = {};
    for (const CNavFileDlg*& each : during) {
        onShown = [&](OPENFILENAMEW& ofn) {
            each = plain.GetImpObject()->m_fileDialog.get();
            EXPECT_EQ(&each->GetOFN(), &ofn);
            EXPECT_EQ(ofn.nFilterIndex, 1u);
            ofn.nFilterIndex = 3;
            return FALSE;
        };
        plain.DoModal();
        EXPECT_NE(each, nullptr);
        EXPECT_EQ(plain.GetFilterIndex(), 2);
    }
    EXPECT_EQ(shown, 2);
}

}  // namespace
