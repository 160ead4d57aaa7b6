// Every character of every code page, the same on each system: sums of what the published tables say.
#include <gtest/gtest.h>

#include <cstdint>

#include "dxf_text.h"

namespace {

/// A file of R12 with a text for each of these byte strings.
std::string fileWithTexts(const std::string& page, const std::vector<std::string>& texts) {
    std::string file = dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1009\n9|$DWGCODEPAGE\n3|" + page +
                           "\n0|ENDSEC\n0|SECTION\n2|ENTITIES");
    for (const std::string& text : texts) file += "0\nTEXT\n8\n0\n1\n" + text + "\n";
    return file + dxf("0|ENDSEC\n0|EOF");
}

std::vector<std::wstring> textsOf(OdDbDatabase& drawing) {
    std::vector<std::wstring> texts;
    for (OdDbEntity* entity : modelEntities(drawing))
        texts.emplace_back(dynamic_cast<OdDbText*>(entity)->textString().view());
    return texts;
}

/// FNV-1a over the characters, with a zero behind each text.
std::uint64_t sumOf(const std::vector<std::wstring>& texts) {
    std::uint64_t sum = 0xCBF29CE484222325;
    const auto add = [&](std::uint32_t unit) { sum = (sum ^ unit) * 0x100000001B3; };
    for (const std::wstring& text : texts) {
        for (const wchar_t c : text) add(static_cast<std::uint32_t>(c));
        add(0);
    }
    return sum;
}

std::vector<std::string> singleBytes() {
    std::vector<std::string> texts;
    for (int byte = 0x80; byte < 0x100; ++byte) texts.emplace_back(1, static_cast<char>(byte));
    return texts;
}

std::vector<std::string> doubleBytes() {
    std::vector<std::string> texts;
    for (int lead = 0x81; lead < 0xFF; ++lead)
        for (int trail = 0x40; trail < 0xFF; ++trail)
            if (trail != 0x7F) texts.push_back({static_cast<char>(lead), static_cast<char>(trail)});
    return texts;
}

bool isPrivate(wchar_t c) { return c >= 0xE000 && c < 0xF900; }

/// The texts of one character. What users may define for themselves is private to some systems and nothing to
/// others, and so left out.
std::vector<std::wstring> charactersOf(const std::vector<std::wstring>& texts) {
    std::vector<std::wstring> characters;
    for (const std::wstring& text : texts)
        if (text.size() == 1 && !isPrivate(text[0])) characters.push_back(text);
    return characters;
}

/// The texts are read as the sum says, and are the same again after they were written and read.
void expectPage(const std::string& page, const std::vector<std::string>& bytes, std::uint64_t sum) {
    const OdDbDatabasePtr drawing = readDrawing(fileWithTexts(page, bytes));
    ASSERT_TRUE(drawing) << page;
    const std::vector<std::wstring> texts = textsOf(*drawing);
    ASSERT_EQ(texts.size(), bytes.size());
    const std::uint64_t found = sumOf(charactersOf(texts));
    EXPECT_EQ(found, sum) << page << " 0x" << std::hex << found;
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    ASSERT_TRUE(again);
    EXPECT_EQ(textsOf(*again), texts) << page;
}

}  // namespace

TEST(DxfCodePages, OfOneByteAreReadByTheirTables) {
    const struct {
        const char* name;
        std::uint64_t sum;
    } pages[] = {
        {"dos437", 0xC80E2D8B114F8D40},    {"dos720", 0xC99F7F0D82524520},
        {"dos737", 0xB1C9E85060B72124},    {"dos775", 0xC48E98408803AE38},
        {"dos850", 0x87BD08C35F6E3F2E},    {"dos852", 0x7CF4C151B3445167},
        {"dos855", 0xDE287BA9D0B7CD5A},    {"dos857", 0x1A1E240036DBC18B},
        {"dos860", 0x8F8D6CC624B8CDCF},    {"dos861", 0x005573E51F27F50B},
        {"dos862", 0x0BBB1BD6F0F2D386},    {"dos863", 0xD834272E22A890DF},
        {"dos864", 0xDA934B61E1860973},    {"dos865", 0x00337C99948D3228},
        {"dos866", 0xE9035815F5F478A1},    {"dos869", 0xB31C465870BD04C3},
        {"ANSI_874", 0xE17BDB5108EC9B17},  {"ANSI_1250", 0x1D41F53C9EEB88FD},
        {"ANSI_1251", 0x2A507AF0BC9B93DF}, {"ANSI_1252", 0xFCBFBDC51BCB4CE3},
        {"ANSI_1253", 0x6061B70F4EE13C1F}, {"ANSI_1254", 0x80228B03A7DF5A39},
        {"ANSI_1255", 0x00B4943FF9064F67}, {"ANSI_1256", 0xEF491D31C54F82A2},
        {"ANSI_1257", 0x84B5FCF932BC2C60}, {"ANSI_1258", 0x525873C708889EA4},
        {"ISO8859-1", 0x841D9F1F592B6A25}, {"ISO8859-2", 0xEA2B4FD2AC0A6824},
        {"ISO8859-3", 0xB24DB0A0BDB8D0A6}, {"ISO8859-4", 0xCDEFFED800B294D5},
        {"ISO8859-5", 0xFD1AA7A15DAFEE39}, {"ISO8859-6", 0x3A5533D16D4593A5},
        {"ISO8859-7", 0x1F16F1AF99CC58ED}, {"ISO8859-8", 0x0BD3A57F3B36B724},
        {"ISO8859-9", 0x946B7BBF79BF984C}, {"MACINTOSH", 0xABC00933A0930D14},
    };
    for (const auto& page : pages) expectPage(page.name, singleBytes(), page.sum);
}

TEST(DxfCodePages, OfTwoBytesAreReadByTheirTables) {
    const struct {
        const char* name;
        std::uint64_t sum;
    } pages[] = {
        {"ANSI_932", 0x0656AD161D092E3F},
        {"ANSI_936", 0xAF0A69397D28FD8B},
        {"ANSI_949", 0xA7C4237F74B04F82},
        {"ANSI_950", 0xE5E9F81406631578},
    };
    for (const auto& page : pages) expectPage(page.name, doubleBytes(), page.sum);
}

TEST(DxfCodePages, LettersWithMarksStayWhatTheyAre) {
    // Some converters join a letter with the mark behind it, or keep it back until they see what follows.
    const struct {
        const char* page;
        const char* bytes;
        const wchar_t* text;
    } cases[] = {{"ANSI_1258", "M\xE3\xF2t", L"M\x0103\x0323t"},
                 {"ANSI_1258", "a", L"a"},
                 {"ANSI_1258", "a\xEC", L"a\x0301"},
                 {"ANSI_1258", "\xE2", L"\xE2"},
                 {"ANSI_1255", "\xE5", L"\x05D5"},
                 {"ANSI_1255", "\xE5\xC9", L"\x05D5\x05B9"},
                 {"ANSI_1255", "\xFA\xE5\xEB\xF0\xE9\xFA", L"\x05EA\x05D5\x05DB\x05E0\x05D9\x05EA"}};
    for (const auto& one : cases) {
        const std::string file = fileWithTexts(one.page, {one.bytes});
        const OdDbDatabasePtr drawing = readDrawing(file);
        EXPECT_EQ(textsOf(*drawing).at(0), one.text) << one.page;
        EXPECT_NE(drawing->writeDxfBytes().find(std::string("\r\n") + one.bytes + "\r\n"), std::string::npos)
            << "the bytes are the same again";
    }
}

TEST(DxfCodePages, ACharacterThatNeedsTwoOfAPageIsEscaped) {
    const OdDbDatabasePtr drawing = readDrawing(fileWithTexts("ANSI_1258", {"\\U+1EA5", "\\U+FB4B"}));
    const std::string text = drawing->writeDxfBytes();
    EXPECT_TRUE(has(text, "1|\\U+1EA5")) << "its parts would be read as two characters";
    EXPECT_TRUE(has(text, "1|\\U+FB4B"));
}

TEST(DxfCodePages, BytesThatAPageDoesNotDefineStandForThemselves) {
    for (const char* page : {"ANSI_1252", "ANSI_1253", "ANSI_874", "ANSI_932"}) {
        const OdDbDatabasePtr drawing = readDrawing(fileWithTexts(page, {"\xFF", "x\x81"}));
        EXPECT_EQ(textsOf(*drawing).at(1), L"x\x81") << page;
    }
    EXPECT_EQ(textsOf(*readDrawing(fileWithTexts("ANSI_874", {"\xFF"}))).at(0), L"\xFF");
}
