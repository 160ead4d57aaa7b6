#include <ktui/dialogs/ktui_dialog.h>
#include <ktui/host/help_path.h>
#include <ktui/host/host_services.h>
#include <ktui/host/resource_scope.h>

#include <imm.h>
#include <od_host_services.h>

#include <stdexcept>

#include "test_host.h"
#include "ui_test.h"

using ui_test::ParentWindow;
using ui_test::TestHost;

TEST(HostServices, MainWindowIsTheDockingFrameAndNotTheDialogParent) {
    TestHost host;
    ParentWindow frame;
    ParentWindow dialogParent;
    host.frame = &frame;
    AfxGetApp()->m_pMainWnd = &dialogParent;
    EXPECT_EQ(KtUiMainWindow(), &frame);
    host.hasUiHost = false;
    EXPECT_EQ(KtUiMainWindow(), nullptr) << "while the application shuts down";
    AfxGetApp()->m_pMainWnd = nullptr;
}

namespace {

/// A dialog that opens what it asks of the host.
struct AskingDialog : CKtUiDialog {
    AskingDialog() : CKtUiDialog(1) {}
    using CKtUiDialog::AppMainWindow;
    using CKtUiDialog::OnDialogHelp;
};

}  // namespace

TEST(HostServices, DialogsParentIsTheApplicationsMainWindow) {
    TestHost host;
    ParentWindow frame, dialogParent;
    host.frame = &frame;
    AskingDialog dialog;
    EXPECT_EQ(dialog.AppMainWindow(), nullptr);
    AfxGetApp()->m_pMainWnd = &dialogParent;
    EXPECT_EQ(dialog.AppMainWindow(), &dialogParent);
    host.hasUiHost = false;
    EXPECT_EQ(dialog.AppMainWindow(), nullptr) << "while the application shuts down";
    AfxGetApp()->m_pMainWnd = nullptr;
}

TEST(HostServices, HelpIsTheHostsOrIsSkipped) {
    TestHost host;
    AskingDialog dialog;
    dialog.OnDialogHelp();
    EXPECT_EQ(host.helpCalls, 1);
    host.hasUiHost = false;
    dialog.OnDialogHelp();
    EXPECT_EQ(host.helpCalls, 1);
}

TEST(HostServices, RootKeyIsLeftAloneWithoutRuntimeServices) {
    CString key = L"as it was";
    OdDbHostAppServices* former = oddbHostApplicationServices();
    oddbSetHostApplicationServices(nullptr);
    KtUiRootKey(key);
    EXPECT_STREQ(key, L"as it was");
    OdDbHostAppServices services;
    oddbSetHostApplicationServices(&services);
    KtUiRootKey(key);
    EXPECT_STREQ(key, services.registryProductRootKey().c_str());
    oddbSetHostApplicationServices(former);
}

TEST(HostServices, ToolTipsAnswerTwo) { EXPECT_EQ(KtUiEnableToolTips(), 2); }

TEST(HostServices, HelpFileIsFoundThroughTheHost) {
    TestHost host;
    host.files[L"dialogs.chm"] = L"C:\\Help\\dialogs.chm";
    CString path = L"old";
    EXPECT_EQ(KbUiFindContextHelpFullPath(L"missing.chm", path), 0);
    EXPECT_STREQ(path, L"old");
    EXPECT_EQ(KbUiFindContextHelpFullPath(L"dialogs.chm", path), 1);
    EXPECT_STREQ(path, L"C:\\Help\\dialogs.chm");
    EXPECT_EQ(host.findHint, 0) << "the general kind of file";
}

TEST(HostServices, SubstituteShellFontLeavesTheFont) {
    ParentWindow window;
    CFont font;
    KbUiSubstituteShellFont(window, font);
    EXPECT_EQ(font.GetSafeHandle(), nullptr);
    EXPECT_EQ(window.GetFont(), nullptr);
}

TEST(HostServices, CompositionWindowMovesToThePoint) {
    ParentWindow window;
    const HIMC context = ::ImmGetContext(window.m_hWnd);
    ASSERT_NE(context, nullptr);
    ktuiSetCompositionWindow(window.m_hWnd, POINT{31, 17});
    COMPOSITIONFORM form = {};
    ::ImmGetCompositionWindow(context, &form);
    EXPECT_EQ(form.dwStyle, static_cast<DWORD>(CFS_POINT));
    EXPECT_EQ(form.ptCurrentPos.x, 31);
    EXPECT_EQ(form.ptCurrentPos.y, 17);
    ::ImmReleaseContext(window.m_hWnd, context);
}

TEST(ResourceScope, PopsWhatItPushed) {
    TestHost host;
    const HINSTANCE before = AfxGetResourceHandle();
    {
        const ResourceScope outer(::GetModuleHandleW(L"user32.dll"));
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandleW(L"user32.dll"));
        {
            const ResourceScope inner(::GetModuleHandleW(L"gdi32.dll"));
            EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandleW(L"gdi32.dll"));
        }
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandleW(L"user32.dll"));
    }
    EXPECT_EQ(AfxGetResourceHandle(), before);
    EXPECT_EQ(host.pushes, 2);
    EXPECT_EQ(host.pops, 2);
}

TEST(ResourceScope, PopsWhenAnExceptionLeavesIt) {
    TestHost host;
    EXPECT_THROW(
        {
            const ResourceScope scope(::GetModuleHandleW(L"user32.dll"));
            throw std::runtime_error("leave");
        },
        std::runtime_error);
    EXPECT_EQ(host.pops, 1);
    EXPECT_TRUE(host.resourceStack.empty());
}
