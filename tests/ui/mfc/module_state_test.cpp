// Where resources and classes are looked for when there are extension modules.
#include <afxcmn.h>
#include <afxres.h>

#include <string>

#include "ui_test.h"

namespace {

/// Registered by hand, as the static data of an extension module would.
class LateClass : public CObject {
    DECLARE_DYNCREATE(LateClass)
};
IMPLEMENT_DYNCREATE(LateClass, CObject)

const LPCWSTR kShared = MAKEINTRESOURCEW(500 / 16 + 1);  // the block that holds string 500

HMODULE this_program() { return ::GetModuleHandleW(nullptr); }
HMODULE class_layer() { return ::GetModuleHandleW(L"kmfc.dll"); }

/// Puts the current resource module back.
class ModuleState : public ::testing::Test {
protected:
    ~ModuleState() override { AfxSetResourceHandle(m_before); }
    HINSTANCE m_before = AfxGetResourceHandle();
};

bool has(HMODULE module, LPCWSTR name, LPCWSTR type) {
    return ::FindResourceW(module, name, type) != nullptr;
}

}  // namespace

TEST_F(ModuleState, TheCurrentResourceModuleComesFirst) {
    ASSERT_TRUE(has(this_program(), kShared, RT_STRING));
    CDynLinkLibrary library(class_layer(), this_program());
    AfxSetResourceHandle(this_program());
    EXPECT_EQ(AfxFindResourceHandle(kShared, RT_STRING), this_program());
    AfxSetResourceHandle(class_layer());
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW((0xF110 >> 4) + 1), RT_STRING), class_layer());
}

TEST_F(ModuleState, ThenTheExtensionModulesTheNewestFirst) {
    HMODULE controls = ::GetModuleHandleW(L"comctl32.dll");
    const LPCWSTR cursor = MAKEINTRESOURCEW(102);
    HMODULE copy = ::LoadLibraryExW(ui_test::program_path(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(copy, nullptr);
    ASSERT_TRUE(has(copy, kShared, RT_STRING));
    AfxSetResourceHandle(controls);
    ASSERT_FALSE(has(controls, MAKEINTRESOURCEW(400), RT_DIALOG));
    {
        CDynLinkLibrary older(this_program(), this_program());
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(400), RT_DIALOG), this_program());
        CDynLinkLibrary newer(copy, copy);
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(400), RT_DIALOG), copy);
    }
    EXPECT_EQ(AfxFindResourceHandle(cursor, RT_RCDATA), controls) << "nobody has it: the current module";
    ::FreeLibrary(copy);
}

TEST_F(ModuleState, SystemModulesComeBehindTheApplication) {
    HMODULE copy = ::LoadLibraryExW(ui_test::program_path(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    CDynLinkLibrary system(copy, copy, TRUE);
    AfxSetResourceHandle(::GetModuleHandleW(L"comctl32.dll"));
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(400), RT_DIALOG), AfxGetInstanceHandle());
    CDynLinkLibrary ordinary(copy, copy, FALSE);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(400), RT_DIALOG), copy);
    ::FreeLibrary(copy);
}

TEST_F(ModuleState, AnExtensionModuleTakesItsOwnClassesAndLeavesTheOthers) {
    ASSERT_EQ(CRuntimeClass::FromName("LateClass"), RUNTIME_CLASS(LateClass));
    AFX_EXTENSION_MODULE extension = {};
    EXPECT_FALSE(AfxInitExtensionModule(extension, nullptr));
    ASSERT_TRUE(AfxInitExtensionModule(extension, this_program()));
    EXPECT_EQ(CRuntimeClass::FromName("LateClass"), nullptr) << "known again once it is in the chain";
    EXPECT_EQ(CRuntimeClass::FromName("CDialog"), RUNTIME_CLASS(CWnd)->FromName("CDialog"));
    EXPECT_NE(CRuntimeClass::FromName("CDialog"), nullptr) << "the class layer's own are not the module's";
    auto* library = new CDynLinkLibrary(extension);
    EXPECT_EQ(AfxGetModuleState()->m_libraryList.GetHead(), library);
    EXPECT_EQ(CRuntimeClass::FromName("LateClass"), RUNTIME_CLASS(LateClass));
    EXPECT_EQ(CRuntimeClass::FromName(L"LateClass"), RUNTIME_CLASS(LateClass));
    EXPECT_EQ(CRuntimeClass::FromName("NoSuchClass"), nullptr);
    AfxTermExtensionModule(extension);
    EXPECT_FALSE(extension.bInitialized);
    EXPECT_EQ(CRuntimeClass::FromName("LateClass"), nullptr);
    ASSERT_TRUE(AfxInitExtensionModule(extension, this_program())) << "and may join again";
    new CDynLinkLibrary(extension);
    EXPECT_EQ(CRuntimeClass::FromName("LateClass"), RUNTIME_CLASS(LateClass));
}

TEST_F(ModuleState, AModuleWithoutClassesTakesNobodyElses) {
    AFX_EXTENSION_MODULE resources = {};
    ASSERT_TRUE(AfxInitExtensionModule(resources, ::GetModuleHandleW(L"comctl32.dll")));
    EXPECT_EQ(resources.pFirstSharedClass, nullptr);
    new CDynLinkLibrary(resources);
    AfxTermExtensionModule(resources);
    EXPECT_NE(CRuntimeClass::FromName("CDialog"), nullptr);
}

TEST_F(ModuleState, TheClassLayersOwnTextsAreTheLastResort) {
    AfxSetResourceHandle(this_program());
    const LPCWSTR block = MAKEINTRESOURCEW((AFX_IDP_PARSE_INT >> 4) + 1);
    ASSERT_FALSE(has(this_program(), block, RT_STRING));
    EXPECT_EQ(AfxFindResourceHandle(block, RT_STRING), class_layer());
    CString text;
    EXPECT_TRUE(text.LoadString(AFX_IDP_PARSE_INT));
}

TEST_F(ModuleState, ALibraryLeavesTheChainWhereverItStands) {
    CDynLinkLibrary* const before = AfxGetModuleState()->m_libraryList.GetHead();
    auto* first = new CDynLinkLibrary(this_program(), this_program());
    auto* second = new CDynLinkLibrary(this_program(), this_program());
    delete first;
    EXPECT_EQ(AfxGetModuleState()->m_libraryList.GetHead(), second);
    EXPECT_EQ(second->m_pNextDLL, before);
    delete second;
    EXPECT_EQ(AfxGetModuleState()->m_libraryList.GetHead(), before);
}
