// What the drafter says outside its dialogs.
#include <afxres.h>

#include "../../../samples/drafter/ask_file.h"
#include "../../../samples/drafter/properties_dialog.h"
#include "drafter_fixture.h"

using namespace ui_test;

namespace {

CString temporaryFile(const wchar_t* name) {
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    return CString(folder) + name;
}

bool exists(const CString& path) { return ::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES; }

}  // namespace

TEST_F(DrafterTest, AFileThatCanBeWrittenIsRefusedByNobodyAndNothingIsLeft) {
    const CString path = temporaryFile(L"ktui writable.dxf");
    ::DeleteFileW(path);
    EXPECT_STREQ(WhyNotWritable(path), L"");
    EXPECT_FALSE(exists(path));
}

TEST_F(DrafterTest, AFileThatAnotherProgramHoldsIsRefusedInWordsAndKept) {
    const CString path = temporaryFile(L"ktui held.dxf");
    const HANDLE held = ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_GT(WhyNotWritable(path).GetLength(), 5);
    ::CloseHandle(held);
    EXPECT_STREQ(WhyNotWritable(path), L"");
    EXPECT_TRUE(exists(path)) << "what is there stays";
    ::DeleteFileW(path);
}

TEST_F(DrafterTest, AFolderThatIsNotThereIsToldApart) {
    const CString missing = WhyNotWritable(temporaryFile(L"no such folder\\a.dxf"));
    EXPECT_GT(missing.GetLength(), 5);
    const CString path = temporaryFile(L"ktui held.dxf");
    const HANDLE held =
        ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    EXPECT_NE(WhyNotWritable(path), missing);
    ::CloseHandle(held);
}

TEST_F(DrafterTest, TheHintComesBackWhenAMenuCloses) {
    CString hint;
    EXPECT_TRUE(hint.LoadString(AFX_IDS_IDLEMESSAGE)) << "the frame shows this text after a menu";
    EXPECT_GT(hint.GetLength(), 20);
}

TEST_F(DrafterTest, ADialogThatWouldComeUpOffTheScreenIsBroughtIntoView) {
    const CRect desktop(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    CRect size;
    {
        WithOwnSettings<CPropertiesDialog> dialog(*drawing, std::vector<OdDbObjectId>(), &parent);
        show(
            dialog,
            [&] {
                dialog.GetWindowRect(&size);
                dialog.SetWindowPos(nullptr, desktop.right - 20, desktop.bottom - 20, 0, 0,
                                    SWP_NOSIZE | SWP_NOZORDER);
            },
            IDOK);
    }
    WithOwnSettings<CPropertiesDialog> again(*drawing, std::vector<OdDbObjectId>(), &parent);
    show(again, [&] {
        CRect place, seen;
        again.GetWindowRect(&place);
        seen.IntersectRect(place, desktop);
        EXPECT_EQ(seen, place) << "its buttons can be reached";
        EXPECT_EQ(place.Size(), size.Size());
    });
}
