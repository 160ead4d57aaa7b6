#include <ktui/pickers/config_util.h>

#include <ktdsres/resource_ids.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using KhUtConfigUtil::SKhSaveInfo;
using ui_test::TestHost;
using ui_test::WorkingDrawing;

namespace {

using SaveFormat = KtApDocument::SaveFormat;

constexpr const wchar_t* kSetting = L"General/DefaultFormatForSave";

SaveFormat Format(int code) { return static_cast<SaveFormat>(code); }

OdString Resource(UINT id) {
    CString text;
    EXPECT_TRUE(text.LoadString(id)) << id;
    return text.GetString();
}

SKhSaveInfo InfoOf(int code) {
    SKhSaveInfo info;
    EXPECT_TRUE(KhUtConfigUtil::getSaveInfoByFormat(Format(code), info)) << code;
    return info;
}

int ByInfo(int type, int version, const wchar_t* extension) {
    return KhUtConfigUtil::getSaveFormatByInfo(static_cast<OdDb::SaveFileType>(type),
                                               static_cast<OdDb::DwgVersion>(version), extension);
}

}  // namespace

TEST(ConfigMeasurement, IsMetricWithoutHostServices) {
    EXPECT_EQ(KhUtConfigUtil::getMesurementInit(), 1);
    EXPECT_EQ(KhUtConfigUtil::getDefaultTemplateFileName(), L"ktdsiso.dwt");
    KhUtConfigUtil::setMesurementInit(0);
    EXPECT_EQ(KhUtConfigUtil::getMesurementInit(), 1);
}

TEST(ConfigMeasurement, StoresZeroOrOne) {
    WorkingDrawing drawing;
    KhUtConfigUtil::setMesurementInit(0);
    EXPECT_EQ(drawing.services().measurementInit(), 0);
    EXPECT_EQ(KhUtConfigUtil::getMesurementInit(), 0);
    EXPECT_EQ(KhUtConfigUtil::getDefaultTemplateFileName(), L"ktds.dwt");
    KhUtConfigUtil::setMesurementInit(-5);
    EXPECT_EQ(KhUtConfigUtil::getMesurementInit(), 1);
    EXPECT_EQ(KhUtConfigUtil::getDefaultTemplateFileName(), L"ktdsiso.dwt");
}

TEST(ConfigMeasurement, NamesTheTemplates) {
    EXPECT_EQ(KhUtConfigUtil::getMesurementFileName(0), L"ktds.dwt");
    EXPECT_EQ(KhUtConfigUtil::getMesurementFileName(1), L"ktdsiso.dwt");
    EXPECT_EQ(KhUtConfigUtil::getMesurementFileName(-1), L"ktdsiso.dwt");
}

TEST(ConfigSaveFormats, ListStartsWithTheHostsAndHasAFixedOrder) {
    TestHost host;
    host.saveFormats = {{1060, L"Own"}, {1001, L"Own exchange"}};
    OdArray<SaveFormat> list = {Format(99)};
    EXPECT_EQ(KhUtConfigUtil::getSaveFormatList(list), 16);
    const int expected[] = {1060, 1001, 60, 48, 36, 24, 12, 8, 51, 50, 61, 49, 37, 25, 13, 1};
    ASSERT_EQ(list.length(), 16);
    for (int i = 0; i < 16; ++i) EXPECT_EQ(list[i], expected[i]) << i;
}

TEST(ConfigSaveFormats, ListWithoutFormatsOfTheHost) {
    TestHost host;
    OdArray<SaveFormat> list;
    EXPECT_EQ(KhUtConfigUtil::getSaveFormatList(list), 14);
    EXPECT_FALSE(list.contains(KtApDocument::kR13Dwg));
    EXPECT_FALSE(list.contains(KtApDocument::kR13Dxf));
    EXPECT_FALSE(list.contains(KtApDocument::k2013Template));
}

TEST(ConfigSaveFormats, FormatThatTheHostKeepsBackIsLeftOut) {
    TestHost host;
    host.saveFormats = {{1060, L"Own"}, {1012, L"Kept back"}, {1001, L"Own exchange"}};
    host.unlistedSaveFormats = {1012};
    OdArray<SaveFormat> list;
    EXPECT_EQ(KhUtConfigUtil::getSaveFormatList(list), 16);
    EXPECT_EQ(list[0], 1060);
    EXPECT_EQ(list[1], 1001);
}

TEST(ConfigSaveFormats, CurrentOneIsThe2013DrawingUntilSet) {
    TestHost host;
    EXPECT_EQ(KhUtConfigUtil::getCurrentSaveFormat(), 60);
    EXPECT_TRUE(KhUtConfigUtil::setCurrentSaveFormat(KtApDocument::k2007Dwg));
    EXPECT_EQ(host.profileInts[kSetting], 36);
    EXPECT_EQ(KhUtConfigUtil::getCurrentSaveFormat(), 36);
}

TEST(ConfigSaveFormats, SettingGoesByTheRangeNotByTheTable) {
    TestHost host;
    EXPECT_FALSE(KhUtConfigUtil::setCurrentSaveFormat(Format(0)));
    EXPECT_FALSE(KhUtConfigUtil::setCurrentSaveFormat(Format(64)));
    EXPECT_FALSE(KhUtConfigUtil::setCurrentSaveFormat(Format(-1)));
    EXPECT_TRUE(host.profileInts.empty());
    EXPECT_TRUE(KhUtConfigUtil::setCurrentSaveFormat(Format(2)));
    EXPECT_EQ(host.profileInts[kSetting], 2);
}

TEST(ConfigSaveFormats, FormatOfTheHostIsStoredUnreduced) {
    TestHost host;
    EXPECT_TRUE(KhUtConfigUtil::setCurrentSaveFormat(Format(1060)));
    EXPECT_EQ(host.profileInts[kSetting], 1060);
    EXPECT_FALSE(KhUtConfigUtil::setCurrentSaveFormat(Format(1064)));
    EXPECT_EQ(host.profileInts[kSetting], 1060);
}

TEST(ConfigSaveInfo, DescribesADrawing) {
    TestHost host;
    const SKhSaveInfo info = InfoOf(48);
    EXPECT_EQ(info.saveFileType, OdDb::kDwg);
    EXPECT_EQ(info.dwgVersion, OdDb::kDHL_1024);
    EXPECT_EQ(info.description, Resource(54407));
    EXPECT_EQ(info.shortName, L"2010");
    EXPECT_EQ(info.longName, L"AutoCAD 2010(LT2010)");
    EXPECT_EQ(info.extension, L".dwg");
}

TEST(ConfigSaveInfo, DescriptionsOfTheDrawingsAreTranslated) {
    TestHost host;
    const std::pair<int, UINT> expected[] = {{4, 54402},  {8, 54403},  {12, 54404}, {24, 54405},
                                             {36, 54406}, {48, 54407}, {60, 54412}};
    for (const auto& [code, id] : expected) EXPECT_EQ(InfoOf(code).description, Resource(id));
}

TEST(ConfigSaveInfo, DescribesAnExchangeFile) {
    TestHost host;
    const SKhSaveInfo info = InfoOf(49);
    EXPECT_EQ(info.saveFileType, OdDb::kDxf);
    EXPECT_EQ(info.dwgVersion, OdDb::kDHL_1024);
    EXPECT_EQ(info.description, L"AutoCAD 2010 DXF");
    EXPECT_EQ(info.shortName, L"2010 DXF");
    EXPECT_EQ(info.longName, L"AutoCAD 2010 DXF");
    EXPECT_EQ(info.extension, L".dxf");
}

TEST(ConfigSaveInfo, DescribesTemplatesAndStandards) {
    TestHost host;
    const SKhSaveInfo drawingTemplate = InfoOf(62);
    EXPECT_EQ(drawingTemplate.description, Resource(54408));
    EXPECT_EQ(drawingTemplate.shortName, Resource(54409));
    EXPECT_EQ(drawingTemplate.longName, L"AutoCAD " + Resource(54409));
    EXPECT_EQ(drawingTemplate.extension, L".dwt");
    const SKhSaveInfo standard = InfoOf(63);
    EXPECT_EQ(standard.description, Resource(54410));
    EXPECT_EQ(standard.shortName, Resource(54411));
    EXPECT_EQ(standard.longName, L"AutoCAD " + Resource(54411));
    EXPECT_EQ(standard.extension, L".dws");
}

TEST(ConfigSaveInfo, UnknownFormatIsDescribedAsThe2010Drawing) {
    TestHost host;
    EXPECT_EQ(InfoOf(-1).shortName, L"2010");
}

TEST(ConfigSaveInfo, HostDescribesItsOwnFormats) {
    TestHost host;
    host.saveFormats = {{1048, L"Own drawing"}};
    const SKhSaveInfo own = InfoOf(1048);
    EXPECT_EQ(own.description, L"Own drawing");
    EXPECT_EQ(own.shortName, L"2010");
    EXPECT_EQ(InfoOf(2048).description, Resource(54407)) << "the host knows no such format";
    host.saveFormats = {{48, L"Never asked"}};
    EXPECT_EQ(InfoOf(48).description, Resource(54407));
}

TEST(ConfigSaveInfo, FormatThatThereIsNotLeavesItsArgument) {
    TestHost host;
    SKhSaveInfo info;
    info.shortName = L"mine";
    for (const int code : {0, 2, 64, -2, 1000, 1002})
        EXPECT_FALSE(KhUtConfigUtil::getSaveInfoByFormat(Format(code), info)) << code;
    EXPECT_EQ(info.shortName, L"mine");
}

TEST(ConfigSaveFormatByInfo, CaseOfTheExtensionDoesNotCount) {
    EXPECT_EQ(ByInfo(0, 31, L".DWT"), 62);
    EXPECT_EQ(ByInfo(0, 31, L".dWs"), 63);
    EXPECT_EQ(ByInfo(0, 31, L".dwg"), 60);
    EXPECT_EQ(ByInfo(0, 31, L""), 60);
    EXPECT_EQ(ByInfo(0, 31, L"dwt"), 60) << "without the dot";
}

TEST(ConfigSaveFormatByInfo, OldAndUnknownVersions) {
    EXPECT_EQ(ByInfo(0, 16, L".dwg"), -1);
    EXPECT_EQ(ByInfo(1, 16, L".dxf"), 1);
    EXPECT_EQ(ByInfo(0, 19, L".dwt"), 4);
    EXPECT_EQ(ByInfo(0, 21, L".dws"), 8);
    EXPECT_EQ(ByInfo(1, 33, L".dxf"), -1);
}
