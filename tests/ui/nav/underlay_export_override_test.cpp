// The settings that override a layout's page set-up, and the end of the export dialog.
#include <shlwapi.h>

#include "export_fixture.h"
#include "in_language.h"
#include "open_handles.h"
#include "told_message.h"
#include "without_strings.h"

namespace {

constexpr const wchar_t* kName = L"AcPublish_PlotSettingsOverride";

class ExportOverride : public UnderlayExport {
protected:
    OdSmartPtr<OdDbLayout> layout() const {
        return open.drawing().currentLayoutId().open<OdDbLayout>(OdDb::kForWrite);
    }
    OdDbDictionaryPtr dictionary() const {
        return layout()->extensionDictionary().open<OdDbDictionary>(OdDb::kForWrite);
    }
    void override() {
        service.override = true;
        service.overridden = nullptr;
        service.calls.clear();
        look([&](HWND window) { click(window, 57214); });
    }
};

class ExportEnd : public UnderlayExport {
protected:
    /// Types the name of a file and presses OK.
    INT_PTR acceptFile(const wchar_t* name) {
        return run([&](HWND window) {
            ::SetDlgItemTextW(window, kNameBox, name);
            press(window, IDOK);
        });
    }
    /// The same for a file that the dialog tells to be in use; whether DoModal threw for want of a file.
    bool throwsForHeld(const wchar_t* name, const wchar_t* title) {
        HWND window = nullptr;
        when_dialog(L"chooser", [&](HWND shownWindow) {
            window = shownWindow;
            when_dialog(title, [&](HWND box) {
                EXPECT_TRUE(::IsWindowVisible(window)) << "told before the dialog ends";
                messages.push_back(ui_test::message_text(box));
                ::PostMessageW(box, WM_COMMAND, IDOK, 0);
            });
            ::SetDlgItemTextW(window, kNameBox, name);
            press(window, IDOK);
        });
        try {
            dialog.DoModal();
        } catch (CInvalidArgException* exception) {
            exception->Delete();
            return true;
        }
        return false;
    }
    /// Keeps a file open so that others may read it alone.
    struct Held {
        explicit Held(const CString& path)
            : file(::CreateFileW(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                 0, nullptr)) {
            EXPECT_NE(file, INVALID_HANDLE_VALUE);
        }
        ~Held() { ::CloseHandle(file); }
        HANDLE file;
    };
};

}  // namespace

TEST_F(ExportOverride, IsMadeAsACopyOfTheLayoutsOwn) {
    layout()->setCurrentStyleSheet(L"own.ctb");
    override();
    EXPECT_EQ(service.calls.back(), "override 0");
    ASSERT_TRUE(dictionary());
    const OdDbObjectId kept = dictionary()->getAt(kName);
    ASSERT_TRUE(kept.isValid());
    EXPECT_EQ(service.overridden, kept.openObject().get());
    EXPECT_STREQ(service.overridden->getCurrentStyleSheet(), L"own.ctb");
    EXPECT_EQ(service.overridden->modelType(), layout()->modelType());
    EXPECT_EQ(dynamic_cast<OdDbLayout*>(service.overridden), nullptr) << "the plot settings alone";
}

TEST_F(ExportOverride, IsTakenAgainWhereThereIsOne) {
    override();
    service.overridden->setCurrentStyleSheet(L"changed.ctb");
    const OdDbPlotSettings* const former = service.overridden;
    override();
    EXPECT_EQ(service.overridden, former);
    EXPECT_STREQ(service.overridden->getCurrentStyleSheet(), L"changed.ctb");
    EXPECT_EQ(dictionary()->numEntries(), 1);
}

TEST_F(ExportOverride, JoinsADictionaryThatIsThereAlready) {
    EXPECT_EQ(layout()->createExtensionDictionary(), 0);
    EXPECT_EQ(layout()->createExtensionDictionary(), 31);
    dictionary()->setAt(L"other", OdDbObjectPtr(new OdDbPlaceHolder));
    override();
    EXPECT_TRUE(dictionary()->has(L"other"));
    EXPECT_TRUE(dictionary()->has(kName));
}

TEST_F(ExportOverride, EndsSilentlyForAnEntryOfAnotherKind) {
    layout()->createExtensionDictionary();
    dictionary()->setAt(kName, OdDbObjectPtr(new OdDbPlaceHolder));
    override();
    EXPECT_EQ(service.overridden, nullptr);
    EXPECT_EQ(service.calls.back(), "override?");
}

TEST_F(ExportOverride, EndsSilentlyWithoutADrawing) {
    oddbHostApplicationServices()->setWorkingDatabase(nullptr);
    override();
    EXPECT_EQ(service.calls.back(), "override?");
}

TEST_F(ExportOverride, EndsSilentlyForALayoutThatIsGone) {
    layout()->erase();
    override();
    EXPECT_EQ(service.calls.back(), "override?");
}

TEST_F(ExportEnd, AFreeFileIsTheResult) {
    EXPECT_EQ(acceptFile(L"one.dwg"), IDOK);
    ASSERT_EQ(data.GetCount(), 1);
    EXPECT_EQ(data.GetAt(0)->GetText(), folder + L"one.dwg");
    EXPECT_EQ(dialog.count("ok"), 1);
}

std::vector<DWORD> opening;

HANDLE WINAPI opensFile(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                        DWORD creation, DWORD flags, HANDLE sample) {
    if (::lstrcmpW(::PathFindFileNameW(path), L"one.dwg") == 0) opening = {access, share, creation, flags};
    return ::CreateFileW(path, access, share, security, creation, flags, sample);
}

TEST_F(ExportEnd, AFileIsTriedForWritingBesideReaders) {
    const ui_test::ReplacedImport opens(toolkit(), "CreateFileW", &opensFile);
    ASSERT_TRUE(opens.isThere());
    opening.clear();
    EXPECT_EQ(acceptFile(L"one.dwg"), IDOK);
    EXPECT_EQ(opening, (std::vector<DWORD>{GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                           OPEN_ALWAYS, FILE_FLAG_BACKUP_SEMANTICS}));
}

TEST_F(ExportEnd, AFileThatWasTriedIsLeftClosed) {
    const OpenHandles handles(toolkit());
    EXPECT_EQ(acceptFile(L"one.dwg"), IDOK);
    EXPECT_GT(OpenHandles::Opened(), 0);
    EXPECT_EQ(OpenHandles::Left(), 0u);
}

TEST_F(ExportEnd, ANewFileIsTheResultAndIsntMade) {
    EXPECT_EQ(acceptFile(L"fresh.pdf"), IDOK);
    ASSERT_EQ(data.GetCount(), 1);
    EXPECT_EQ(data.GetAt(0)->GetText(), folder + L"fresh.pdf");
    EXPECT_EQ(::GetFileAttributesW(folder + L"fresh.pdf"), INVALID_FILE_ATTRIBUTES);
}

TEST_F(ExportEnd, AFileThatAnotherHoldsIsToldAndTheDialogEndsWithoutAFile) {
    const Held held(folder + L"one.dwg");
    EXPECT_TRUE(throwsForHeld(L"one.dwg", L"Save As PDF"));
    EXPECT_EQ(data.GetCount(), 0);
    EXPECT_EQ(dialog.count("ok"), 0);
    const CString expected = CString(L"<") + folder +
                             L"one.dwg> is currently open in another program.\n"
                             L"Please close the file and try again.";
    EXPECT_EQ(messages, (std::vector<std::wstring>{expected.GetString()}));
}

TEST_F(ExportEnd, TheCaptionNamesTheFormat) {
    const Held held(folder + L"one.dwg");
    dialog.SetDefaultFileExtension(L"dwf");
    EXPECT_TRUE(throwsForHeld(L"one.dwg", L"Save As DWF"));
    dialog.SetDefaultFileExtension(L"DWFX");
    EXPECT_TRUE(throwsForHeld(L"one.dwg", L"Save As DWFx"));
    EXPECT_EQ(messages.size(), 2u);
}

TEST_F(ExportEnd, ThatAnotherHoldsItIsToldInTheUsersLanguageWithAWarningSign) {
    const Held held(folder + L"one.dwg");
    const std::wstring path = (folder + L"one.dwg").GetString();
    ForgetMessages();
    EXPECT_TRUE(throwsForHeld(L"one.dwg", L"Save As PDF"));
    {
        const ui_test::InLanguage chinese(ui_test::kChinese);
        EXPECT_TRUE(throwsForHeld(L"one.dwg", L"另存为 PDF"));
    }
    EXPECT_EQ(
        ToldMessages(),
        (std::vector<ToldMessage>{
            {L"Save As PDF",
             L"<" + path + L"> is currently open in another program.\nPlease close the file and try again.",
             kToldOk, WarningSign()},
            {L"另存为 PDF", L"<" + path + L"> 当前已在其他程序中打开。\n请关闭该文件，然后重试。", kToldOk,
             WarningSign()}}));
}

TEST_F(ExportEnd, TheWordsForItHaveDefaults) {
    const Held held(folder + L"one.dwg");
    const ui_test::WithoutStrings strings;
    EXPECT_TRUE(throwsForHeld(L"one.dwg", L"Save As PDF"));
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_NE(messages[0].find(L"one.dwg> is currently open in another program."), std::wstring::npos);
}

TEST_F(ExportEnd, AFileThatMayBeReadByOthersIsFree) {
    // Whoever reads it lets others write it.
    const HANDLE reader = ::CreateFileW(folder + L"one.dwg", GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(acceptFile(L"one.dwg"), IDOK);
    EXPECT_EQ(data.GetCount(), 1);
    ::CloseHandle(reader);
}
