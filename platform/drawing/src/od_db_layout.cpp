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
