// What a buffered file says when the system refuses.
#include <afx.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace {

class StdioFaults : public ::testing::Test {
protected:
    StdioFaults()
        : path((std::filesystem::temp_directory_path() / "ktui stdio faults.txt").wstring().c_str()) {
        std::ofstream(std::filesystem::path(path.GetString()), std::ios::binary) << "0123456789";
    }
    ~StdioFaults() override { std::filesystem::remove(path.GetString()); }

    struct Fault {
        int cause = -1;
        LONG system = 0;
        CString name;
    };
    static Fault fault_of(const std::function<void()>& act) {
        Fault fault;
        try {
            act();
        } catch (CFileException* e) {
            fault = {e->m_cause, e->m_lOsError, e->m_strFileName};
            e->Delete();
        }
        return fault;
    }
    CString path;
};

}  // namespace

TEST_F(StdioFaults, WritingToWhatIsOnlyReadIsAFault) {
    CStdioFile file(path, CFile::modeRead | CFile::typeBinary);
    file.Write("", 0);
    const Fault fault = fault_of([&] { file.Write("ab", 2); });
    EXPECT_EQ(fault.cause, CFileException::genericException);
    EXPECT_EQ(fault.system, EBADF);
    EXPECT_EQ(fault.name, file.GetFilePath());
    EXPECT_FALSE(fault.name.IsEmpty());
    EXPECT_EQ(fault_of([&] { file.WriteString(L"ab"); }).cause, CFileException::genericException);
    file.WriteString(nullptr);
}

TEST_F(StdioFaults, PlacesAreCountedFromEachOrigin) {
    CStdioFile file(path, CFile::modeRead | CFile::typeBinary);
    EXPECT_EQ(file.GetLength(), 10U);
    EXPECT_EQ(file.Seek(4, CFile::begin), 4U);
    EXPECT_EQ(file.Seek(3, CFile::current), 7U);
    EXPECT_EQ(file.Seek(-1, CFile::end), 9U);
    EXPECT_EQ(file.GetLength(), 10U);
    EXPECT_EQ(file.GetPosition(), 9U) << "which asking for the length leaves";
    const Fault fault = fault_of([&] { file.Seek(-11, CFile::end); });
    EXPECT_EQ(fault.cause, CFileException::badSeek);
    EXPECT_EQ(fault.system, EINVAL);
    EXPECT_EQ(fault.name, file.GetFilePath());
    EXPECT_EQ(file.GetPosition(), 9U);
}

#ifndef _WIN32

TEST_F(StdioFaults, ADiskThatIsFullIsToldByFlushAndClose) {
    CStdioFile full(L"/dev/full", CFile::modeWrite);
    full.WriteString(L"text");
    Fault fault = fault_of([&] { full.Flush(); });
    EXPECT_EQ(fault.cause, CFileException::diskFull);
    EXPECT_EQ(fault.system, ENOSPC);
    EXPECT_EQ(fault.name, L"/dev/full");
    CStdioFile closed(L"/dev/full", CFile::modeWrite);
    closed.WriteString(L"text");
    fault = fault_of([&] { closed.Close(); });
    EXPECT_EQ(fault.cause, CFileException::diskFull);
    EXPECT_EQ(fault.system, ENOSPC);
    EXPECT_EQ(fault.name, L"/dev/full");
    EXPECT_TRUE(closed.GetFilePath().IsEmpty());
    CStdioFile given(L"/dev/full", CFile::modeWrite);
    given.WriteString(L"text");
    EXPECT_EQ(fault_of([&] { given.Abort(); }).cause, -1) << "giving up tells nothing";
}

TEST_F(StdioFaults, APipeHasNoPlaces) {
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    FILE* const stream = ::fdopen(ends[1], "w");
    CStdioFile file(stream);
    EXPECT_EQ(fault_of([&] { file.GetPosition(); }).cause, CFileException::invalidFile);
    EXPECT_EQ(fault_of([&] { file.GetLength(); }).cause, CFileException::badSeek);
    EXPECT_EQ(fault_of([&] { file.Seek(0, CFile::begin); }).cause, CFileException::badSeek);
    EXPECT_EQ(fault_of([&] { file.SetLength(3); }).cause, CFileException::genericException);
    file.Abort();
    EXPECT_EQ(std::fputc('a', stream), 'a') << "the stream stays the caller's";
    std::fclose(stream);
    ::close(ends[0]);
}

#endif
