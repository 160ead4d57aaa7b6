// CMemFile: whose memory it uses, how it grows, and where it ends; names of files.
#include <afx.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace {

CString text_of(CMemFile& file) {
    char bytes[100] = {};
    file.SeekToBegin();
    const UINT count = file.Read(bytes, 99);
    return CString(bytes, static_cast<int>(count));
}

struct Named : CFile {
    explicit Named(LPCTSTR path) { m_strFileName = path; }
};

}  // namespace

TEST(MemoryFile, GrowsInStepsAndKeepsItsBytes) {
    CMemFile file(8);
    file.Write("0123456", 7);
    file.Write("789abcdefghij", 13);
    EXPECT_EQ(file.GetLength(), 20U);
    EXPECT_EQ(file.GetPosition(), 20U);
    EXPECT_EQ(text_of(file), L"0123456789abcdefghij");
    file.Seek(3, CFile::begin);
    file.Write("XY", 2);
    EXPECT_EQ(file.GetLength(), 20U) << "in the middle it doesn't grow";
    EXPECT_EQ(text_of(file), L"012XY56789abcdefghij");
    file.Write("", 0);
    EXPECT_EQ(file.GetLength(), 20U);
}

TEST(MemoryFile, ReadsNoFurtherThanItsEnd) {
    CMemFile file;
    file.Write("abc", 3);
    char bytes[8] = "zzzzzzz";
    EXPECT_EQ(file.Read(bytes, 3), 0U) << "at the end";
    EXPECT_EQ(file.Seek(-2, CFile::end), 1U);
    EXPECT_EQ(file.Read(bytes, 8), 2U);
    EXPECT_EQ(std::memcmp(bytes, "bczz", 4), 0);
    EXPECT_EQ(file.Seek(-1, CFile::current), 2U);
    EXPECT_EQ(file.Seek(10, CFile::begin), 10U);
    EXPECT_EQ(file.Read(bytes, 1), 0U);
    EXPECT_EQ(file.GetLength(), 3U) << "moving doesn't grow it";
    EXPECT_EQ(file.SeekToEnd(), 3U);
    int cause = CFileException::none;
    try {
        file.Seek(-4, CFile::end);
    } catch (CFileException* e) {
        cause = e->m_cause;
        e->Delete();
    }
    EXPECT_EQ(cause, CFileException::badSeek);
    EXPECT_EQ(file.GetPosition(), 3U);
    EXPECT_THROW(file.Seek(0, 3), CInvalidArgException*);
    EXPECT_EQ(file.Seek(-3, CFile::end), 0U) << "the very start";
}

TEST(MemoryFile, GapsAndNewLengthsAreZeros) {
    CMemFile file(4);
    file.Write("ab", 2);
    file.Seek(5, CFile::begin);
    file.Write("c", 1);
    char bytes[6] = {};
    file.SeekToBegin();
    EXPECT_EQ(file.Read(bytes, 6), 6U);
    EXPECT_EQ(std::memcmp(bytes, "ab\0\0\0c", 6), 0);
    file.SetLength(1);
    EXPECT_EQ(file.GetLength(), 1U);
    EXPECT_EQ(file.GetPosition(), 1U) << "no further than the end";
    file.SetLength(4);
    EXPECT_EQ(file.GetPosition(), 1U);
    file.SeekToBegin();
    EXPECT_EQ(file.Read(bytes, 6), 4U);
    EXPECT_EQ(std::memcmp(bytes, "a\0\0\0", 4), 0) << "what was there has gone";
}

TEST(MemoryFile, MemoryOfTheCallersThatCannotGrow) {
    BYTE own[4] = {'a', 'b', 'c', 'd'};
    CMemFile file(own, 4);
    EXPECT_EQ(file.GetLength(), 4U) << "full from the start";
    EXPECT_EQ(text_of(file), L"abcd");
    file.Seek(2, CFile::begin);
    file.Write("XY", 2);
    EXPECT_EQ(own[3], 'Y');
    EXPECT_THROW(file.Write("Z", 1), CMemoryException*);
    EXPECT_EQ(file.GetLength(), 4U);
    EXPECT_EQ(file.Detach(), own);
    EXPECT_EQ(file.GetLength(), 0U);
    EXPECT_EQ(file.GetPosition(), 0U);
}

TEST(MemoryFile, MemoryOfTheCallersThatIsLeftWhenItIsFull) {
    BYTE own[4] = {};
    CMemFile file;
    file.Write("gone", 4);
    file.Attach(own, 4, 16);
    EXPECT_EQ(file.GetLength(), 0U) << "empty at first";
    EXPECT_EQ(file.GetPosition(), 0U);
    file.Write("1234", 4);
    EXPECT_EQ(own[3], '4');
    file.Write("5", 1);
    EXPECT_EQ(text_of(file), L"12345");
    own[0] = 'x';
    EXPECT_EQ(text_of(file), L"12345") << "in memory of its own now";
    BYTE* const given = file.Detach();
    EXPECT_NE(given, own);
    EXPECT_EQ(given[4], '5');
    std::free(given);
    file.Write("again", 5);
    EXPECT_EQ(text_of(file), L"again");
    file.Abort();
    EXPECT_EQ(file.GetLength(), 0U);
    file.Flush();
    file.Close();
    file.Close();
}

TEST(FileNames, ArePartsOfThePath) {
    EXPECT_EQ(Named(L"C:\\drawings\\plan.v2.dxf").GetFileName(), L"plan.v2.dxf");
    EXPECT_EQ(Named(L"C:\\drawings\\plan.v2.dxf").GetFileTitle(), L"plan.v2");
    EXPECT_EQ(Named(L"C:/drawings/plan").GetFileName(), L"plan");
    EXPECT_EQ(Named(L"C:/drawings/plan").GetFileTitle(), L"plan");
    EXPECT_EQ(Named(L"C:\\a/b\\c.dxf").GetFileName(), L"c.dxf");
    EXPECT_EQ(Named(L"C:\\a\\b/c.dxf").GetFileName(), L"c.dxf");
    EXPECT_EQ(Named(L"\\.hidden").GetFileTitle(), L".hidden");
    EXPECT_EQ(Named(L"plan.dxf").GetFileName(), L"plan.dxf");
    Named file(L"one.dxf");
    file.SetFilePath(L"C:\\two.dxf");
    EXPECT_EQ(file.GetFilePath(), L"C:\\two.dxf");
}
