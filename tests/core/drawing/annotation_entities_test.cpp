// What leaders, pictures, faces, tables, shapes and hatches say of themselves, as their files have it.
#include <gtest/gtest.h>

#include <od_db_faces.h>
#include <od_db_further_blocks.h>
#include <od_db_hatch.h>
#include <od_db_leaders.h>
#include <od_db_raster.h>
#include <od_db_symbols.h>

#include "dxf_text.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

/// The one entity of a file.
template <class T>
struct Only {
    explicit Only(const std::string& groups) : drawing(readDrawing(withEntities(groups, "AC1032"))) {
        entity = drawing ? firstEntity<T>(*drawing) : nullptr;
        EXPECT_TRUE(entity) << groups;
    }
    const T* operator->() const { return entity; }
    OdDbDatabasePtr drawing;
    T* entity = nullptr;
};

}  // namespace

TEST(Leaders, SayWhatTheyHave) {
    const Only<OdDbLeader> leader(
        "0|LEADER\n8|0\n3|NOTES\n71|0\n72|1\n73|0\n74|0\n75|1\n41|7\n76|2\n10|1\n20|2\n30|3\n10|4\n20|5\n30|"
        "6\n"
        "211|0\n221|1\n231|0\n");
    ASSERT_EQ(leader->vertices().length(), 2);
    EXPECT_EQ(leader->vertices()[1], (OdGePoint3d{4, 5, 6}));
    EXPECT_FALSE(leader->hasArrowhead());
    EXPECT_TRUE(leader->isSplined());
    EXPECT_TRUE(leader->hasHookLine());
    EXPECT_TRUE(leader->isHookLineReversed());
    EXPECT_EQ(leader->annotationKind(), 0);
    EXPECT_EQ(leader->textWidth(), 7);
    EXPECT_EQ(leader->horizontalDirection(), (OdGePoint3d{0, 1, 0}));
    EXPECT_EQ(leader->dimStyleName(), L"NOTES");
    const Only<OdDbLeader> plain("0|LEADER\n8|0\n74|1\n");
    EXPECT_TRUE(plain->hasArrowhead());
    EXPECT_FALSE(plain->isSplined());
    EXPECT_FALSE(plain->hasHookLine());
    EXPECT_FALSE(plain->isHookLineReversed());
    EXPECT_EQ(plain->annotationKind(), 3);
    EXPECT_EQ(plain->horizontalDirection(), (OdGePoint3d{1, 0, 0}));
}

TEST(Leaders, AMultileadersContentIsNested) {
    const Only<OdDbMLeader> leader(
        "0|MULTILEADER\n8|0\n100|AcDbMLeader\n170|9\n300|CONTEXT_DATA{\n140|1.5\n290|1\n304|words\n41|2\n43|"
        "6\n42|0.5\n45|1.25\n171|3\n"
        "12|26\n22|11\n32|1\n13|0\n23|1\n33|0\n340|A5\n296|1\n341|A6\n15|7\n25|8\n35|9\n16|2\n26|3\n36|4\n46|"
        "0.25\n"
        "302|LEADER{\n290|1\n10|20\n20|10\n30|5\n11|0\n21|1\n31|0\n40|5\n304|LEADER_LINE{\n10|1\n20|2\n30|"
        "3\n10|4\n20|5\n30|6\n305|}\n"
        "304|LEADER_LINE{\n10|7\n20|8\n30|9\n305|}\n271|0\n303|}\n302|LEADER{\n290|0\n303|}\n272|9\n301|}"
        "\n170|2\n291|0\n342|A7\n");
    const OdDbMLeaderContent content = leader->content();
    EXPECT_EQ(content.arrowSize, 1.5);
    EXPECT_TRUE(content.hasText && content.hasBlock);
    EXPECT_EQ(content.text, L"words");
    EXPECT_EQ(content.textHeight, 2);
    EXPECT_EQ(content.textWidth, 6);
    EXPECT_EQ(content.textRotation, 0.5);
    EXPECT_EQ(content.lineSpacing, 1.25);
    EXPECT_EQ(content.textAlignment, 3);
    EXPECT_EQ(content.textLocation, (OdGePoint3d{26, 11, 1}));
    EXPECT_EQ(content.textDirection, (OdGePoint3d{0, 1, 0}));
    EXPECT_EQ(content.textStyle, 0xA5u);
    EXPECT_EQ(content.block, 0xA6u);
    EXPECT_EQ(content.blockLocation, (OdGePoint3d{7, 8, 9}));
    EXPECT_EQ(content.blockScale, (OdGePoint3d{2, 3, 4}));
    EXPECT_EQ(content.blockRotation, 0.25);
    ASSERT_EQ(content.branches.size(), 2u);
    const OdDbMLeaderBranch& first = content.branches[0];
    EXPECT_TRUE(first.hasEnd);
    EXPECT_FALSE(content.branches[1].hasEnd);
    EXPECT_EQ(first.end, (OdGePoint3d{20, 10, 5}));
    EXPECT_EQ(first.doglegDirection, (OdGePoint3d{0, 1, 0}));
    EXPECT_EQ(first.doglegLength, 5);
    ASSERT_EQ(first.lines.size(), 2u);
    ASSERT_EQ(first.lines[0].vertices.size(), 2u);
    EXPECT_EQ(first.lines[0].vertices[1], (OdGePoint3d{4, 5, 6}));
    EXPECT_EQ(first.lines[1].vertices.at(0), (OdGePoint3d{7, 8, 9}));
    EXPECT_TRUE(content.branches[1].lines.empty());
    EXPECT_EQ(leader->lineKind(), 2) << "what stands behind the content counts";
    EXPECT_FALSE(leader->hasDogleg());
    const Only<OdDbMLeader> bare("0|MULTILEADER\n8|0\n300|CONTEXT_DATA{\n301|}\n");
    EXPECT_EQ(bare->lineKind(), 1);
    EXPECT_TRUE(bare->hasDogleg());
    EXPECT_TRUE(bare->arrowBlock().isNull());
}

TEST(Pictures, HaveTheirPixelsAndTheOutlineOfTheirClip) {
    const std::string picture =
        "0|IMAGE\n8|0\n10|100\n20|200\n30|300\n11|1\n21|2\n31|3\n12|10\n22|20\n32|30\n13|4\n23|5\n70|0\n340|"
        "A9\n";
    const Only<OdDbRasterImage> image(picture);
    EXPECT_EQ(image->origin(), (OdGePoint3d{100, 200, 300}));
    EXPECT_EQ(image->pixelAcross(), (OdGePoint3d{1, 2, 3}));
    EXPECT_EQ(image->pixelUp(), (OdGePoint3d{10, 20, 30}));
    EXPECT_EQ(image->size().x, 4);
    EXPECT_EQ(image->size().y, 5);
    EXPECT_FALSE(image->isShown());
    EXPECT_EQ(image->fileName(), L"");
    // Four pixels across, five up; the file counts its rows from above.
    const std::vector<OdGePoint3d> whole = {
        {150, 300, 450}, {154, 308, 462}, {104, 208, 312}, {100, 200, 300}};
    EXPECT_EQ(image->outline(), whole);
    // From the second pixel to the third, in the first row.
    const Only<OdDbRasterImage> clipped(picture + "280|1\n71|1\n91|2\n14|0.5\n24|-0.5\n14|2.5\n24|0.5\n");
    const std::vector<OdGePoint3d> part = {
        {151, 302, 453}, {153, 306, 459}, {143, 286, 429}, {141, 282, 423}};
    EXPECT_EQ(clipped->outline(), part);
}

TEST(Faces, ATriangleRepeatsItsThirdCorner) {
    const std::string three = "0|3DFACE\n8|0\n10|1\n20|2\n30|3\n11|4\n21|5\n31|6\n12|7\n22|8\n32|9\n70|5\n";
    const Only<OdDbFace> face(three);
    EXPECT_EQ(face->pointAt(0), (OdGePoint3d{1, 2, 3}));
    EXPECT_EQ(face->pointAt(1), (OdGePoint3d{4, 5, 6}));
    EXPECT_EQ(face->pointAt(2), (OdGePoint3d{7, 8, 9}));
    EXPECT_EQ(face->pointAt(3), (OdGePoint3d{7, 8, 9}));
    EXPECT_EQ(Only<OdDbFace>(three + "13|10\n23|11\n33|12\n")->pointAt(3), (OdGePoint3d{10, 11, 12}));
    for (const int corner : {-1, 4}) EXPECT_EQ(face->pointAt(corner), OdGePoint3d());
    for (int corner = 0; corner < 4; ++corner)
        EXPECT_EQ(face->isEdgeVisible(corner), corner % 2 == 1) << corner;
}

TEST(Tables, HaveTheBlockOfTheirNameIfItIsThere) {
    const auto blockOf = [](const std::string& name) {
        const OdDbDatabasePtr drawing = readDrawing(
            dxf(header("AC1032") +
                "0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|*T1\n70|1\n10|0\n20|0\n30|0\n3|*T1\n0|"
                "ENDBLK\n8|0\n0|BLOCK\n8|0\n2|\n70|0\n10|0\n20|0\n30|0\n3|\n0|ENDBLK\n8|0\n0|ENDSEC\n"
                "0|SECTION\n2|ENTITIES\n0|ACAD_TABLE\n8|0\n10|1\n20|2\n30|0\n" +
                name + "0|ENDSEC\n0|EOF"));
        const auto* table = firstEntity<OdDbTable>(*drawing);
        EXPECT_TRUE(table);
        const auto block = table->blockTableRecord().open<OdDbBlockTableRecord>();
        return block ? block->getName() : OdString(L"none");
    };
    EXPECT_EQ(blockOf("2|*T1\n"), L"*T1");
    EXPECT_EQ(blockOf("2|*T2\n"), L"none");
    EXPECT_EQ(blockOf(""), L"none") << "though a block has no name either";
    EXPECT_TRUE(OdDbTable().blockTableRecord().isNull()) << "in no drawing";
    OdDbTable loose;
    loose.editGroups().setText(2, L"*T1");
    EXPECT_TRUE(loose.blockTableRecord().isNull());
}

TEST(Shapes, HaveTheirPlaceSizeAndAngles) {
    const Only<OdDbShape> shape("0|SHAPE\n8|0\n10|1\n20|2\n30|3\n40|4\n2|ARROW\n50|90\n51|30\n41|0.5\n");
    EXPECT_EQ(shape->position(), (OdGePoint3d{1, 2, 3}));
    EXPECT_EQ(shape->size(), 4);
    EXPECT_EQ(shape->shapeName(), L"ARROW");
    EXPECT_NEAR(shape->rotation(), kPi / 2, 1e-12);
    EXPECT_NEAR(shape->oblique(), kPi / 6, 1e-12);
    EXPECT_EQ(shape->widthFactor(), 0.5);
}

TEST(Hatches, ABoundaryIsAPolylineOrEdges) {
    const Only<OdDbHatch> hatch(
        "0|HATCH\n8|0\n10|0\n20|0\n30|0\n2|SOLID\n70|1\n71|0\n91|2\n92|2\n72|1\n73|1\n93|3\n10|1\n20|2\n42|0."
        "5\n10|3\n20|4\n10|5\n20|6\n42|-1\n97|0\n"
        "92|1\n93|2\n72|1\n10|1\n20|2\n11|3\n21|4\n72|2\n10|5\n20|6\n40|7\n50|0\n51|90\n73|1\n97|0\n75|1\n76|"
        "1\n98|0\n");
    const std::vector<OdDbHatchLoop> loops = hatch->loops();
    ASSERT_EQ(loops.size(), 2u);
    EXPECT_TRUE(loops[0].isPolyline);
    ASSERT_EQ(loops[0].corners.size(), 3u);
    EXPECT_EQ(loops[0].corners[0].bulge, 0.5);
    EXPECT_EQ(loops[0].corners[1].bulge, 0);
    EXPECT_EQ(loops[0].corners[1].point.y, 4);
    EXPECT_EQ(loops[0].corners[2].bulge, -1);
    EXPECT_FALSE(loops[1].isPolyline);
    ASSERT_EQ(loops[1].edges.size(), 2u);
    EXPECT_EQ(loops[1].edges[0].kind, OdDbHatchEdge::Kind::kLine);
    EXPECT_EQ(loops[1].edges[0].end.y, 4);
    EXPECT_EQ(loops[1].edges[1].kind, OdDbHatchEdge::Kind::kArc);
    EXPECT_EQ(loops[1].edges[1].center.x, 5);
    EXPECT_EQ(loops[1].edges[1].majorAxis.x, 7);
    EXPECT_NEAR(loops[1].edges[1].sweep, kPi / 2, 1e-12);
    EXPECT_EQ(hatch->style(), OdDbHatchStyle::kOutermost);
    EXPECT_TRUE(hatch->isSolid());
}
