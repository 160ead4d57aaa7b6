#include "od_db_layout.h"

#include "od_db_store.h"

namespace {

constexpr const char* kPlotPart = "AcDbPlotSettings";
constexpr const char* kLayoutPart = "AcDbLayout";
constexpr int kModelFlag = 1024;

OdString textIn(const OdGroupList& groups, const char* part, int code) {
    OdGroup group;
    return groups.findIn(part, code, group) ? group.wide() : OdString();
}

/// Replaces a group of the plot settings by those of `value`, or puts it at their start.
void setInPlotPart(OdGroupList& groups, int code, const OdGroupList& value) {
    OdGroup group;
    if (groups.findIn(kPlotPart, code, group)) {
        groups.replace(group.begin, group.end, value);
        return;
    }
    OdGroup marker;
    if (!groups.findMarker(kPlotPart, marker)) {
        OdGroupList head;
        head.addText(100, kPlotPart);
        groups.replace(0, 0, head);
        groups.findMarker(kPlotPart, marker);
    }
    groups.replace(marker.end, marker.end, value);
}

double realIn(const OdGroupList& groups, int code, double absent = 0) {
    OdGroup group;
    return groups.findIn(kPlotPart, code, group) ? group.real : absent;
}

std::int64_t integerIn(const OdGroupList& groups, int code, std::int64_t absent = 0) {
    OdGroup group;
    return groups.findIn(kPlotPart, code, group) ? group.integer : absent;
}

OdGroupList oneText(int code, const wchar_t* text) {
    OdGroupList value;
    value.addText(code, text != nullptr ? text : L"");
    return value;
}

OdGroupList oneReal(int code, double real) {
    OdGroupList value;
    value.addReal(code, real);
    return value;
}

OdGroupList oneInteger(int code, std::int64_t integer) {
    OdGroupList value;
    value.addInteger(code, integer);
    return value;
}

// Groups of plot settings.
constexpr int kMarginCodes[] = {40, 41, 42, 43};  // left, bottom, right, top
constexpr int kPaperWidth = 44, kPaperHeight = 45, kOriginX = 46, kOriginY = 47;
constexpr int kScalePaper = 142, kScaleDrawing = 143, kScaleFactor = 147;
constexpr int kPlotFlags = 70, kPaperUnits = 72, kRotation = 73, kStandardScale = 75;
constexpr int kInches = 0, kMillimetres = 1;
constexpr int kUseStandardScale = 16;       // of the flags
constexpr int kFitted = 0, kOneToOne = 16;  // standard scales

/// The own groups from the marker of the plot settings up to the layout's, or to the end.
OdGroupList plotPart(const OdGroupList& groups, std::uint32_t& begin, std::uint32_t& end) {
    OdGroupList part;
    OdGroup marker, next;
    begin = end = groups.ownEnd();
    if (!groups.findMarker(kPlotPart, marker)) return part;
    begin = marker.begin;
    if (groups.find(100, next, marker.end)) end = next.begin;
    OdGroup group;
    for (std::uint32_t at = begin; at < end && groups.read(at, group); at = group.end) part.add(group);
    return part;
}

}  // namespace

OdString OdDbPlotSettings::getPlotSettingsName() const { return textIn(m_groups, kPlotPart, 1); }

OdString OdDbPlotSettings::getCurrentStyleSheet() const { return textIn(m_groups, kPlotPart, 7); }

void OdDbPlotSettings::setCurrentStyleSheet(const wchar_t* fileName) {
    OdGroupList value;
    value.addText(7, fileName ? fileName : L"");
    setInPlotPart(editGroups(), 7, value);
}

OdString OdDbPlotSettings::getPlotCfgName() const { return textIn(m_groups, kPlotPart, 2); }

OdString OdDbPlotSettings::getCanonicalMediaName() const { return textIn(m_groups, kPlotPart, 4); }

void OdDbPlotSettings::setCanonicalMediaName(const wchar_t* name) {
    setInPlotPart(editGroups(), 4, oneText(4, name));
}

double OdDbPlotSettings::getPlotPaperWidth() const { return realIn(m_groups, kPaperWidth); }
double OdDbPlotSettings::getPlotPaperHeight() const { return realIn(m_groups, kPaperHeight); }

void OdDbPlotSettings::setPlotPaperSize(double width, double height) {
    setInPlotPart(editGroups(), kPaperWidth, oneReal(kPaperWidth, width));
    setInPlotPart(editGroups(), kPaperHeight, oneReal(kPaperHeight, height));
}

OdDbPlotMargins OdDbPlotSettings::getPlotPaperMargins() const {
    const auto margin = [this](int index) { return realIn(m_groups, kMarginCodes[index]); };
    return {margin(0), margin(1), margin(2), margin(3)};
}

OdGePoint2d OdDbPlotSettings::getPlotOrigin() const {
    return {realIn(m_groups, kOriginX), realIn(m_groups, kOriginY)};
}

bool OdDbPlotSettings::isPlotTurned() const { return integerIn(m_groups, kRotation) % 2 != 0; }

void OdDbPlotSettings::setPlotTurned(bool turned) {
    setInPlotPart(editGroups(), kRotation, oneInteger(kRotation, turned ? 1 : 0));
}

bool OdDbPlotSettings::isPlotInInches() const {
    return integerIn(m_groups, kPaperUnits, kMillimetres) == kInches;
}

bool OdDbPlotSettings::isPlotFitted() const {
    return integerIn(m_groups, kStandardScale, kOneToOne) == kFitted;
}

double OdDbPlotSettings::getPlotScale() const {
    const double paper = realIn(m_groups, kScalePaper, 1), drawing = realIn(m_groups, kScaleDrawing, 1);
    return paper > 0 && drawing > 0 ? paper / drawing : 1;
}

OdResult OdDbPlotSettings::setPlotScale(double paper, double drawing) {
    if (!(paper > 0) || !(drawing > 0)) return kOdInvalidInput;
    OdGroupList& groups = editGroups();
    setInPlotPart(groups, kScalePaper, oneReal(kScalePaper, paper));
    setInPlotPart(groups, kScaleDrawing, oneReal(kScaleDrawing, drawing));
    setInPlotPart(groups, kScaleFactor, oneReal(kScaleFactor, paper / drawing));
    // The scale of the two numbers counts, not one of the standard ones.
    setInPlotPart(groups, kPlotFlags,
                  oneInteger(kPlotFlags, integerIn(groups, kPlotFlags) & ~kUseStandardScale));
    setInPlotPart(groups, kStandardScale, oneInteger(kStandardScale, kOneToOne));
    return kOdOk;
}

void OdDbPlotSettings::setPlotFitted() {
    OdGroupList& groups = editGroups();
    setInPlotPart(groups, kPlotFlags,
                  oneInteger(kPlotFlags, integerIn(groups, kPlotFlags) | kUseStandardScale));
    setInPlotPart(groups, kStandardScale, oneInteger(kStandardScale, kFitted));
}

bool OdDbPlotSettings::modelType() const {
    OdGroup group;
    return m_groups.findIn(kPlotPart, 70, group) && (group.integer & kModelFlag) != 0;
}

void OdDbPlotSettings::setModelType(bool model) {
    OdGroup group;
    const std::int64_t flags = m_groups.findIn(kPlotPart, 70, group) ? group.integer : 0;
    OdGroupList value;
    value.addInteger(70, model ? flags | kModelFlag : flags & ~std::int64_t{kModelFlag});
    setInPlotPart(editGroups(), 70, value);
}

void OdDbPlotSettings::copyFrom(const OdDbPlotSettings& source) {
    std::uint32_t begin = 0, end = 0;
    const OdGroupList part = plotPart(source.m_groups, begin, end);
    plotPart(m_groups, begin, end);
    editGroups().replace(begin, end, part);
}

OdString OdDbLayout::getLayoutName() const { return textIn(m_groups, kLayoutPart, 1); }

OdDbObjectId OdDbLayout::getBlockTableRecordId() const {
    OdGroup group;
    return store() && m_groups.findIn(kLayoutPart, 330, group) ? store()->id(group.handle()) : OdDbObjectId();
}

int OdDbLayout::getTabOrder() const {
    OdGroup group;
    return m_groups.findIn(kLayoutPart, 71, group) ? static_cast<int>(group.integer) : 0;
}
