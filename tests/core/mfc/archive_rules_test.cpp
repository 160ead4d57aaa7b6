// Archives to the byte: tags, lengths and counts at their edges, which schema an object sees, and every way
// in which reading fails.
#include <afxcoll.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

/// Remembers the schema that it was read with, before and after an inner one.
class CShelf : public CObject {
    DECLARE_SERIAL(CShelf)
public:
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << m_number << m_inner;
            return;
        }
        m_schema = ar.GetObjectSchema();
        m_again = ar.GetObjectSchema();
        ar.SetObjectSchema(77);
        ar >> m_number;
        CObject* inner = nullptr;
        ar >> inner;
        m_inner = inner;
        m_after = ar.GetObjectSchema();
    }
    BYTE m_number = 0;
    CObject* m_inner = nullptr;
    UINT m_schema = 0, m_again = 0, m_after = 0;
};
IMPLEMENT_SERIAL(CShelf, CObject, VERSIONABLE_SCHEMA | 3)

/// Takes no schema but its own.
class CStrict : public CObject {
    DECLARE_SERIAL(CStrict)
};
IMPLEMENT_SERIAL(CStrict, CObject, 5)

class CUnwritten : public CObject {
    DECLARE_DYNAMIC(CUnwritten)
};
IMPLEMENT_DYNAMIC(CUnwritten, CObject)

// Names of 63 and 64 letters.
class CLetters9012345678901234567890123456789012345678901234567890End : public CObject {
    DECLARE_SERIAL(CLetters9012345678901234567890123456789012345678901234567890End)
};
IMPLEMENT_SERIAL(CLetters9012345678901234567890123456789012345678901234567890End, CObject, 1)
class CLetters90123456789012345678901234567890123456789012345678901End : public CObject {
    DECLARE_SERIAL(CLetters90123456789012345678901234567890123456789012345678901End)
};
IMPLEMENT_SERIAL(CLetters90123456789012345678901234567890123456789012345678901End, CObject, 1)

using Act = std::function<void(CArchive&)>;

std::string written(const Act& store) {
    CMemFile file(64);
    {
        CArchive ar(&file, CArchive::store);
        store(ar);
    }
    std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

std::string in_hex(const std::string& bytes) {
    std::string all;
    for (const char byte : bytes) {
        constexpr char kDigits[] = "0123456789abcdef";
        all += kDigits[static_cast<BYTE>(byte) >> 4];
        all += kDigits[static_cast<BYTE>(byte) & 15];
    }
    return all;
}

void with_loader(std::string bytes, const Act& load) {
    CMemFile file(reinterpret_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    ar.m_strFileName = L"drawing.bin";
    load(ar);
}

/// The cause of the archive's exception, with the name in it; -1 without one.
std::pair<int, CString> failure_of(const std::function<void()>& act) {
    try {
        act();
    } catch (CArchiveException* e) {
        const std::pair<int, CString> told(e->m_cause, e->m_strFileName);
        e->Delete();
        return told;
    }
    return {-1, L""};
}

void expect_refused(const std::string& bytes, int cause, const Act& load) {
    with_loader(bytes, [&](CArchive& ar) {
        const auto told = failure_of([&] { load(ar); });
        EXPECT_EQ(told.first, cause) << in_hex(bytes);
        EXPECT_EQ(told.second, L"drawing.bin") << in_hex(bytes);
    });
}

void read_any(CArchive& ar) { delete ar.ReadObject(nullptr); }

const std::string kShelf(
    "\xFF\xFF\x03\x00\x06\x00"
    "CShelf",
    12);
const std::string kStrict(
    "\xFF\xFF\x05\x00\x07\x00"
    "CStrict",
    13);

}  // namespace

TEST(ArchiveBytes, ObjectsAreTheirClassOnceAndThenTheirNumbers) {
    CShelf first, second;
    CStrict inner;
    first.m_number = 0xA1;
    first.m_inner = &second;
    second.m_number = 0xB2;
    EXPECT_EQ(in_hex(written([&](CArchive& ar) {
                  ar << &first << &inner << &second << &inner << static_cast<CObject*>(nullptr);
                  ar.WriteClass(RUNTIME_CLASS(CStrict));
              })),
              in_hex(kShelf + std::string("\xA1\x01\x80\xB2\x00\x00", 6) + kStrict +
                     std::string("\x03\x00\x05\x00\x00\x00\x04\x80", 8)));
}

TEST(ArchiveBytes, TextsHaveTheirLengthInOneThreeOrSevenBytes) {
    const struct {
        int length;
        std::string before;
    } rows[] = {{0, std::string(1, '\0')},
                {254, "\xFE"},
                {255, std::string("\xFF\xFF\x00", 3)},
                {0xFFFD, "\xFF\xFD\xFF"},
                {0xFFFE, std::string("\xFF\xFF\xFF\xFE\xFF\x00\x00", 7)},
                {0xFFFF, std::string("\xFF\xFF\xFF\xFF\xFF\x00\x00", 7)},
                {70000, std::string("\xFF\xFF\xFF\x70\x11\x01\x00", 7)}};
    for (const auto& row : rows) {
        const CStringA narrow('n', row.length);
        const std::string bytes = written([&](CArchive& ar) { ar << narrow; });
        EXPECT_EQ(in_hex(bytes.substr(0, row.before.size())), in_hex(row.before)) << row.length;
        EXPECT_EQ(bytes.size(), row.before.size() + static_cast<size_t>(row.length));
        with_loader(bytes, [&](CArchive& ar) {
            CStringA text;
            ar >> text;
            EXPECT_EQ(text, narrow);
        });
        const CStringW wide(L'w', row.length);
        const std::string wideBytes = written([&](CArchive& ar) { ar << wide; });
        EXPECT_EQ(in_hex(wideBytes.substr(0, 3 + row.before.size())), "fffeff" + in_hex(row.before));
        EXPECT_EQ(wideBytes.size(), 3 + row.before.size() + 2 * static_cast<size_t>(row.length));
        with_loader(wideBytes, [&](CArchive& ar) {
            CStringW text;
            ar >> text;
            EXPECT_EQ(text, wide);
        });
    }
}

TEST(ArchiveBytes, CountsHaveTwoSixOrFourteenBytes) {
    const struct {
        unsigned long long count;
        const char* bytes;
    } rows[] = {{0, "0000"},
                {0xFFFE, "feff"},
                {0xFFFF, "ffffffff0000"},
                {0x10000, "ffff00000100"},
                {0xFFFFFFFE, "fffffeffffff"},
                {0xFFFFFFFF, "ffffffffffffffffffff00000000"},
                {0x123456789ABC, "ffffffffffffbc9a785634120000"}};
    for (const auto& row : rows) {
        const std::string bytes =
            written([&](CArchive& ar) { ar.WriteCount(static_cast<DWORD_PTR>(row.count)); });
        EXPECT_EQ(in_hex(bytes), row.bytes);
        with_loader(bytes, [&](CArchive& ar) { EXPECT_EQ(ar.ReadCount(), row.count); });
    }
}

TEST(ArchiveBytes, NumbersBeyondFifteenBitsFollowAMarker) {
    std::vector<CStrict> known(0x7FFF);
    const std::string bytes = written([&](CArchive& ar) {
        for (CStrict& object : known) ar.MapObject(&object);
        ar << &known[0x7FFD] << &known[0x7FFE];
        ar.WriteClass(RUNTIME_CLASS(CShelf));  // its number is 0x8000
        ar.WriteClass(RUNTIME_CLASS(CShelf));
    });
    EXPECT_EQ(in_hex(bytes),
              "fe7f"
              "ff7fff7f0000" +
                  in_hex(kShelf) + "ff7f00800080");
    with_loader(bytes, [&](CArchive& ar) {
        for (CStrict& object : known) ar.MapObject(&object);
        EXPECT_EQ(ar.ReadObject(nullptr), &known[0x7FFD]);
        EXPECT_EQ(ar.ReadObject(RUNTIME_CLASS(CStrict)), &known[0x7FFE]);
        UINT schema = 0;
        DWORD tag = 0;
        EXPECT_EQ(ar.ReadClass(), RUNTIME_CLASS(CShelf));
        EXPECT_EQ(ar.ReadClass(RUNTIME_CLASS(CObject), &schema, &tag), RUNTIME_CLASS(CShelf));
        EXPECT_EQ(schema, 3U);
        EXPECT_EQ(tag, 0x80008000U);
    });
}

TEST(ArchiveSchema, IsToldOnceAndComesBackAfterAnInnerObject) {
    CShelf outer, inner;
    outer.m_inner = &inner;
    with_loader(written([&](CArchive& ar) { ar << &outer; }), [](CArchive& ar) {
        EXPECT_EQ(ar.GetObjectSchema(), static_cast<UINT>(-1));
        ar.SetObjectSchema(9);
        CShelf* read = nullptr;
        ar >> read;
        const std::unique_ptr<CShelf> shelf(read);
        const std::unique_ptr<CShelf> within(static_cast<CShelf*>(shelf->m_inner));
        for (const CShelf* each : {shelf.get(), within.get()}) {
            EXPECT_EQ(each->m_schema, 3U);
            EXPECT_EQ(each->m_again, static_cast<UINT>(-1));
            EXPECT_EQ(each->m_after, 77U);
        }
        EXPECT_EQ(ar.GetObjectSchema(), 9U);
        EXPECT_EQ(ar.GetObjectSchema(), static_cast<UINT>(-1));
    });
}

TEST(ArchiveSchema, OfAClassAloneIsTheArchives) {
    with_loader(kStrict, [](CArchive& ar) {
        DWORD tag = 0;
        EXPECT_EQ(ar.ReadClass(nullptr, nullptr, &tag), RUNTIME_CLASS(CStrict));
        EXPECT_EQ(ar.GetObjectSchema(), 5U);
        EXPECT_EQ(tag, 0xFFFFFFFFU);
    });
    with_loader(kStrict, [](CArchive& ar) {
        UINT schema = 0;
        ar.ReadClass(nullptr, &schema);
        EXPECT_EQ(schema, 5U);
        EXPECT_EQ(ar.GetObjectSchema(), static_cast<UINT>(-1));
    });
}

TEST(ArchiveSchema, OfAnotherVersionIsForThoseThatTakeSeveral) {
    std::string older = kShelf;
    older[2] = 1;
    with_loader(older + std::string("\x07\x00\x00", 3), [](CArchive& ar) {
        CShelf* read = nullptr;
        ar >> read;
        const std::unique_ptr<CShelf> shelf(read);
        EXPECT_EQ(shelf->m_schema, 1U);
        EXPECT_EQ(shelf->m_number, 7);
    });
    std::string strict = kStrict;
    for (const char schema : {4, 6}) {
        strict[2] = schema;
        expect_refused(strict, CArchiveException::badSchema, read_any);
    }
}

TEST(ArchiveFaults, EachHasItsCauseAndTheFilesName) {
    using Bytes = std::string;
    expect_refused("", CArchiveException::endOfFile, read_any);
    expect_refused(Bytes("\x01\x00", 2), CArchiveException::badIndex, read_any);
    expect_refused(Bytes("\x00\x80", 2), CArchiveException::badIndex, read_any);
    expect_refused(Bytes("\x01\x80", 2), CArchiveException::badIndex, read_any);
    expect_refused(Bytes("\xFF\x7F\x05\x00\x00\x00", 6), CArchiveException::badIndex, read_any);
    expect_refused(Bytes("\xFF\xFF\x01\x00\x04\x00None", 10), CArchiveException::badClass, read_any);
    expect_refused(Bytes("\xFF\xFF\xFF\xFF\x0A\x00"
                         "CUnwritten",
                         16),
                   CArchiveException::badClass, read_any);
    expect_refused(Bytes("\xFF\xFF\x05\x00\x07\x00"
                         "CStr",
                         10),
                   CArchiveException::badClass, read_any);
    expect_refused(kStrict, CArchiveException::badClass,
                   [](CArchive& ar) { delete ar.ReadObject(RUNTIME_CLASS(CShelf)); });
    // An object where a class is wanted, and a class's number for an object.
    expect_refused(Bytes("\x00\x00", 2), CArchiveException::badIndex, [](CArchive& ar) { ar.ReadClass(); });
    expect_refused(kStrict + Bytes("\x01\x00", 2), CArchiveException::badIndex, [](CArchive& ar) {
        ar.ReadClass();
        read_any(ar);
    });
    // One that was met, of another class than is wanted.
    expect_refused(kStrict + Bytes("\x02\x00", 2), CArchiveException::badClass, [](CArchive& ar) {
        CStrict* strict = nullptr;
        ar >> strict;
        const std::unique_ptr<CStrict> keep(strict);
        ar.ReadObject(RUNTIME_CLASS(CShelf));
    });
    expect_refused("", CArchiveException::readOnly, [](CArchive& ar) { ar.Write("a", 1); });
}

TEST(ArchiveFaults, AnObjectThatIsCutOffIsForgotten) {
    with_loader(kShelf + std::string("\x07\x02\x00", 3), [](CArchive& ar) {
        // It names itself as what it holds, which is its own number, and there the file ends for the next.
        CShelf* read = nullptr;
        ar >> read;
        const std::unique_ptr<CShelf> shelf(read);
        EXPECT_EQ(shelf->m_inner, shelf.get());
    });
    with_loader(kShelf + std::string("\x07\x09\x00\x02\x00", 5), [](CArchive& ar) {
        EXPECT_EQ(failure_of([&] { read_any(ar); }).first, CArchiveException::badIndex);
        EXPECT_EQ(failure_of([&] { read_any(ar); }).first, CArchiveException::badIndex)
            << "not the object whose reading failed";
    });
}

TEST(ArchiveFaults, OneThatStoresGivesNothing) {
    CMemFile file(64);
    CArchive ar(&file, CArchive::store);
    ar.m_strFileName = L"drawing.bin";
    BYTE read = 0;
    const auto told = failure_of([&] { ar.Read(&read, 1); });
    EXPECT_EQ(told.first, CArchiveException::writeOnly);
    EXPECT_EQ(told.second, L"drawing.bin");
    const CUnwritten unwritten;
    EXPECT_THROW(ar.WriteObject(&unwritten), CNotSupportedException*);
    EXPECT_THROW(ar.WriteClass(RUNTIME_CLASS(CUnwritten)), CNotSupportedException*);
    ar.Close();
    EXPECT_EQ(file.GetLength(), 0U) << "nor is a part of it written";
}

TEST(ArchiveFaults, NamesOfClassesHaveSixtyThreeLettersAtMost) {
    const CLetters9012345678901234567890123456789012345678901234567890End longest;
    ASSERT_EQ(std::string(longest.GetRuntimeClass()->m_lpszClassName).size(), 63U);
    with_loader(written([&](CArchive& ar) { ar << &longest; }), [](CArchive& ar) {
        CLetters9012345678901234567890123456789012345678901234567890End* read = nullptr;
        ar >> read;
        const std::unique_ptr<CObject> known(read);
        EXPECT_NE(known, nullptr);
    });
    const CLetters90123456789012345678901234567890123456789012345678901End longer;
    ASSERT_EQ(std::string(longer.GetRuntimeClass()->m_lpszClassName).size(), 64U);
    expect_refused(written([&](CArchive& ar) { ar << &longer; }), CArchiveException::badClass,
                   [](CArchive& ar) {
                       CLetters90123456789012345678901234567890123456789012345678901End* read = nullptr;
                       ar >> read;
                   });
}

TEST(ArchiveBuffer, HasAHundredAndTwentyEightBytesAtLeast) {
    const struct {
        int asked;
        UINT kept;
    } rows[] = {{-5, 128}, {0, 128}, {127, 128}, {129, 129}, {4096, 4096}};
    for (const auto& row : rows) {
        CMemFile file(64);
        CArchive ar(&file, CArchive::store, row.asked);
        const std::string bytes(row.kept, 'b');
        ar.Write(bytes.data(), row.kept);
        EXPECT_EQ(file.GetLength(), 0U) << row.asked;
        ar.Write("c", 1);
        EXPECT_EQ(file.GetLength(), row.kept) << row.asked;
        ar.Flush();
        EXPECT_EQ(file.GetLength(), row.kept + 1) << row.asked;
        ar.Flush();
        EXPECT_EQ(file.GetLength(), row.kept + 1) << "what was written is not written again";
    }
}

TEST(ArchiveBuffer, GoesBackInTheFileToWhatWasRead) {
    BYTE bytes[] = "0123456789";
    CMemFile file(bytes, 10);
    CArchive ar(&file, CArchive::load);
    char read[4] = {};
    EXPECT_EQ(ar.Read(read, 3), 3U);
    EXPECT_EQ(file.GetPosition(), 10U);
    ar.Flush();
    EXPECT_EQ(file.GetPosition(), 3U);
    EXPECT_EQ(ar.Read(read, 2), 2U);
    EXPECT_EQ(std::string(read, 2), "34");
    ar.Close();
    EXPECT_EQ(file.GetPosition(), 5U);
}

TEST(ArchiveBuffer, IsLeftUnwrittenWhereItIsToBe) {
    CMemFile file(64);
    { CArchive(&file, CArchive::store | CArchive::bNoFlushOnDelete).Write("lost", 4); }
    EXPECT_EQ(file.GetLength(), 0U);
    {
        CArchive ar(&file, CArchive::store);
        ar.Write("lost", 4);
        ar.Abort();
        EXPECT_EQ(ar.GetFile(), nullptr);
    }
    EXPECT_EQ(file.GetLength(), 0U);
    { CArchive(&file, CArchive::store).Write("kept", 4); }
    EXPECT_EQ(file.GetLength(), 4U);
}

TEST(ArchiveLines, EndAtALineFeedAndLoseTheReturnBeforeIt) {
    const std::string bytes = written([](CArchive& ar) {
        ar.WriteString(L"one\r\ntwo\r\r\n\nthr\ree\r");
        ar.WriteString(nullptr);
    });
    EXPECT_EQ(bytes.size(), 2U * 19);
    with_loader(bytes, [](CArchive& ar) {
        CString line;
        for (const wchar_t* each : {L"one", L"two\r", L"", L"thr\ree"}) {
            EXPECT_TRUE(ar.ReadString(line));
            EXPECT_EQ(line, each);
        }
        line = L"before";
        EXPECT_FALSE(ar.ReadString(line));
        EXPECT_EQ(line, L"");
    });
}

TEST(FileMessages, SayEachCauseWithTheName) {
    const wchar_t* const file[] = {L"No error occurred.",
                                   L"An unknown error occurred while accessing a.bin.",
                                   L"a.bin was not found.",
                                   L"a.bin contains an incorrect path.",
                                   L"Could not open a.bin because there are too many open files.",
                                   L"Access to a.bin was denied.",
                                   L"An incorrect file handle was associated with a.bin.",
                                   L"Could not remove a.bin because it is the current directory.",
                                   L"Could not create a.bin because the directory is full.",
                                   L"Seek failed on a.bin.",
                                   L"A hardware I/O error was reported while accessing a.bin.",
                                   L"A sharing violation occurred while accessing a.bin.",
                                   L"A locking violation occurred while accessing a.bin.",
                                   L"Disk full while accessing a.bin.",
                                   L"An attempt was made to access a.bin past its end."};
    const wchar_t* const archive[] = {L"No error occurred.",
                                      L"An unknown error occurred while accessing a.bin.",
                                      L"An attempt was made to write to the reading a.bin.",
                                      L"An attempt was made to access a.bin past its end.",
                                      L"An attempt was made to read from the writing a.bin.",
                                      L"a.bin has a bad format.",
                                      L"a.bin contained an unexpected object.",
                                      L"a.bin contains an incorrect schema."};
    const auto said = [](const CException& fault) {
        wchar_t text[120];
        UINT help = 5;
        EXPECT_TRUE(fault.GetErrorMessage(text, 120, &help));
        EXPECT_EQ(help, 0U);
        return CString(text);
    };
    for (int cause = 0; cause < 15; ++cause) EXPECT_EQ(said(CFileException(cause, 2, L"a.bin")), file[cause]);
    for (int cause = 0; cause < 8; ++cause)
        EXPECT_EQ(said(CArchiveException(cause, L"a.bin")), archive[cause]);
    for (const int cause : {-1, 15, 1000}) EXPECT_EQ(said(CFileException(cause, 2, L"a.bin")), file[1]);
    for (const int cause : {-1, 8, 1000}) EXPECT_EQ(said(CArchiveException(cause, L"a.bin")), archive[1]);
    EXPECT_EQ(said(CFileException(CFileException::fileNotFound)), L"an unnamed file was not found.");
    EXPECT_EQ(said(CArchiveException(CArchiveException::badClass)),
              L"an unnamed file contained an unexpected object.");
}

TEST(FileMessages, AreCutToTheRoomThatThereIs) {
    const CArchiveException fault(CArchiveException::badIndex, L"a.bin");
    wchar_t text[] = L"untouched";
    EXPECT_TRUE(fault.GetErrorMessage(text, 6));
    EXPECT_STREQ(text, L"a.bin");
    EXPECT_EQ(text[6], L'h');
    EXPECT_FALSE(fault.GetErrorMessage(text, 0));
    EXPECT_STREQ(text, L"a.bin");
    EXPECT_FALSE(fault.GetErrorMessage(nullptr, 6));
}
