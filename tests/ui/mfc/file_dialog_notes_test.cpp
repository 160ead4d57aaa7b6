// What a file dialog makes of the notifications of the system's dialog around it.
#include <afxdlgs.h>

#include "message_listener.h"
#include "ui_test.h"

namespace {

class Chooser : public CFileDialog {
public:
    Chooser() : CFileDialog(TRUE) {}
    CString said;
    UINT shareAnswer = OFN_SHAREWARN;
    BOOL refuses = FALSE;
    bool asksBase = false;

protected:
    void OnInitDone() override { said += L"init "; }
    void OnFileNameChange() override { said += L"name "; }
    void OnFolderChange() override { said += L"folder "; }
    void OnTypeChange() override { said += L"type "; }
    UINT OnShareViolation(LPCTSTR path) override {
        said += CString(L"shared ") + path + L' ';
        return asksBase ? CFileDialog::OnShareViolation(path) : shareAnswer;
    }
    BOOL OnFileNameOK() override { return said += L"ok ", asksBase ? CFileDialog::OnFileNameOK() : refuses; }
    afx_msg void OnOwnNote(NMHDR* header, LRESULT* result) {
        said.AppendFormat(L"own %u ", static_cast<UINT>(header->idFrom));
        *result = 77;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Chooser, CFileDialog)
    ON_NOTIFY(NM_CLICK, 5, &Chooser::OnOwnNote)
END_MESSAGE_MAP()

/// The dialog's object on a child of a window that stands for the system's dialog.
struct FileDialogNotes : ::testing::Test {
    FileDialogNotes() {
        child = ::CreateWindowExW(0, L"#32770", L"", WS_CHILD, 0, 0, 50, 50, outer.window(), nullptr, nullptr,
                                  nullptr);
        dialog.SubclassWindow(child);
        button = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 9, 9, child, reinterpret_cast<HMENU>(5),
                                   nullptr, nullptr);
        outer.take();
    }
    ~FileDialogNotes() override {
        dialog.UnsubclassWindow();
        ::DestroyWindow(child);
    }
    /// What the dialog says to a notification, from the system's dialog unless told otherwise.
    CString told(UINT code, HWND from = nullptr, UINT_PTR id = 0) {
        OFNOTIFYW note = {};
        note.hdr = {from != nullptr ? from : outer.window(), id, code};
        note.pszFile = const_cast<LPWSTR>(L"held.dxf");
        dialog.said.Empty();
        answer = ::SendMessageW(child, WM_NOTIFY, id, reinterpret_cast<LPARAM>(&note));
        return dialog.said;
    }
    LONG_PTR left() const { return ::GetWindowLongPtrW(child, DWLP_MSGRESULT); }

    ui_test::MessageListener outer;
    HWND child, button;
    Chooser dialog;
    LRESULT answer = 0;
};

}  // namespace

TEST_F(FileDialogNotes, EachHasItsFunction) {
    EXPECT_EQ(told(CDN_INITDONE), L"init ");
    EXPECT_EQ(told(CDN_SELCHANGE), L"name ");
    EXPECT_EQ(told(CDN_FOLDERCHANGE), L"folder ");
    EXPECT_EQ(told(CDN_TYPECHANGE), L"type ");
    EXPECT_EQ(told(CDN_HELP), L"") << "nobody asked for it";
}

TEST_F(FileDialogNotes, ANameIsTakenUnlessItIsRefused) {
    EXPECT_EQ(told(CDN_FILEOK), L"ok ");
    EXPECT_EQ(left(), 0);
    dialog.refuses = TRUE;
    told(CDN_FILEOK);
    EXPECT_EQ(left(), 1) << "the dialog stays";
    dialog.asksBase = true;
    told(CDN_FILEOK);
    EXPECT_EQ(left(), 0);
}

TEST_F(FileDialogNotes, ASharedFileIsWarnedOf) {
    dialog.shareAnswer = OFN_SHAREFALLTHROUGH;
    EXPECT_EQ(told(CDN_SHAREVIOLATION), L"shared held.dxf ");
    EXPECT_EQ(left(), OFN_SHAREFALLTHROUGH);
    dialog.shareAnswer = OFN_SHARENOWARN;
    told(CDN_SHAREVIOLATION);
    EXPECT_EQ(left(), OFN_SHARENOWARN);
    dialog.asksBase = true;
    told(CDN_SHAREVIOLATION);
    EXPECT_EQ(left(), OFN_SHAREWARN);
}

TEST_F(FileDialogNotes, ControlsOfTheTemplateMayNotifyByAnyNumber) {
    EXPECT_EQ(told(CDN_INITDONE, button, 5), L"") << "not from the system's dialog";
    EXPECT_EQ(told(static_cast<UINT>(NM_CLICK), button, 5), L"own 5 ");
    EXPECT_EQ(answer, 77);
}

TEST_F(FileDialogNotes, TextsAndControlsAreTheOuterDialogs) {
    CString text;
    outer.look = [&](const ui_test::HeardMessage& heard) {
        if (heard.message == CDM_SETCONTROLTEXT || heard.message == CDM_SETDEFEXT)
            text = reinterpret_cast<LPCWSTR>(heard.lParam);
    };
    dialog.SetControlText(IDOK, L"Choose");
    EXPECT_EQ(text, L"Choose");
    auto heard = outer.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(CDM_SETCONTROLTEXT));
    EXPECT_EQ(heard.wParam, static_cast<WPARAM>(IDOK));
    dialog.SetControlText(IDCANCEL, "Leave");
    EXPECT_EQ(text, L"Leave");
    EXPECT_EQ(outer.take().back().wParam, static_cast<WPARAM>(IDCANCEL));
    dialog.HideControl(1040);
    heard = outer.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(CDM_HIDECONTROL));
    EXPECT_EQ(heard.wParam, 1040U);
    dialog.SetDefExt("dwt");
    EXPECT_EQ(text, L"dwt");
    EXPECT_EQ(outer.take().back().message, static_cast<UINT>(CDM_SETDEFEXT));
    outer.look = nullptr;
}
