// Buffered files of text and of bytes.
#include <afx.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

#ifdef _WIN32
constexpr const char* kLineEnd = "\r\n";
#else
constexpr const char* kLineEnd = "\n";
#endif

class StdioFile : public ::testing::Test {
protected:
    StdioFile() : path((std::filesystem::temp_directory_path() / "ktui stdio file.txt").wstring().c_str()) {}
    ~StdioFile() override { std::filesystem::remove(path.GetString()); }

    void put(const std::string& bytes) {
        std::ofstream(std::filesystem::path(path.GetString()), std::ios::binary) << bytes;
    }
    std::string bytes() const {
        std::ifstream file(std::filesystem::path(path.GetString()), std::ios::binary);
        std::ostringstream all;
        all << file.rdbuf();
        return all.str();
    }
    CString path;
};

/// Whether `act` throws an exception of this class.
template <class Exception, class Act>
bool throws(Act act) {
    try {
        act();
    } catch (Exception* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

}  // namespace

TEST_F(StdioFile, ReadsLinesWithoutTheirEnds) {
    put(std::string("one") + kLineEnd + kLineEnd + "three");
    CStdioFile file(path, CFile::modeRead);
    CString line = L"before";
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"one");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"three");
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_EQ(line, L"");
}

TEST_F(StdioFile, ReadsIntoABufferWithTheEndOfTheLine) {
    put(std::string("one") + kLineEnd + "second" + kLineEnd);
    CStdioFile file(path, CFile::modeRead | CFile::typeText);
    wchar_t buffer[6] = {};
    EXPECT_EQ(file.ReadString(buffer, 6), buffer);
    EXPECT_STREQ(buffer, L"one\n");
    EXPECT_EQ(file.ReadString(buffer, 6), buffer);
    EXPECT_STREQ(buffer, L"secon");
    EXPECT_EQ(file.ReadString(buffer, 2), buffer);
    EXPECT_STREQ(buffer, L"d");
    EXPECT_EQ(file.ReadString(buffer, 6), buffer);
    EXPECT_STREQ(buffer, L"\n");
    EXPECT_EQ(file.ReadString(buffer, 6), nullptr);
    EXPECT_EQ(file.ReadString(buffer, 0), nullptr);
}

TEST_F(StdioFile, WritesLineEndsAsTheSystemHasThem) {
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString(L"one\ntwo\n");
        file.WriteString(nullptr);
    }
    EXPECT_EQ(bytes(), std::string("one") + kLineEnd + "two" + kLineEnd);
}

TEST_F(StdioFile, LeavesBytesAsTheyAre) {
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
        file.WriteString(L"one\n");
        file.Write("\r\n\x1a\0x", 5);
    }
    EXPECT_EQ(bytes(), std::string("one\n\r\n\x1a\0x", 9));
    CStdioFile file(path, CFile::modeRead | CFile::typeBinary);
    char buffer[20] = {};
    EXPECT_EQ(file.Read(buffer, sizeof buffer), 9u);
    EXPECT_EQ(std::string(buffer, 9), std::string("one\n\r\n\x1a\0x", 9));
    EXPECT_EQ(file.Read(buffer, sizeof buffer), 0u);
    EXPECT_EQ(file.Read(buffer, 0), 0u);
}

TEST_F(StdioFile, TextsBeyondTheLatinLettersComeBack) {
    const wchar_t* const text = L"\u00e4\u00f6";
    {
        CStdioFile file(path, CFile::modeCreate | CFile::modeWrite);
        file.WriteString(text);
    }
    CStdioFile file(path, CFile::modeRead);
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, text);
    file.SeekToBegin();
    wchar_t buffer[2] = {};
    EXPECT_EQ(file.ReadString(buffer, 2), buffer);
    EXPECT_EQ(std::wstring(buffer), std::wstring(text, 1));
}

TEST_F(StdioFile, MovesAboutInTheFile) {
    CStdioFile file(path, CFile::modeCreate | CFile::modeReadWrite | CFile::typeBinary);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetPosition(), 10u);
    EXPECT_EQ(file.GetLength(), 10u);
    EXPECT_EQ(file.Seek(3, CFile::begin), 3u);
    EXPECT_EQ(file.GetLength(), 10u);
    EXPECT_EQ(file.GetPosition(), 3u);
    char found = 0;
    EXPECT_EQ(file.Read(&found, 1), 1u);
    EXPECT_EQ(found, '3');
    EXPECT_EQ(file.Seek(-2, CFile::current), 2u);
    EXPECT_EQ(file.Seek(-1, CFile::end), 9u);
    file.SetLength(4);
    EXPECT_EQ(file.GetLength(), 4u);
    EXPECT_EQ(file.GetPosition(), 4u);
    EXPECT_TRUE(throws<CInvalidArgException>([&] { file.Seek(0, 3); }));
    EXPECT_TRUE(throws<CFileException>([&] { file.Seek(-1, CFile::begin); }));
}

TEST_F(StdioFile, WhatIsFlushedIsInTheFile) {
    CStdioFile file(path, CFile::modeCreate | CFile::modeWrite | CFile::shareDenyNone);
    file.WriteString(L"here");
    file.Flush();
    EXPECT_EQ(bytes(), "here");
    EXPECT_EQ(file.GetFileName(), L"ktui stdio file.txt");
    file.Close();
    EXPECT_EQ(file.m_pStream, nullptr);
    EXPECT_EQ(file.GetFilePath(), L"");
}

TEST_F(StdioFile, AFileThatIsNotThereIsReported) {
    CStdioFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(path, CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(file.m_pStream, nullptr);
    try {
        CStdioFile missing(path, CFile::modeRead);
        FAIL();
    } catch (CFileException* exception) {
        EXPECT_EQ(exception->m_cause, CFileException::fileNotFound);
        exception->Delete();
    }
}

TEST_F(StdioFile, WritingToAFileOpenForReadingFails) {
    put("one");
    CStdioFile file(path, CFile::modeRead);
    EXPECT_TRUE(throws<CFileException>([&] {
        file.Write("x", 1);
        file.Flush();
    }));
}

TEST_F(StdioFile, OpenedAgainItLeavesTheFormerFile) {
    put("first");
    CStdioFile file(path, CFile::modeRead);
    FILE* const former = file.m_pStream;
    ASSERT_TRUE(file.Open(path, CFile::modeRead));
    CString line;
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, L"first");
    EXPECT_NE(former, nullptr);
    file.Abort();
    EXPECT_EQ(file.m_pStream, nullptr);
    std::error_code problem;
    EXPECT_TRUE(std::filesystem::remove(path.GetString(), problem)) << "nobody holds it";
}

TEST_F(StdioFile, AStreamOfTheCallersStaysOpen) {
    FILE* const stream = std::tmpfile();
    ASSERT_NE(stream, nullptr);
    {
        CStdioFile file(stream);
        file.WriteString(L"text");
        EXPECT_EQ(file.m_pStream, stream);
    }
    EXPECT_EQ(std::ftell(stream), 4);
    CStdioFile file(stream);
    file.Close();
    EXPECT_EQ(file.m_pStream, nullptr);
}
