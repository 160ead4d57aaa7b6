// The walk that visits each folder once, in the find dialog and over the system's files.
#include <ktui/nav/find_batch.h>
#include <ktui/nav/find_mask.h>
#include <ktui/nav/find_once_walk.h>
#include <ktui/nav/find_system_files.h>

#include "find_fixture.h"
#include "sent_messages.h"

namespace {

class FindOnceTest : public FindTest {
protected:
    FindOnceTest() { KtUiSetFindFileWalk(kKtUiFindOnce); }
};

TEST_F(FindOnceTest, TheSettledWalkIsTheFirst) {
    EXPECT_EQ(KtUiSetFindFileWalk(kKtUiFindSettled), kKtUiFindOnce);
    EXPECT_EQ(KtUiFindFileWalk(), kKtUiFindSettled);
    EXPECT_EQ(KtUiSetFindFileWalk(static_cast<KTUI_FIND_FILE_WALK>(7)), kKtUiFindSettled);
    EXPECT_EQ(KtUiFindFileWalk(), kKtUiFindSettled);
    EXPECT_EQ(KtUiSetFindFileWalk(kKtUiFindOnce), kKtUiFindSettled);
    EXPECT_EQ(KtUiFindFileWalk(), kKtUiFindOnce);
}

TEST_F(FindOnceTest, ListsEachFileOnceWithItsFacts) {
    makeFolder(L"sub");
    makeFile(L"one.dwg", 10001);
    makeFile(L"sub\\two.dxf", 5);
    setWritten(L"one.dwg", 1'600'000'000);
    std::wstring settledTime;
    KtUiSetFindFileWalk(kKtUiFindSettled);
    run(
        [&] {
            search();
            for (int row = 0; row < rows(); ++row)
                if (cell(row, 0) == L"one.dwg") settledTime = cell(row, 4);
            EXPECT_EQ(rows(), 3);
            cancel();
        },
        2);
    KtUiSetFindFileWalk(kKtUiFindOnce);
    run(
        [&] {
            search();
            EXPECT_EQ(column(0), (FoundTexts{L"one.dwg", L"two.dxf"}));
            EXPECT_EQ(column(1),
                      (FoundTexts{root.Left(root.GetLength() - 1).GetString(), (root + L"sub").GetString()}));
            EXPECT_EQ(column(2), (FoundTexts{L"11 KB", L"5 B"}));
            EXPECT_EQ(cell(0, 4), settledTime);
            EXPECT_NE(cell(0, 3), L"");
            EXPECT_NE(cell(0, 3), cell(1, 3));
            EXPECT_EQ(status(), L"2 file(s) found.");
            EXPECT_TRUE(isEnabled(IDOK));
            command(IDOK);
        },
        2);
    EXPECT_EQ(outFile, L"one.dwg");
}

TEST_F(FindOnceTest, ManyRowsComeInFewMessagesWithOneImageForEachType) {
    constexpr int kFiles = 600;
    for (int i = 0; i < kFiles; ++i) {
        CString name;
        name.Format(i % 2 ? L"%d.dwg" : L"%d.DXF", i);
        makeFile(name);
    }
    int batches = 0, single = 0;
    size_t largest = 0;
    const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd != dialog) return;
        if (message.message == WM_FIND_FILE || message.message == WM_FIND_STATUS) ++single;
        if (message.message != WM_FIND_BATCH) return;
        ++batches;
        largest = std::max(largest, reinterpret_cast<const FindBatch*>(message.lParam)->m_files.size());
    });
    run([&] {
        search();
        EXPECT_EQ(rows(), kFiles);
        EXPECT_EQ(single, 0);
        EXPECT_LT(batches, kFiles / 4);
        EXPECT_LE(largest, FindBatcher::kMostFiles);
        const auto images =
            reinterpret_cast<HIMAGELIST>(::SendMessageW(list(), LVM_GETIMAGELIST, LVSIL_SMALL, 0));
        EXPECT_EQ(::ImageList_GetImageCount(images), 2);
        cancel();
    });
}

TEST_F(FindOnceTest, TheListStaysAliveAtAHundredThousandRows) {
    constexpr int kRows = 100'000;
    FindBatch batch;
    batch.m_folder = L"C:\\drawings\\";
    run([&] {
        for (int i = 0; i < kRows; i += 250) {
            batch.m_files.clear();
            for (int j = 0; j < 250; ++j) {
                CString name;
                name.Format(L"%06d.dwg", (i + j) * 7 % kRows);
                batch.m_files.push_back(
                    {batch.m_folder, name, static_cast<unsigned long long>(i), 1'600'000'000});
            }
            ::SendMessageW(dialog, WM_FIND_BATCH, 0, reinterpret_cast<LPARAM>(&batch));
        }
        EXPECT_EQ(rows(), kRows);
        // One more row must not go through those that are there.
        int messages = 0;
        batch.m_files.resize(1);
        {
            const ui_test::SentMessages watch(
                [&](const CWPSTRUCT& message) { messages += message.hwnd == list(); });
            ::SendMessageW(dialog, WM_FIND_BATCH, 0, reinterpret_cast<LPARAM>(&batch));
            ::SendMessageW(list(), LVM_ENSUREVISIBLE, kRows, FALSE);
            ::UpdateWindow(list());
        }
        EXPECT_GT(messages, 0);
        EXPECT_LT(messages, 100);
        EXPECT_EQ(status(), L"(100001) - C:\\drawings\\");
        clickColumn(0);
        EXPECT_EQ(cell(0, 0), L"000000.dwg");
        EXPECT_EQ(cell(kRows, 0), L"099999.dwg");
        cancel();
    });
}

TEST_F(FindOnceTest, FoldersHaveOneIdentityByAnySpelling) {
    makeFolder(L"sub");
    const FindSystemFiles files;
    CString upper = root;
    upper.MakeUpper();
    EXPECT_EQ(files.Identity(root), files.Identity(upper));
    EXPECT_EQ(files.Identity(root), files.Identity(root + L"sub\\..\\"));
    EXPECT_NE(files.Identity(root), files.Identity(root + L"sub\\"));
    EXPECT_EQ(files.Identity(L"Q:\\No\\"), L"q:\\no\\");
    EXPECT_EQ(files.Drives(), ::GetLogicalDrives());
}

TEST_F(FindOnceTest, TheSystemsListingTellsWhatAFileIs) {
    makeFolder(L"sub");
    makeFile(L"h.dwg", 7);
    setWritten(L"h.dwg", 1'234'567'890);
    ::SetFileAttributesW(root + L"h.dwg", FILE_ATTRIBUTE_HIDDEN);
    const auto listing = FindSystemFiles().List();
    ASSERT_TRUE(listing->Begin(root + L"h*"));
    EXPECT_FALSE(listing->Next());
    EXPECT_EQ(listing->Name(), L"h.dwg");
    EXPECT_TRUE(listing->IsHidden());
    EXPECT_FALSE(listing->IsFolder());
    EXPECT_FALSE(listing->IsDots());
    EXPECT_FALSE(listing->IsLink());
    EXPECT_EQ(listing->Length(), 7u);
    EXPECT_EQ(listing->LastWrite(), 1'234'567'890);
    ASSERT_TRUE(listing->Begin(root + L"*"));
    int dots = 0, folders = 0, entries = 0;
    for (bool more = true; more; ++entries) {
        more = listing->Next();
        dots += listing->IsDots();
        folders += listing->IsFolder();
    }
    EXPECT_EQ(entries, 4);
    EXPECT_EQ(dots, 2);
    EXPECT_EQ(folders, 3);
    EXPECT_FALSE(listing->Begin(root + L"nothing*"));
}

TEST_F(FindOnceTest, MasksFitWhatTheSystemLists) {
    // Names that are short themselves, for the system goes by short names, too.
    for (const wchar_t* name : {L"README", L"a", L"ab", L"abc", L"ab.dwg", L"abc.DWG", L"p1.dxf", L"q2"})
        makeFile(name);
    for (const wchar_t* mask :
         {L"*.dwg", L"*", L"*.*", L"a*", L"*b*.dwg", L"a*.d*g", L"abc.dwg", L"a?.dwg", L"*a*b*"}) {
        FoundTexts listed, fitting;
        const auto listing = FindSystemFiles().List();
        for (bool more = listing->Begin(root + mask); more;) {
            more = listing->Next();
            if (!listing->IsFolder()) listed.emplace_back(listing->Name().GetString());
        }
        const FindMask own(mask);
        for (bool more = listing->Begin(root + L"*"); more;) {
            more = listing->Next();
            if (!listing->IsFolder() && own.Matches(listing->Name()))
                fitting.emplace_back(listing->Name().GetString());
        }
        std::sort(listed.begin(), listed.end());
        std::sort(fitting.begin(), fitting.end());
        EXPECT_EQ(fitting, listed) << CStringA(mask);
        EXPECT_FALSE(listed.empty()) << CStringA(mask);
    }
}

}  // namespace
