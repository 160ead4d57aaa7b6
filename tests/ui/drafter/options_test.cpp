// Tools > Options: what the pages show, refuse, apply and keep, and the pages of extensions.
#include <algorithm>

#include "../../../samples/drafter/extensions.h"
#include "../../../samples/drafter/messages.h"
#include "../../../samples/drafter/options_dialog.h"
#include "drafter_fixture.h"

namespace {

using namespace ui_test;

using Options = WithOwnSettings<COptionsDialog>;

class OptionsTest : public DrafterTest {
protected:
    std::unique_ptr<Options> make(CExtensions* extensions = nullptr) {
        return std::make_unique<Options>(
            options, [this](const DrafterOptions& now) { applied.push_back(now); }, extensions, &parent);
    }
    static CKbUiTab& tabs(CKbUiTabMainDialog& dialog) { return *dialog.GetTabControl(); }
    static CWnd& on(CKbUiTabMainDialog& dialog, int page, int id) {
        return *tabs(dialog).GetDialogPointer(page)->GetDlgItem(id);
    }
    /// Clicks the tab of a page.
    static void turn(CKbUiTabMainDialog& dialog, int page) {
        CRect at;
        tabs(dialog).GetItemRect(page, &at);
        tabs(dialog).SendMessage(WM_LBUTTONDOWN, MK_LBUTTON,
                                 MAKELPARAM(at.CenterPoint().x, at.CenterPoint().y));
        tabs(dialog).SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.CenterPoint().x, at.CenterPoint().y));
    }
    static void choose(CWnd& combo, int index) {
        combo.SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index));
        combo.GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(combo.GetDlgCtrlID(), CBN_SELCHANGE),
                                       reinterpret_cast<LPARAM>(combo.m_hWnd));
    }
    static void press(CWnd& dialog, int id) { dialog.GetDlgItem(id)->SendMessage(BM_CLICK); }

    DrafterOptions options;
    std::vector<DrafterOptions> applied;
};

constexpr int kFiles = 0, kDisplay = 1, kUnits = 2, kExtension = 3;

TEST_F(OptionsTest, WithoutADrawingThereAreNoUnitsToSet) {
    options.units = {4, 3, 1, 2};
    const auto dialog = make();
    dialog->WithoutDrawing();
    show(*dialog, [&] {
        turn(*dialog, kUnits);
        for (const int id :
             {IDC_LINEAR_UNITS, IDC_LINEAR_PRECISION, IDC_ANGULAR_UNITS, IDC_ANGULAR_PRECISION})
            EXPECT_FALSE(on(*dialog, kUnits, id).IsWindowEnabled()) << id;
        EXPECT_EQ(text_of(on(*dialog, kUnits, IDC_UNITS_SAMPLE)), L"No drawing is open.");
        press(*dialog, IDC_APPLY);
    });
    ASSERT_EQ(applied.size(), 1u);
    EXPECT_EQ(applied[0].units, options.units) << "they stay as they were";
}

TEST_F(OptionsTest, ShowsWhatIsSet) {
    options.supportFolders = L"C:\\windows;C:\\";
    options.styleSheets = L"C:\\";
    options.crosshair = 33;
    options.units = {4, 3, 1, 2};
    const auto dialog = make();
    show(*dialog, [&] {
        EXPECT_EQ(tabs(*dialog).GetItemCount(), 3);
        EXPECT_EQ(text_of(on(*dialog, kFiles, IDC_SUPPORT_FOLDERS)), L"C:\\windows;C:\\");
        EXPECT_EQ(text_of(on(*dialog, kFiles, IDC_STYLE_SHEETS)), L"C:\\");
        EXPECT_EQ(text_of(on(*dialog, kDisplay, IDC_CROSSHAIR)), L"33");
        EXPECT_EQ(selected(on(*dialog, kUnits, IDC_LINEAR_UNITS)), 3);
        EXPECT_EQ(selected(on(*dialog, kUnits, IDC_LINEAR_PRECISION)), 3);
        EXPECT_EQ(selected(on(*dialog, kUnits, IDC_ANGULAR_UNITS)), 1);
        EXPECT_EQ(selected(on(*dialog, kUnits, IDC_ANGULAR_PRECISION)), 2);
        EXPECT_EQ(on(*dialog, kUnits, IDC_LINEAR_UNITS).SendMessage(CB_GETCOUNT), 5);
        EXPECT_EQ(on(*dialog, kUnits, IDC_ANGULAR_UNITS).SendMessage(CB_GETCOUNT), 5);
    });
    EXPECT_TRUE(applied.empty());
}

TEST_F(OptionsTest, TheSampleFollowsTheUnits) {
    const auto dialog = make();
    show(*dialog, [&] {
        turn(*dialog, kUnits);
        CWnd& sample = on(*dialog, kUnits, IDC_UNITS_SAMPLE);
        EXPECT_EQ(text_of(sample), L"15.5000\r\n1.9375 < 45");
        choose(on(*dialog, kUnits, IDC_LINEAR_UNITS), 3);
        EXPECT_EQ(text_of(sample), L"1'-3 1/2\"\r\n1 15/16\" < 45");
        choose(on(*dialog, kUnits, IDC_LINEAR_PRECISION), 0);
        choose(on(*dialog, kUnits, IDC_ANGULAR_UNITS), 4);
        EXPECT_NE(text_of(sample).Find(L"N 45"), -1);
        choose(on(*dialog, kUnits, IDC_ANGULAR_UNITS), 2);
        choose(on(*dialog, kUnits, IDC_ANGULAR_PRECISION), 1);
        EXPECT_NE(text_of(sample).Find(L"50.0g"), -1);
    });
}

TEST_F(OptionsTest, APageWithABadValueCannotBeLeftAndSaysWhy) {
    const auto dialog = make();
    show(*dialog, [&] {
        turn(*dialog, kDisplay);
        CWnd& size = on(*dialog, kDisplay, IDC_CROSSHAIR);
        for (const wchar_t* bad : {L"0", L"101", L"", L"5x", L"-3"}) {
            size.SetWindowText(bad);
            turn(*dialog, kUnits);
            EXPECT_EQ(tabs(*dialog).GetCurSel(), kDisplay) << CStringA(bad).GetString();
            EXPECT_EQ(::GetFocus(), size.m_hWnd);
            EXPECT_FALSE(text_of(on(*dialog, kDisplay, IDC_MESSAGE)).IsEmpty());
        }
        size.SetWindowText(L"100");
        EXPECT_TRUE(text_of(on(*dialog, kDisplay, IDC_MESSAGE)).IsEmpty());
        turn(*dialog, kUnits);
        EXPECT_EQ(tabs(*dialog).GetCurSel(), kUnits);
    });
}

TEST_F(OptionsTest, AFolderThatIsNotThereIsNamed) {
    const auto dialog = make();
    show(*dialog, [&] {
        on(*dialog, kFiles, IDC_SUPPORT_FOLDERS).SetWindowText(L"C:\\; C:\\no such folder ;");
        press(*dialog, IDOK);
        EXPECT_TRUE(dialog->IsWindowVisible());
        EXPECT_NE(text_of(on(*dialog, kFiles, IDC_MESSAGE)).Find(L"C:\\no such folder."), -1);
        EXPECT_EQ(::GetFocus(), on(*dialog, kFiles, IDC_SUPPORT_FOLDERS).m_hWnd);
        on(*dialog, kFiles, IDC_SUPPORT_FOLDERS).SetWindowText(L"");
        on(*dialog, kFiles, IDC_TEMPLATE).SetWindowText(L"C:\\windows");
        press(*dialog, IDC_APPLY);
        EXPECT_NE(text_of(on(*dialog, kFiles, IDC_MESSAGE)).Find(L"C:\\windows"), -1);
    });
    EXPECT_TRUE(applied.empty());
}

TEST_F(OptionsTest, ABadPageBehindTheOthersComesToTheFrontAtOkAndApply) {
    options.supportFolders = L"C:\\no such folder";
    for (const int button : {IDOK, static_cast<int>(IDC_APPLY)}) {
        const auto dialog = make();
        show(*dialog, [&] {
            tabs(*dialog).SetActiveTab(kUnits);
            press(*dialog, button);
            EXPECT_TRUE(dialog->IsWindowVisible());
            EXPECT_EQ(tabs(*dialog).GetCurSel(), kFiles);
            CWnd& field = on(*dialog, kFiles, IDC_SUPPORT_FOLDERS);
            EXPECT_TRUE(field.IsWindowVisible());
            EXPECT_EQ(::GetFocus(), field.m_hWnd);
            EXPECT_NE(text_of(on(*dialog, kFiles, IDC_MESSAGE)).Find(L"C:\\no such folder."), -1);
        });
    }
    EXPECT_TRUE(applied.empty());
}

/// A user who has answered the question about newer files once and for all.
class AnsweredMessages : public OptionsTest {
protected:
    AnsweredMessages() { ForgetMessageAnswers(); }
    ~AnsweredMessages() override { ForgetMessageAnswers(); }
    static void answerOnceAndForAll() {
        CKhSystem::instance()->profileStore()->setProfileInt(L"Messages", L"OverwriteNewer", 1, 0);
    }
};

TEST_F(AnsweredMessages, AreShownAgainAfterTheButtonAndItsTextSaysSo) {
    answerOnceAndForAll();
    EXPECT_TRUE(AnyMessageAnswered());
    EXPECT_EQ(AskNewerFile(parent, L"C:\\newer.dxf"), NewerFileChoice::kOverwrite);
    CString before;
    const auto dialog = make();
    show(*dialog, [&] {
        turn(*dialog, kDisplay);
        CWnd& button = on(*dialog, kDisplay, IDC_SHOW_MESSAGES);
        EXPECT_EQ(text_of(button), L"Show &messages again");
        EXPECT_TRUE(button.IsWindowEnabled());
        before = text_of(on(*dialog, kDisplay, IDC_MESSAGES_STATE));
        EXPECT_NE(before.Find(L"once and for all"), -1);
        button.SetFocus();
        button.SendMessage(BM_CLICK);
        EXPECT_FALSE(button.IsWindowEnabled());
        EXPECT_NE(::GetFocus(), button.m_hWnd);
        EXPECT_TRUE(::IsChild(dialog->m_hWnd, ::GetFocus()));
        EXPECT_NE(text_of(on(*dialog, kDisplay, IDC_MESSAGES_STATE)), before);
    });
    // The dialog was cancelled: the button acts at once.
    EXPECT_FALSE(AnyMessageAnswered());
    when_dialog(L"", [](HWND question) { ::PostMessageW(question, WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(AskNewerFile(parent, L"C:\\newer.dxf"), NewerFileChoice::kCancel);
}

TEST_F(AnsweredMessages, WithoutAnyThereIsNothingToPress) {
    const auto dialog = make();
    show(*dialog, [&] {
        EXPECT_FALSE(on(*dialog, kDisplay, IDC_SHOW_MESSAGES).IsWindowEnabled());
        EXPECT_NE(text_of(on(*dialog, kDisplay, IDC_MESSAGES_STATE)).Find(L"Every message"), -1);
    });
}

TEST_F(OptionsTest, ApplyHandsOverWhatIsSetAndTheDialogStays) {
    const auto dialog = make();
    show(*dialog, [&] {
        on(*dialog, kDisplay, IDC_CROSSHAIR).SetWindowText(L"70");
        on(*dialog, kFiles, IDC_STYLE_SHEETS).SetWindowText(L" C:\\ ");
        choose(on(*dialog, kUnits, IDC_ANGULAR_UNITS), 3);
        press(*dialog, IDC_APPLY);
        EXPECT_TRUE(dialog->IsWindowVisible());
    });
    ASSERT_EQ(applied.size(), 1u);
    EXPECT_EQ(applied[0].crosshair, 70);
    EXPECT_EQ(applied[0].styleSheets, L"C:\\");
    EXPECT_EQ(applied[0].units.angular, 3);
    EXPECT_EQ(applied[0].background, kDrawingPaper);
    EXPECT_EQ(applied[0].selection, kSelectionColor);
}

TEST_F(OptionsTest, OkAnswersWhatIsSetAndCancelWhatWas) {
    auto dialog = make();
    show(
        *dialog, [&] { on(*dialog, kDisplay, IDC_CROSSHAIR).SetWindowText(L"71"); }, IDOK);
    EXPECT_EQ(dialog->options().crosshair, 71);
    dialog = make();
    show(*dialog, [&] { on(*dialog, kDisplay, IDC_CROSSHAIR).SetWindowText(L"72"); });
    EXPECT_EQ(dialog->options().crosshair, 5);
}

TEST_F(OptionsTest, ComesBackOnThePageThatWasOpen) {
    auto dialog = make();
    show(*dialog, [&] {
        EXPECT_EQ(tabs(*dialog).GetCurSel(), kFiles);
        turn(*dialog, kUnits);
    });
    dialog = make();
    show(*dialog, [&] {
        EXPECT_EQ(tabs(*dialog).GetCurSel(), kUnits);
        EXPECT_TRUE(tabs(*dialog).GetDialogPointer(kUnits)->IsWindowVisible());
    });
    KtUiSetDialogData(CString(kDrafterSettings) + L"\\", L"Options", L"Page", L"3");
    dialog = make();
    show(*dialog, [&] { EXPECT_EQ(tabs(*dialog).GetCurSel(), kFiles); });
}

TEST_F(OptionsTest, AreKeptAndBadOnesAreNotBelieved) {
    class Keeper : public CKtUiDialog {
    public:
        Keeper() : CKtUiDialog(0) {
            SetAppRootKey((CString(kDrafterSettings) + L"\\").GetString());
            SetDialogName(L"Options");
        }
    } keeper;
    EXPECT_EQ(LoadOptions(keeper).crosshair, 5);
    EXPECT_EQ(LoadOptions(keeper).background, kDrawingPaper);
    options = {L"C:\\a;C:\\b", L"C:\\s", L"C:\\t.dxf", RGB(1, 2, 3), RGB(4, 5, 6), 42, {5, 6, 4, 7}};
    EXPECT_TRUE(SaveOptions(keeper, options));
    const DrafterOptions back = LoadOptions(keeper);
    EXPECT_EQ(back.supportFolders, options.supportFolders);
    EXPECT_EQ(back.styleSheets, options.styleSheets);
    EXPECT_EQ(back.templateFile, options.templateFile);
    EXPECT_EQ(back.background, options.background);
    EXPECT_EQ(back.selection, options.selection);
    EXPECT_EQ(back.crosshair, 42);
    EXPECT_EQ(back.units, options.units);
    keeper.SetDialogData(L"Crosshair", 101ul);
    keeper.SetDialogData(L"LinearUnits", 0ul);
    keeper.SetDialogData(L"AngularUnits", 5ul);
    keeper.SetDialogData(L"Background", 0x1000000ul);
    const DrafterOptions spoiled = LoadOptions(keeper);
    EXPECT_EQ(spoiled.crosshair, 5);
    EXPECT_EQ(spoiled.units.linear, 2);
    EXPECT_EQ(spoiled.units.angular, 0);
    EXPECT_EQ(spoiled.background, kDrawingPaper);
}

TEST_F(OptionsTest, FoldersArePartedBySemicolons) {
    EXPECT_EQ(FoldersOf(L" C:\\a b ;;D:\\; "), (std::vector<CString>{L"C:\\a b", L"D:\\"}));
    EXPECT_TRUE(FoldersOf(L"").empty());
}

TEST_F(OptionsTest, UnitsGoToTheDrawing) {
    SetUnits(*drawing, {4, 5, 3, 6});
    EXPECT_EQ(drawing->getLUNITS(), 4);
    EXPECT_EQ(drawing->getLUPREC(), 5);
    EXPECT_EQ(drawing->getAUNITS(), 3);
    EXPECT_EQ(drawing->getAUPREC(), 6);
    EXPECT_EQ(UnitsOf(*drawing), (UnitOptions{4, 5, 3, 6}));
}

/// The folder with the extension, and one of the test's own to spoil.
class ExtensionTest : public OptionsTest {
protected:
    ExtensionTest() {
        const CString program = program_path();
        folder = program.Left(program.ReverseFind(L'\\') + 1) + L"extensions\\";
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        scratch = CString(temporary) + L"ktui extensions\\";
        ::CreateDirectoryW(scratch, nullptr);
    }
    ~ExtensionTest() override {
        ::DeleteFileW(scratch + L"title_block.dll");
        ::RemoveDirectoryW(scratch);
    }
    CString folder, scratch;
};

TEST_F(ExtensionTest, AddsItsPageAndFillsTheTitleBlock) {
    auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
    auto* const mark = new OdDbText;
    mark->setTextString(L"[Drawn By]");
    space->appendOdDbEntity(mark);
    CExtensions extensions(folder);
    EXPECT_EQ(extensions.problem(), L"");
    const auto dialog = make(&extensions);
    show(
        *dialog,
        [&] {
            ASSERT_EQ(tabs(*dialog).GetItemCount(), 4);
            turn(*dialog, kExtension);
            CWnd& drawnBy = on(*dialog, kExtension, 1002);
            drawnBy.SetWindowText(CString(L'x', 81));
            turn(*dialog, kFiles);
            EXPECT_EQ(tabs(*dialog).GetCurSel(), kExtension);
            EXPECT_FALSE(text_of(on(*dialog, kExtension, 1004)).IsEmpty());
            drawnBy.SetWindowText(L"Ada");
        },
        IDOK);
    EXPECT_EQ(mark->textString(), L"Ada");
}

TEST_F(ExtensionTest, ItsBadPageComesToTheFrontAtOk) {
    CExtensions extensions(folder);
    const auto dialog = make(&extensions);
    show(*dialog, [&] {
        on(*dialog, kExtension, 1003).SetWindowText(CString(L'x', 81));
        press(*dialog, IDOK);
        EXPECT_TRUE(dialog->IsWindowVisible());
        EXPECT_EQ(tabs(*dialog).GetCurSel(), kExtension);
        EXPECT_EQ(::GetFocus(), on(*dialog, kExtension, 1003).m_hWnd);
        EXPECT_FALSE(text_of(on(*dialog, kExtension, 1004)).IsEmpty());
        on(*dialog, kExtension, 1003).SetWindowText(L"");
    });
}

TEST_F(ExtensionTest, AMissingOneIsSaidAndTheRestWorks) {
    CExtensions extensions(scratch);
    EXPECT_NE(extensions.problem().Find(scratch + L"title_block.dll"), -1);
    const auto dialog = make(&extensions);
    show(*dialog, [&] {
        EXPECT_EQ(tabs(*dialog).GetItemCount(), 3);
        EXPECT_EQ(text_of(*dialog->GetDlgItem(IDC_MESSAGE)), extensions.problem());
        turn(*dialog, kUnits);
        EXPECT_EQ(tabs(*dialog).GetCurSel(), kUnits);
    });
}

TEST_F(ExtensionTest, ADamagedOneAndALibraryOfAnotherKindAreSaid) {
    const CString path = scratch + L"title_block.dll";
    const HANDLE file = ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, "MZ nothing", 10, &written, nullptr);
    ::CloseHandle(file);
    const CExtensions damaged(scratch);
    EXPECT_NE(damaged.problem().Find(L"damaged"), -1);
    EXPECT_NE(damaged.problem().Find(path), -1);
    ASSERT_TRUE(::CopyFileW(folder + L"..\\ktdsres.dll", path, FALSE));
    const CExtensions other(scratch);
    EXPECT_NE(other.problem().Find(L"damaged"), -1);
}

TEST_F(ExtensionTest, OneOfTheFormerVersionIsSaidWithBothVersions) {
    ASSERT_TRUE(::CopyFileW(folder + L"..\\former_title_block.dll", scratch + L"title_block.dll", FALSE));
    CExtensions extensions(scratch);
    EXPECT_NE(extensions.problem().Find(L"version 1 of the extensions; this program has version 2"), -1)
        << CStringA(extensions.problem()).GetString();
    const auto dialog = make(&extensions);
    show(*dialog, [&] { EXPECT_EQ(tabs(*dialog).GetItemCount(), 3); });
}

TEST_F(ExtensionTest, OneOfAnotherVersionIsSaidWithBothVersions) {
    ASSERT_TRUE(::CopyFileW(folder + L"..\\later_title_block.dll", scratch + L"title_block.dll", FALSE));
    CExtensions extensions(scratch);
    CString versions;
    versions.Format(L"version %d of the extensions; this program has version %d",
                    kDrafterExtensionVersion + 1, kDrafterExtensionVersion);
    EXPECT_NE(extensions.problem().Find(versions), -1);
    const auto dialog = make(&extensions);
    show(*dialog, [&] { EXPECT_EQ(tabs(*dialog).GetItemCount(), 3); });
}

}  // namespace
