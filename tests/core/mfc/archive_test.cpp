// Files, archives and object graphs.
#include <afxcoll.h>
#include <gtest/gtest.h>

#include <memory>

namespace {

class CNode : public CObject {
    DECLARE_SERIAL(CNode)
public:
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << m_name << m_next;
        } else {
            m_schema = ar.GetObjectSchema();
            ar >> m_name >> m_next;
        }
    }
    CString m_name;
    CNode* m_next = nullptr;
    UINT m_schema = 0;
};
IMPLEMENT_SERIAL(CNode, CObject, VERSIONABLE_SCHEMA | 2)

/// Writes with `store`, then reads with `load`, over the same memory.
template <class Store, class Load>
void round_trip(Store store, Load load) {
    CMemFile file(64);
    {
        CArchive ar(&file, CArchive::store, 128);
        store(ar);
    }
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load, 128);
    load(ar);
}

}  // namespace

TEST(Archive, ValuesComeBack) {
    round_trip(
        [](CArchive& ar) {
            ar << BYTE{1} << short{-2} << 3 << 4u << -5LL << 6.5 << true << L'x' << CString(L"图层")
               << CStringA("n") << CString(L'y', 300) << CString(L'z', 70000);
        },
        [](CArchive& ar) {
            BYTE b;
            short s;
            int i;
            unsigned u;
            long long l;
            double d;
            bool t;
            wchar_t c;
            CString wide, narrow, long_text, longer;
            ar >> b >> s >> i >> u >> l >> d >> t >> c >> wide >> narrow >> long_text >> longer;
            EXPECT_EQ(b, 1);
            EXPECT_EQ(s, -2);
            EXPECT_EQ(i, 3);
            EXPECT_EQ(u, 4u);
            EXPECT_EQ(l, -5);
            EXPECT_EQ(d, 6.5);
            EXPECT_TRUE(t);
            EXPECT_EQ(c, L'x');
            EXPECT_EQ(wide, L"图层");
            EXPECT_EQ(narrow, L"n");
            EXPECT_EQ(long_text, CString(L'y', 300));
            EXPECT_EQ(longer.GetLength(), 70000);
            BYTE beyond;
            EXPECT_THROW(
                try { ar >> beyond; } catch (CArchiveException* e) {
                    EXPECT_EQ(e->m_cause, CArchiveException::endOfFile);
                    e->Delete();
                    throw 1;
                },
                int);
        });
}

TEST(Archive, AGraphWithACycleComesBackAsOne) {
    CNode first, second;
    first.m_name = L"first";
    second.m_name = L"second";
    first.m_next = &second;
    second.m_next = &first;
    round_trip([&](CArchive& ar) { ar << &first << &second << static_cast<CNode*>(nullptr); },
               [](CArchive& ar) {
                   CNode *a, *b, *none;
                   ar >> a >> b >> none;
                   const std::unique_ptr<CNode> keep_a(a), keep_b(b);
                   EXPECT_EQ(a->m_name, L"first");
                   EXPECT_EQ(a->m_next, b);
                   EXPECT_EQ(b->m_next, a);
                   EXPECT_EQ(none, nullptr);
                   EXPECT_EQ(a->m_schema & 0xFFFF, 2u);
               });
}

TEST(Archive, AnObjectOfTheWrongClassIsRefused) {
    CStringArray strings;
    strings.Add(L"text");
    round_trip([&](CArchive& ar) { ar << &strings; },
               [](CArchive& ar) {
                   int cause = 0;
                   CNode* node = nullptr;
                   TRY { ar >> node; }
                   CATCH(CArchiveException, e) { cause = e->m_cause; }
                   END_CATCH
                   EXPECT_EQ(cause, CArchiveException::badClass);
               });
}

TEST(Archive, EveryTruncatedStreamFailsCleanly) {
    CNode first, second;
    first.m_name = L"a name";
    first.m_next = &second;
    CMemFile whole(64);
    {
        CArchive ar(&whole, CArchive::store);
        ar << &first;
    }
    const UINT length = static_cast<UINT>(whole.GetLength());
    const std::unique_ptr<BYTE, decltype(&free)> bytes(whole.Detach(), free);
    for (UINT cut = 0; cut < length; ++cut) {
        CMemFile part(bytes.get(), cut);
        CArchive ar(&part, CArchive::load);
        CNode* node = nullptr;
        int cause = -1;
        TRY { ar >> node; }
        CATCH(CArchiveException, e) { cause = e->m_cause; }
        END_CATCH
        EXPECT_NE(cause, -1) << cut;
    }
}

TEST(Archive, CollectionsComeBack) {
    CStringArray strings;
    strings.Add(L"a");
    strings.Add(L"b");
    CMapStringToString map;
    map[L"k"] = L"v";
    CStringList list;
    list.AddTail(L"l");
    CDWordArray numbers;
    numbers.Add(70000);
    round_trip(
        [&](CArchive& ar) {
            strings.Serialize(ar);
            map.Serialize(ar);
            list.Serialize(ar);
            numbers.Serialize(ar);
        },
        [](CArchive& ar) {
            CStringArray strings2;
            CMapStringToString map2;
            CStringList list2;
            CDWordArray numbers2;
            strings2.Serialize(ar);
            map2.Serialize(ar);
            list2.Serialize(ar);
            numbers2.Serialize(ar);
            EXPECT_EQ(strings2[1], L"b");
            EXPECT_EQ(map2[L"k"], L"v");
            EXPECT_EQ(list2.GetHead(), L"l");
            EXPECT_EQ(numbers2[0], 70000u);
        });
}

TEST(File, WritesReadsAndSeeks) {
    const CString path = CString(testing::TempDir().c_str()) + L"kmfc_file_test.bin";
    {
        CFile file(path, CFile::modeCreate | CFile::modeReadWrite);
        file.Write("hello", 5);
        EXPECT_EQ(file.GetLength(), 5u);
        file.Seek(-2, CFile::end);
        char tail[2];
        EXPECT_EQ(file.Read(tail, 2), 2u);
        EXPECT_EQ(tail[1], 'o');
        EXPECT_EQ(file.Read(tail, 2), 0u);
        file.SetLength(3);
        EXPECT_EQ(file.GetLength(), 3u);
        EXPECT_EQ(file.GetFileName(), L"kmfc_file_test.bin");
        EXPECT_EQ(file.GetFileTitle(), L"kmfc_file_test");
    }
    CFile::Remove(path);
    CFile missing;
    CFileException error;
    EXPECT_FALSE(missing.Open(path, CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    wchar_t text[300];
    EXPECT_TRUE(error.GetErrorMessage(text, 300));
    EXPECT_NE(CString(text).Find(L"was not found"), -1);
    EXPECT_THROW(
        try { CFile::Remove(path); } catch (CFileException* e) {
            e->Delete();
            throw 1;
        },
        int);
}

TEST(File, MemoryFilesGrowAndFillGapsWithZeros) {
    CMemFile file(4);
    file.Seek(10, CFile::begin);
    file.Write("x", 1);
    EXPECT_EQ(file.GetLength(), 11u);
    file.SeekToBegin();
    BYTE bytes[11];
    EXPECT_EQ(file.Read(bytes, 11), 11u);
    EXPECT_EQ(bytes[0], 0);
    EXPECT_EQ(bytes[10], 'x');
    BYTE own[4] = {1, 2, 3, 4};
    CMemFile fixed(own, 4);
    fixed.SeekToEnd();
    EXPECT_THROW(fixed.Write("y", 1), CMemoryException*);
}
