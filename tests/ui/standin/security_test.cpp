// The security service: a seal beside the drawing's file that tells whether the file was changed.
#include <kh_security.h>

#include "../../../platform/standin/resource.h"
#include "host_fixture.h"

namespace {

class Security : public ui_test::HostTest {
protected:
    ~Security() override {
        for (const wchar_t* name : {L"\\plan.dxf", L"\\plan.dxf.seal"})
            ::DeleteFileW((folder.path() + name).c_str());
    }
    void show() {
        static_cast<CKhSecurity*>(host.serviceManager()->getService(kKhSecurityService))
            ->showSecurityOptions();
    }
    /// Shows the dialog, runs `script` in it, and closes it.
    void inDialog(const std::function<void(HWND)>& script) {
        bool shown = false;
        ui_test::when_dialog(L"Security Options", [&](HWND dialog) {
            shown = true;
            script(dialog);
            ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        show();
        EXPECT_TRUE(shown);
    }
    /// The drawing, saved and read again: it has a file and no changes.
    void save() {
        const std::wstring file = plan();
        ASSERT_EQ(drawing->writeDxf(file.c_str()), kOdOk);
        OdSmartPtr<OdDbDatabase> saved(new OdDbDatabase);
        ASSERT_EQ(saved->readDxf(file.c_str()), kOdOk);
        drawing = saved;
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
    }
    std::wstring plan() const { return folder.path() + L"\\plan.dxf"; }
    void seal(const wchar_t* signer) {
        inDialog([&](HWND dialog) {
            ::SetDlgItemTextW(dialog, IDC_SEAL_SIGNER, signer);
            click(dialog, IDC_SEAL);
        });
    }
    /// What the dialog says of the seal, and whether it can be removed.
    CString state(bool* removable = nullptr) {
        CString text;
        inDialog([&](HWND dialog) {
            text = textOf(dialog, IDC_SEAL_STATE);
            if (removable) *removable = ::IsWindowEnabled(::GetDlgItem(dialog, IDC_SEAL_REMOVE));
        });
        return text;
    }
    static void append(const std::wstring& path, const char* bytes) {
        const HANDLE file =
            ::CreateFileW(path.c_str(), FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS, 0, nullptr);
        DWORD written = 0;
        ::WriteFile(file, bytes, static_cast<DWORD>(strlen(bytes)), &written, nullptr);
        ::CloseHandle(file);
    }
};

}  // namespace

TEST_F(Security, NeedsADrawingThatIsSaved) {
    EXPECT_NE(messageOf([&] { show(); }).Find(L"Save the drawing first"), -1);
    save();
    OdDbLayerTablePtr layers;
    drawing->setLTSCALE(3.5);
    EXPECT_NE(messageOf([&] { show(); }).Find(L"Save the drawing first"), -1);
    oddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_NE(messageOf([&] { show(); }).Find(L"no drawing"), -1);
}

TEST_F(Security, ASealTellsWhoSealedAndThatNothingChanged) {
    save();
    bool removable = true;
    EXPECT_EQ(state(&removable), L"The file isn't sealed.");
    EXPECT_FALSE(removable);
    seal(L"  Ann Å. Zeichner ");
    const CString text = state(&removable);
    EXPECT_EQ(text.Find(L"Sealed by Ann Å. Zeichner on 20"), 0) << CStringA(text);
    EXPECT_NE(text.Find(L"hasn't changed"), -1) << CStringA(text);
    EXPECT_TRUE(removable);
}

TEST_F(Security, BeginsAndEndsInTheNameOfTheSigner) {
    save();
    inDialog([&](HWND dialog) {
        const HWND signer = ::GetDlgItem(dialog, IDC_SEAL_SIGNER);
        EXPECT_EQ(::GetFocus(), signer);
        ::SetDlgItemTextW(dialog, IDC_SEAL_SIGNER, L"Ann");
        click(dialog, IDC_SEAL);
        ::SetFocus(::GetDlgItem(dialog, IDC_SEAL_REMOVE));
        click(dialog, IDC_SEAL_REMOVE);
        EXPECT_EQ(::GetFocus(), signer) << "the button is off now";
    });
}

TEST_F(Security, AChangeOfOneByteIsTold) {
    save();
    seal(L"Ann");
    append(plan(), " ");
    EXPECT_NE(state().Find(L"was changed after that"), -1);
    seal(L"Bea");
    EXPECT_EQ(state().Find(L"Sealed by Bea"), 0);
    EXPECT_NE(state().Find(L"hasn't changed"), -1);
}

TEST_F(Security, TheSealIsTheDigestOfTheFile) {
    save();
    ::DeleteFileW(plan().c_str());
    folder.write(L"plan.dxf", "abc");
    seal(L"Ann");
    std::string text(300, 0);
    const HANDLE file = ::CreateFileW((plan() + L".seal").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    DWORD size = 0;
    ::ReadFile(file, text.data(), 300, &size, nullptr);
    ::CloseHandle(file);
    EXPECT_NE(text.find("sha256 ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"),
              std::string::npos)
        << text.substr(0, size);
}

TEST_F(Security, ASealNeedsAName) {
    save();
    CString text;
    inDialog([&](HWND dialog) {
        ::SetDlgItemTextW(dialog, IDC_SEAL_SIGNER, L"   ");
        text = messageOf([&] { click(dialog, IDC_SEAL); });
    });
    EXPECT_NE(text.Find(L"Enter the name"), -1);
    EXPECT_EQ(state(), L"The file isn't sealed.");
}

TEST_F(Security, ASealCanBeRemovedAndADamagedOneIsTold) {
    save();
    seal(L"Ann");
    inDialog([&](HWND dialog) {
        click(dialog, IDC_SEAL_REMOVE);
        EXPECT_EQ(textOf(dialog, IDC_SEAL_STATE), L"The file isn't sealed.");
        EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(dialog, IDC_SEAL_REMOVE)));
    });
    EXPECT_EQ(::GetFileAttributesW((plan() + L".seal").c_str()), INVALID_FILE_ATTRIBUTES);
    folder.write(L"plan.dxf.seal", "scribble");
    bool removable = false;
    EXPECT_NE(state(&removable).Find(L"damaged"), -1);
    EXPECT_TRUE(removable);
}

TEST_F(Security, ASealThatCannotBeWrittenIsSaid) {
    save();
    ::CreateDirectoryW((plan() + L".seal").c_str(), nullptr);
    CString text;
    inDialog([&](HWND dialog) {
        ::SetDlgItemTextW(dialog, IDC_SEAL_SIGNER, L"Ann");
        text = messageOf([&] { click(dialog, IDC_SEAL); });
    });
    EXPECT_NE(text.Find(L"can't be changed"), -1);
    ::RemoveDirectoryW((plan() + L".seal").c_str());
}

TEST_F(Security, TheDialogSaysThatAPasswordIsNotToBeHad) {
    save();
    std::wstring all;
    inDialog([&](HWND dialog) { all = ui_test::message_text(dialog); });
    EXPECT_NE(all.find(L"can't be protected by a password"), std::wstring::npos);
    EXPECT_NE(all.find(L"plan.dxf"), std::wstring::npos);
}
