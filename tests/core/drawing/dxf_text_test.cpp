// Code pages, escapes and line ends.
#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

std::string fileWithText(const std::string& value, const std::string& version, const std::string& codePage) {
    return dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|" + version + "\n9|$DWGCODEPAGE\n3|" + codePage +
               "\n0|ENDSEC\n0|SECTION\n2|ENTITIES\n0|TEXT\n8|0\n10|0\n20|0\n40|1") +
           "1\n" + value + "\n" + dxf("0|ENDSEC\n0|EOF");
}

std::wstring textOf(const std::string& file) {
    const OdDbDatabasePtr drawing = readDrawing(file);
    auto* text = drawing ? firstEntity<OdDbText>(*drawing) : nullptr;
    return text ? std::wstring(text->textString().view()) : L"(refused)";
}

std::wstring read(const std::string& value, const std::string& version = "AC1015",
                  const std::string& codePage = "ANSI_1252") {
    return textOf(fileWithText(value, version, codePage));
}

/// What a text becomes in a file of this version and code page.
std::string written(const wchar_t* value, OdDb::DwgVersion version,
                    const std::string& codePage = "ANSI_1252") {
    const OdDbDatabasePtr drawing = readDrawing(fileWithText("x", "AC1015", codePage));
    firstEntity<OdDbText>(*drawing)->setTextString(value);
    const std::string text = drawing->writeDxfBytes(version);
    const std::size_t at = text.find("  1\r\n", text.find("TEXT\r\n", text.find("ENTITIES"))) + 5;
    EXPECT_EQ(textOf(text), value) << "it must come back";
    return text.substr(at, text.find("\r\n", at) - at);
}

}  // namespace

TEST(DxfText, CodePagesAreDecoded) {
    EXPECT_EQ(read("Caf\xE9"), L"Caf\x00E9");
    EXPECT_EQ(read("\xD6\xD0\xCE\xC4", "AC1015", "ANSI_936"), L"\x4E2D\x6587");
    EXPECT_EQ(read("\xD6\xD0\xCE\xC4", "AC1009", "gb2312"), L"\x4E2D\x6587");
    EXPECT_EQ(read("\x82\xA0", "AC1015", "ANSI_932"), L"\x3042");
    EXPECT_EQ(read("\xC6", "AC1015", "ANSI_1251"), L"\x0416");
    EXPECT_EQ(read("\x81", "AC1015", "dos437"), L"\x00FC");
}

TEST(DxfText, CodePagesOfTheStandardAreKnownByTheirNumbers) {
    const struct {
        const char* name;
        const char* bytes;
        wchar_t character;
    } pages[] = {{"ISO8859-1", "\xA1", 0xA1},  {"ISO8859-2", "\xA5", 0x13D},   {"ISO8859-3", "\xA1", 0x126},
                 {"ISO8859-4", "\xA2", 0x138}, {"ISO8859-5", "\xA1", 0x401},   {"ISO8859-6", "\xC1", 0x621},
                 {"ISO8859-7", "\xC1", 0x391}, {"ISO8859-8", "\xE0", 0x5D0},   {"ISO8859-9", "\xD0", 0x11E},
                 {"BIG5", "\xA4\xA4", 0x4E2D}, {"KSC5601", "\xB0\xA1", 0xAC00}};
    for (const auto& page : pages)
        EXPECT_EQ(read(page.bytes, "AC1015", page.name), std::wstring(1, page.character)) << page.name;
}

TEST(DxfText, FilesFrom2007OnAreUtf8) {
    EXPECT_EQ(read("\xE4\xB8\xAD", "AC1021", "ANSI_936"), L"\x4E2D");
    EXPECT_EQ(read("\xC3\xA9", "AC1032"), L"\x00E9");
    EXPECT_EQ(read("Caf\xE9", "AC1021"), L"Caf\x00E9") << "wrongly labelled, but readable";
}

TEST(DxfText, NumberedCharactersAreResolved) {
    EXPECT_EQ(read("\\U+4E2D\\U+6587"), L"\x4E2D\x6587");
    EXPECT_EQ(read("\\M+5D6D0"), L"\x4E2D") << "code page 936";
    EXPECT_EQ(read("\\M+182A0"), L"\x3042") << "code page 932";
    EXPECT_EQ(odUtf8(read("\\U+D83D\\U+DE00")), "\xF0\x9F\x98\x80")
        << "a pair of surrogates is one character";
    EXPECT_EQ(read("\\U+00"), L"\\U+00");
    EXPECT_EQ(read("\\U+0041"), L"\\U+0041") << "printable ASCII needs no number";
    EXPECT_EQ(read("\\M+9D6D0"), L"\\M+9D6D0");
    EXPECT_EQ(read("\\M+1A141"), L"\\M+1A141") << "two characters, one of them plain";
    EXPECT_EQ(read("\\Pa"), L"\\Pa");
}

TEST(DxfText, CaretsStandForControlCharacters) {
    EXPECT_EQ(read("a^Jb^Ic"), L"a\nb\tc");
    EXPECT_EQ(read("2^ 3"), L"2^3");
    EXPECT_EQ(read("2^3"), L"2^3");
    EXPECT_EQ(read("a^"), L"a^");
}

TEST(DxfText, CharactersAreWrittenInTheFilesEncoding) {
    EXPECT_EQ(written(L"Caf\x00E9", OdDb::kDHL_1015), "Caf\xE9");
    EXPECT_EQ(written(L"Caf\x00E9", OdDb::kDHL_1021), "Caf\xC3\xA9");
    EXPECT_EQ(written(L"\x4E2D", OdDb::kDHL_1015), "\\U+4E2D") << "1252 has no such character";
    EXPECT_EQ(written(L"\x4E2D", OdDb::kDHL_1015, "ANSI_936"), "\xD6\xD0");
    EXPECT_EQ(written(odWide("\xF0\x9F\x98\x80"), OdDb::kDHL_1015), "\\U+D83D\\U+DE00");
    EXPECT_EQ(written(odWide("\xF0\x9F\x98\x80"), OdDb::kDHL_1032), "\xF0\x9F\x98\x80");
    const wchar_t first[] = {0xD83D, 0}, second[] = {0xDE00, 0};
    EXPECT_EQ(written(first, OdDb::kDHL_1032), "\\U+D83D") << "half a character";
    EXPECT_EQ(written(second, OdDb::kDHL_1032), "\\U+DE00") << "the other half";
}

TEST(DxfText, ControlCharactersAndCaretsComeBack) {
    EXPECT_EQ(written(L"a\nb", OdDb::kDHL_1032), "a^Jb");
    EXPECT_EQ(written(L"2^3", OdDb::kDHL_1032), "2^3");
    EXPECT_EQ(written(L"2^A", OdDb::kDHL_1032), "2^ A");
    EXPECT_EQ(written(L"^^ ^", OdDb::kDHL_1032), "^ ^  ^");
    EXPECT_EQ(written(L"^\n", OdDb::kDHL_1032), "^ ^J");
}

TEST(DxfText, LeadingBlanksOfATextStay) { EXPECT_EQ(read("   x  "), L"   x  "); }

TEST(DxfText, EveryLineEndAndCommentsAreRead) {
    const std::string pairs =
        "999|made by hand\n0|SECTION\n2|ENTITIES\n999|0\n0|POINT\n8|0\n999|x\n10|1\n20|2\n0|ENDSEC\n0|EOF";
    for (const char* lineEnd : {"\n", "\r\n"}) {
        const OdDbDatabasePtr drawing = readDrawing(dxf(pairs, lineEnd));
        ASSERT_TRUE(drawing);
        EXPECT_EQ(firstEntity<OdDbPoint>(*drawing)->position(), (OdGePoint3d{1, 2, 0}));
    }
    EXPECT_TRUE(readDrawing("\xEF\xBB\xBF" + dxf(pairs))) << "with a byte order mark";
    EXPECT_TRUE(readDrawing(dxf(pairs) + "\x1A")) << "with an old end mark";
    std::string open = dxf(pairs);
    open.pop_back();
    EXPECT_TRUE(readDrawing(open)) << "without an end of the last line";
}
