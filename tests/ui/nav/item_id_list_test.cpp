// Identifier lists of the shell go back to the shell's allocator.
#include <ktui/nav/nav_data.h>

#include <shlobj.h>

#include <vector>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

/// The shell's allocator, which notes what it is given back.
class NotedMalloc : public IMalloc {
public:
    std::vector<void*> freed;
    int references = 0;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references); }
    void* STDMETHODCALLTYPE Alloc(SIZE_T size) override { return ::CoTaskMemAlloc(size); }
    void* STDMETHODCALLTYPE Realloc(void* block, SIZE_T size) override {
        return ::CoTaskMemRealloc(block, size);
    }
    void STDMETHODCALLTYPE Free(void* block) override { freed.push_back(block); }
    SIZE_T STDMETHODCALLTYPE GetSize(void*) override { return 0; }
    int STDMETHODCALLTYPE DidAlloc(void*) override { return 1; }
    void STDMETHODCALLTYPE HeapMinimize() override {}
};

class IdListTest : public ::testing::Test {
protected:
    static NotedMalloc*& allocator() {
        static NotedMalloc* noted = nullptr;
        return noted;
    }
    static HRESULT WINAPI tells(IMalloc** found) {
        *found = allocator();
        if (allocator() == nullptr) return E_FAIL;
        allocator()->AddRef();
        return S_OK;
    }
    ITEMIDLIST list = {};
    ui_test::ReplacedImport m_tells{::GetModuleHandleW(L"ktui.dll"), "SHGetMalloc", &tells};
};

TEST_F(IdListTest, AnItemFreesItsListOnce) {
    NotedMalloc noted;
    allocator() = &noted;
    ASSERT_TRUE(m_tells.isThere());
    {
        CNavData data;
        data.SetID(&list);
        EXPECT_TRUE(noted.freed.empty());
    }
    EXPECT_EQ(noted.freed, (std::vector<void*>{&list}));
    EXPECT_EQ(noted.references, 0);
    allocator() = nullptr;
}

TEST_F(IdListTest, AnElementRemovedFreesItsListToo) {
    NotedMalloc noted;
    allocator() = &noted;
    CNavDataArray array;
    array.AddData()->SetID(&list);
    array.AddData();
    array.RemoveData(0);
    EXPECT_EQ(noted.freed, (std::vector<void*>{&list}));
    array.RemoveData(0);
    EXPECT_EQ(noted.freed.size(), 1u) << "has no list";
    allocator() = nullptr;
}

TEST_F(IdListTest, AFormerListIsNotFreed) {
    NotedMalloc noted;
    allocator() = &noted;
    ITEMIDLIST second = {};
    {
        CNavData data;
        data.SetID(&list);
        data.SetID(&second);
    }
    EXPECT_EQ(noted.freed, (std::vector<void*>{&second}));
    allocator() = nullptr;
}

TEST_F(IdListTest, WithoutAnAllocatorTheListStays) {
    NotedMalloc noted;
    allocator() = nullptr;
    {
        CNavData data;
        data.SetID(&list);
    }
    EXPECT_TRUE(noted.freed.empty());
    EXPECT_EQ(list.mkid.cb, 0);
}

TEST(IdListOfTheShell, GoesBackToIt) {
    ITEMIDLIST* desktop = nullptr;
    ASSERT_EQ(::SHGetSpecialFolderLocation(nullptr, CSIDL_PERSONAL, &desktop), S_OK);
    IMalloc* shell = nullptr;
    ASSERT_EQ(::SHGetMalloc(&shell), S_OK);
    ASSERT_EQ(shell->DidAlloc(desktop), 1);
    {
        CNavData data;
        data.SetID(desktop);
    }
    EXPECT_NE(shell->DidAlloc(desktop), 1);
    shell->Release();
}

}  // namespace
