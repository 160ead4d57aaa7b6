#include <ktui/pickers/save_formats.h>

#include <ktdsres/resource_ids.h>

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

struct Row {
    int code;
    int type;
    int version;
    unsigned id;
    const wchar_t* description;
    unsigned nameId;
    const wchar_t* shortName;
    const wchar_t* longName;
    const wchar_t* extension;
};

constexpr Row kRows[] = {
    {1, 1, 16, 0, L"AutoCAD R12(LT2) DXF", 0, L"R12 DXF", L"AutoCAD R12(LT2) DXF", L".dxf"},
    {4, 0, 19, 54402, L"AutoCAD R13 图形", 0, L"R13", L"AutoCAD R13", L".dwg"},
    {5, 1, 19, 0, L"AutoCAD R13 DXF", 0, L"R13 DXF", L"AutoCAD R13 DXF", L".dxf"},
    {8, 0, 21, 54403, L"AutoCAD R14(LT98/LT97) 图形", 0, L"R14", L"AutoCAD R14(LT98/LT97)", L".dwg"},
    {9, 1, 21, 0, L"AutoCAD R14(LT98/LT97) DXF", 0, L"R14 DXF", L"AutoCAD R14(LT98/LT97) DXF", L".dxf"},
    {12, 0, 23, 54404, L"AutoCAD 2000(LT2000) 图形", 0, L"2000", L"AutoCAD 2000(LT2000)", L".dwg"},
    {13, 1, 23, 0, L"AutoCAD 2000(LT2000) DXF", 0, L"2000 DXF", L"AutoCAD 2000(LT2000) DXF", L".dxf"},
    {24, 0, 25, 54405, L"AutoCAD 2004(LT2004) 图形", 0, L"2004", L"AutoCAD 2004(LT2004)", L".dwg"},
    {25, 1, 25, 0, L"AutoCAD 2004(LT2004) DXF", 0, L"2004 DXF", L"AutoCAD 2004(LT2004) DXF", L".dxf"},
    {36, 0, 27, 54406, L"AutoCAD 2007(LT2007) 图形", 0, L"2007", L"AutoCAD 2007(LT2007)", L".dwg"},
    {37, 1, 27, 0, L"AutoCAD 2007(LT2007) DXF", 0, L"2007 DXF", L"AutoCAD 2007(LT2007) DXF", L".dxf"},
    {48, 0, 29, 54407, L"AutoCAD 2010(LT2010) 图形", 0, L"2010", L"AutoCAD 2010(LT2010)", L".dwg"},
    {49, 1, 29, 0, L"AutoCAD 2010 DXF", 0, L"2010 DXF", L"AutoCAD 2010 DXF", L".dxf"},
    {60, 0, 31, 54412, L"AutoCAD 2013 图形", 0, L"2013", L"AutoCAD 2013", L".dwg"},
    {61, 1, 31, 0, L"AutoCAD 2013 DXF", 0, L"2013 DXF", L"AutoCAD 2013 DXF", L".dxf"},
    {14, 0, 23, 54408, L"AutoCAD 图形样板", 54409, L"样板", L"样板", L".dwt"},
    {26, 0, 25, 54408, L"AutoCAD 图形样板", 54409, L"样板", L"样板", L".dwt"},
    {38, 0, 27, 54408, L"AutoCAD 图形样板", 54409, L"样板", L"样板", L".dwt"},
    {50, 0, 29, 54408, L"AutoCAD 图形样板", 54409, L"样板", L"样板", L".dwt"},
    {62, 0, 31, 54408, L"AutoCAD 图形样板", 54409, L"样板", L"样板", L".dwt"},
    {15, 0, 23, 54410, L"AutoCAD 图形标准", 54411, L"标准", L"标准", L".dws"},
    {27, 0, 25, 54410, L"AutoCAD 图形标准", 54411, L"标准", L"标准", L".dws"},
    {39, 0, 27, 54410, L"AutoCAD 图形标准", 54411, L"标准", L"标准", L".dws"},
    {51, 0, 29, 54410, L"AutoCAD 图形标准", 54411, L"标准", L"标准", L".dws"},
    {63, 0, 31, 54410, L"AutoCAD 图形标准", 54411, L"标准", L"标准", L".dws"},
};

int FormatOf(int type, int version, DrawingKind kind) {
    return SaveFormatOf(static_cast<OdDb::SaveFileType>(type), static_cast<OdDb::DwgVersion>(version), kind);
}

}  // namespace

TEST(SaveFormats, EveryRowOfTheTable) {
    for (const Row& wanted : kRows) {
        const SaveFormatRow* row = FindSaveFormat(wanted.code);
        ASSERT_NE(row, nullptr) << wanted.code;
        EXPECT_EQ(row->code, wanted.code);
        EXPECT_EQ(row->type, wanted.type) << wanted.code;
        EXPECT_EQ(row->version, wanted.version) << wanted.code;
        EXPECT_EQ(row->description.id, wanted.id) << wanted.code;
        EXPECT_STREQ(row->description.text, wanted.description);
        EXPECT_EQ(row->shortName.id, wanted.nameId) << wanted.code;
        EXPECT_STREQ(row->shortName.text, wanted.shortName);
        EXPECT_EQ(row->longName.id, wanted.nameId) << wanted.code;
        EXPECT_STREQ(row->longName.text, wanted.longName);
        EXPECT_STREQ(row->extension, wanted.extension);
    }
}

TEST(SaveFormats, NoOtherCodeHasARow) {
    int rows = 0;
    for (int code = -1000; code <= 1000; ++code) rows += FindSaveFormat(code) ? 1 : 0;
    EXPECT_EQ(rows, 26) << "25 formats, and the unknown one";
    EXPECT_EQ(FindSaveFormat(0), nullptr);
    EXPECT_EQ(FindSaveFormat(2), nullptr);
    EXPECT_EQ(FindSaveFormat(64), nullptr);
    EXPECT_EQ(FindSaveFormat(-2), nullptr);
    EXPECT_EQ(FindSaveFormat(INT_MIN), nullptr);
    EXPECT_EQ(FindSaveFormat(INT_MAX), nullptr) << "647";
}

TEST(SaveFormats, UnknownFormatIsThe2010Drawing) { EXPECT_EQ(FindSaveFormat(-1), FindSaveFormat(48)); }

TEST(SaveFormats, CodeAbove1000BehavesAsItsBase) {
    EXPECT_EQ(FindSaveFormat(1048), FindSaveFormat(48));
    EXPECT_EQ(FindSaveFormat(7060), FindSaveFormat(60));
    EXPECT_EQ(BaseSaveFormat(1000), 1000);
    EXPECT_EQ(BaseSaveFormat(1001), 1);
    EXPECT_EQ(BaseSaveFormat(-1048), -1048);
    EXPECT_EQ(FindSaveFormat(1000), nullptr);
    EXPECT_EQ(FindSaveFormat(2000), nullptr);
}

TEST(SaveFormats, RangeDecidesWhatMayBeStored) {
    EXPECT_FALSE(IsStorableSaveFormat(0));
    EXPECT_TRUE(IsStorableSaveFormat(1));
    EXPECT_TRUE(IsStorableSaveFormat(2)) << "without a row";
    EXPECT_TRUE(IsStorableSaveFormat(63));
    EXPECT_FALSE(IsStorableSaveFormat(64));
    EXPECT_FALSE(IsStorableSaveFormat(-1));
    EXPECT_FALSE(IsStorableSaveFormat(1000));
    EXPECT_TRUE(IsStorableSaveFormat(1060));
    EXPECT_FALSE(IsStorableSaveFormat(1064));
    EXPECT_FALSE(IsStorableSaveFormat(2000));
}

TEST(SaveFormats, ExchangeFilesGoByTheirVersion) {
    const int expected[][2] = {{16, 1}, {19, 5}, {21, 9}, {23, 13}, {25, 25}, {27, 37}, {29, 49}, {31, 61}};
    for (const auto& [version, format] : expected) {
        EXPECT_EQ(FormatOf(1, version, DrawingKind::kPlain), format);
        EXPECT_EQ(FormatOf(1, version, DrawingKind::kTemplate), format) << "the extension doesn't count";
        EXPECT_EQ(FormatOf(2, version, DrawingKind::kStandard), format) << "every type but 0";
    }
}

TEST(SaveFormats, DrawingsGoByVersionAndKind) {
    const int expected[][4] = {{19, 4, 4, 4},    {21, 8, 8, 8},    {23, 12, 14, 15}, {25, 24, 26, 27},
                               {27, 36, 38, 39}, {29, 48, 50, 51}, {31, 60, 62, 63}};
    for (const auto& [version, plain, drawingTemplate, standard] : expected) {
        EXPECT_EQ(FormatOf(0, version, DrawingKind::kPlain), plain);
        EXPECT_EQ(FormatOf(0, version, DrawingKind::kTemplate), drawingTemplate);
        EXPECT_EQ(FormatOf(0, version, DrawingKind::kStandard), standard);
    }
}

TEST(SaveFormats, OtherVersionsHaveNone) {
    for (const int version : {0, 15, 17, 18, 20, 22, 24, 26, 28, 30, 32, 33}) {
        EXPECT_EQ(FormatOf(0, version, DrawingKind::kPlain), -1) << version;
        EXPECT_EQ(FormatOf(1, version, DrawingKind::kPlain), -1) << version;
    }
    EXPECT_EQ(FormatOf(0, 16, DrawingKind::kTemplate), -1) << "no template of version 16 either";
    EXPECT_EQ(FormatOf(0, 16, DrawingKind::kStandard), -1);
    EXPECT_EQ(FormatOf(0, 16, DrawingKind::kPlain), -1) << "no drawing of version 16";
}

TEST(SaveFormats, OfferedFormatsHaveRows) {
    for (const int code : kOfferedSaveFormats) EXPECT_NE(FindSaveFormat(code), nullptr) << code;
    EXPECT_NE(FindSaveFormat(kDefaultSaveFormat), nullptr);
}
