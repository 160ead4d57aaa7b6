#include <ktui/host/module.h>
#include <ktui/host/runtime_module.h>
#include <ktui/host/theme_api.h>

#include <gtest/gtest.h>

#include "test_host.h"

namespace {

/// The module object, deleted at the end of a test.
struct ModuleObject {
    explicit ModuleObject(HMODULE handle) : argument(handle), object(odrxCreateModuleObject(argument)) {}
    ~ModuleObject() {
        if (object) object->deleteModule();
    }
    int dispatch(int message) { return static_cast<OdRxExtendModule*>(object)->dispatch(message, nullptr); }

    HMODULE argument;
    OdRxModule* object;
};

}  // namespace

TEST(RuntimeModule, SecondCreateAnswersTheSameObjectAndLeavesItsArgument) {
    ModuleObject first(::GetModuleHandleW(L"ktui.dll"));
    EXPECT_EQ(first.argument, nullptr);
    HMODULE again = ::GetModuleHandleW(L"ktui.dll");
    EXPECT_EQ(odrxCreateModuleObject(again), first.object);
    EXPECT_NE(again, nullptr);
}

TEST(RuntimeModule, ModuleWithoutEntryPointAnswersThree) {
    ModuleObject module(::GetModuleHandleW(L"kernel32.dll"));
    EXPECT_EQ(module.dispatch(1), 3);
}

TEST(RuntimeModule, ObjectWithoutHandleAnswersThree) {
    ModuleObject module(nullptr);
    EXPECT_EQ(module.dispatch(1), 3);
    EXPECT_EQ(module.object->sysHandle(), nullptr);
}

TEST(RuntimeModule, OwnEntryPointAnswersZeroToEverything) {
    ModuleObject module(::GetModuleHandleW(L"ktui.dll"));
    for (const int message : {0, 1, 2, 99}) EXPECT_EQ(module.dispatch(message), 0);
    module.object->initApp();
    module.object->uninitApp();
}

TEST(RuntimeModule, CountOfZeroLeavesTheObjectAlive) {
    ModuleObject module(::GetModuleHandleW(L"ktui.dll"));
    module.object->addRef();
    module.object->addRef();
    EXPECT_EQ(module.object->numRefs(), 2);
    module.object->release();
    module.object->release();
    module.object->release();
    EXPECT_EQ(module.object->numRefs(), -1);
    EXPECT_TRUE(module.object->isModule());
}

TEST(RuntimeModule, DeletedObjectIsFollowedByANewOne) {
    HMODULE handle = ::GetModuleHandleW(L"ktui.dll");
    odrxCreateModuleObject(handle)->deleteModule();
    ModuleObject second(::GetModuleHandleW(L"kernel32.dll"));
    EXPECT_EQ(second.argument, nullptr) << "a new object takes its argument";
    EXPECT_EQ(second.object->sysHandle(), ::GetModuleHandleW(L"kernel32.dll"));
}

TEST(RuntimeModule, NameIsTheFilesFullPath) {
    ModuleObject module(::GetModuleHandleW(L"ktui.dll"));
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(::GetModuleHandleW(L"ktui.dll"), path, MAX_PATH);
    EXPECT_STREQ(module.object->moduleName().c_str(), path);
}

TEST(RuntimeModule, VersionOfTheRuntime) {
    int version[4] = {-1, -1, -1, -1};
    EXPECT_EQ(odrxGetAPIVersion(version[0], version[1], version[2], version[3]), 0);
    EXPECT_EQ(version[0], 3);
    EXPECT_EQ(version[1], 5);
    EXPECT_EQ(version[2], 0);
    EXPECT_EQ(version[3], 0);
}

TEST(RuntimeModule, ExportsAreFoundByTheirPlainNames) {
    const HMODULE module = ::GetModuleHandleW(L"ktui.dll");
    for (const char* name : {"odrxCreateModuleObject", "odrxGetAPIVersion", "ktrxEntryPoint"})
        EXPECT_NE(::GetProcAddress(module, name), nullptr) << name;
    EXPECT_EQ(::GetProcAddress(module, "acrxEntryPoint"), nullptr);
}

TEST(ModuleLoad, ResourcesComeFromTheResourceLibrary) {
    EXPECT_NE(::GetModuleHandleW(L"ktdsres.dll"), nullptr);
    EXPECT_EQ(KtUiAppResourceInstance(), ::GetModuleHandleW(L"ktdsres.dll"));
    EXPECT_NE(KtUiAppResourceInstance(), ::GetModuleHandleW(L"ktui.dll"));
}

TEST(ModuleLoad, InitialisersChangeNothing) {
    const HINSTANCE before = KtUiAppResourceInstance();
    for (int i = 0; i < 3; ++i) {
        InitKtUiDLL();
        InitKbUiDLL();
    }
    EXPECT_EQ(KtUiAppResourceInstance(), before);
}

TEST(ModuleLoad, BothFilesAreInTheResourceChain) {
    const HMODULE own = ::GetModuleHandleW(L"ktui.dll");
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(108), RT_BITMAP), own);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(1017), RT_GROUP_ICON), own);
    CString text;
    EXPECT_TRUE(text.LoadString(54211));
}

TEST(ModuleLoad, OwnFileHoldsTheApplicationTitle) {
    wchar_t title[32] = {};
    ::LoadStringW(::GetModuleHandleW(L"ktui.dll"), 57344, title, 32);
    EXPECT_STREQ(title, L"Velmora");
}

TEST(ModuleLoad, ClassesOfTheLibraryAreFoundByName) {
    EXPECT_NE(CRuntimeClass::FromName("CKbUiEdit"), nullptr);
    EXPECT_NE(CRuntimeClass::FromName("CKtUiMRUComboBox"), nullptr);
}

TEST(ThemeFallback, OldControlsAnswerAsASystemWithoutThemes) {
    const ThemeApi api = MakeThemeApi(ResolveThemeEntries(0x020600, 0x00050051, SystemThemeLibrary()));
    EXPECT_EQ(api.openThemeData(nullptr, L"BUTTON"), nullptr);
    EXPECT_FALSE(api.isThemeActive());
    EXPECT_FALSE(api.isCompositionActive());
    EXPECT_EQ(api.setWindowTheme(nullptr, L"", L""), E_NOTIMPL);
    EXPECT_EQ(api.bufferedPaintInit(), E_NOTIMPL);
    EXPECT_EQ(api.bufferedPaintUnInit(), E_NOTIMPL);
    EXPECT_EQ(api.bufferedPaintStopAllAnimations(nullptr), E_NOTIMPL);
    EXPECT_EQ(api.beginBufferedAnimation(nullptr, nullptr, nullptr, BPBF_COMPATIBLEBITMAP, nullptr, nullptr,
                                         nullptr, nullptr),
              nullptr);
    DWORD duration = 99;
    EXPECT_EQ(api.getThemeTransitionDuration(nullptr, 0, 0, 0, 0, &duration), E_NOTIMPL);
    EXPECT_EQ(duration, 0u);
    EXPECT_EQ(api.drawThemeBackground, nullptr) << "reached with theme data only";
}

TEST(ThemeFallback, SystemWithThemesBindsItsOwnEntries) {
    const ThemeResolution found = ResolveThemeEntries(0x020600, 0x00060000, SystemThemeLibrary());
    ASSERT_FALSE(found.windowFallback);
    const ThemeApi api = MakeThemeApi(found);
    EXPECT_EQ(reinterpret_cast<void*>(api.openThemeData),
              reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(found.module), "OpenThemeData")));
    EXPECT_NE(api.drawThemeBackground, nullptr);
    SystemThemeLibrary().unload(found.module);
}
