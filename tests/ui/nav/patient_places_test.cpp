// The Places list where it must not wait for drives: plain icons until they come, and clicks that ask first.
#include <ktui/nav/patient_places.h>
#include <ktui/nav/place_shell.h>

#include <atomic>
#include <condition_variable>
#include <map>
#include <mutex>

#include "place_fixture.h"
#include "slow_preview.h"

namespace {

constexpr unsigned kLong = 60000, kShort = 300;

/// Folders that answer when they are let, in this program's calls.
class SlowFolders {
public:
    SlowFolders()
        : m_info(::GetModuleHandleW(nullptr), "SHGetFileInfoW", &fileInfo),
          m_attributes(::GetModuleHandleW(nullptr), "GetFileAttributesW", &attributes) {
        EXPECT_TRUE(m_info.isThere() && m_attributes.isThere());
        state() = State();
    }
    ~SlowFolders() {
        Open();
        EXPECT_TRUE(ui_test::pump_until([] { return Waiting() == 0; }));
    }
    /// The folder at `path` does not answer until Open.
    void Close(const CString& path) {
        const std::lock_guard lock(mutex());
        state().closed = path;
    }
    void Open() {
        const std::lock_guard lock(mutex());
        state().closed.Empty();
        changed().notify_all();
    }
    static int Waiting() {
        const std::lock_guard lock(mutex());
        return state().waiting;
    }
    /// Paths whose icon was asked for of the drive, in order; how many icons were asked for here.
    static std::vector<std::wstring> IconsAsked() {
        const std::lock_guard lock(mutex());
        return state().icons;
    }
    static int AskedHere() {
        const std::lock_guard lock(mutex());
        return state().here;
    }

private:
    struct State {
        CString closed;
        int waiting = 0;
        std::vector<std::wstring> icons;
        int here = 0;
        DWORD thread = ::GetCurrentThreadId();
    };
    static State& state() {
        static State one;
        return one;
    }
    static std::mutex& mutex() {
        static std::mutex one;
        return one;
    }
    static std::condition_variable& changed() {
        static std::condition_variable one;
        return one;
    }
    static void pass(const wchar_t* path) {
        std::unique_lock lock(mutex());
        if (::GetCurrentThreadId() == state().thread) ++state().here;
        ++state().waiting;
        changed().wait(lock, [&] { return state().closed.IsEmpty() || state().closed != path; });
        --state().waiting;
    }
    /// The system's own, past what stands in for it here.
    template <class Function>
    static Function* systems(const wchar_t* module, const char* name) {
        return reinterpret_cast<Function*>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(module), name)));
    }
    static DWORD_PTR WINAPI fileInfo(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size,
                                     UINT flags) {
        if (!(flags & SHGFI_USEFILEATTRIBUTES)) {
            if (flags & SHGFI_ICON) {
                const std::lock_guard lock(mutex());
                state().icons.push_back(path);
            }
            pass(path);
        }
        return systems<decltype(fileInfo)>(L"shell32.dll", "SHGetFileInfoW")(path, attributes, info, size,
                                                                             flags);
    }
    static DWORD WINAPI attributes(const wchar_t* path) {
        pass(path);
        return systems<decltype(attributes)>(L"kernel32.dll", "GetFileAttributesW")(path);
    }
    ui_test::ReplacedImport m_info, m_attributes;
};

class PatientPlacesList : public PlacesTest {
protected:
    /// What the icon of a row looks like, pixel by pixel.
    std::vector<COLORREF> iconOf(int row) const { return pixelsOf(item(row).m_icon); }
    static std::vector<COLORREF> pixelsOf(HICON icon) {
        CDC memory;
        memory.CreateCompatibleDC(nullptr);
        CBitmap bitmap;
        CClientDC screen(nullptr);
        bitmap.CreateCompatibleBitmap(&screen, 32, 32);
        const HGDIOBJ former = ::SelectObject(memory, bitmap);
        memory.FillSolidRect(0, 0, 32, 32, RGB(1, 2, 3));
        ::DrawIconEx(memory, 0, 0, icon, 32, 32, 0, nullptr, DI_NORMAL);
        std::vector<COLORREF> pixels;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) pixels.push_back(memory.GetPixel(x, y));
        ::SelectObject(memory, former);
        return pixels;
    }
    static std::vector<COLORREF> plain() {
        const HICON icon = PlainFolderIcon();
        const std::vector<COLORREF> pixels = pixelsOf(icon);
        ::DestroyIcon(icon);
        return pixels;
    }
    std::vector<COLORREF> real(const CString& path) const {
        const HICON icon = PlaceIcon(path);
        const std::vector<COLORREF> pixels = pixelsOf(icon);
        ::DestroyIcon(icon);
        return pixels;
    }
    SlowFolders folders;
};

const wchar_t kMyComputer[] = L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}";

}  // namespace

TEST_F(PatientPlacesList, WithoutALimitIconsAreThereAtOnceAndReadHere) {
    openWith({L"one", L"two"});
    EXPECT_EQ(SlowFolders::IconsAsked().size(), 2u);
    EXPECT_EQ(iconOf(0), real(folder(L"one")));
    EXPECT_GE(SlowFolders::AskedHere(), 2);
}

TEST_F(PatientPlacesList, APlaceShowsAPlainFolderUntilItsIconComes) {
    const NeverBlocked limit(kLong);
    folders.Close(kMyComputer);
    storePlace(0, kMyComputer, L"computer");
    storePlace(1, folder(L"two"), L"two");
    storePlace(2, L"", nullptr);
    open();
    ASSERT_EQ(list->GetCount(), 2);
    EXPECT_EQ(SlowFolders::AskedHere(), 0) << "no drive is asked here";
    ASSERT_TRUE(ui_test::pump_until([] { return SlowFolders::Waiting() == 1; }));
    EXPECT_EQ(iconOf(0), plain());
    EXPECT_EQ(iconOf(1), plain());
    list->ValidateRect(nullptr);
    folders.Open();
    ASSERT_TRUE(ui_test::pump_until([&] { return item(1).m_iconRequest == 0; }));
    EXPECT_EQ(iconOf(0), real(kMyComputer));
    EXPECT_NE(iconOf(0), plain());
    // In the order of the rows.
    ASSERT_GE(SlowFolders::IconsAsked().size(), 2u);
    EXPECT_EQ(SlowFolders::IconsAsked()[0], kMyComputer);
    EXPECT_EQ(SlowFolders::IconsAsked()[1], folder(L"two").GetString());
}

TEST_F(PatientPlacesList, AnIconThatDoesNotComeInTimeIsGivenUpAndTheNextOneRead) {
    const NeverBlocked limit(kShort);
    folders.Close(folder(L"one"));
    storePlace(0, folder(L"one"), L"one");
    storePlace(1, kMyComputer, L"computer");
    storePlace(2, L"", nullptr);
    open();
    ASSERT_TRUE(ui_test::pump_until([&] { return item(1).m_iconRequest == 0; }));
    EXPECT_EQ(iconOf(1), real(kMyComputer));
    EXPECT_EQ(iconOf(0), plain());
    EXPECT_EQ(SlowFolders::Waiting(), 1);
    folders.Open();
    ASSERT_TRUE(ui_test::pump_until([] { return SlowFolders::Waiting() == 0; }));
    ui_test::pump_until([] { return false; }, 100);
    EXPECT_NE(item(0).m_iconRequest, 0u) << "late";
}

/// Threads that have read, and are kept from saying so until it goes.
class SilentThreads {
public:
    SilentThreads() : m_leaves(::GetModuleHandleW(nullptr), "CoUninitialize", &leave) {
        EXPECT_TRUE(m_leaves.isThere());
        waiting() = 0;
        isOpen() = false;
    }
    ~SilentThreads() {
        Open();
        EXPECT_TRUE(ui_test::pump_until([] { return waiting() == 0; }));
    }
    static void Open() {
        isOpen() = true;
        isOpen().notify_all();
    }
    static std::atomic<int>& waiting() {
        static std::atomic<int> count = 0;
        return count;
    }

private:
    static std::atomic<bool>& isOpen() {
        static std::atomic<bool> open = false;
        return open;
    }
    static void WINAPI leave() {
        // By its name: this module's own calls come here.
        static const auto leaves = reinterpret_cast<decltype(&::CoUninitialize)>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"ole32.dll"), "CoUninitialize")));
        ++waiting();
        isOpen().wait(false);
        leaves();
        --waiting();
    }
    ui_test::ReplacedImport m_leaves;
};

TEST_F(PatientPlacesList, AnIconThatWasReadButNotToldInTimeIsGivenUp) {
    const NeverBlocked limit(kShort);
    storePlace(0, kMyComputer, L"computer");
    storePlace(1, L"", nullptr);
    const SilentThreads threads;
    open();
    ASSERT_TRUE(ui_test::pump_until([] { return SilentThreads::waiting() == 1; }));
    ui_test::pump_until([] { return false; }, 2 * kShort);
    EXPECT_EQ(iconOf(0), plain());
    EXPECT_NE(item(0).m_iconRequest, 0u);
    SilentThreads::Open();
    ASSERT_TRUE(ui_test::pump_until([] { return SilentThreads::waiting() == 0; }));
    ui_test::pump_until([] { return false; }, 100);
    EXPECT_EQ(iconOf(0), plain()) << "late";
}

TEST_F(PatientPlacesList, IconsFindTheirRowsWhereverTheyHaveGone) {
    const NeverBlocked limit(kLong);
    folders.Close(kMyComputer);
    storePlace(0, kMyComputer, L"computer");
    storePlace(1, folder(L"two"), L"two");
    storePlace(2, folder(L"one"), L"one");
    storePlace(3, L"", nullptr);
    open();
    drag(0, CPoint(20, rectOf(2).bottom + 5));
    ASSERT_EQ(captions(), L"two|one|computer");
    // A row that goes meanwhile takes nothing with it.
    delete &item(0);
    list->DeleteString(0);
    folders.Open();
    ASSERT_TRUE(ui_test::pump_until([&] { return item(0).m_iconRequest == 0; }));
    EXPECT_EQ(iconOf(1), real(kMyComputer));
}

TEST_F(PatientPlacesList, TheListGoesAtOnceWhileIconsAreRead) {
    const NeverBlocked limit(kLong);
    folders.Close(folder(L"one"));
    openWith({L"one", L"two"});
    ASSERT_TRUE(ui_test::pump_until([] { return SlowFolders::Waiting() == 1; }));
    const auto start = ::GetTickCount64();
    list->FreePlaces();
    list.reset();
    EXPECT_LT(::GetTickCount64() - start, 1000u);
    EXPECT_EQ(SlowFolders::Waiting(), 1);
    folders.Open();
    EXPECT_TRUE(ui_test::pump_until([] { return SlowFolders::Waiting() == 0; }));
    ui_test::pump();
}

TEST_F(PatientPlacesList, AClickAsksWhetherTheFolderAnswersAndThenGoesThere) {
    const NeverBlocked limit(kLong);
    openWith({L"one", L"two"});
    folders.Close(folder(L"two"));
    click(1);
    EXPECT_TRUE(platform.visited.empty()) << "not before it answers";
    folders.Open();
    EXPECT_TRUE(ui_test::pump_until([&] { return !platform.visited.empty(); }));
    EXPECT_EQ(platform.visited, std::vector<std::wstring>{folder(L"two").GetString()});
    EXPECT_EQ(dialog.folderChanges.size(), 1u);
}

TEST_F(PatientPlacesList, AFolderThatDoesNotAnswerIsNotGoneToAndTheSelectionGoesBack) {
    const NeverBlocked limit(kShort);
    openWith({L"one", L"two"});
    platform.folder = folder(L"one");
    list->SyncSelection();
    ASSERT_EQ(list->GetCurSel(), 0);
    folders.Close(folder(L"two"));
    click(1);
    ASSERT_EQ(list->GetCurSel(), 1);
    EXPECT_TRUE(ui_test::pump_until([&] { return list->GetCurSel() == 0; }));
    folders.Open();
    ui_test::pump_until([] { return false; }, 100);
    EXPECT_TRUE(platform.visited.empty()) << "late";
}

TEST_F(PatientPlacesList, OfTwoClicksTheLaterOneCounts) {
    const NeverBlocked limit(kLong);
    openWith({L"one", L"two"});
    folders.Close(folder(L"one"));
    click(0);
    ASSERT_TRUE(ui_test::pump_until([] { return SlowFolders::Waiting() == 1; }));
    click(1);
    EXPECT_TRUE(ui_test::pump_until([&] { return !platform.visited.empty(); }));
    folders.Open();
    ui_test::pump_until([] { return false; }, 100);
    EXPECT_EQ(platform.visited, std::vector<std::wstring>{folder(L"two").GetString()});
}

TEST_F(PatientPlacesList, AFileThatIsNoFolderIsNotGoneTo) {
    const NeverBlocked limit(kLong);
    storePlace(0, folder(L"file.dwg"), L"file");
    storePlace(1, folder(L"two"), L"two");
    storePlace(2, L"", nullptr);
    open();
    click(0);
    ui_test::pump_until([] { return false; }, 150);
    click(1);
    EXPECT_TRUE(ui_test::pump_until([&] { return !platform.visited.empty(); }));
    EXPECT_EQ(platform.visited, std::vector<std::wstring>{folder(L"two").GetString()});
}

TEST_F(PatientPlacesList, StandardFoldersHaveTheSameCaptionsWithoutAskingADrive) {
    open();
    const std::wstring waiting = captions();
    EXPECT_GT(SlowFolders::AskedHere(), 0);
    const int before = SlowFolders::AskedHere();
    const NeverBlocked limit(kLong);
    open();
    EXPECT_EQ(captions(), waiting);
    EXPECT_EQ(SlowFolders::AskedHere(), before);
}

TEST_F(PatientPlacesList, AFolderThatIsDroppedGetsItsIconLater) {
    const NeverBlocked limit(kLong);
    openWith({L"one"});
    ASSERT_TRUE(ui_test::pump_until([&] { return item(0).m_iconRequest == 0; }));
    drop({folder(L"two")});
    ASSERT_EQ(list->GetCount(), 2);
    EXPECT_NE(item(1).m_iconRequest, 0u);
    EXPECT_TRUE(ui_test::pump_until([&] { return item(1).m_iconRequest == 0; }));
    EXPECT_EQ(SlowFolders::IconsAsked().size(), 2u);
}

TEST_F(PatientPlacesList, WhetherAFolderAnswersIsKnownWithinTheLimit) {
    EXPECT_TRUE(FolderAnswers(folder(L"one"), kLong));
    EXPECT_TRUE(FolderAnswers(L"C:\\no such folder", kLong)) << "it answers that it isn't there";
    folders.Close(folder(L"one"));
    const auto start = ::GetTickCount64();
    bool isPosted = false;
    ui_test::later([&] { isPosted = true; }, 1);
    EXPECT_FALSE(FolderAnswers(folder(L"one"), kShort));
    const auto lasted = ::GetTickCount64() - start;
    EXPECT_GE(lasted, kShort - 20);
    EXPECT_LT(lasted, kShort + 1500);
    EXPECT_FALSE(isPosted) << "the host's messages wait";
    EXPECT_TRUE(ui_test::pump_until([&] { return isPosted; }));
}

TEST_F(PatientPlacesList, AQuitThatComesMeanwhileIsKept) {
    folders.Close(folder(L"one"));
    ::PostQuitMessage(7);
    EXPECT_TRUE(FolderAnswers(folder(L"one"), kLong));
    MSG message = {};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}
