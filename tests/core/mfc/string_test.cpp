// CString: storage, sharing, buffers, searching and editing.
#include <afx.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

TEST(String, IsOnePointerSoThatItFitsAnArgumentList) { EXPECT_EQ(sizeof(CString), sizeof(void*)); }

TEST(String, ConstructsFromEveryKindOfText) {
    EXPECT_TRUE(CString().IsEmpty());
    EXPECT_EQ(CString(L"wide"), L"wide");
    EXPECT_EQ(CString("narrow"), L"narrow");
    EXPECT_EQ(CString(L'x', 3), L"xxx");
    EXPECT_EQ(CString('y', 2), L"yy");
    EXPECT_EQ(CString(L'z', -1), L"");
    EXPECT_EQ(CString(L"abcdef", 3), L"abc");
    EXPECT_EQ(CString(static_cast<LPCWSTR>(nullptr)), L"");
    EXPECT_EQ(CStringA(L"down"), "down");
    EXPECT_EQ(CString(CStringA("up")), L"up");
}

TEST(String, ConvertsNarrowTextBeyondAsciiAndBack) {
#ifdef _WIN32
    char narrow[8] = {};
    ::WideCharToMultiByte(CP_ACP, 0, L"\xE9", 1, narrow, 8, nullptr, nullptr);
    EXPECT_EQ(CString(CStringA(L"caf\xE9")), CString("caf") + CString(narrow));
#else
    EXPECT_EQ(CString("\xE5\x9B\xBE\xE5\xB1\x82"), L"图层");
    EXPECT_EQ(CStringA(L"图层"), "\xE5\x9B\xBE\xE5\xB1\x82");
    EXPECT_EQ(CString("a\xFFz"), L"a\xFFFDz");
#endif
}

TEST(String, KeepsZerosInsideWhenTheLengthIsGiven) {
    const CString s(L"a\0b", 3);
    EXPECT_EQ(s.GetLength(), 3);
    EXPECT_EQ(s[1], L'\0');
    EXPECT_EQ(s[2], L'b');
}

TEST(String, SharesCharactersUntilOneCopyIsWritten) {
    CString a(L"layer");
    CString b(a);
    EXPECT_EQ(a.GetString(), b.GetString());
    b.SetAt(0, L'p');
    EXPECT_NE(a.GetString(), b.GetString());
    EXPECT_EQ(a, L"layer");
    EXPECT_EQ(b, L"payer");
}

TEST(String, ALockedBufferIsNeverShared) {
    CString a(L"lock");
    a.LockBuffer();
    const CString b(a);
    EXPECT_NE(a.GetString(), b.GetString());
    EXPECT_EQ(b, L"lock");
    a.UnlockBuffer();
    const CString c(a);
    EXPECT_EQ(a.GetString(), c.GetString());
}

TEST(String, AssigningItselfOrAPartOfItselfWorks) {
    CString s(L"abcdef");
    s = *&s;
    EXPECT_EQ(s, L"abcdef");
    s = s.GetString() + 2;
    EXPECT_EQ(s, L"cdef");
    s += s;
    EXPECT_EQ(s, L"cdefcdef");
    s.Append(s.GetString() + 6);
    EXPECT_EQ(s, L"cdefcdefef");
}

TEST(String, IndexMayReachTheClosingZeroButNotBeyond) {
    CString s(L"ab");
    EXPECT_EQ(s[2], L'\0');
    EXPECT_THROW(s.GetAt(3), CInvalidArgException*);
    EXPECT_THROW(s.GetAt(-1), CInvalidArgException*);
    EXPECT_THROW(s.SetAt(2, L'x'), CInvalidArgException*);
}

TEST(String, BufferContract) {
    CString s(L"abc");
    wchar_t* buffer = s.GetBuffer(100);
    EXPECT_STREQ(buffer, L"abc");
    EXPECT_GE(s.GetAllocLength(), 100);
    wcscpy(buffer, L"written");
    s.ReleaseBuffer();
    EXPECT_EQ(s.GetLength(), 7);
    s.FreeExtra();
    EXPECT_EQ(s.GetAllocLength(), 7);
    s.GetBufferSetLength(3);
    EXPECT_EQ(s, L"wri");
    EXPECT_THROW(s.ReleaseBuffer(1000), CInvalidArgException*);
    s.Truncate(1);
    EXPECT_EQ(s, L"w");
    EXPECT_THROW(s.Truncate(2), CInvalidArgException*);
    EXPECT_THROW(s.GetBuffer(-1), CInvalidArgException*);
}

TEST(String, WritingAnEmptyStringsBufferLeavesOtherEmptyStringsAlone) {
    CString a, b;
    wcscpy(a.GetBuffer(4), L"mine");
    a.ReleaseBuffer();
    EXPECT_EQ(a, L"mine");
    EXPECT_TRUE(b.IsEmpty());
    EXPECT_TRUE(CString().IsEmpty());
}

TEST(String, ComparesWithEveryMixOfOperands) {
    const CString a(L"abc");
    EXPECT_TRUE(a == L"abc" && L"abc" == a && a == "abc" && a == CString(L"abc"));
    EXPECT_TRUE(a != L"abd" && a < L"abd" && L"abd" > a && a <= a && a >= L"ab");
    EXPECT_TRUE(CString(L"x") == L'x');
    EXPECT_EQ(a.Compare(L"abd"), -1);
    EXPECT_EQ(a.CompareNoCase(L"ABC"), 0);
    EXPECT_GT(CString(L"b").CompareNoCase(L"A"), 0);
    EXPECT_EQ(a.Collate(L"abc"), 0);
}

TEST(String, JoinsWithEveryMixOfOperands) {
    const CString a(L"a");
    EXPECT_EQ(a + a + L"b" + L'c' + "d" + 'e', L"aabcde");
    EXPECT_EQ(L"x" + a, L"xa");
    EXPECT_EQ(L'x' + a, L"xa");
    CString s;
    s += L"one";
    s += L' ';
    s += "two";
    s += a;
    EXPECT_EQ(s, L"one twoa");
}

TEST(String, PartsTakeWhatIsThere) {
    const CString s(L"abcdef");
    EXPECT_EQ(s.Mid(2), L"cdef");
    EXPECT_EQ(s.Mid(2, 2), L"cd");
    EXPECT_EQ(s.Mid(4, 100), L"ef");
    EXPECT_EQ(s.Mid(100), L"");
    EXPECT_EQ(s.Mid(-5, 2), L"ab");
    EXPECT_EQ(s.Left(2), L"ab");
    EXPECT_EQ(s.Left(-1), L"");
    EXPECT_EQ(s.Right(2), L"ef");
    EXPECT_EQ(s.Right(100), L"abcdef");
    EXPECT_EQ(s.SpanIncluding(L"bac"), L"abc");
    EXPECT_EQ(s.SpanExcluding(L"xd"), L"abc");
}

TEST(String, Finds) {
    const CString s(L"a-b-c");
    EXPECT_EQ(s.Find(L'-'), 1);
    EXPECT_EQ(s.Find(L'-', 2), 3);
    EXPECT_EQ(s.Find(L"b-"), 2);
    EXPECT_EQ(s.Find(L"zz"), -1);
    EXPECT_EQ(s.Find(L'-', 99), -1);
    EXPECT_EQ(s.Find(L"a", -1), -1);
    EXPECT_EQ(s.ReverseFind(L'-'), 3);
    EXPECT_EQ(s.FindOneOf(L"xcb"), 2);
    EXPECT_EQ(CString().ReverseFind(L'x'), -1);
}

TEST(String, Edits) {
    CString s(L"abcdef");
    EXPECT_EQ(s.Delete(1, 2), 4);
    EXPECT_EQ(s, L"adef");
    EXPECT_EQ(s.Delete(2, 100), 2);
    EXPECT_EQ(s.Delete(50), 2);
    EXPECT_EQ(s.Insert(1, L"xyz"), 5);
    EXPECT_EQ(s, L"axyzd");
    EXPECT_EQ(s.Insert(-3, L'<'), 6);
    EXPECT_EQ(s.Insert(100, L'>'), 7);
    EXPECT_EQ(s, L"<axyzd>");
    EXPECT_EQ(s.Replace(L'x', L'a'), 1);
    EXPECT_EQ(s.Remove(L'a'), 2);
    EXPECT_EQ(s, L"<yzd>");
    EXPECT_EQ(s.Replace(L"yz", L"yzyz"), 1);
    EXPECT_EQ(s, L"<yzyzd>");
    EXPECT_EQ(s.Replace(L"", L"x"), 0);
    EXPECT_EQ(s.Replace(L"yz", nullptr), 2);
    EXPECT_EQ(s, L"<d>");
    EXPECT_EQ(s.Insert(0, s), 6);
    EXPECT_EQ(s, L"<d><d>");
}

TEST(String, EditingACopyLeavesTheOriginal) {
    const CString original(L"  Abc  ");
    CString copy(original);
    copy.Trim().MakeUpper().MakeReverse();
    EXPECT_EQ(copy, L"CBA");
    EXPECT_EQ(original, L"  Abc  ");
}

TEST(String, TrimsInAllItsForms) {
    EXPECT_EQ(CString(L" \t\r\nx \n").Trim(), L"x");
    EXPECT_EQ(CString(L"--x--").TrimLeft(L'-'), L"x--");
    EXPECT_EQ(CString(L"--x--").TrimRight(L'-'), L"--x");
    EXPECT_EQ(CString(L"-+x+-").Trim(L"+-"), L"x");
    EXPECT_EQ(CString(L"----").Trim(L'-'), L"");
    EXPECT_EQ(CString(L"x").Trim(L""), L"x");
}

TEST(String, Tokenizes) {
    const CString s(L"%First Second#Third");
    int at = 0;
    EXPECT_EQ(s.Tokenize(L"% #", at), L"First");
    EXPECT_EQ(s.Tokenize(L"% #", at), L"Second");
    EXPECT_EQ(s.Tokenize(L"% #", at), L"Third");
    EXPECT_EQ(at, s.GetLength());
    EXPECT_EQ(s.Tokenize(L"% #", at), L"");
    EXPECT_EQ(at, -1);
    EXPECT_THROW(s.Tokenize(L"%", at), CInvalidArgException*);
    at = 0;
    EXPECT_EQ(CString(L",,,").Tokenize(L",", at), L"");
    EXPECT_EQ(at, -1);
}

TEST(String, AResourceThatIsNotThereLeavesTheStringAsItWas) {
    CString s(L"old");
    EXPECT_FALSE(s.LoadString(4711));
    EXPECT_EQ(s, L"old");
    EXPECT_TRUE(CString(reinterpret_cast<LPCWSTR>(std::uintptr_t{4711})).IsEmpty());
    EXPECT_THROW(s.Format(4711u, 1), CInvalidArgException*);
}

TEST(String, CopiesMayBeUsedOnSeveralThreadsAtOnce) {
    const CString shared(L"shared text");
    std::vector<std::thread> threads;
    std::atomic<int> wrong = 0;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([shared, &wrong] {
            for (int i = 0; i < 2000; ++i) {
                CString copy(shared);
                copy.AppendChar(L'!');
                if (copy != L"shared text!" || shared != L"shared text") ++wrong;
            }
        });
    }
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(wrong, 0);
}
