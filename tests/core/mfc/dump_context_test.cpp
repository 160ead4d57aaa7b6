// Diagnosis: how objects describe themselves, and the checks of pointers and texts.
#include <afx.h>

#include <string>

#include <gtest/gtest.h>

namespace {

/// Keeps what is written to it.
class TextFile : public CFile {
public:
    std::string text;
    int flushes = 0;
    void Write(const void* data, UINT count) override { text.append(static_cast<const char*>(data), count); }
    void Flush() override { ++flushes; }
};

class Part : public CObject {
    DECLARE_DYNAMIC(Part)
public:
    Part() = default;
    mutable int validated = 0;
    void AssertValid() const override { ++validated; }
};
IMPLEMENT_DYNAMIC(Part, CObject)

class Talking : public Part {
public:
    void Dump(CDumpContext& dc) const override { dc << L"talks " << dc.GetDepth(); }
};

struct Dumped : ::testing::Test {
    TextFile file;
    CDumpContext dc{&file};
};

}  // namespace

TEST_F(Dumped, ValuesAsText) {
    dc << static_cast<BYTE>(200) << L" " << static_cast<WORD>(65535) << L" " << -7 << L" " << 4000000000U
       << L" " << -5000000000LL << L" " << 18446744073709551615ULL << L" " << 0.5 << L" " << 1.25f;
    EXPECT_EQ(file.text, "200 65535 -7 4000000000 -5000000000 18446744073709551615 0.5 1.25");
}

TEST_F(Dumped, TextsWithTheLineEndsOfAFile) {
    dc << L"one\n" << "two\n" << static_cast<LPCTSTR>(nullptr) << static_cast<LPCSTR>(nullptr);
    EXPECT_EQ(file.text, "one\r\ntwo\r\n(NULL)(NULL)");
}

TEST_F(Dumped, ObjectsDescribeThemselves) {
    const Part part;
    dc << part;
    EXPECT_EQ(file.text.rfind("a Part at $", 0), 0u) << file.text;
    EXPECT_EQ(file.text.substr(file.text.size() - 2), "\r\n");
    file.text.clear();
    dc.SetDepth(1);
    const Talking talking;
    dc << &talking << L", " << static_cast<const CObject*>(nullptr);
    EXPECT_EQ(file.text, "talks 1, NULL");
}

TEST_F(Dumped, AnAddressIsANumber) {
    dc << static_cast<const void*>(&file);
    ASSERT_GT(file.text.size(), 4u);
    EXPECT_EQ(file.text[0], '$');
    const size_t skip = file.text.compare(1, 2, "0x") == 0 ? 3 : 1;
    EXPECT_EQ(std::stoull(file.text.substr(skip), nullptr, 16), reinterpret_cast<size_t>(&file));
}

TEST_F(Dumped, BytesStandInLines) {
    BYTE bytes[] = {0x00, 0x7F, 0x80, 0xFF, 0x0A};
    dc.HexDump(L">", bytes, 5, 2);
    EXPECT_EQ(file.text, "> 00 7F\r\n> 80 FF\r\n> 0A\r\n");
    EXPECT_THROW(dc.HexDump(L">", bytes, 0, 2), CInvalidArgException*);
    EXPECT_THROW(dc.HexDump(L">", bytes, 1, 0), CInvalidArgException*);
    EXPECT_THROW(dc.HexDump(nullptr, bytes, 1, 1), CInvalidArgException*);
    EXPECT_THROW(dc.HexDump(L">", nullptr, 1, 1), CInvalidArgException*);
}

TEST_F(Dumped, FlushingReachesTheFile) {
    dc.Flush();
    EXPECT_EQ(file.flushes, 1);
    CDumpContext().Flush();
}

TEST(Diagnosis, AnObjectIsAskedForItsInvariants) {
    const Part part;
    AfxAssertValidObject(&part, __FILE__, __LINE__);
    EXPECT_EQ(part.validated, 1);
    EXPECT_DEATH(AfxAssertValidObject(nullptr, "here.cpp", 12), "here.cpp\\(12\\)");
}

TEST(Diagnosis, AddressesAndTextsAreTried) {
    int number = 0;
    EXPECT_TRUE(AfxIsValidAddress(&number, sizeof number));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_TRUE(AfxIsValidString(L"text"));
    EXPECT_TRUE(AfxIsValidString("text", 4));
    EXPECT_TRUE(AfxIsValidString(L"", -1));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCWSTR>(nullptr)));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCSTR>(nullptr), 3));
}

#ifdef _WIN32
TEST(Diagnosis, PagesCountAsTheyAreProtected) {
    auto* pages =
        static_cast<wchar_t*>(::VirtualAlloc(nullptr, 8192, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    ASSERT_TRUE(pages);
    DWORD former = 0;
    ::VirtualProtect(pages + 2048, 4096, PAGE_NOACCESS, &former);
    EXPECT_TRUE(AfxIsValidAddress(pages, 4096));
    EXPECT_FALSE(AfxIsValidAddress(pages, 4097));
    for (int i = 0; i < 2048; ++i) pages[i] = L'x';
    EXPECT_FALSE(AfxIsValidString(pages)) << "its end would lie in the page behind";
    EXPECT_TRUE(AfxIsValidString(pages, 2048));
    EXPECT_FALSE(AfxIsValidString(pages, 2049));
    pages[2047] = 0;
    EXPECT_TRUE(AfxIsValidString(pages));
    ::VirtualProtect(pages, 4096, PAGE_READONLY, &former);
    EXPECT_TRUE(AfxIsValidAddress(pages, 4096, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(pages, 4096, TRUE));
    ::VirtualFree(pages, 0, MEM_RELEASE);
}
#endif

TEST(Diagnosis, AllClassesAreWalked) {
    struct Found {
        int parts = 0, objects = 0;
    } found;
    AfxDoForAllClasses(
        [](const CRuntimeClass* c, void* context) {
            auto* count = static_cast<Found*>(context);
            if (std::string(c->m_lpszClassName) == "Part") ++count->parts;
            ++count->objects;
        },
        &found);
    EXPECT_EQ(found.parts, 1);
    EXPECT_GT(found.objects, 5) << "the class layer's own too";
}

TEST(Diagnosis, MemoryIsNotTrackedButTheSwitchIsKept) {
    EXPECT_TRUE(AfxCheckMemory());
    const BOOL former = AfxEnableMemoryTracking(TRUE);
    EXPECT_TRUE(AfxEnableMemoryTracking(FALSE));
    EXPECT_FALSE(AfxEnableMemoryTracking(former));
}

TEST(Diagnosis, HeadersSayThatTheyWereThere) {
#if !defined(__AFX_H__) || !defined(_MFC_VER)
    FAIL();
#endif
    TRACE(L"nothing %d\n", 1);
    TRACE0("nothing\n");
    TRACE1("%d\n", 1);
    TRACE2("%d %d\n", 1, 2);
    TRACE3("%d %d %d\n", 1, 2, 3);
}
