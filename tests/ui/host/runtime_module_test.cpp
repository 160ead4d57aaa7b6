// The library as the drawing runtime sees it: its module object and its plain exports.
#include <ktui/host/runtime_module.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "entry_points.h"
#include "replaced_import.h"
#include "ui_test.h"

namespace {

HMODULE toolkit() { return ::GetModuleHandleW(L"ktui.dll"); }

/// The module object, deleted at the end of a test.
struct ModuleObject {
    explicit ModuleObject(HMODULE handle) : argument(handle), object(odrxCreateModuleObject(argument)) {}
    ~ModuleObject() {
        if (object) object->deleteModule();
    }
    int dispatch(int message, void* packet = nullptr) {
        return static_cast<OdRxExtendModule*>(object)->dispatch(message, packet);
    }

    HMODULE argument;
    OdRxModule* object;
};

/// A module with entry points that write down what they are told.
struct NotingModule {
    explicit NotingModule(const wchar_t* name) : handle(::LoadLibraryW(name)) {
        last = reinterpret_cast<LastEntryCall>(
            reinterpret_cast<void*>(::GetProcAddress(handle, "lastEntryCall")));
    }
    ~NotingModule() { ::FreeLibrary(handle); }

    HMODULE handle;
    LastEntryCall last;
};

std::vector<std::string> soughtNames;

FARPROC WINAPI NoteSearch(HMODULE module, LPCSTR name) {
    soughtNames.emplace_back(name);
    return ::GetProcAddress(module, name);
}

std::vector<std::size_t> allocations;
std::vector<void*> freed;
void* allocated = nullptr;

void* NoteAllocation(std::size_t size) {
    allocations.push_back(size);
    // With room to spare, so that a wrong size shows as such and spoils nothing.
    return allocated = odrxAlloc(size + 4096);
}

void NoteFree(void* memory) {
    freed.push_back(memory);
    if (memory) odrxFree(memory);
}

}  // namespace

TEST(RuntimeModule, SecondCreateAnswersTheSameObjectAndLeavesItsArgument) {
    ModuleObject first(toolkit());
    EXPECT_EQ(first.argument, nullptr);
    HMODULE again = toolkit();
    EXPECT_EQ(odrxCreateModuleObject(again), first.object);
    EXPECT_EQ(again, toolkit());
}

TEST(RuntimeModule, ObjectIsNewWithItsHandleAndACountOfZero) {
    ModuleObject module(toolkit());
    EXPECT_EQ(module.object->sysHandle(), toolkit());
    EXPECT_EQ(module.object->numRefs(), 0);
    EXPECT_TRUE(module.object->isModule());
}

TEST(RuntimeModule, ObjectLivesInTheRuntimesMemory) {
    const ui_test::ReplacedImport allocate(toolkit(), "_Z9odrxAllocy", &NoteAllocation);
    const ui_test::ReplacedImport release(toolkit(), "_Z8odrxFreePv", &NoteFree);
    ASSERT_TRUE(allocate.isThere() && release.isThere());
    allocations.clear();
    freed.clear();
    {
        ModuleObject module(toolkit());
        EXPECT_EQ(allocations, std::vector<std::size_t>{sizeof(ToolkitRuntimeModule)});
        EXPECT_TRUE(freed.empty());
    }
    EXPECT_EQ(freed, std::vector<void*>{allocated});
}

TEST(RuntimeModule, ModuleWithoutEntryPointAnswersThree) {
    ModuleObject module(::GetModuleHandleW(L"kernel32.dll"));
    EXPECT_EQ(module.dispatch(1), 3);
}

TEST(RuntimeModule, ObjectWithoutHandleSeeksNothingAndAnswersThree) {
    const ui_test::ReplacedImport search(toolkit(), "GetProcAddress", &NoteSearch);
    soughtNames.clear();
    ModuleObject module(nullptr);
    EXPECT_EQ(module.dispatch(1), 3);
    EXPECT_EQ(module.object->sysHandle(), nullptr);
    EXPECT_TRUE(soughtNames.empty());
}

TEST(RuntimeModule, EntryPointIsSoughtByItsFirstNameThenByTheOther) {
    const ui_test::ReplacedImport search(toolkit(), "GetProcAddress", &NoteSearch);
    soughtNames.clear();
    ModuleObject module(::GetModuleHandleW(L"kernel32.dll"));
    module.dispatch(1);
    EXPECT_EQ(soughtNames, (std::vector<std::string>{"ktrxEntryPoint", "acrxEntryPoint"}));
}

TEST(RuntimeModule, FirstNameWinsForTheLifeOfTheObject) {
    NotingModule both(L"both_entry_points.dll");
    ASSERT_NE(both.last, nullptr);
    const ui_test::ReplacedImport search(toolkit(), "GetProcAddress", &NoteSearch);
    soughtNames.clear();
    ModuleObject module(both.handle);
    for (const int message : {7, 8, 9}) {
        int packet = 0;
        EXPECT_EQ(module.dispatch(message, &packet), kEntryAnswer + message);
        EXPECT_EQ(both.last()->name, 1);
        EXPECT_EQ(both.last()->message, message);
        EXPECT_EQ(both.last()->packet, &packet);
    }
    EXPECT_EQ(soughtNames, std::vector<std::string>{"ktrxEntryPoint"}) << "sought once";
}

TEST(RuntimeModule, SecondNameServesWhereTheFirstIsMissing) {
    NotingModule second(L"second_entry_point.dll");
    ASSERT_NE(second.last, nullptr);
    ModuleObject module(second.handle);
    int packet = 0;
    EXPECT_EQ(module.dispatch(12, &packet), kEntryAnswer + 12);
    EXPECT_EQ(second.last()->name, 2);
    EXPECT_EQ(second.last()->packet, &packet);
}

TEST(RuntimeModule, InitAndUninitAreMessagesOneAndTwoWithTheObjectAsPacket) {
    NotingModule both(L"both_entry_points.dll");
    ASSERT_NE(both.last, nullptr);
    ModuleObject module(both.handle);
    const void* const self = module.object;
    module.object->initApp();
    EXPECT_EQ(both.last()->count, 1);
    EXPECT_EQ(both.last()->message, 1);
    EXPECT_EQ(both.last()->packet, self);
    module.object->uninitApp();
    EXPECT_EQ(both.last()->count, 2);
    EXPECT_EQ(both.last()->message, 2);
    EXPECT_EQ(both.last()->packet, self);
}

TEST(RuntimeModule, OwnEntryPointAnswersZeroToEverything) {
    ModuleObject module(toolkit());
    for (const int message : {0, 1, 2, 99}) {
        EXPECT_EQ(module.dispatch(message), 0);
        EXPECT_EQ(ktrxEntryPoint(message, &module), 0);
    }
}

TEST(RuntimeModule, CountOfZeroLeavesTheObjectAlive) {
    ModuleObject module(toolkit());
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
    HMODULE handle = toolkit();
    odrxCreateModuleObject(handle)->deleteModule();
    ModuleObject second(::GetModuleHandleW(L"kernel32.dll"));
    EXPECT_EQ(second.argument, nullptr) << "a new object takes its argument";
    EXPECT_EQ(second.object->sysHandle(), ::GetModuleHandleW(L"kernel32.dll"));
}

TEST(RuntimeModule, NameIsTheFilesFullPath) {
    for (const wchar_t* file : {L"ktui.dll", L"kernel32.dll"}) {
        ModuleObject module(::GetModuleHandleW(file));
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileNameW(::GetModuleHandleW(file), path, MAX_PATH);
        EXPECT_STREQ(module.object->moduleName().c_str(), path);
    }
}

namespace {

DWORD statedPathSize = 0;

DWORD WINAPI NotePathSize(HMODULE, LPWSTR path, DWORD size) {
    statedPathSize = size;
    lstrcpynW(path, L"X:\\told.dll", static_cast<int>(size));
    return 11;
}

}  // namespace

TEST(RuntimeModule, NameIsReadInto260Characters) {
    const ui_test::ReplacedImport told(toolkit(), "GetModuleFileNameW", &NotePathSize);
    ASSERT_TRUE(told.isThere());
    ModuleObject module(toolkit());
    EXPECT_STREQ(module.object->moduleName().c_str(), L"X:\\told.dll");
    EXPECT_EQ(statedPathSize, 260u);
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
    for (const char* name : {"odrxCreateModuleObject", "odrxGetAPIVersion", "ktrxEntryPoint"})
        EXPECT_NE(::GetProcAddress(toolkit(), name), nullptr) << name;
    EXPECT_EQ(::GetProcAddress(toolkit(), "acrxEntryPoint"), nullptr);
}
