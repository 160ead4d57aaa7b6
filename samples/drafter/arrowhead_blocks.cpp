#include "arrowhead_blocks.h"

#include <cmath>
#include <numbers>

namespace {

constexpr const wchar_t* kArrowheads[] = {
    L"",          L"_ClosedBlank", L"_Closed",     L"_Dot",         L"_ArchTick", L"_Oblique",  L"_Open",
    L"_Origin",   L"_Origin2",     L"_Open90",     L"_Open30",      L"_DotSmall", L"_DotBlank", L"_Small",
    L"_BoxBlank", L"_BoxFilled",   L"_DatumBlank", L"_DatumFilled", L"_Integral", L"_None"};
constexpr const wchar_t* kCallouts[] = {L"_DetailCallout", L"_TagSlot",    L"_TagCircle",
                                        L"_TagBox",        L"_TagHexagon", L"_TagTriangle"};
constexpr const wchar_t* kSampleClosedFilled = L"_ClosedFilled";
constexpr double kSlimHalf = 1.0 / 6;   // half the width of the closed arrowheads
constexpr double kDatumHalf = 0.57735;  // of an equilateral triangle of height 1
constexpr double kPi = std::numbers::pi;

template <std::size_t Count>
int indexOf(const wchar_t* const (&names)[Count], const OdString& name) {
    for (std::size_t i = 0; i < Count; ++i)
        if (name.iCompare(names[i]) == 0) return static_cast<int>(i);
    return -1;
}

/// Puts simple shapes, all by block, into one block.
class Shape {
public:
    explicit Shape(OdDbBlockTableRecord& block) : m_block(block) {}

    Shape& line(double x1, double y1, double x2, double y2) {
        OdSmartPtr<OdDbLine> line(new OdDbLine);
        line->setStartPoint({x1, y1, 0});
        line->setEndPoint({x2, y2, 0});
        return add(line.get());
    }
    /// Lines from corner to corner and back to the first.
    Shape& outline(const std::vector<OdGePoint2d>& corners) {
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const OdGePoint2d &from = corners[i], &to = corners[(i + 1) % corners.size()];
            line(from.x, from.y, to.x, to.y);
        }
        return *this;
    }
    Shape& circle(double radius) {
        OdSmartPtr<OdDbCircle> circle(new OdDbCircle);
        circle->setCenter({0, 0, 0});
        circle->setRadius(radius);
        return add(circle.get());
    }
    /// A filled triangle or quadrilateral, corners in order round its edge.
    Shape& fill(const std::vector<OdGePoint2d>& corners) {
        OdSmartPtr<OdDbSolid> solid(new OdDbSolid);
        const OdGePoint2d &c = corners[2], &d = corners.back();
        const OdGePoint2d order[] = {corners[0], corners[1], corners.size() > 3 ? d : c, c};
        for (int i = 0; i < 4; ++i) solid->setPointAt(i, {order[i].x, order[i].y, 0});
        return add(solid.get());
    }
    Shape& disc(double radius) {
        constexpr int kPieces = 12;
        const auto at = [&](int i) {
            const double angle = 2 * kPi * i / (2 * kPieces);
            return OdGePoint2d{radius * std::cos(angle), radius * std::sin(angle)};
        };
        for (int i = 0; i < kPieces; ++i) fill({{0, 0}, at(2 * i), at(2 * i + 1), at(2 * i + 2)});
        return *this;
    }
    /// The end of the dimension line, from `x` back to the tail.
    Shape& tail(double x) { return line(x, 0, -1, 0); }
    Shape& barbs(double length, double half) {
        return line(0, 0, -length, half).line(0, 0, -length, -half).tail(0);
    }

private:
    Shape& add(OdDbEntity* entity) {
        OdDbLinetypeTablePtr linetypes;
        OdDbEntityPtr owned(entity);
        m_block.appendOdDbEntity(owned);
        owned->setColorIndex(OdCmColor::kByBlockIndex);
        owned->setLineWeight(OdDb::kLnWtByBlock);
        m_block.database()->getLinetypeTable(linetypes);
        owned->setLinetype(linetypes->getLinetypeByBlockId());
        return *this;
    }
    OdDbBlockTableRecord& m_block;
};

const std::vector<OdGePoint2d> kSlim = {{0, 0}, {-1, kSlimHalf}, {-1, -kSlimHalf}};
const std::vector<OdGePoint2d> kDatum = {{-1, 0}, {0, kDatumHalf}, {0, -kDatumHalf}};
const std::vector<OdGePoint2d> kBox = {{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}};

/// An upright S that is bent to both sides at its ends.
void drawIntegral(Shape& shape) {
    constexpr int kPieces = 16;
    const auto at = [](int i) {
        const double t = 2.0 * i / kPieces - 1;
        return OdGePoint2d{0.12 * t + 0.2 * std::pow(t, 5), 0.5 * std::sin(t * kPi / 2)};
    };
    for (int i = 0; i < kPieces; ++i) shape.line(at(i).x, at(i).y, at(i + 1).x, at(i + 1).y);
}

void drawArrowhead(int number, Shape shape) {
    switch (number) {
        case 0: shape.fill(kSlim); break;
        case 1: shape.outline(kSlim); break;
        case 2: shape.outline(kSlim).tail(0); break;
        case 3: shape.disc(0.5).tail(-0.5); break;
        case 4: shape.fill({{-0.55, -0.45}, {-0.45, -0.55}, {0.55, 0.45}, {0.45, 0.55}}).tail(0); break;
        case 5: shape.line(-0.5, -0.5, 0.5, 0.5).tail(0); break;
        case 6: shape.barbs(1, kSlimHalf); break;
        case 7: shape.circle(0.5).tail(0); break;
        case 8: shape.circle(0.5).circle(0.25).tail(-0.5); break;
        case 9: shape.barbs(0.5, 0.5); break;
        case 10: shape.barbs(1, std::tan(kPi / 12)); break;
        case 11: shape.disc(0.125).tail(0); break;
        case 12: shape.circle(0.5).tail(-0.5); break;
        case 13: shape.circle(0.25).tail(0); break;
        case 14: shape.outline(kBox).tail(-0.5); break;
        case 15: shape.fill(kBox).tail(-0.5); break;
        case 16: shape.outline(kDatum); break;
        case 17: shape.fill(kDatum); break;
        case 18: drawIntegral(shape.tail(0)); break;
        default: break;
    }
}

void drawCallout(int number, Shape shape) {
    const auto polygon = [&](int corners, double turn) {
        std::vector<OdGePoint2d> points;
        for (int i = 0; i < corners; ++i) {
            const double angle = 2 * kPi * i / corners + turn;
            points.push_back({std::cos(angle), std::sin(angle)});
        }
        shape.outline(points);
    };
    switch (number) {
        case 0: shape.circle(1).line(-1, 0, 1, 0); break;
        case 1:
            shape.outline({{-1.4, -0.5},
                           {-1.1, -0.8},
                           {1.1, -0.8},
                           {1.4, -0.5},
                           {1.4, 0.5},
                           {1.1, 0.8},
                           {-1.1, 0.8},
                           {-1.4, 0.5}});
            break;
        case 2: shape.circle(1); break;
        case 3: shape.outline({{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}); break;
        case 4: polygon(6, 0); break;
        default: polygon(3, kPi / 2); break;
    }
}

OdDbBlockTableRecordPtr addBlock(OdDbDatabase& drawing, const OdString& name) {
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks, OdDb::kForWrite);
    OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
    block->setName(name);
    blocks->add(OdDbSymbolTableRecordPtr(block.get()));
    return block;
}

OdDbObjectId blockNamed(OdDbDatabase& drawing, const OdString& name) {
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks);
    return blocks->getAt(name);
}

}  // namespace

OdString ArrowheadBlockName(int number) {
    return number >= 0 && number < static_cast<int>(std::size(kArrowheads)) ? kArrowheads[number] : L"";
}

int ArrowheadOfBlock(const OdString& name) { return indexOf(kArrowheads, name); }

OdString CalloutBlockName(int number) {
    return number >= 0 && number < static_cast<int>(std::size(kCallouts)) ? kCallouts[number] : L"";
}

int CalloutOfBlock(const OdString& name) { return indexOf(kCallouts, name); }

OdDbObjectId NeedStandardBlock(OdDbDatabase& drawing, const OdString& name) {
    if (name.isEmpty()) return {};
    if (const OdDbObjectId known = blockNamed(drawing, name); !known.isNull()) return known;
    const int arrowhead = ArrowheadOfBlock(name), callout = CalloutOfBlock(name);
    if (arrowhead < 0 && callout < 0) return {};
    const OdDbBlockTableRecordPtr block = addBlock(drawing, name);
    if (arrowhead >= 0)
        drawArrowhead(arrowhead, Shape(*block));
    else
        drawCallout(callout, Shape(*block));
    return block->objectId();
}

OdDbObjectId NeedSampleArrowhead(OdDbDatabase& drawing, const OdString& name) {
    if (!name.isEmpty()) return NeedStandardBlock(drawing, name);
    if (const OdDbObjectId known = blockNamed(drawing, kSampleClosedFilled); !known.isNull()) return known;
    const OdDbBlockTableRecordPtr block = addBlock(drawing, kSampleClosedFilled);
    drawArrowhead(0, Shape(*block));
    return block->objectId();
}

std::vector<OdString> ChoosableBlocks(OdDbDatabase& drawing) {
    std::vector<OdString> names;
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks);
    for (auto walk = blocks->newIterator(); !walk->done(); walk->step()) {
        OdDbSymbolTableRecordPtr record;
        walk->getRecord(record);
        const auto& block = static_cast<const OdDbBlockTableRecord&>(*record);
        if (block.isLayout() || block.isAnonymous() || block.isFromExternalReference() || block.isDependent())
            continue;
        if (block.getName().view().front() != L'*') names.push_back(block.getName());
    }
    return names;
}
