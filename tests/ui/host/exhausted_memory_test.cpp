// What happens when memory runs out while the library loads or makes its module object.
#include <filesystem>
#include <string>

#include <ktui/host/runtime_module.h>

#include "exhausted_load_probe.h"
#include "probe.h"
#include "scarce_memory.h"
#include "ui_test.h"

namespace {

/// Loads the toolkit in a process of its own with `granted` requests for memory and then none, or all but
/// one.
DWORD loadWith(int granted, const wchar_t* refused) {
    const std::filesystem::path folder =
        std::filesystem::path(ui_test::program_path().GetString()).parent_path();
    const std::wstring probe = (folder / L"exhausted_load_probe.exe").wstring();
    return ui_test::run_probe(L"\"" + probe + L"\" " + std::to_wstring(granted) + L" " + refused,
                              folder.wstring());
}

/// Refuses one request after the other until the load needs no more; answers how often the library was loaded
/// all the same. No request may end the process.
int timesLoaded(const wchar_t* refused) {
    constexpr int kMostRequests = 200;
    int loaded = 0;
    for (int granted = 0; granted < kMostRequests; ++granted) {
        const DWORD code = loadWith(granted, refused);
        if (code == kProbeNothingRefused) {
            EXPECT_GT(granted, 0) << "the load asked for no memory at all";
            return loaded;
        }
        EXPECT_TRUE(code == kProbeLoaded || code == kProbeLoadRefused) << granted << ": " << code;
        if (code == kProbeLoaded) ++loaded;
    }
    ADD_FAILURE() << "the load asks for memory without end";
    return loaded;
}

}  // namespace

TEST(ExhaustedMemory, ALoadThatIsRefusedOneRequestThrowsNothingAndDoesWithoutTheModuleChain) {
    EXPECT_GE(timesLoaded(L"one"), 2) << "the two modules that join the chain";
}

TEST(ExhaustedMemory, ALoadThatIsRefusedAllRequestsFromOneOnThrowsNothing) {
    EXPECT_GE(timesLoaded(L"all"), 1);
}

TEST(ExhaustedMemory, WithoutMemoryThereIsNoModuleObjectAndTheHandleStays) {
    static_assert(noexcept(ToolkitRuntimeModule::operator new(1)));
    ASSERT_TRUE(ui_test::watch_malloc(::GetModuleHandleW(L"odrt.dll")));
    HMODULE handle = ::GetModuleHandleW(L"ktui.dll");
    ui_test::refusedRequests = 0;
    ui_test::grantedRequests = 0;
    OdRxModule* const none = odrxCreateModuleObject(handle);
    ui_test::grantedRequests = -1;
    EXPECT_EQ(ui_test::refusedRequests, 1);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(handle, ::GetModuleHandleW(L"ktui.dll"));
    OdRxModule* const made = odrxCreateModuleObject(handle);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(handle, nullptr);
    made->deleteModule();
}
