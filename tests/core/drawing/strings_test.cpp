#include <gtest/gtest.h>

#include <od_array.h>
#include <od_string.h>

TEST(Strings, AreValuesThatPassAsPointers) {
    const OdString text(L"layer");
    const wchar_t* pointer = text;
    EXPECT_EQ(std::wstring(pointer), L"layer");
    EXPECT_EQ(text.length(), 5);
    EXPECT_TRUE(OdString(nullptr).isEmpty());
    EXPECT_EQ(OdString(L"abcdef", 3), L"abc");
    EXPECT_EQ(text + L"-" + OdString(L"0"), L"layer-0");
    EXPECT_EQ(L"my " + text, L"my layer");
    EXPECT_TRUE(OdString(L"a") < OdString(L"b"));
    EXPECT_TRUE(text == L"layer" && L"layer" == text && text != L"Layer");
    EXPECT_EQ(text.getAt(5), L'\0');
}

TEST(Strings, CompareWithoutRegardToCaseInEveryAlphabet) {
    EXPECT_EQ(OdString(L"ByLayer").iCompare(L"BYLAYER"), 0);
    EXPECT_EQ(odCompareFolded(L"\x00FC\x00DF", L"\x00DC\x00DF"), 0) << "Latin";
    EXPECT_EQ(odCompareFolded(L"\x03B1\x03C2", L"\x0391\x03A3"), 0) << "Greek";
    EXPECT_EQ(odCompareFolded(L"\x0436\x0451", L"\x0416\x0401"), 0) << "Cyrillic";
    EXPECT_EQ(odCompareFolded(L"\x017A", L"\x0179"), 0) << "Latin with pairs that begin odd";
    EXPECT_EQ(odCompareFolded(L"\xFF41", L"\xFF21"), 0) << "full width";
    EXPECT_NE(odCompareFolded(L"\x00F7", L"\x00D7"), 0) << "a division sign is no small multiplication sign";
    EXPECT_EQ(odCompareFolded(L"\x0450", L"\x0400"), 0) << "the first of the small ones that stand apart";
    EXPECT_EQ(odCompareFolded(L"\x1EF9\x1EFF", L"\x1EF8\x1EFE"), 0) << "the last of the Vietnamese ones";
    EXPECT_LT(odCompareFolded(L"ab", L"abc"), 0);
}

TEST(Strings, Utf8KeepsEveryCharacter) {
    for (const std::string& text :
         {std::string("plain"), std::string("\xC3\xA9"), std::string("\xE4\xB8\xAD\xE6\x96\x87"),
          std::string("\xF0\x9F\x98\x80!"), std::string("\xF4\x8F\xBF\xBF"), std::string("a\0b", 3)})
        EXPECT_EQ(odUtf8(odWide(text).view()), text);
    const wchar_t lone[] = {0xD83D, L'x', 0};
    EXPECT_EQ(odWide(odUtf8(lone)), lone) << "an unpaired surrogate";
    const wchar_t late[] = {L'x', 0xDE00, 0}, next[] = {0xD83D, 0xE000, 0};
    EXPECT_EQ(odWide(odUtf8(late)), late) << "a second half behind a letter";
    EXPECT_EQ(odWide(odUtf8(next)), next)
        << "a first half before the first character behind the second halves";
}

TEST(Strings, IllegalUtf8BecomesTheReplacementCharacter) {
    EXPECT_EQ(odWide("\xFF"), L"\xFFFD");
    EXPECT_EQ(odWide("\xC3"), L"\xFFFD");
    EXPECT_EQ(odWide("\xC0\x80"), L"\xFFFD\xFFFD") << "an overlong zero";
    EXPECT_EQ(odWide("\xF4\x90\x80\x80").getAt(0), 0xFFFD) << "beyond the last character";
}

TEST(Arrays, GrowAndShrink) {
    OdArray<int> numbers{1, 3};
    numbers.insertAt(1, 2);
    EXPECT_EQ(numbers.append(4), 3);
    numbers.removeAt(0);
    ASSERT_EQ(numbers.length(), 3);
    EXPECT_EQ(numbers[0], 2);
    int place = -1;
    EXPECT_TRUE(numbers.contains(4, &place));
    EXPECT_EQ(place, 2);
    EXPECT_FALSE(numbers.contains(9));
    numbers.removeAll();
    EXPECT_TRUE(numbers.isEmpty());
}
