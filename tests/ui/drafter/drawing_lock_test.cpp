// The lock of a drawing: held once, told to others, gone with its holder, and not kept by a crash.
#include "../../../samples/drafter/drawing_lock.h"

#include "drafter_fixture.h"

namespace {

class DrawingLock : public ::testing::Test {
protected:
    DrawingLock() {
        wchar_t folder[MAX_PATH] = {}, file[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, folder);
        ::GetTempFileNameW(folder, L"dxf", 0, file);
        path = file;
    }
    ~DrawingLock() override { ::DeleteFileW(path); }
    bool isThere() const { return ::GetFileAttributesW(path + L".lock") != INVALID_FILE_ATTRIBUTES; }

    CString path;
};

using Result = CDrawingLock::Result;

TEST_F(DrawingLock, TheSecondOneIsToldWhoHoldsIt) {
    CDrawingLock first, second;
    CString holder;
    EXPECT_EQ(first.Take(path, holder), Result::kHeld);
    EXPECT_TRUE(holder.IsEmpty());
    EXPECT_TRUE(isThere());
    EXPECT_EQ(second.Take(path, holder), Result::kInUse);
    wchar_t user[257] = {};
    DWORD length = 257;
    ASSERT_TRUE(::GetUserNameW(user, &length));
    EXPECT_EQ(holder.Find(user), 0) << CStringA(holder).GetString();
    EXPECT_FALSE(second.Holds(path));
    EXPECT_TRUE(first.Holds(path));
}

TEST_F(DrawingLock, ItGoesWithItsHolder) {
    CString holder;
    {
        CDrawingLock first;
        first.Take(path, holder);
    }
    EXPECT_FALSE(isThere());
    CDrawingLock second;
    EXPECT_EQ(second.Take(path, holder), Result::kHeld);
    second.Release();
    EXPECT_FALSE(isThere());
}

TEST_F(DrawingLock, OneThatACrashHasLeftHoldsNobody) {
    const HANDLE left = ::CreateFileW(path + L".lock", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_HIDDEN, nullptr);
    ASSERT_NE(left, INVALID_HANDLE_VALUE);
    const char old[] = "somebody else with a very long name (another computer of a long name too)";
    DWORD written = 0;
    ::WriteFile(left, old, sizeof(old), &written, nullptr);
    ::CloseHandle(left);
    CDrawingLock first, second;
    CString holder;
    EXPECT_EQ(first.Take(path, holder), Result::kHeld);
    EXPECT_EQ(second.Take(path, holder), Result::kInUse);
    EXPECT_EQ(holder.Find(L"another computer"), -1) << "the former holder is forgotten";
}

TEST_F(DrawingLock, TakingItAgainOrMovingItKeepsIt) {
    CDrawingLock first;
    CString holder;
    first.Take(path, holder);
    EXPECT_EQ(first.Take(path, holder), Result::kHeld);
    CDrawingLock moved = std::move(first);
    EXPECT_TRUE(moved.Holds(path));
    EXPECT_FALSE(first.Holds(path));
    CString upper = path;
    upper.MakeUpper();
    EXPECT_TRUE(moved.Holds(upper));
}

TEST_F(DrawingLock, AnotherDrawingTakesItsPlace) {
    CDrawingLock lock;
    CString holder;
    lock.Take(path, holder);
    EXPECT_EQ(lock.Take(path + L"2", holder), Result::kHeld);
    EXPECT_FALSE(isThere());
    EXPECT_FALSE(lock.Holds(path));
}

TEST_F(DrawingLock, WithoutAFolderThereIsNoneAndNoHolder) {
    CDrawingLock lock;
    CString holder;
    EXPECT_EQ(lock.Take(path + L"\\none\\drawing.dxf", holder), Result::kImpossible);
    EXPECT_TRUE(holder.IsEmpty());
}

}  // namespace
