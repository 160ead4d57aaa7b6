// What the stand-in host finds: files, folders, path variables, services, the faces of palettes.
#include "host_fixture.h"

namespace {

class Runtime : public ui_test::HostTest {
protected:
    std::wstring find(const wchar_t* name, const OdDbDatabase* from = nullptr) {
        OdString path = L"before";
        host.runtimeHost()->findFile(path, name, from, 0);
        return std::wstring(path.view());
    }
    ui_test::TemporaryFolder second;
};

struct NoService : CKhService {};

}  // namespace

TEST_F(Runtime, FilesAreFoundInTheFoldersInOrderTheDrawingsOwnFirst) {
    const std::wstring first = folder.write(L"both.txt", "1"), other = second.write(L"both.txt", "2");
    const std::wstring only = second.write(L"only.txt", "3");
    EXPECT_EQ(find(L"both.txt"), L"");
    host.SetSupportDirectories({folder.path().c_str(), second.path().c_str()});
    EXPECT_EQ(find(L"both.txt"), first);
    EXPECT_EQ(find(L"only.txt"), only);
    EXPECT_EQ(find(L"none.txt"), L"");
    ASSERT_EQ(drawing->writeDxf((second.path() + L"\\plan.dxf").c_str()), kOdOk);
    OdSmartPtr<OdDbDatabase> saved(new OdDbDatabase);
    ASSERT_EQ(saved->readDxf((second.path() + L"\\plan.dxf").c_str()), kOdOk);
    EXPECT_EQ(find(L"both.txt", saved.get()), other);
    ::DeleteFileW((second.path() + L"\\plan.dxf").c_str());
}

TEST_F(Runtime, AWholePathIsItsOwnAnswerAndAFolderIsNoFile) {
    const std::wstring file = folder.write(L"here.txt", "1");
    EXPECT_EQ(find(file.c_str()), file);
    EXPECT_EQ(find(folder.path().c_str()), L"");
}

TEST_F(Runtime, SupportDirectoriesAreCountedAndFilledAsFarAsThereAreRows) {
    host.SetSupportDirectories({L"C:\\one", L"C:\\two", L"C:\\three"});
    EXPECT_EQ(host.runtimeHost()->supportDirectories(nullptr, 0), 3);
    wchar_t rows[3][kKhPathLength] = {L"", L"", L"untouched"};
    EXPECT_EQ(host.runtimeHost()->supportDirectories(rows, 2), 2);
    EXPECT_STREQ(rows[0], L"C:\\one");
    EXPECT_STREQ(rows[1], L"C:\\two");
    EXPECT_STREQ(rows[2], L"untouched");
    EXPECT_EQ(host.runtimeHost()->supportDirectories(rows, 3), 3);
    EXPECT_STREQ(rows[2], L"C:\\three");
}

TEST_F(Runtime, AFolderThatIsTooLongIsCutToARow) {
    const CString longOne(L'x', 400);
    host.SetSupportDirectories({longOne});
    wchar_t rows[1][kKhPathLength];
    EXPECT_EQ(host.runtimeHost()->supportDirectories(rows, 1), 1);
    EXPECT_EQ(wcslen(rows[0]), static_cast<std::size_t>(kKhPathLength - 1));
}

TEST_F(Runtime, PathVariablesAreAnsweredWithTheStatusOfSuccess) {
    wchar_t value[kKhPathLength] = L"before";
    EXPECT_EQ(host.uiHost()->getPathVariable(L"PrinterStyleSheetDir", value), 5100);
    EXPECT_STREQ(value, L"Plot Styles");
    EXPECT_NE(host.uiHost()->getPathVariable(L"Unheard", value), 5100);
    EXPECT_STREQ(value, L"Plot Styles");
    host.SetPathVariable(L"Unheard", L"C:\\a;C:\\b");
    EXPECT_EQ(host.uiHost()->getPathVariable(L"Unheard", value), 5100);
    EXPECT_STREQ(value, L"C:\\a;C:\\b");
}

TEST_F(Runtime, ServicesAreFoundByNameAndCanBeExchangedOrTakenAway) {
    CKhServiceManager& services = *host.serviceManager();
    for (const wchar_t* name : {L"CKhPlotStyle", L"CKhPlotSvr", L"CKhSecurity"})
        EXPECT_NE(services.getService(name), nullptr) << CStringA(name);
    EXPECT_EQ(services.getService(L"CKhUnheard"), nullptr);
    NoService own;
    host.SetService(L"CKhSecurity", &own);
    EXPECT_EQ(services.getService(L"CKhSecurity"), &own);
    host.SetService(L"CKhSecurity", nullptr);
    EXPECT_EQ(services.getService(L"CKhSecurity"), nullptr);
    EXPECT_NE(services.getService(L"CKhPlotSvr"), nullptr);
}

TEST_F(Runtime, TheApplicationAndItsWindowAreTheOnesGiven) {
    EXPECT_EQ(host.uiHost()->application(), AfxGetApp());
    EXPECT_EQ(host.uiHost()->mainFrame(), &parent);
}

TEST_F(Runtime, PalettesHaveTheFaceOfTheSystem) {
    CDC canvas;
    CBitmap bitmap;
    CClientDC screen(&parent);
    canvas.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, 20, 20);
    CBitmap* former = canvas.SelectObject(&bitmap);
    canvas.FillSolidRect(0, 0, 20, 20, RGB(1, 2, 3));
    host.paletteHost()->sizing()->fillBackground(canvas, {5, 5, 15, 15});
    EXPECT_EQ(canvas.GetPixel(5, 5), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.GetPixel(14, 14), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.GetPixel(15, 15), static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_EQ(canvas.GetPixel(4, 4), static_cast<COLORREF>(RGB(1, 2, 3)));
    canvas.SelectObject(former);
}
