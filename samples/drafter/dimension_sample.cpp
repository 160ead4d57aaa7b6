// The sample of a dimension style: two extension lines, a dimension line with its number, a leader with the
// callout.
#include <algorithm>
#include <cmath>

#include "arrowhead_blocks.h"
#include "dimension_values.h"
#include "scene_builder.h"

namespace {

constexpr double kLeaderAngle = 0.9;  // radians
constexpr double kExtensionShare = 1.6;
constexpr const wchar_t* kNumber = L"100";

class Sample {
public:
    Sample(OdDbDatabase& drawing, const DimensionValues& values) : m_drawing(drawing), m_values(values) {
        m_unit = std::max(values.textHeight, 1e-6);
        m_width = std::max(16 * m_unit, 7 * values.arrowSize);
        m_plain.color.setColorIndex(OdCmColor::kForeground);
        m_plain.lineWeight = OdDb::kLnWt025;
        m_line = m_plain;
        if (!values.lineColor.isByLayer() && !values.lineColor.isByBlock()) m_line.color = values.lineColor;
        if (values.lineWeight >= 0) m_line.lineWeight = values.lineWeight;
        if (const auto linetype = values.linetype.open<OdDbLinetypeTableRecord>())
            for (const double dash : linetype->dashes()) m_line.dashes.push_back(dash * drawing.getLTSCALE());
    }

    Scene build() {
        line(0, -3 * m_unit, 0, kExtensionShare * m_unit, m_plain);
        line(m_width, -3 * m_unit, m_width, kExtensionShare * m_unit, m_plain);
        line(shortened(m_values.first), 0, m_width - shortened(m_values.second), 0, m_line);
        arrowhead(m_values.first, 0, 0, std::acos(-1.0));
        arrowhead(m_values.second, m_width, 0, 0);
        text(m_width / 2, 0.5 * m_unit, kNumber);
        leader();
        return std::move(m_scene);
    }

private:
    /// What the dimension line leaves to the arrowhead.
    double shortened(const OdString& block) const {
        return ArrowheadBlockName(19).iCompare(block) == 0 ? 0 : m_values.arrowSize;
    }

    void line(double x1, double y1, double x2, double y2, const DisplayStyle& style) {
        m_scene.paths.push_back({{{x1, y1}, {x2, y2}}, false, style, OdDbObjectId()});
    }

    void text(double x, double y, const wchar_t* words) {
        SceneText item;
        item.text = words;
        item.position = {x, y};
        item.height = m_unit;
        item.horizontal = 1;
        item.style = m_plain;
        m_scene.texts.push_back(std::move(item));
    }

    /// Draws a block turned by `angle` at a place.
    void block(OdDbDatabase& drawing, const OdDbObjectId& id, double x, double y, double angle, double size) {
        const double c = size * std::cos(angle), s = size * std::sin(angle);
        DisplayStyle style = m_line;
        style.dashes.clear();
        SceneBuilder builder(drawing);
        builder.addBlock(id, {c, -s, s, c, x, y}, &style);
        Scene scene = builder.take();
        std::move(scene.paths.begin(), scene.paths.end(), std::back_inserter(m_scene.paths));
    }

    /// A block by name: the user's from the drawing, the standard ones from a scratch drawing, so that
    /// looking at a sample leaves no block behind.
    void named(const OdString& name, double x, double y, double angle, double size) {
        OdDbBlockTablePtr blocks;
        m_drawing.getBlockTable(blocks);
        if (const OdDbObjectId own = blocks->getAt(name); !name.isEmpty() && !own.isNull())
            block(m_drawing, own, x, y, angle, size);
        else
            block(*m_scratch, NeedSampleArrowhead(*m_scratch, name), x, y, angle, size);
    }

    void arrowhead(const OdString& name, double x, double y, double angle) {
        named(name, x, y, angle, m_values.arrowSize);
    }

    void leader() {
        const double x = m_width * 0.3, y = -3 * m_unit, reach = std::max(5 * m_unit, 2 * m_values.arrowSize);
        const double c = std::cos(kLeaderAngle), s = std::sin(kLeaderAngle);
        const double from = shortened(m_values.leader);
        const double endX = x + reach * c, endY = y - reach * s;
        line(x + from * c, y - from * s, endX, endY, m_line);
        arrowhead(m_values.leader, x, y, std::acos(-1.0) - kLeaderAngle);
        const double shelf = endX + 2 * m_unit, size = 1.6 * m_unit;
        line(endX, endY, shelf, endY, m_line);
        const bool hasCallout = !m_values.callout.isEmpty();
        if (hasCallout) named(m_values.callout, shelf + 1.4 * size, endY, 0, size);
        text(shelf + (hasCallout ? 1.4 * size : m_unit), endY - m_unit / 2, L"A");
    }

    OdDbDatabase& m_drawing;
    const DimensionValues& m_values;
    OdDbDatabasePtr m_scratch{new OdDbDatabase};
    double m_unit = 1;
    double m_width = 1;
    DisplayStyle m_plain, m_line;
    Scene m_scene;
};

}  // namespace

Scene DimensionSample(OdDbDatabase& drawing, const DimensionValues& values) {
    return Sample(drawing, values).build();
}
