// Pages that come from another module.
#include "tab_fixture.h"

#include "tab_extension_module.h"

namespace {

class TabExtension : public TabTest {
protected:
    TabExtension() : m_module(::LoadLibraryW(L"tab_extension_module.dll")) {}
    ~TabExtension() override {
        dialog.DestroyWindow();
        ::FreeLibrary(m_module);
    }
    template <class Function>
    Function entry(const char* name) {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }
    int add(const wchar_t* wanted) {
        return entry<AddExtensionPage>("addExtensionPage")(*dialog.GetXtabPointer(), wanted);
    }
    CKbUiTabChildDialog* page() { return entry<ExtensionPage>("extensionPage")(); }
    std::string calls() { return entry<ExtensionCalls>("extensionCalls")(); }

    HMODULE m_module;
};

TEST_F(TabExtension, AModuleAddsItsOwnPageBehindTheApplicationsPages) {
    ASSERT_NE(m_module, nullptr);
    addPages(2);
    EXPECT_EQ(add(L"tabbed"), 1);
    EXPECT_EQ(dialog.tab.GetItemCount(), 3);
    EXPECT_EQ(dialog.tab.GetTabIndex(page()), 2);
    EXPECT_NE(page()->GetDlgItem(kExtensionEdit), nullptr);
    EXPECT_EQ(page()->GetParent(), &dialog);
    EXPECT_EQ(front(), 0);
    click(2);
    EXPECT_EQ(front(), 2);
    click(0);
    EXPECT_EQ(calls(), "A?a");
}

TEST_F(TabExtension, TheResourceModuleIsWhatItWasBefore) {
    const HINSTANCE former = AfxGetResourceHandle();
    EXPECT_EQ(add(L"tabbed"), 1);
    EXPECT_EQ(AfxGetResourceHandle(), former);
    EXPECT_NE(former, m_module);
    NotingPage failing("failing", log);
    failing.failsToStart = true;
    EXPECT_EQ(dialog.GetXtabPointer()->AddTab(m_module, kExtensionTemplate, L"x", &failing), 0);
    EXPECT_EQ(AfxGetResourceHandle(), former);
}

TEST_F(TabExtension, TheTemplateComesFromTheCallersModule) {
    // The application alone has no such template, and the module's resources are in no chain.
    EXPECT_EQ(dialog.AddTab(0, L"x", kExtensionTemplate, &a), 0);
    EXPECT_EQ(dialog.GetXtabPointer()->AddTab(m_module, kExtensionTemplate, L"x", &b), 1);
    EXPECT_NE(b.GetDlgItem(kExtensionEdit), nullptr);
}

TEST_F(TabExtension, ADialogOfAnotherNameIsLeftAlone) {
    EXPECT_EQ(add(L"another"), -1);
    EXPECT_EQ(dialog.tab.GetItemCount(), 0);
}

TEST_F(TabExtension, TheNameIsTheDialogsOrTheOneMadeOfItsTemplate) {
    EXPECT_STREQ(dialog.GetXtabPointer()->GetDialogName(), L"tabbed");
    EXPECT_EQ(dialog.GetXtabPointer()->AddExtendedTabs(), 0);
    class Unnamed : public CKtUiTabMainDialog {
    public:
        Unnamed() : CKtUiTabMainDialog(IDD_TABBED) {}
    } unnamed;
    CKbUiTabExtensionManager manager;
    manager.Initialize(nullptr, &unnamed);
    CString own;
    unnamed.GetDialogName(own);
    EXPECT_FALSE(own.IsEmpty());
    EXPECT_EQ(own.Right(5), L"-CB-0");
    EXPECT_STREQ(manager.GetDialogName(), own);
}

TEST_F(TabExtension, WithoutPageTabOrDialogNothingIsAdded) {
    CKbUiTabExtensionManager manager;
    EXPECT_EQ(manager.GetTabControl(), nullptr);
    EXPECT_EQ(manager.AddTab(m_module, kExtensionTemplate, L"x", &a), 0);
    manager.Initialize(&dialog.tab, nullptr);
    EXPECT_EQ(manager.AddTab(m_module, kExtensionTemplate, L"x", &a), 0);
    manager.Initialize(nullptr, &dialog);
    EXPECT_EQ(manager.AddTab(m_module, kExtensionTemplate, L"x", &a), 0);
    manager.Initialize(&dialog.tab, &dialog);
    EXPECT_EQ(manager.AddTab(m_module, kExtensionTemplate, L"x", nullptr), 0);
    EXPECT_EQ(dialog.tab.GetItemCount(), 0);
    EXPECT_EQ(manager.AddExtendedTabs(), 0);
}

TEST_F(TabExtension, TheDialogGivesItsManagerTheTabAtItsStart) {
    EXPECT_EQ(dialog.GetXtabPointer()->GetTabControl(), &dialog.tab);
    TabbedDialog notYet(&parent);
    EXPECT_EQ(notYet.GetXtabPointer()->GetTabControl(), nullptr);
}

TEST_F(TabExtension, ACopyServesTheSameDialog) {
    CKbUiTabExtensionManager copy(*dialog.GetXtabPointer()), assigned;
    assigned = copy;
    EXPECT_EQ(copy.GetTabControl(), &dialog.tab);
    EXPECT_EQ(assigned.AddTab(m_module, kExtensionTemplate, L"x", &a), 1);
    EXPECT_EQ(dialog.tab.GetItemCount(), 1);
}

}  // namespace
