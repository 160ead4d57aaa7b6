#include <gtest/gtest.h>

#include <od_group_list.h>

namespace {

OdGroupList sample() {
    OdGroupList list;
    list.addText(102, "{ACAD_REACTORS");
    list.addHandle(330, 0x1F);
    list.addText(102, "}");
    list.addText(100, "AcDbEntity");
    list.addInteger(62, -3);
    list.addText(100, "AcDbLine");
    list.addPoint(10, {1, 2, 3});
    list.addHandle(330, 0xABCDEF);
    list.addText(1001, "APP");
    list.addReal(1040, 9);
    list.addInteger(62, 8);
    return list;
}

}  // namespace

TEST(GroupList, KindsFollowTheCode) {
    EXPECT_EQ(odGroupKind(1), OdGroupKind::kText);
    EXPECT_EQ(odGroupKind(10), OdGroupKind::kReal);
    EXPECT_EQ(odGroupKind(62), OdGroupKind::kInteger);
    EXPECT_EQ(odGroupKind(90), OdGroupKind::kInteger);
    EXPECT_EQ(odGroupKind(330), OdGroupKind::kHandle);
    EXPECT_EQ(odGroupKind(390), OdGroupKind::kHandle);
    EXPECT_EQ(odGroupKind(380), OdGroupKind::kInteger);
    EXPECT_EQ(odGroupKind(420), OdGroupKind::kInteger);
    EXPECT_EQ(odGroupKind(1071), OdGroupKind::kInteger);
    EXPECT_EQ(odGroupKind(1072), OdGroupKind::kText);
    EXPECT_EQ(odGroupKind(-1), OdGroupKind::kText);
}

TEST(GroupList, EveryValueComesBack) {
    OdGroupList list;
    for (const std::int64_t value :
         {std::int64_t{0}, std::int64_t{-1}, std::int64_t{127}, INT64_MAX, INT64_MIN})
        list.addInteger(90, value);
    list.addHandle(330, ~OdDbHandle{0});
    list.addText(1, std::string(300, 'x'));
    OdGroup group;
    std::uint32_t at = 0;
    for (const std::int64_t value :
         {std::int64_t{0}, std::int64_t{-1}, std::int64_t{127}, INT64_MAX, INT64_MIN}) {
        ASSERT_TRUE(list.read(at, group));
        EXPECT_EQ(group.integer, value);
        at = group.end;
    }
    ASSERT_TRUE(list.read(at, group));
    EXPECT_EQ(group.handle(), ~OdDbHandle{0});
    ASSERT_TRUE(list.read(group.end, group));
    EXPECT_EQ(group.text, std::string(300, 'x'));
    EXPECT_FALSE(list.read(group.end, group));
    EXPECT_EQ(list.size(), group.end);
}

TEST(GroupList, FindPassesOverForeignData) {
    const OdGroupList list = sample();
    OdGroup group;
    ASSERT_TRUE(list.find(330, group));
    EXPECT_EQ(group.handle(), 0xABCDEFu) << "not the reactor";
    EXPECT_EQ(list.integer(62), -3);
    EXPECT_FALSE(list.find(62, group, group.end)) << "not the extended data";
    EXPECT_FALSE(list.find(1040, group));
    EXPECT_TRUE(list.findIn("AcDbLine", 10, group));
    EXPECT_FALSE(list.findIn("AcDbEntity", 10, group));
    EXPECT_FALSE(list.findIn("AcDbCircle", 10, group));
}

TEST(GroupList, SettersReplaceInPlaceOrAppendBeforeForeignData) {
    OdGroupList list = sample();
    list.setInteger(62, 1000);
    EXPECT_EQ(list.integer(62), 1000);
    list.setReal(39, 2.5);
    list.setText(1, L"\x4E2D");
    EXPECT_EQ(list.real(39), 2.5);
    EXPECT_EQ(list.text(1), L"\x4E2D");
    list.setPoint(10, {7, 8, 9});
    EXPECT_EQ(list.point(10), (OdGePoint3d{7, 8, 9}));
    list.setPoint(11, {1, 1, 1}, true);
    EXPECT_EQ(list.point(11), (OdGePoint3d{1, 1, 0}));
    OdGroup group;
    ASSERT_TRUE(list.read(list.ownEnd(), group));
    EXPECT_EQ(group.code, 1001);
    EXPECT_TRUE(list.remove(10));
    EXPECT_FALSE(list.remove(10));
}

TEST(GroupList, CopiesAreIndependent) {
    OdGroupList list = sample();
    OdGroupList copy = list;
    EXPECT_TRUE(copy == list);
    copy.setInteger(62, 5);
    EXPECT_FALSE(copy == list);
    OdGroupList moved = std::move(copy);
    EXPECT_EQ(moved.integer(62), 5);
    moved.clear();
    EXPECT_TRUE(moved.isEmpty());
    moved.shrink();
    EXPECT_EQ(moved.size(), 0u);
}

TEST(GroupList, AnAbsentGroupGivesTheStandIn) {
    const OdGroupList list;
    EXPECT_EQ(list.real(40, 1.5), 1.5);
    EXPECT_EQ(list.integer(70, 9), 9);
    EXPECT_EQ(list.point(10, {1, 2, 3}), (OdGePoint3d{1, 2, 3}));
    EXPECT_TRUE(list.text(1).isEmpty());
    EXPECT_EQ(list.handle(340), 0u);
    EXPECT_EQ(list.text(10), L"") << "a real is no text";
}
