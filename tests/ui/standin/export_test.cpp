// The host exports its drawing: areas, sheets, refusals, stamps, and the page set-up that overrides.
#include <filesystem>
#include <set>

#include "../../../platform/standin/resource.h"
#include "export_fixture.h"
#include "file_groups.h"

using ui_test::Exports;

TEST_F(Exports, WritesTheDisplayTheExtentsAndAWindow) {
    for (int area = 0; area < 2; ++area) {
        plot().setPlotArea(area, true);
        const std::string file = exported();
        EXPECT_EQ(file.substr(0, 8), "%PDF-1.5");
        EXPECT_EQ(file.substr(file.size() - 6), "%%EOF\n");
        EXPECT_EQ(pages(file), 1);
    }
    plot().setPlotArea(2, true);
    EXPECT_NE(refused().Find(L"No area"), -1) << "no window was picked";
    EXPECT_TRUE(plot().hasNoWindow());
    plot().pickWindow();
    EXPECT_EQ(view.asked, 1);
    EXPECT_FALSE(plot().hasNoWindow());
    EXPECT_EQ(pages(exported()), 1);
    EXPECT_TRUE(opened.empty()) << "nobody asked for it";
    EXPECT_FALSE(isThere(L"a.pdf.new"));
}

TEST_F(Exports, AWindowThatIsGivenUpOrHasNoAreaLeavesTheFormerOne) {
    plot().setPlotArea(2, true);
    view.picks = false;
    plot().pickWindow();
    EXPECT_TRUE(plot().hasNoWindow());
    view.picks = true;
    for (const OdGePoint2d& to : {OdGePoint2d{30, 0}, OdGePoint2d{0, 40}}) {
        view.to = to;
        plot().pickWindow();
        EXPECT_TRUE(plot().hasNoWindow()) << "without an area";
    }
    view.to = {0, 0};
    plot().pickWindow();
    EXPECT_FALSE(plot().hasNoWindow());
    view.picks = false;
    plot().pickWindow();
    EXPECT_FALSE(plot().hasNoWindow());
    EXPECT_EQ(pages(exported()), 1);
}

TEST_F(Exports, AWindowIsForgottenWithItsDrawing) {
    plot().setPlotArea(2, true);
    plot().pickWindow();
    EXPECT_FALSE(plot().hasNoWindow());
    host.SetCurrentDocument(&document);
    EXPECT_TRUE(plot().hasNoWindow());
}

TEST_F(Exports, WithoutAViewThereIsNoDisplay) {
    view.shows = false;
    EXPECT_NE(refused().Find(L"No area"), -1);
    host.SetPlotView(nullptr);
    EXPECT_NE(refused().Find(L"No area"), -1);
    EXPECT_FALSE(isThere(L"a.pdf"));
}

TEST_F(Exports, SheetsGoIntoOneFileOrIntoAFileEach) {
    layout()->setModelType(false);
    plot().setPlotArea(3, false);
    EXPECT_EQ(pages(exported()), 1);
    plot().setPlotArea(4, false);
    EXPECT_EQ(pages(exported()), 2) << "the current one counts as one on paper now";
    host.profileStore()->setProfileInt(L"Export", L"MultiSheet", 0, 0);
    EXPECT_TRUE(host.ExportDrawing(path(L"each.pdf"), message));
    EXPECT_FALSE(isThere(L"each.pdf"));
    EXPECT_EQ(pages(bytesOf(L"each-Model.pdf")), 1);
    EXPECT_EQ(pages(bytesOf(L"each-Layout1.pdf")), 1);
}

TEST_F(Exports, OtherKindsOfFilesAreRefusedAndNothingIsWritten) {
    EXPECT_NE(refused(L"a.dwf").Find(L"DWF files can't be written"), -1);
    EXPECT_NE(refused(L"a.DWFX").Find(L"DWFx files can't be written"), -1);
    EXPECT_FALSE(isThere(L"a.dwf"));
    EXPECT_FALSE(isThere(L"a.DWFX"));
}

TEST_F(Exports, AnEmptyDrawingAndNoDrawingAreRefused) {
    ui_test::ExportedDocument empty;
    host.SetCurrentDocument(&empty);
    plot().setPlotArea(1, true);
    EXPECT_NE(refused().Find(L"nothing to export"), -1);
    host.SetCurrentDocument(nullptr);
    EXPECT_NE(refused().Find(L"no drawing"), -1);
    EXPECT_FALSE(isThere(L"a.pdf"));
}

TEST_F(Exports, AFileThatIsHeldKeepsItsContentAndIsTold) {
    std::ofstream(std::filesystem::path(path(L"a.pdf").GetString())) << "former";
    const HANDLE held = ::CreateFileW(path(L"a.pdf"), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(refused().Find(path(L"a.pdf")), -1);
    ::CloseHandle(held);
    EXPECT_EQ(bytesOf(L"a.pdf"), "former");
    EXPECT_FALSE(isThere(L"a.pdf.new"));
    EXPECT_NE(refused(L"no such folder\\a.pdf").Find(L"can't be written"), -1);
}

TEST_F(Exports, TheFirstSwitchOpensTheFile) {
    plot().setFirstSwitch(true);
    exported();
    EXPECT_EQ(opened, (std::vector<CString>{path(L"a.pdf")}));
}

TEST_F(Exports, OptionsOfTheFileAreWritten) {
    EXPECT_EQ(count(exported(), "/OCProperties"), 1);
    host.profileStore()->setProfileInt(L"Export", L"Layers", 0, 0);
    EXPECT_EQ(count(exported(), "/OCProperties"), 0);
}

TEST_F(Exports, TheSecondSwitchStampsThePage) {
    const auto letters = [&] { return count(exported(), "/Subtype /Type3"); };
    EXPECT_EQ(letters(), 0) << "a line has no letters";
    plot().setSecondSwitch(true);
    EXPECT_EQ(letters(), 1);
    EXPECT_EQ(count(exported(), "/FontBBox [0 0 0 0 ]"), 0) << "the letters have outlines";
    inDialog(
        L"Plot Stamp", [&] { plot().plotStampDialog(); },
        [](HWND dialog) {
            for (const int id : {IDC_STAMP_DRAWING, IDC_STAMP_LAYOUT, IDC_STAMP_DATE}) {
                EXPECT_EQ(::IsDlgButtonChecked(dialog, id), BST_CHECKED) << id;
                ::SendDlgItemMessageW(dialog, id, BM_CLICK, 0, 0);
            }
        },
        IDOK);
    EXPECT_EQ(letters(), 0) << "the line says nothing";
    for (const wchar_t* each : {L"StampDrawing", L"StampLayout", L"StampDate"})
        EXPECT_EQ(stored(L"Export", each), 0);
    host.profileStore()->setProfileInt(L"Export", L"StampLayout", 1, 0);
    EXPECT_EQ(letters(), 1);
}

TEST_F(Exports, TheStampTellsTheTimeToTheMinute) {
    // The font of the page has a place for each letter of the line.
    const auto lettersOfNow = [] {
        wchar_t date[80] = {}, time[80] = {};
        ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date, 80);
        ::GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, time, 80);
        const std::wstring line = std::wstring(date) + L" " + time;
        return "/LastChar " + std::to_string(std::set<wchar_t>(line.begin(), line.end()).size() - 1) + " ";
    };
    plot().setSecondSwitch(true);
    for (const wchar_t* other : {L"StampDrawing", L"StampLayout"})
        host.profileStore()->setProfileInt(L"Export", other, 0, 0);
    const std::string before = lettersOfNow(), file = exported(), after = lettersOfNow();
    EXPECT_EQ(count(file, "/Subtype /Type3"), 1);
    EXPECT_TRUE(count(file, before) == 1 || count(file, after) == 1) << before << file;
}

TEST_F(Exports, WithoutAPaperThePageHasTheShapeOfTheArea) {
    layout()->setPlotPaperSize(0, 0);
    plot().setPlotArea(0, true);
    EXPECT_EQ(count(exported(), "/MediaBox [0 0 1190.5512 595.2756]"), 1) << "the display is twice as wide";
    plot().setPlotArea(2, true);
    view.to = {60, 100};
    plot().pickWindow();
    EXPECT_EQ(count(exported(), "/MediaBox [0 0 595.2756 1190.5512]"), 1) << "the window is 30 by 60";
}

TEST_F(Exports, TheOverrideOfThePageSetupIsEdited) {
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    settings->copyFrom(*layout());
    inDialog(
        L"Page Setup Override", [&] { plot().overrideDialog(settings.get(), 0); },
        [](HWND dialog) {
            EXPECT_EQ(::SendDlgItemMessageW(dialog, IDC_PAGE_PAPER, CB_GETCURSEL, 0, 0), 1) << "A3";
            EXPECT_EQ(::IsDlgButtonChecked(dialog, IDC_PAGE_LANDSCAPE), BST_CHECKED);
            EXPECT_EQ(::IsDlgButtonChecked(dialog, IDC_PAGE_SCALE), BST_CHECKED);
            ::SendDlgItemMessageW(dialog, IDC_PAGE_PAPER, CB_SETCURSEL, 0, 0);
            ::CheckRadioButton(dialog, IDC_PAGE_PORTRAIT, IDC_PAGE_LANDSCAPE, IDC_PAGE_PORTRAIT);
            ::SetDlgItemTextW(dialog, IDC_PAGE_DRAWING_LENGTH, L"20");
        },
        IDOK);
    EXPECT_EQ(settings->getPlotPaperWidth(), 210);
    EXPECT_EQ(settings->getPlotPaperHeight(), 297);
    EXPECT_FALSE(settings->isPlotTurned());
    EXPECT_FALSE(settings->isPlotFitted());
    EXPECT_EQ(settings->getPlotScale(), 0.05);
    EXPECT_STREQ(settings->getCanonicalMediaName(), L"A4");
    inDialog(
        L"Page Setup Override", [&] { plot().overrideDialog(settings.get(), 0); },
        [](HWND dialog) {
            EXPECT_EQ(ui_test::text_of(::GetDlgItem(dialog, IDC_PAGE_PAPER_LENGTH)), L"1");
            EXPECT_EQ(ui_test::text_of(::GetDlgItem(dialog, IDC_PAGE_DRAWING_LENGTH)), L"20");
            EXPECT_EQ(::IsDlgButtonChecked(dialog, IDC_PAGE_PORTRAIT), BST_CHECKED);
            ::SendDlgItemMessageW(dialog, IDC_PAGE_FIT, BM_CLICK, 0, 0);
            EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dialog, IDC_PAGE_PAPER_LENGTH)));
            ::CheckRadioButton(dialog, IDC_PAGE_PORTRAIT, IDC_PAGE_LANDSCAPE, IDC_PAGE_LANDSCAPE);
        },
        IDOK);
    EXPECT_TRUE(settings->isPlotFitted());
    EXPECT_TRUE(settings->isPlotTurned());
}

TEST_F(Exports, ABadScaleOfThePageSetupIsRefused) {
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    settings->copyFrom(*layout());
    inDialog(
        L"Page Setup Override", [&] { plot().overrideDialog(settings.get(), 0); },
        [&](HWND dialog) {
            for (const wchar_t* bad : {L"0", L"-1", L"x", L"", L"1x"}) {
                ::SetDlgItemTextW(dialog, IDC_PAGE_DRAWING_LENGTH, bad);
                EXPECT_NE(messageOf([&] { ::SendMessageW(dialog, WM_COMMAND, IDOK, 0); }).Find(L"above 0"),
                          -1);
                EXPECT_TRUE(::IsWindow(dialog));
            }
        },
        IDCANCEL);
    EXPECT_EQ(settings->getPlotScale(), 1);
}

TEST_F(Exports, ASizeThatIsNoneOfTheListStays) {
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    settings->setPlotPaperSize(123, 45);
    inDialog(
        L"Page Setup Override", [&] { plot().overrideDialog(settings.get(), 0); },
        [](HWND dialog) {
            EXPECT_EQ(::SendDlgItemMessageW(dialog, IDC_PAGE_PAPER, CB_GETCURSEL, 0, 0), 8);
            EXPECT_NE(ui_test::text_of(::GetDlgItem(dialog, IDC_PAGE_PAPER)).Find(L"123 x 45 mm"), -1);
        },
        IDOK);
    EXPECT_EQ(settings->getPlotPaperWidth(), 123);
    EXPECT_EQ(settings->getPlotPaperHeight(), 45);
    plot().overrideDialog(nullptr, 0);
}

TEST_F(Exports, AnOverrideCountsOnceItIsSwitchedOn) {
    layout()->createExtensionDictionary();
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    settings->copyFrom(*layout());
    settings->setPlotPaperSize(254, 127);
    layout()
        ->extensionDictionary()
        .open<OdDbDictionary>(OdDb::kForWrite)
        ->setAt(L"AcPublish_PlotSettingsOverride", OdDbObjectPtr(settings.get()));
    EXPECT_EQ(count(exported(), "/MediaBox [0 0 720 360]"), 0);
    plot().setOverride(true);
    EXPECT_EQ(count(exported(), "/MediaBox [0 0 720 360]"), 1);
    layout()->setModelType(false);
    plot().setPlotArea(3, false);
    EXPECT_EQ(count(exported(), "/MediaBox [0 0 720 360]"), 1);
    plot().setOverride(false);
    EXPECT_EQ(count(exported(), "/MediaBox [0 0 720 360]"), 0);
}

TEST_F(Exports, LettersOfShapeFontsAndPicturesComeFromTheirFiles) {
    ui_test::TemporaryFolder files;
    std::string bitmap("BM\x3A\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\1\0\0\0\1\0\0\0\1\0\x18\0", 30);
    bitmap += std::string(24, '\0') + std::string("\xFF\0\0\0", 4);
    files.write(L"blue.bmp", bitmap);
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    host.SetSupportDirectories({(std::filesystem::path(program).parent_path() / L"fonts").c_str()});
    const std::string drawn = ui_test::fileGroups(
        "0 SECTION|2 TABLES|0 TABLE|2 STYLE|0 STYLE|2 STROKES|70 0|40 0|41 1|50 0|71 0|42 1|3 drafter.shx|0 "
        "ENDTAB|0 ENDSEC|0 SECTION|2 ENTITIES|0 TEXT|8 0|10 0|20 0|40 5|1 AB|7 STROKES|0 IMAGE|8 0|100 "
        "AcDbRasterImage|10 0|20 0|30 0|11 40|21 0|31 0|12 0|22 30|32 0|13 1|23 1|340 D0|70 7|280 0|0 "
        "ENDSEC|0 SECTION|2 OBJECTS|0 IMAGEDEF|5 D0|330 0|100 AcDbRasterImageDef|1 blue.bmp|0 ENDSEC|0 EOF");
    const std::wstring path = files.write(L"drawn.dxf", drawn);
    ASSERT_EQ(document.drawing->readDxf(path.c_str()), kOdOk);
    plot().setPlotArea(1, true);
    std::string file = exported();
    EXPECT_EQ(count(file, "/FontBBox [0 0 0 0"), 1) << "strokes are lines; their letters show nothing";
    EXPECT_EQ(count(file, "/Subtype /Type3"), 1);
    EXPECT_EQ(count(file, "/Subtype /Image"), 1);
    host.SetSupportDirectories({});
    ASSERT_TRUE(::DeleteFileW((files.path() + L"\\blue.bmp").c_str()));
    file = exported();
    EXPECT_GT(count(file, "/Subtype /Type3"), 0) << "a font of the screen's stands for it";
    EXPECT_EQ(count(file, "/FontBBox [0 0 0 0"), 0);
    EXPECT_EQ(count(file, "/Subtype /Image"), 0);
    host.SetShapeFontInPlace((std::filesystem::path(program).parent_path() / L"fonts/drafter.shx").c_str());
    file = exported();
    EXPECT_EQ(count(file, "/FontBBox [0 0 0 0"), 1) << "or a shape font that the host names";
}
