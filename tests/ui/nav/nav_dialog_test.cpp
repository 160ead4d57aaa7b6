// The settings and the fixed answers of a navigation dialog.
#include <ktut.h>
#include <od_db_database.h>
#include <od_host_services.h>

#include "nav_fixture.h"
#include "slot_of.h"

namespace {

using ui_test::slotOf;

class NavSettings : public NavTest {
protected:
    CNavDialog dialog{data, filters};
    CNavDialogImp& imp = *dialog.GetImpObject();
};

TEST_F(NavSettings, StartWithTheirDefaults) {
    EXPECT_EQ(dialog.GetDataArray(), &data);
    EXPECT_EQ(dialog.GetFilterArray(), &filters);
    EXPECT_STREQ(dialog.GetDialogCaption(), L"");
    EXPECT_STREQ(dialog.GetDefaultFileExtension(), L"");
    EXPECT_EQ(dialog.GetDefaultFilterIndex(), 0);
    EXPECT_EQ(dialog.GetForceFilterIndex(), -1);
    EXPECT_STREQ(dialog.GetForceInitialFolder(), L"");
    EXPECT_STREQ(dialog.GetDefaultInitialFolder(), L"");
    EXPECT_STREQ(dialog.GetInitialFileName(), L"");
    EXPECT_EQ(dialog.GetConfirmReplace(), 0);
    EXPECT_EQ(dialog.GetAcceptAnyFileExtension(), 0);
    EXPECT_EQ(dialog.GetNoURLFileTransfer(), 0);
    EXPECT_EQ(dialog.GetNoURLsAllowed(), 0);
    EXPECT_EQ(dialog.GetMultiSelectAllowed(), 0);
    EXPECT_EQ(dialog.GetReadOnlyAllowed(), 1);
    EXPECT_EQ(dialog.GetReadOnlyHidden(), 0);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 0);
    EXPECT_EQ(dialog.GetCreatingFile(), 0);
    EXPECT_EQ(dialog.GetFoldersOnly(), 0);
    EXPECT_EQ(dialog.GetPreviewPresent(), 0);
    EXPECT_EQ(dialog.GetPreviewVisible(), 0);
    EXPECT_EQ(imp.m_fileDialog, nullptr);
    EXPECT_EQ(imp.m_owner, &dialog);
    EXPECT_EQ(imp.m_securityButton | imp.m_partialOpen | imp.m_optionsButton | imp.m_openWithoutTemplate |
                  imp.m_flag8000000 | imp.m_underlayExport | imp.m_openNoTemplateSelection,
              0);
    EXPECT_EQ(imp.m_applicationMode, 0);
}

TEST_F(NavSettings, GiveBackEachNumberThatWasSetAndTouchNoOther) {
    struct Accessor {
        int (CNavDialog::*get)() const;
        void (CNavDialog::*set)(int);
    };
    const std::vector<Accessor> all = {
        {&CNavDialog::GetDefaultFilterIndex, &CNavDialog::SetDefaultFilterIndex},
        {&CNavDialog::GetForceFilterIndex, &CNavDialog::SetForceFilterIndex},
        {&CNavDialog::GetConfirmReplace, &CNavDialog::SetConfirmReplace},
        {&CNavDialog::GetAcceptAnyFileExtension, &CNavDialog::SetAcceptAnyFileExtension},
        {&CNavDialog::GetNoURLFileTransfer, &CNavDialog::SetNoURLFileTransfer},
        {&CNavDialog::GetNoURLsAllowed, &CNavDialog::SetNoURLsAllowed},
        {&CNavDialog::GetMultiSelectAllowed, &CNavDialog::SetMultiSelectAllowed},
        {&CNavDialog::GetReadOnlyAllowed, &CNavDialog::SetReadOnlyAllowed},
        {&CNavDialog::GetReadOnlyHidden, &CNavDialog::SetReadOnlyHidden},
        {&CNavDialog::GetReadOnlySpecified, &CNavDialog::SetReadOnlySpecified},
        {&CNavDialog::GetCreatingFile, &CNavDialog::SetCreatingFile},
        {&CNavDialog::GetFoldersOnly, &CNavDialog::SetFoldersOnly},
        {&CNavDialog::GetPreviewPresent, &CNavDialog::SetPreviewPresent},
    };
    int number = 10;
    for (const Accessor& each : all) (dialog.*each.set)(number++);
    number = 10;
    for (const Accessor& each : all) EXPECT_EQ((dialog.*each.get)(), number++);
}

TEST_F(NavSettings, GiveBackEachTextThatWasSet) {
    dialog.SetDialogCaption(L"caption");
    dialog.SetDefaultFileExtension(L"extension");
    dialog.SetForceInitialFolder(L"forced");
    dialog.SetDefaultInitialFolder(L"default");
    dialog.SetInitialFileName(L"name");
    EXPECT_STREQ(dialog.GetDialogCaption(), L"caption");
    EXPECT_STREQ(dialog.GetDefaultFileExtension(), L"extension");
    EXPECT_STREQ(dialog.GetForceInitialFolder(), L"forced");
    EXPECT_STREQ(dialog.GetDefaultInitialFolder(), L"default");
    EXPECT_STREQ(dialog.GetInitialFileName(), L"name");
}

TEST_F(NavSettings, AVisiblePreviewIsPresent) {
    dialog.SetPreviewVisible(0);
    EXPECT_EQ(dialog.GetPreviewPresent(), 0);
    dialog.SetPreviewVisible(3);
    EXPECT_EQ(dialog.GetPreviewVisible(), 3);
    EXPECT_EQ(dialog.GetPreviewPresent(), 1);
    dialog.SetPreviewVisible(0);
    EXPECT_EQ(dialog.GetPreviewVisible(), 0);
    EXPECT_EQ(dialog.GetPreviewPresent(), 1);
}

TEST_F(NavSettings, WithoutAFileDialogNothingIsShown) {
    addThreeFilters();
    CString text = L"before";
    EXPECT_EQ(dialog.GetFilterIndex(), 0);
    dialog.SetFilterIndex(2);
    EXPECT_EQ(dialog.GetFilterIndex(), 0);
    EXPECT_EQ(dialog.NavigateToFolder(L"C:\\"), 0);
    EXPECT_EQ(dialog.GetCurrentFileExtension(text), nullptr);
    EXPECT_EQ(text, L"before");
}

TEST_F(NavSettings, TheInitialTypeIsTheForcedTheDefaultOrTheShownOne) {
    addThreeFilters();
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 0);
    settled(dialog);
    store(L"InitialFilterIndex", 1);
    dialog.DoModal();
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 1);
    dialog.SetDefaultFilterIndex(2);
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 2);
    dialog.SetForceFilterIndex(0);
    EXPECT_EQ(dialog.GetInitialFilterIndex(), 0);
    dialog.SetForceFilterIndex(-2);
    EXPECT_EQ(dialog.GetInitialFilterIndex(), -2);
}

TEST_F(NavSettings, ThePatternOfTheTypeShownIsItsExtension) {
    addThreeFilters();
    settled(dialog);
    CString text = L"before";
    dialog.SetForceFilterIndex(1);
    dialog.DoModal();
    EXPECT_EQ(dialog.GetCurrentFileExtension(text), filters.GetData(1));
    EXPECT_EQ(text, L"*.dwt");
    OPENFILENAMEW& ofn = imp.m_fileDialog->GetOFN();
    text = L"before";
    for (const DWORD index : {0u, 4u, 0xFFFFFFFFu}) {
        ofn.nFilterIndex = index;
        EXPECT_EQ(dialog.GetCurrentFileExtension(text), nullptr) << index;
        EXPECT_EQ(text, L"before");
    }
    ofn.nFilterIndex = 3;
    EXPECT_EQ(dialog.GetFilterIndex(), 2);
    filters.GetData(2)->RemoveAll();
    try {
        dialog.GetCurrentFileExtension(text);
        FAIL();
    } catch (CInvalidArgException* exception) {
        exception->Delete();
    }
}

TEST_F(NavSettings, ResultsGiveAFolderAndAPath) {
    CString folder = L"before", path = L"before";
    dialog.GetCurrentFolderForPersistence(folder);
    dialog.GetSingleDataFullPath(path);
    EXPECT_EQ(folder, L"before");
    EXPECT_EQ(path, L"before");
    data.AddData()->SetText(L"C:\\a\\b.dwg");
    dialog.GetCurrentFolderForPersistence(folder);
    dialog.GetSingleDataFullPath(path);
    EXPECT_EQ(folder, L"C:\\a");
    EXPECT_EQ(path, L"C:\\a\\b.dwg");
    data.AddData()->SetText(L"D:\\c.dwg");
    path = L"before";
    dialog.GetCurrentFolderForPersistence(folder);
    dialog.GetSingleDataFullPath(path);
    EXPECT_EQ(folder, L"C:\\a");
    EXPECT_EQ(path, L"before");
    data.GetData(0)->SetText(L"bare.dwg");
    dialog.GetCurrentFolderForPersistence(folder);
    EXPECT_EQ(folder, L"bare.dwg");
}

TEST_F(NavSettings, WhiteSpaceGoesFromTheFrontOrFromBothEnds) {
    CString text = L" \t a b \n";
    dialog.TrimWhiteSpace(text, 0);
    EXPECT_EQ(text, L"a b \n");
    text = L" \t a b \n";
    dialog.TrimWhiteSpace(text, 1);
    EXPECT_EQ(text, L"a b");
}

TEST_F(NavSettings, FixedAnswers) {
    EXPECT_EQ(dialog.GetToolsMenuItemsPresent(), 3);
    dialog.SetToolsMenuItemsPresent(0);
    EXPECT_EQ(dialog.GetToolsMenuItemsPresent(), 3);
    EXPECT_EQ(dialog.GetToolsMenuItemPosition(static_cast<NavToolsMenuItem>(0)), -1);
    EXPECT_EQ(dialog.GetToolsMenuItemPosition(kNavToolsMenuFirst), 0);
    EXPECT_EQ(dialog.GetToolsMenuItemPosition(kNavToolsMenuSecond), 1);
    EXPECT_EQ(dialog.GetToolsMenuItemPosition(static_cast<NavToolsMenuItem>(3)), -1);
    dialog.SetNoExtraExtensions(1);
    EXPECT_EQ(dialog.GetNoExtraExtensions(), 0);
    dialog.SetNoExtraExtensionsInPlaces(1);
    EXPECT_EQ(dialog.GetNoExtraExtensionsInPlaces(), 0);
    dialog.SetNoFTP(1);
    EXPECT_EQ(dialog.GetNoFTP(), 0);
    dialog.SetNoPlacesList(1);
    EXPECT_EQ(dialog.GetNoPlacesList(), 0);
    dialog.SetUseRegExtensionFlags(0);
    EXPECT_EQ(dialog.GetUseRegExtensionFlags(), 1);
    CListCtrl list;
    dialog.SetFolderListCtrl(&list);
    EXPECT_EQ(dialog.GetFolderListCtrl(), nullptr);
    CString text = L"before";
    dialog.SetOkButtonText(L"Take");
    EXPECT_EQ(dialog.GetOkButtonText(text), 0);
    EXPECT_EQ(dialog.GetPersonalFolderPath(text), 0);
    EXPECT_EQ(text, L"before");
    CNavData item;
    EXPECT_EQ(dialog.SetFolderComboCurSel(1), 0);
    EXPECT_EQ(dialog.AddDataToHistory(&item), 0);
    EXPECT_EQ(dialog.BrowseCurrentObject(1), 0);
    EXPECT_EQ(dialog.InsertUserItemInPlaces(&item), 0);
    EXPECT_EQ(data.GetCount(), 0);
}

TEST_F(NavSettings, ItsOwnOperationsAnswerNothing) {
    CString text = L"before";
    int open = 7, save = 8;
    unsigned long number = 9;
    CNavData item;
    EXPECT_EQ(dialog.UpdateFileExtension(text), 1);
    EXPECT_EQ(dialog.OnFileNameOK(), 0);
    EXPECT_EQ(dialog.GetRecentDirectory(text), 0);
    EXPECT_EQ(dialog.CombineDataTextWithFolderName(item), 0);
    EXPECT_EQ(dialog.PreprocessData(item), 0);
    EXPECT_EQ(dialog.FindInSearchPath(text), 0);
    EXPECT_EQ(dialog.LaunchBrowserDialog(text), 0);
    EXPECT_EQ(dialog.OnUrlOK(L"http://a"), 0);
    EXPECT_EQ(dialog.VerifyURLSave(L"http://a"), 0);
    EXPECT_EQ(dialog.BeginDownloadFiles(1), 0);
    EXPECT_EQ(dialog.GetDownloadActionCodes(open, save), 0);
    EXPECT_EQ(dialog.GetAllDialogsData(L"value", text), 0);
    EXPECT_EQ(dialog.GetAllDialogsData(L"value", number), 0);
    EXPECT_EQ(dialog.SetAllDialogsData(L"value", L"text"), 0);
    EXPECT_EQ(dialog.SetAllDialogsData(L"value", 5ul), 0);
    EXPECT_EQ(dialog.LocateFile(L"a", text), 0);
    EXPECT_EQ(dialog.OnNotifyControlChange(1, 2), 0);
    EXPECT_EQ(dialog.OnNotifyGeneric(1, 2), 0);
    EXPECT_EQ(text, L"before");
    EXPECT_EQ(open, 7);
    EXPECT_EQ(save, 8);
    EXPECT_EQ(number, 9ul);
    dialog.OnDialogHelp();
    dialog.OnDialogHelp(L"topic");
    EXPECT_EQ(host.helpCalls, 0);
}

TEST_F(NavSettings, TheProductIsTheHostsProgram) {
    CString name;
    EXPECT_EQ(dialog.GetProductName(name), 1);
    EXPECT_EQ(name, L"Test Program");
    EXPECT_EQ(dialog.GetDefaultBrowserStartURL(name), 1);
    EXPECT_EQ(name.Left(4), L"http");
}

TEST(NavSlots, StandInAFixedOrder) {
    const std::vector<long long> slots = {slotOf(&CNavDialog::GetProductName),
                                          slotOf(&CNavDialog::UpdateFileExtension),
                                          slotOf(&CNavDialog::OnFileNameOK),
                                          slotOf(&CNavDialog::GetRecentDirectory),
                                          slotOf(&CNavDialog::GetDefaultBrowserStartURL),
                                          slotOf(&CNavDialog::OnFileNameChange),
                                          slotOf(&CNavDialog::OnFileNameSelectionChange),
                                          slotOf(&CNavDialog::OnFilterChange),
                                          slotOf(&CNavDialog::OnFolderChange),
                                          slotOf(&CNavDialog::OnFolderItemChange)};
    struct Next : CKbUiDialog {
        using CKbUiDialog::CKbUiDialog;
        virtual void own() {}
    };
    for (std::size_t i = 0; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], slotOf(&Next::own) + static_cast<long long>(i)) << i;
}

class ApplicationDialog : public NavTest {
protected:
    CKtUiNavDialog dialog{data, filters};
    CNavDialogImp& imp = *dialog.GetImpObject();
};

TEST_F(ApplicationDialog, IsInApplicationModeAndOfItsClass) {
    EXPECT_EQ(imp.m_applicationMode, 1);
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CNavDialog)));
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CKbUiDialog)));
    EXPECT_FALSE(CNavDialog(data, filters).IsKindOf(RUNTIME_CLASS(CKtUiNavDialog)));
}

TEST_F(ApplicationDialog, EachFlagSetsItsFieldToExactlyOne) {
    struct Case {
        int flag;
        int CNavDialogImp::*field;
    };
    const std::vector<Case> all = {
        {0x80, &CNavDialogImp::m_securityButton},   {0x1000, &CNavDialogImp::m_partialOpen},
        {0x8000, &CNavDialogImp::m_optionsButton},  {0x4000000, &CNavDialogImp::m_openWithoutTemplate},
        {0x8000000, &CNavDialogImp::m_flag8000000}, {0x10000000, &CNavDialogImp::m_underlayExport}};
    for (const Case& set : all) {
        dialog.ConvertFlagsToState(set.flag);
        for (const Case& each : all) EXPECT_EQ(imp.*each.field, each.flag == set.flag ? 1 : 0) << set.flag;
    }
    dialog.ConvertFlagsToState(-1);
    for (const Case& each : all) EXPECT_EQ(imp.*each.field, 1) << each.flag;
    dialog.ConvertFlagsToState(~0x1C009080 & -1);
    for (const Case& each : all) EXPECT_EQ(imp.*each.field, 0) << each.flag;
}

TEST_F(ApplicationDialog, ThumbnailsFollowTheWorkingDrawing) {
    OdDbHostAppServices* const former = oddbHostApplicationServices();
    oddbSetHostApplicationServices(nullptr);
    EXPECT_EQ(dialog.GetUpdateThumbnailOverride(), 15);
    OdDbHostAppServices services;
    oddbSetHostApplicationServices(&services);
    EXPECT_EQ(dialog.GetUpdateThumbnailOverride(), 15);
    const OdSmartPtr<OdDbDatabase> drawing(new OdDbDatabase);
    services.setWorkingDatabase(drawing.get());
    EXPECT_EQ(dialog.GetUpdateThumbnailOverride(), 15);
    OdGroupList groups;
    groups.addInteger(70, 6);
    drawing->editHeader().set("UPDATETHUMBNAIL", groups);
    EXPECT_EQ(dialog.GetUpdateThumbnailOverride(), 6);
    CKtUiNavDialog later(data, filters);
    EXPECT_EQ(later.GetUpdateThumbnailOverride(), 6);
    oddbSetHostApplicationServices(former);
}

/// Where the folder of recent files belongs. One that programs have filled is put aside for as long as this
/// lives, and what a test makes in its place goes.
class RecentPlace {
public:
    RecentPlace() {
        OdString base;
        EXPECT_TRUE(ktutGetAppDataDir(base));
        path = CString(base.c_str()) + L"\\Recent";
        ::MoveFileW(path, path + L" put aside");
        EXPECT_EQ(::GetFileAttributesW(path), INVALID_FILE_ATTRIBUTES);
    }
    ~RecentPlace() {
        ::RemoveDirectoryW(path);
        ::DeleteFileW(path);
        ::MoveFileW(path + L" put aside", path);
    }
    RecentPlace(const RecentPlace&) = delete;
    RecentPlace& operator=(const RecentPlace&) = delete;

    CString path;
};

TEST_F(ApplicationDialog, TheRecentFolderIsMadeInTheApplicationsData) {
    const RecentPlace recent;
    CString folder;
    EXPECT_EQ(dialog.GetRecentDirectory(folder), 1);
    EXPECT_EQ(folder, recent.path);
    EXPECT_TRUE(::GetFileAttributesW(recent.path) & FILE_ATTRIBUTE_DIRECTORY);
    folder = L"";
    EXPECT_EQ(dialog.GetRecentDirectory(folder), 1) << "now that it is there";
    EXPECT_EQ(folder, recent.path);
}

TEST_F(ApplicationDialog, AFileInThePlaceOfTheRecentFolderIsAFailure) {
    const RecentPlace recent;
    const HANDLE file = ::CreateFileW(recent.path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    CString folder = L"before";
    EXPECT_EQ(dialog.GetRecentDirectory(folder), 0);
    EXPECT_EQ(folder, L"before");
    ::CloseHandle(file);
}

TEST_F(ApplicationDialog, FixedAnswers) {
    EXPECT_EQ(dialog.CanPartiallyOpen(L"no such file"), 1);
    EXPECT_EQ(dialog.CanPartiallyOpen(nullptr), 1);
    EXPECT_EQ(dialog.GetOptionsState(), 0);
    EXPECT_EQ(dialog.EnableMultiDocumentActivation(1), 0);
    EXPECT_EQ(dialog.IsMultiDocumentActivationEnabled(), 0);
    EXPECT_EQ(dialog.GetInitialViewButtonChecked(), 0);
    EXPECT_EQ(dialog.GetOpenNoTemplateSelection(), 0);
    imp.m_openNoTemplateSelection = kKtUiOpenNoTemplateMetric;
    EXPECT_EQ(dialog.GetOpenNoTemplateSelection(), 2);
    dialog.OnOpenNoTemplateImperial();
    EXPECT_EQ(dialog.GetOpenNoTemplateSelection(), 2);
}

}  // namespace
