// The system's file dialog: what it is given, what it tells while it is open, what is chosen.
#include <afxdlgs.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "sent_messages.h"
#include "ui_test.h"

namespace {

using ui_test::when_dialog;

constexpr int kName = 1148;  // the field for the name
constexpr UINT kOwnEdit = 1101;

class Dialog : public CFileDialog {
public:
    using CFileDialog::CFileDialog;
    std::vector<std::string> log;
    std::function<void()> onInitDone;
    BOOL refuses = FALSE;
    CString nameAtOk, folderAtOk, pathAtOk, titleAtOk, extAtOk;

protected:
    BOOL OnInitDialog() override {
        log.push_back("init dialog");
        return CFileDialog::OnInitDialog();
    }
    void OnInitDone() override {
        log.push_back("init done");
        if (onInitDone) onInitDone();
    }
    void OnFileNameChange() override { log.push_back("name"); }
    void OnFolderChange() override { log.push_back("folder"); }
    void OnTypeChange() override { log.push_back("type"); }
    BOOL OnFileNameOK() override {
        log.push_back("ok");
        nameAtOk = GetFileName();
        titleAtOk = GetFileTitle();
        extAtOk = GetFileExt();
        pathAtOk = GetPathName();
        folderAtOk = GetFolderPath();
        const BOOL answer = refuses;
        refuses = FALSE;
        return answer;
    }
};

class FileDialog : public ::testing::Test {
protected:
    FileDialog() {
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        folder = CString(temporary) + L"ktui file dialog\\";
        ::CreateDirectoryW(folder, nullptr);
        for (const wchar_t* name : {L"one.dxf", L"two.dxf", L"three.txt"}) {
            const HANDLE file =
                ::CreateFileW(folder + name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
            ::CloseHandle(file);
        }
    }
    ~FileDialog() override {
        for (const wchar_t* name : {L"one.dxf", L"two.dxf", L"three.txt"}) ::DeleteFileW(folder + name);
        ::RemoveDirectoryW(folder);
    }
    bool has(const Dialog& dialog, const char* call) {
        return std::find(dialog.log.begin(), dialog.log.end(), call) != dialog.log.end();
    }
    /// Types `text` as the name and presses the button, as soon as the dialog is there.
    void answer(const CString& text, int button = IDOK) {
        when_dialog(L"chooser", [text, button](HWND window) {
            ::SetDlgItemTextW(window, kName, text);
            ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
    }
    /// A dialog over the folder with the title that the tests look for.
    void prepare(CFileDialog& dialog) {
        dialog.m_ofn.lpstrInitialDir = folder;
        dialog.m_ofn.lpstrTitle = L"chooser";
    }
    CString folder;
    ui_test::ParentWindow parent;
};

TEST_F(FileDialog, StartsWithWhatItIsGiven) {
    CFileDialog dialog(FALSE, L"dxf", L"plan", OFN_PATHMUSTEXIST, L"Drawings|*.dxf|All|*.*||", &parent);
    const OPENFILENAMEW& ofn = dialog.GetOFN();
    EXPECT_EQ(&ofn, &dialog.m_ofn);
    EXPECT_EQ(ofn.lStructSize, sizeof(OPENFILENAMEW));
    EXPECT_STREQ(ofn.lpstrDefExt, L"dxf");
    EXPECT_STREQ(ofn.lpstrFile, L"plan");
    EXPECT_EQ(ofn.nMaxFile, static_cast<DWORD>(_MAX_PATH));
    EXPECT_EQ(ofn.Flags & (OFN_PATHMUSTEXIST | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_OVERWRITEPROMPT),
              static_cast<DWORD>(OFN_PATHMUSTEXIST | OFN_EXPLORER | OFN_ENABLEHOOK));
    const std::wstring filter(L"Drawings\0*.dxf\0All\0*.*\0", 24);  // two zeros at its end
    EXPECT_EQ(std::wstring(ofn.lpstrFilter, filter.size()), filter);
    EXPECT_EQ(CFileDialog(TRUE).GetOFN().Flags & (OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT),
              static_cast<DWORD>(OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT));
    EXPECT_EQ(CFileDialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, 76).GetOFN().lStructSize, 76u);
}

TEST_F(FileDialog, AnswersTheFileThatWasNamed) {
    Dialog dialog(TRUE, L"dxf", nullptr, OFN_FILEMUSTEXIST, L"Drawings|*.dxf||", &parent);
    prepare(dialog);
    answer(L"one.dxf");
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), folder + L"one.dxf");
    EXPECT_EQ(dialog.GetFileName(), L"one.dxf");
    EXPECT_EQ(dialog.GetFileTitle(), L"one");
    EXPECT_EQ(dialog.GetFileExt(), L"dxf");
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(parent.IsWindowEnabled());
    ASSERT_GE(dialog.log.size(), 3u);
    EXPECT_EQ(dialog.log[0], "init dialog");
    EXPECT_EQ(dialog.log[1], "init done");
    EXPECT_TRUE(has(dialog, "folder"));
    EXPECT_EQ(dialog.log.back(), "ok");
    EXPECT_EQ(dialog.folderAtOk + L"\\", folder);
    EXPECT_EQ(dialog.pathAtOk, folder + L"one.dxf");
    EXPECT_EQ(dialog.nameAtOk, L"one.dxf");
    EXPECT_EQ(dialog.titleAtOk, L"one");
    EXPECT_EQ(dialog.extAtOk, L"dxf");
}

TEST_F(FileDialog, CanRefuseAName) {
    Dialog dialog(TRUE, L"dxf", nullptr, OFN_FILEMUSTEXIST, nullptr, &parent);
    prepare(dialog);
    dialog.refuses = TRUE;
    when_dialog(L"chooser", [&](HWND window) {
        ::SetDlgItemTextW(window, kName, L"one.dxf");
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
        EXPECT_TRUE(::IsWindow(window));
        EXPECT_EQ(dialog.log.back(), "ok");
        ::SetDlgItemTextW(window, kName, L"two.dxf");
        ::PostMessageW(window, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetFileName(), L"two.dxf");
}

TEST_F(FileDialog, CanBeCancelledAndShownAgain) {
    Dialog dialog(TRUE, nullptr, nullptr, 0, nullptr, &parent);
    prepare(dialog);
    answer(L"one.dxf", IDCANCEL);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(has(dialog, "ok"));
    answer(L"one.dxf");
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), folder + L"one.dxf");
}

TEST_F(FileDialog, EndsLikeCancelledWhenItIsToldTo) {
    Dialog dialog(TRUE, nullptr, nullptr, 0, nullptr, &parent);
    prepare(dialog);
    when_dialog(L"chooser", [&](HWND) { dialog.EndDialog(IDCANCEL); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_F(FileDialog, SavesUnderANameWithTheUsualExtension) {
    Dialog dialog(FALSE, L"dxf", nullptr, 0, nullptr, &parent);
    prepare(dialog);
    answer(L"fresh");
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), folder + L"fresh.dxf");
}

TEST_F(FileDialog, SeveralFilesAreGoneThroughOneByOne) {
    Dialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, nullptr, &parent);
    prepare(dialog);
    std::vector<wchar_t> buffer(2000, L'\0');
    dialog.m_ofn.lpstrFile = buffer.data();
    dialog.m_ofn.nMaxFile = static_cast<DWORD>(buffer.size());
    answer(L"\"one.dxf\" \"three.txt\"");
    ASSERT_EQ(dialog.DoModal(), IDOK);
    std::vector<CString> paths;
    for (POSITION at = dialog.GetStartPosition(); at != nullptr;) paths.push_back(dialog.GetNextPathName(at));
    EXPECT_EQ(paths, (std::vector<CString>{folder + L"one.dxf", folder + L"three.txt"}));
    EXPECT_EQ(dialog.GetPathName(), folder + L"one.dxf");
    EXPECT_EQ(dialog.GetFileName(), L"one.dxf");
}

TEST_F(FileDialog, OneOfSeveralIsAWholePath) {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    ::lstrcpynW(dialog.m_ofn.lpstrFile, L"C:\\drawings\\one.dxf", _MAX_PATH);
    POSITION at = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(at), L"C:\\drawings\\one.dxf");
    EXPECT_EQ(at, nullptr);
    EXPECT_EQ(dialog.GetNextPathName(at), L"");
    // The root ends in a backslash of its own.
    std::vector<wchar_t> root(100, L'\0');
    const std::wstring several(L"C:\\\0a.dxf\0b.dxf\0", 16);
    std::copy(several.begin(), several.end(), root.begin());
    dialog.m_ofn.lpstrFile = root.data();
    at = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(at), L"C:\\a.dxf");
    EXPECT_NE(at, nullptr);
    EXPECT_EQ(dialog.GetNextPathName(at), L"C:\\b.dxf");
    EXPECT_EQ(at, nullptr);
}

TEST_F(FileDialog, AnotherTypeIsTold) {
    Dialog dialog(TRUE, nullptr, nullptr, 0, L"Drawings|*.dxf|Texts|*.txt||", &parent);
    prepare(dialog);
    when_dialog(L"chooser", [&](HWND window) {
        ::SendDlgItemMessageW(window, cmb1, CB_SETCURSEL, 1, 0);
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(cmb1, CBN_SELENDOK),
                       reinterpret_cast<LPARAM>(::GetDlgItem(window, cmb1)));
        EXPECT_TRUE(has(dialog, "type"));
        ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    dialog.DoModal();
}

TEST_F(FileDialog, ControlsOfATemplateAreTheObjectsOwn) {
    Dialog dialog(TRUE, nullptr, nullptr, 0, nullptr, &parent);
    prepare(dialog);
    dialog.SetTemplate(0, 421);
    EXPECT_TRUE(dialog.m_ofn.Flags & OFN_ENABLETEMPLATE);
    when_dialog(L"chooser", [&](HWND window) {
        EXPECT_NE(dialog.GetDlgItem(kOwnEdit), nullptr);
        EXPECT_EQ(dialog.GetParent()->m_hWnd, window);
        EXPECT_EQ(CWnd::FromHandlePermanent(dialog.m_hWnd), &dialog);
        ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_F(FileDialog, ItsControlsTakeAnotherTextAndHide) {
    Dialog dialog(TRUE, nullptr, nullptr, 0, nullptr, &parent);
    prepare(dialog);
    CString extension;
    dialog.onInitDone = [&] {
        dialog.SetControlText(IDOK, L"Take it");
        dialog.HideControl(stc2);
        ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.message == CDM_SETDEFEXT) extension = reinterpret_cast<LPCWSTR>(message.lParam);
        });
        dialog.SetDefExt("txt");
    };
    when_dialog(L"chooser", [&](HWND window) {
        EXPECT_EQ(ui_test::text_of(::GetDlgItem(window, IDOK)), L"Take it");
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(window, stc2)));
        ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(extension, L"txt");
}

TEST_F(FileDialog, ReadOnlyIsWhatTheFlagsSay) {
    CFileDialog dialog(TRUE);
    EXPECT_FALSE(dialog.GetReadOnlyPref());
    dialog.m_ofn.Flags |= OFN_READONLY;
    EXPECT_TRUE(dialog.GetReadOnlyPref());
    EXPECT_EQ(dialog.GetFolderPath(), L"");
}

TEST_F(FileDialog, BeforeItIsShownTheNameSaysWhatIsChosen) {
    CFileDialog dialog(FALSE, nullptr, L"C:\\drawings.old\\plan");
    EXPECT_EQ(dialog.GetPathName(), L"C:\\drawings.old\\plan");
    EXPECT_EQ(dialog.GetFileName(), L"plan");
    EXPECT_EQ(dialog.GetFileTitle(), L"plan");
    EXPECT_EQ(dialog.GetFileExt(), L"");
}

}  // namespace
