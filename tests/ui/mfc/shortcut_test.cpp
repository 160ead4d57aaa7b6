// What a shortcut stands for.
#include <afxwin.h>

#include <shlobj.h>

#include "ui_test.h"

namespace {

class Shortcut : public ::testing::Test {
protected:
    Shortcut() {
        EXPECT_TRUE(SUCCEEDED(::CoInitialize(nullptr)));
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        target = CString(temporary) + L"ktui target.txt";
        link = CString(temporary) + L"ktui shortcut.lnk";
        ::CloseHandle(::CreateFileW(target, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
    ~Shortcut() override {
        ::DeleteFileW(target);
        ::DeleteFileW(link);
        ::CoUninitialize();
    }
    void make(const CString& leads) {
        IShellLinkW* shell = nullptr;
        IPersistFile* file = nullptr;
        ASSERT_EQ(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                     reinterpret_cast<void**>(&shell)),
                  S_OK);
        shell->SetPath(leads);
        ASSERT_EQ(shell->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file)), S_OK);
        EXPECT_EQ(file->Save(link, TRUE), S_OK);
        file->Release();
        shell->Release();
    }
    CString target, link;
    wchar_t path[MAX_PATH] = L"before";
};

TEST_F(Shortcut, LeadsToItsTarget) {
    make(target);
    EXPECT_TRUE(AfxResolveShortcut(nullptr, link, path, MAX_PATH));
    EXPECT_EQ(CString(path).CompareNoCase(target), 0);
    EXPECT_TRUE(AfxResolveShortcut(CWnd::GetDesktopWindow(), link, path, MAX_PATH));
    EXPECT_EQ(CString(path).CompareNoCase(target), 0);
}

TEST_F(Shortcut, ThatIsNotThereLeadsNowhere) {
    EXPECT_FALSE(AfxResolveShortcut(nullptr, link, path, MAX_PATH));
    EXPECT_STREQ(path, L"");
    EXPECT_FALSE(AfxResolveShortcut(nullptr, target, path, MAX_PATH)) << "no shortcut";
    EXPECT_FALSE(AfxResolveShortcut(nullptr, link, nullptr, MAX_PATH));
    EXPECT_FALSE(AfxResolveShortcut(nullptr, link, path, 0));
}

}  // namespace
