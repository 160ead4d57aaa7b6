// Going through the files that a pattern names.
#include <afx.h>
#include <atltime.h>

#include <map>
#include <string>
#include <vector>

#include "ui_test.h"

namespace {

class FileFind : public ::testing::Test {
protected:
    FileFind() {
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        folder = CString(temporary) + L"ktui file find\\";
        ::CreateDirectoryW(folder, nullptr);
        ::CreateDirectoryW(folder + L"inner", nullptr);
        for (const wchar_t* name : kFiles) put(name, name);
    }
    ~FileFind() override {
        for (const wchar_t* name : kFiles) {
            ::SetFileAttributesW(folder + name, FILE_ATTRIBUTE_NORMAL);
            ::DeleteFileW(folder + name);
        }
        ::RemoveDirectoryW(folder + L"inner");
        ::RemoveDirectoryW(folder);
    }
    void put(const wchar_t* name, const wchar_t* text) {
        const HANDLE file =
            ::CreateFileW(folder + name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD written = 0;
        ::WriteFile(file, text, static_cast<DWORD>(::lstrlenW(text)), &written, nullptr);
        ::CloseHandle(file);
    }
    /// Names of all that a pattern finds.
    std::map<std::wstring, bool> all(const CString& pattern) {
        std::map<std::wstring, bool> names;
        CFileFind finder;
        for (BOOL more = finder.FindFile(pattern); more;) {
            more = finder.FindNextFile();
            names[finder.GetFileName().GetString()] = finder.IsDirectory() != FALSE;
        }
        return names;
    }
    static constexpr const wchar_t* kFiles[] = {L"one.dxf", L"two.dxf", L"three.old.txt"};
    CString folder;
};

TEST_F(FileFind, GoesThroughWhatThePatternNames) {
    EXPECT_EQ(all(folder + L"*.dxf"),
              (std::map<std::wstring, bool>{{L"one.dxf", false}, {L"two.dxf", false}}));
    EXPECT_EQ(all(folder + L"*"), (std::map<std::wstring, bool>{{L".", true},
                                                                {L"..", true},
                                                                {L"inner", true},
                                                                {L"one.dxf", false},
                                                                {L"three.old.txt", false},
                                                                {L"two.dxf", false}}));
}

TEST_F(FileFind, TellsWhenTheLastOneIsFound) {
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(folder + L"one.dxf"));
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(finder.GetFileName(), L"one.dxf");
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_FILES));
    EXPECT_EQ(finder.GetFileName(), L"one.dxf");
}

TEST_F(FileFind, NothingFoundIsAFailure) {
    CFileFind finder;
    EXPECT_FALSE(finder.FindFile(folder + L"*.none"));
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_FALSE(finder.FindNextFile());
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
    EXPECT_EQ(finder.GetFileName(), L"");
    EXPECT_EQ(finder.GetFilePath(), L"");
    EXPECT_EQ(finder.GetFileURL(), L"");
    EXPECT_EQ(finder.GetLength(), 0u);
    EXPECT_FALSE(finder.MatchesMask(0xFFFFFFFF));
}

TEST_F(FileFind, NothingIsKnownBeforeTheFirstStep) {
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(folder + L"one.dxf"));
    FILETIME time = {};
    EXPECT_EQ(finder.GetFileName(), L"");
    EXPECT_FALSE(finder.IsNormal() || finder.IsArchived());
    EXPECT_FALSE(finder.GetLastWriteTime(&time));
}

TEST_F(FileFind, NamesAFileInEveryWay) {
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(folder + L"three*"));
    finder.FindNextFile();
    EXPECT_EQ(finder.GetFileName(), L"three.old.txt");
    EXPECT_EQ(finder.GetFileTitle(), L"three.old");
    EXPECT_EQ(finder.GetFilePath(), folder + L"three.old.txt");
    EXPECT_EQ(finder.GetFileURL(), L"file://" + folder + L"three.old.txt");
    EXPECT_EQ(finder.GetRoot(), folder);
    EXPECT_EQ(finder.GetLength(), 13u);
}

TEST_F(FileFind, APatternWithoutAFolderIsOfTheWorkingOne) {
    wchar_t former[MAX_PATH] = {};
    ::GetCurrentDirectoryW(MAX_PATH, former);
    ::SetCurrentDirectoryW(folder);
    CFileFind finder;
    EXPECT_TRUE(finder.FindFile(L"one.*"));
    ::SetCurrentDirectoryW(former);
    finder.FindNextFile();
    EXPECT_EQ(finder.GetRoot(), L"");
    EXPECT_EQ(finder.GetFilePath(), folder + L"one.dxf");
    ::SetCurrentDirectoryW(folder);
    EXPECT_TRUE(finder.FindFile());
    EXPECT_TRUE(finder.FindNextFile());
    ::SetCurrentDirectoryW(former);
}

TEST_F(FileFind, KnowsTheFoldersOwnNames) {
    CFileFind finder;
    int dots = 0, others = 0;
    for (BOOL more = finder.FindFile(folder + L"*"); more;) {
        more = finder.FindNextFile();
        ++(finder.IsDots() ? dots : others);
        EXPECT_EQ(finder.IsDots() != FALSE, finder.GetFileName() == L"." || finder.GetFileName() == L"..");
    }
    EXPECT_EQ(dots, 2);
    EXPECT_EQ(others, 4);
}

TEST_F(FileFind, AnswersForEachAttribute) {
    ::SetFileAttributesW(folder + L"one.dxf", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(folder + L"one.dxf"));
    finder.FindNextFile();
    EXPECT_TRUE(finder.IsReadOnly());
    EXPECT_TRUE(finder.IsHidden());
    EXPECT_FALSE(finder.IsDirectory() || finder.IsCompressed() || finder.IsTemporary() || finder.IsNormal());
    EXPECT_TRUE(finder.MatchesMask(FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_FALSE(finder.MatchesMask(FILE_ATTRIBUTE_DIRECTORY));
}

TEST_F(FileFind, TellsTheFilesTimes) {
    const HANDLE file = ::CreateFileW(folder + L"one.dxf", FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    const SYSTEMTIME day = {2020, 2, 0, 29, 12, 30, 15, 0};
    FILETIME written = {};
    ::SystemTimeToFileTime(&day, &written);
    ASSERT_TRUE(::SetFileTime(file, nullptr, nullptr, &written));
    ::CloseHandle(file);
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(folder + L"one.dxf"));
    finder.FindNextFile();
    FILETIME time = {};
    CTime same, other;
    EXPECT_TRUE(finder.GetLastWriteTime(&time));
    EXPECT_EQ(::CompareFileTime(&time, &written), 0);
    EXPECT_TRUE(finder.GetLastWriteTime(same));
    EXPECT_EQ(same, CTime(written));
    EXPECT_TRUE(finder.GetCreationTime(other));
    EXPECT_TRUE(finder.GetLastAccessTime(other));
    EXPECT_TRUE(finder.GetCreationTime(&time));
    EXPECT_TRUE(finder.GetLastAccessTime(&time));
    EXPECT_FALSE(finder.GetLastWriteTime(static_cast<FILETIME*>(nullptr)));
}

TEST_F(FileFind, AnEndedSearchLetsTheFolderGo) {
    CFileFind finder;
    ASSERT_TRUE(finder.FindFile(folder + L"inner\\*"));
    finder.FindNextFile();
    finder.Close();
    EXPECT_EQ(finder.GetFileName(), L"");
    EXPECT_TRUE(::RemoveDirectoryW(folder + L"inner"));
}

}  // namespace
