// Binary files: read and written byte by byte, both widths of codes, cut off anywhere, and the decimals of
// text files.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <limits>

#include "dxf_text.h"

namespace {

const std::string kMark("AutoCAD Binary DXF\r\n\x1A\0", 22);

std::string number(std::uint64_t value, int size) {
    std::string bytes;
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i);
    return bytes;
}

std::string real(double value) {
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return number(bits, 8);
}

/// A binary file, written group by group.
class Bytes {
public:
    explicit Bytes(bool wide) : m_wide(wide), m_bytes(kMark) {}
    Bytes& raw(int code, const std::string& value) {
        if (m_wide)
            m_bytes += number(static_cast<std::uint64_t>(code), 2);
        else if (code < 255)
            m_bytes += static_cast<char>(code);
        else
            m_bytes += '\xFF' + number(static_cast<std::uint64_t>(code), 2);
        m_bytes += value;
        return *this;
    }
    Bytes& text(int code, const std::string& value) { return raw(code, value + '\0'); }
    Bytes& section(const std::string& name) { return text(0, "SECTION").text(2, name); }
    Bytes& version(const std::string& name) {
        return section("HEADER").text(9, "$ACADVER").text(1, name).text(0, "ENDSEC");
    }
    std::size_t size() const { return m_bytes.size(); }
    std::string end() { return text(0, "ENDSEC").text(0, "EOF").m_bytes; }
    const std::string& bytes() const { return m_bytes; }

private:
    bool m_wide;
    std::string m_bytes;
};

Bytes withCircle(bool wide) {
    Bytes file(wide);
    file.version(wide ? "AC1015" : "AC1009").section("ENTITIES").text(0, "CIRCLE").text(5, "7B").text(8, "0");
    return file.raw(62, number(3, 2))
        .raw(10, real(1.5))
        .raw(20, real(-2.25))
        .raw(30, real(0))
        .raw(40, real(0.1));
}

std::string binaryOf(const std::string& text) {
    const auto drawing = readDrawing(text);
    return drawing ? drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_Unknown, true}) : std::string();
}

OdDbDxfError errorOf(const std::string& bytes) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    OdDxfReading strict;
    strict.strict = true;
    EXPECT_NE(drawing->readDxfBytes(bytes, &error, &strict), kOdOk);
    return error;
}

/// The groups of an entity, one by one, and what they are read as.
std::string extendedDataOf(OdDbDatabase& drawing) {
    std::string text = drawing.writeDxfBytes(OdDxfForm{OdDb::kDHL_1015});
    const std::size_t begin = text.find("1001\r\nKTUI_TEST");
    EXPECT_NE(begin, std::string::npos);
    return begin == std::string::npos ? "" : text.substr(begin, text.find("  0\r\n", begin) - begin);
}

}  // namespace

TEST(DxfBinary, IsReadWithCodesOfOneByteAndOfTwo) {
    for (const bool wide : {false, true}) {
        const auto drawing = readDrawing(withCircle(wide).end());
        ASSERT_TRUE(drawing) << wide;
        EXPECT_TRUE(drawing->originalFileIsBinary());
        EXPECT_EQ(drawing->originalFileVersion(), wide ? OdDb::kDHL_1015 : OdDb::kDHL_1009);
        const auto* circle = firstEntity<OdDbCircle>(*drawing);
        ASSERT_TRUE(circle) << wide;
        EXPECT_EQ(circle->center().x, 1.5);
        EXPECT_EQ(circle->center().y, -2.25);
        EXPECT_EQ(circle->radius(), 0.1);
        EXPECT_EQ(circle->color().colorIndex(), 3);
        EXPECT_EQ(circle->handle(), 0x7Bu);
    }
    EXPECT_FALSE(readDrawing(withEntities(""))->originalFileIsBinary());
}

TEST(DxfBinary, BeginsWithACommentToo) {
    for (const bool wide : {false, true}) {
        Bytes file(wide);
        file.text(999, "made by a test").section("ENTITIES").text(0, "POINT").text(8, "0");
        file.raw(10, real(1)).raw(20, real(2)).raw(30, real(3));
        const auto drawing = readDrawing(file.end());
        ASSERT_TRUE(drawing) << wide;
        EXPECT_EQ(modelEntities(*drawing).size(), 1u);
    }
}

TEST(DxfBinary, EveryKindOfValueHasItsSize) {
    Bytes file = withCircle(true);
    file.text(1001, "KTUI_TEST").text(1000, "a text").text(1002, "{").raw(1070, number(0x8001, 2));
    file.raw(1071, number(0x80000001, 4)).raw(1040, real(1e-300)).raw(1004, std::string("\3\x00\xAB\xFF", 4));
    file.raw(1010, real(1)).raw(1020, real(2)).raw(1030, real(3)).text(1005, "1F").text(1002, "}");
    const auto drawing = readDrawing(file.end());
    ASSERT_TRUE(drawing);
    EXPECT_EQ(
        extendedDataOf(*drawing),
        "1001\r\nKTUI_TEST\r\n1000\r\na text\r\n1002\r\n{\r\n1070\r\n-32767\r\n1071\r\n-2147483647\r\n"
        "1040\r\n1e-300\r\n1004\r\n00ABFF\r\n1010\r\n1.0\r\n1020\r\n2.0\r\n1030\r\n3.0\r\n1005\r\n1F\r\n"
        "1002\r\n}\r\n");
}

/// Codes at both edges of each range, in a section that no class stands for.
TEST(DxfBinary, EveryRangeOfCodesHasItsKind) {
    const struct {
        int code;
        std::string bytes;
        const char* text;
    } groups[] = {{10, real(0.5), "0.5"},
                  {59, real(0.5), "0.5"},
                  {60, number(7, 2), "7"},
                  {79, number(0xFFFF, 2), "-1"},
                  {90, number(70000, 4), "70000"},
                  {99, number(0xFFFFFFFF, 4), "-1"},
                  {100, std::string("s\0", 2), "s"},
                  {109, std::string("s\0", 2), "s"},
                  {110, real(2), "2.0"},
                  {149, real(2), "2.0"},
                  {160, number(1ull << 40, 8), "1099511627776"},
                  {169, number(~0ull, 8), "-1"},
                  {170, number(1, 2), "1"},
                  {179, number(1, 2), "1"},
                  {210, real(2), "2.0"},
                  {239, real(2), "2.0"},
                  {270, number(1, 2), "1"},
                  {289, number(1, 2), "1"},
                  {290, "\1", "1"},
                  {299, "\xFF", "255"},
                  {300, std::string("s\0", 2), "s"},
                  {309, std::string("s\0", 2), "s"},
                  {310, "\2\x01\xEF", "01EF"},
                  {319, std::string(1, '\0'), ""},
                  {320, std::string("1F\0", 3), "1F"},
                  {369, std::string("1F\0", 3), "1F"},
                  {370, number(0xFFFE, 2), "-2"},
                  {389, number(1, 2), "1"},
                  {390, std::string("F\0", 2), "F"},
                  {400, number(1, 2), "1"},
                  {409, number(1, 2), "1"},
                  {410, std::string("Model\0", 6), "Model"},
                  {420, number(0xFF0000, 4), "16711680"},
                  {429, number(1, 4), "1"},
                  {430, std::string("s\0", 2), "s"},
                  {440, number(0x2000000, 4), "33554432"},
                  {459, number(1, 4), "1"},
                  {460, real(2), "2.0"},
                  {469, real(2), "2.0"},
                  {470, std::string("s\0", 2), "s"},
                  {480, std::string("F\0", 2), "F"},
                  {1000, std::string("s\0", 2), "s"},
                  {1003, std::string("s\0", 2), "s"},
                  {1004, "\1\x7F", "7F"},
                  {1005, std::string("F\0", 2), "F"},
                  {1010, real(2), "2.0"},
                  {1059, real(2), "2.0"},
                  {1060, number(1, 2), "1"},
                  {1070, number(1, 2), "1"},
                  {1071, number(1, 4), "1"}};
    Bytes file(true);
    file.version("AC1015").section("OTHER");
    std::string expected;
    for (const auto& group : groups) {
        file.raw(group.code, group.bytes);
        const std::string code = std::to_string(group.code);
        expected += (code.size() < 3 ? " " : "") + code + "\r\n" + group.text + "\r\n";
    }
    const std::string bytes = file.end();
    const auto drawing = readDrawing(bytes);
    ASSERT_TRUE(drawing);
    const std::string text = drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_1015});
    const std::size_t begin = text.find("OTHER\r\n") + 7;
    EXPECT_EQ(text.substr(begin, text.find("  0\r\n", begin) - begin), expected);
    // The same groups are written as they were read.
    const std::string again = drawing->writeDxfBytes();
    const std::string section = bytes.substr(bytes.find("OTHER"));
    EXPECT_EQ(again.substr(again.find("OTHER")), section);
    EXPECT_EQ(again.substr(0, 22), kMark);
}

TEST(DxfBinary, NumbersWithoutRoomBecomeTheNearest) {
    const std::string groups =
        "1001|KTUI_TEST\n1070|100000\n1070|-40000\n1070|65535\n1070|40000\n1071|5000000000\n1071|-"
        "5000000000\n";
    const auto drawing = readDrawing(binaryOf(withEntities("0|POINT\n8|0\n10|0\n20|0\n" + groups)));
    ASSERT_TRUE(drawing);
    EXPECT_EQ(extendedDataOf(*drawing),
              "1001\r\nKTUI_TEST\r\n1070\r\n-1\r\n1070\r\n-32768\r\n1070\r\n-1\r\n1070\r\n-25536\r\n"
              "1071\r\n-1\r\n1071\r\n-2147483648\r\n");
}

TEST(DxfBinary, LongBytesAreParted) {
    std::string digits;
    for (int i = 0; i < 300; ++i) digits += "5A";
    const std::string bytes =
        binaryOf(dxf(header("AC1015") + "0|SECTION\n2|OTHER\n310|" + digits + "\n0|ENDSEC\n0|EOF"));
    const std::string expected = std::string("OTHER\0", 6) + number(310, 2) + '\xFF' + std::string(255, 'Z') +
                                 number(310, 2) + '\x2D' + std::string(45, 'Z') + number(0, 2) + "ENDSEC";
    EXPECT_NE(bytes.find(expected), std::string::npos);
}

TEST(DxfBinary, WhatIsNoHexadecimalDigitEndsBytes) {
    const std::string bytes =
        binaryOf(dxf(header("AC1015") + "0|SECTION\n2|OTHER\n310|41g142\n311|\n0|ENDSEC\n0|EOF"));
    EXPECT_NE(bytes.find(std::string("OTHER\0", 6) + number(310, 2) + "\1A" + number(311, 2) +
                         std::string(1, '\0') + number(0, 2) + "ENDSEC"),
              std::string::npos);
}

TEST(DxfBinary, LineEndsInTextsStayOneLine) {
    Bytes file(true);
    file.version("AC1015").section("OTHER").text(1, "a\r\nb").text(1, "c");
    const auto drawing = readDrawing(file.end());
    ASSERT_TRUE(drawing);
    EXPECT_NE(drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_1015}).find("  1\r\na^M^Jb\r\n  1\r\nc\r\n"),
              std::string::npos);
}

TEST(DxfBinary, KeepsADrawingInEveryVersion) {
    const std::string entities =
        "0|LINE\n8|a layer\n62|5\n370|30\n10|0.1\n20|1e300\n30|-7.000000000000001\n11|1\n21|2\n31|3\n"
        "0|TEXT\n8|0\n10|0\n20|0\n40|2.5\n1|gr\\U+00FC\\U+00DFe\n1001|KTUI_TEST\n1040|0.30000000000000004\n";
    for (const OdDb::DwgVersion version : kAllVersions) {
        const auto drawing = readDrawing(withEntities(entities, "AC1032"));
        ASSERT_TRUE(drawing);
        const std::string text = drawing->writeDxfBytes(OdDxfForm{version});
        const std::string bytes = drawing->writeDxfBytes(OdDxfForm{version, true});
        ASSERT_EQ(bytes.substr(0, 22), kMark);
        // Codes have one byte up to R12: the second byte of the first text follows at once.
        EXPECT_EQ(bytes.substr(22, 9),
                  version > OdDb::kDHL_1009 ? std::string("\0\0SECTION", 9) : std::string("\0SECTION\0", 9));
        EXPECT_LT(bytes.size(), text.size());
        const auto back = readDrawing(bytes);
        ASSERT_TRUE(back) << version;
        EXPECT_EQ(back->originalFileVersion(), version);
        EXPECT_EQ(back->writeDxfBytes(OdDxfForm{version}), text) << version;
        // Without a form it stays what it was.
        EXPECT_EQ(back->writeDxfBytes(), bytes) << version;
        EXPECT_EQ(readDrawing(text)->writeDxfBytes(), text) << version;
    }
}

TEST(DxfBinary, EveryCutIsNoticedAndToldByItsByte) {
    for (const bool wide : {false, true}) {
        const std::string whole = withCircle(wide).end();
        const std::size_t end = whole.rfind("EOF") + 3;
        for (std::size_t size = kMark.size(); size <= end; ++size) {
            const OdDbDxfError error = errorOf(whole.substr(0, size));
            ASSERT_EQ(error.code, OdDxfErrorCode::kTruncated) << size;
            ASSERT_EQ(error.leftOut, 0) << "nothing was written";
            EXPECT_EQ(error.line, 0);
            EXPECT_GE(error.byte, kMark.size());
            EXPECT_LE(error.byte, size);
        }
        EXPECT_TRUE(readDrawing(whole + "what follows is no part of it"));
        Bytes cut = withCircle(wide);
        const std::size_t place = cut.size();
        EXPECT_EQ(errorOf(cut.bytes()).byte, place);
    }
}

TEST(DxfBinary, AFailureIsToldByTheByteOfItsGroup) {
    Bytes file = withCircle(true);
    const std::size_t place = file.size();
    file.raw(39, real(std::numeric_limits<double>::quiet_NaN()));
    OdDbDxfError error = errorOf(file.end());
    EXPECT_EQ(error.code, OdDxfErrorCode::kBadNumber);
    EXPECT_EQ(error.line, 0);
    EXPECT_EQ(error.byte, place);
    EXPECT_FALSE(error.text.isEmpty());

    Bytes coded = withCircle(true);
    const std::size_t code = coded.size();
    coded.text(2000, "no code");
    error = errorOf(coded.end());
    EXPECT_EQ(error.code, OdDxfErrorCode::kBadGroupCode);
    EXPECT_EQ(error.byte, code);
}

TEST(DxfBinary, WhatIsMendedIsToldByTheByteOfItsGroup) {
    Bytes file = withCircle(true);
    const std::size_t first = file.size();
    file.raw(39, real(std::numeric_limits<double>::infinity())).raw(48, real(2));
    const std::size_t second = file.size();
    file.text(2000, "no code");
    const std::size_t last = file.size();
    file.raw(62, number(5, 2));
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDxfReading reading;
    ASSERT_EQ(drawing->readDxfBytes(file.bytes(), nullptr, &reading), kOdOk);
    ASSERT_GE(reading.mends.size(), 3u);
    const std::size_t places[] = {first, second, last};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(reading.mends[static_cast<std::size_t>(i)].line, 0);
        EXPECT_EQ(reading.mends[static_cast<std::size_t>(i)].byte, places[i]) << i;
    }
    EXPECT_EQ(modelEntities(*drawing).size(), 1u);
}

TEST(DxfBinary, AMarkThatWasSentAsATextIsRefused) {
    std::string bytes = withCircle(true).end();
    bytes.erase(bytes.find('\r'), 1);
    EXPECT_EQ(errorOf(bytes).code, OdDxfErrorCode::kBinary);
    EXPECT_EQ(errorOf(kMark).code, OdDxfErrorCode::kTruncated);
}

TEST(DxfForm, ATextHasTheDecimalsAskedFor) {
    const auto drawing = readDrawing(
        withEntities("0|LINE\n8|0\n10|1.23456789\n20|-0.00004\n30|1e300\n11|2.5\n21|3\n31|0.95\n"));
    ASSERT_TRUE(drawing);
    const auto values = [&](int precision) {
        const std::string text = drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_1015, false, precision});
        const std::size_t begin = text.find("AcDbLine\r\n") + 10;
        return text.substr(begin, text.find("  0\r\n", begin) - begin);
    };
    const auto expected = [](const char* x, const char* y, const std::string& z, const char* toX,
                             const char* toZ) {
        return std::string(" 10\r\n") + x + "\r\n 20\r\n" + y + "\r\n 30\r\n" + z + "\r\n 11\r\n" + toX +
               "\r\n 21\r\n3.0\r\n 31\r\n" + toZ + "\r\n";
    };
    char huge[400];
    std::snprintf(huge, sizeof huge, "%.1f", 1e300);
    EXPECT_EQ(values(16), expected("1.23456789", "-4e-05", "1e+300", "2.5", "0.95"));
    EXPECT_EQ(values(17), values(16));
    EXPECT_EQ(values(4), expected("1.2346", "0.0", huge, "2.5", "0.95"));
    EXPECT_EQ(values(5), expected("1.23457", "-0.00004", huge, "2.5", "0.95"));
    EXPECT_EQ(values(1), expected("1.2", "0.0", huge, "2.5", "0.9"));
    EXPECT_EQ(values(0), expected("1.0", "0.0", huge, "2.0", "1.0"));
    EXPECT_EQ(values(-3), values(0));
    // A binary file has them all.
    const auto back = readDrawing(drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_1015, true, 2}));
    ASSERT_TRUE(back);
    EXPECT_EQ(firstEntity<OdDbLine>(*back)->startPoint().x, 1.23456789);
}
