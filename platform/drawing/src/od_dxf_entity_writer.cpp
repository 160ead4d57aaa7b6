#include "od_dxf_entity_writer.h"

#include <algorithm>

#include "od_dxf_markers.h"
#include "od_dxf_r12.h"
#include "od_dxf_writer.h"

namespace {

bool isSpaceOfEntitiesSection(const OdDbBlockTableRecord& block) {
    return odIsModelSpaceName(block.getName()) || odIsPaperSpaceName(block.getName());
}

bool isPaperSpace(const OdDbBlockTableRecord& block) {
    return odFoldedName(block.getName()).rfind(L"*PAPER_SPACE", 0) == 0;
}

/// The groups of an entity for a version without subclass markers: in the order that reading such a file
/// gives.
OdGroupList unmarkedForm(std::string_view type, const OdGroupList& groups) {
    OdGroupList plain;
    OdGroup group;
    const std::uint32_t end = groups.ownEnd();
    for (std::uint32_t at = 0; groups.read(at, group); at = group.end)
        if (group.code != 100 || at >= end) plain.add(group);
    odCompleteEntityMarkers(type, plain);
    return plain;
}

/// Replaces text groups that name blocks by groups that hold their handles, or the other way round.
struct ArrowCode {
    int name, handle;
};
constexpr ArrowCode kArrowCodes[] = {{5, 342}, {6, 343}, {7, 344}};

bool isComplexLinetypeCode(int code) {
    switch (code) {
        case 9:
        case 44:
        case 45:
        case 46:
        case 50:
        case 74:
        case 75: return true;
        default: return false;
    }
}

}  // namespace

void OdDxfEntityWriter::prepare() { m_nextHandle = m_store.nextHandle; }

std::string OdDxfEntityWriter::recordName(OdDbHandle handle) const {
    const auto* record = m_store.object<OdDbSymbolTableRecord>(handle);
    return record ? odUtf8(record->getName().view()) : std::string();
}

void OdDxfEntityWriter::commonProperties(const Common& common) {
    if (common.paperSpace) m_out.putInteger(67, 1);
    if (common.layout && m_out.version() >= OdDb::kDHL_1015) m_out.putText(410, *common.layout);
    m_out.putText(8, recordName(common.layer));
    if (common.linetype) m_out.putText(6, recordName(common.linetype));
}

void OdDxfEntityWriter::ownerAmong(const OdGroupList& groups, OdDbHandle owner, std::uint32_t end) {
    const std::uint32_t data = std::min(groups.applicationDataEnd(), end);
    m_out.putGroups(groups, OdDxfPart::kObject, 0, data);
    m_out.putHandle(330, owner);
    m_out.putGroups(groups, OdDxfPart::kObject, data, end);
}

void OdDxfEntityWriter::body(const OdGroupList& groups, const Common& common, bool attributesFollow) {
    OdGroup first, second;
    const bool marked = groups.find(100, first);
    const std::uint32_t head = marked ? first.begin : 0;
    std::uint32_t split = groups.size();
    if (marked && groups.find(100, second, first.end)) split = second.begin;
    if (!m_out.isR12()) {
        ownerAmong(groups, common.owner, head);
        if (marked) m_out.putGroup(first);
    }
    commonProperties(common);
    if (attributesFollow && split == groups.size()) m_out.putInteger(66, 1);
    m_out.putGroups(groups, OdDxfPart::kCommon, marked ? first.end : 0, split);
    if (split == groups.size()) return;
    if (!m_out.isR12()) m_out.putGroup(second);
    if (attributesFollow) m_out.putInteger(66, 1);
    m_out.putGroups(groups, OdDxfPart::kEntity, second.end);
}

void OdDxfEntityWriter::sequenceEnd(const Common& common) {
    m_out.put(0, "SEQEND");
    m_out.putOwnHandle(m_nextHandle++);
    OdGroupList groups;
    groups.addText(100, "AcDbEntity");
    body(groups, common, false);
}

void OdDxfEntityWriter::written(OdDbEntity& entity, const Common& common, OdDbHandle handle) {
    const std::string_view type = entity.dxfName();
    const std::vector<OdDbEntityPtr>* parts = entity.parts();
    bool hasParts = false;
    bool closed = false;
    for (std::size_t i = 0; parts && i < parts->size(); ++i) {
        const OdDbEntity& part = *(*parts)[i];
        if (part.isErased()) continue;
        if (std::string_view(part.dxfName()) == "SEQEND")
            closed = true;
        else
            hasParts = true;
    }
    m_out.put(0, type);
    m_out.putOwnHandle(handle);
    body(m_out.isR12() ? unmarkedForm(type, entity.groups()) : entity.groups(), common,
         type == "POLYLINE" || (parts && hasParts));
    if (!parts || (!hasParts && type == "INSERT")) return;
    Common below = common;
    below.owner = handle;
    for (const OdDbEntityPtr& part : *parts) {
        if (part->isErased()) continue;
        if (m_store.layerOf(*part)) below.layer = m_store.layerOf(*part);
        below.linetype = part->database() ? m_store.linetypeOf(*part) : common.linetype;
        written(*part, below, part->handle() ? part->handle() : m_nextHandle++);
    }
    below.layer = common.layer;
    if (!closed) sequenceEnd(below);
}

void OdDxfEntityWriter::entity(OdDbEntity& entity, const Common& common) {
    if (odVersionHasEntity(m_out.version(), entity.dxfName())) {
        written(entity, common, entity.handle());
        return;
    }
    const std::vector<OdDbEntityPtr> forms = odOlderForm(entity, m_out.version());
    if (forms.empty()) ++m_leftOut;
    bool first = true;
    for (const OdDbEntityPtr& form : forms) {
        odCompleteEntityMarkers(form->dxfName(), m_store.groupsOf(*form));
        if (form->parts())
            for (const OdDbEntityPtr& part : *form->parts())
                odCompleteEntityMarkers(part->dxfName(), m_store.groupsOf(*part));
        written(*form, common, first ? entity.handle() : m_nextHandle++);
        first = false;
    }
}

void OdDxfEntityWriter::entities(OdDbBlockTableRecord& block) {
    const auto layout = block.getLayoutId().open<OdDbLayout>();
    const bool paper = isPaperSpace(block);
    const OdString layoutName = layout && paper ? layout->getLayoutName() : OdString();
    for (OdDbEntity* entry : block.entities()) {
        if (entry->isErased()) continue;
        entity(*entry, {m_store.layerOf(*entry), m_store.linetypeOf(*entry), block.handle(), paper,
                        layoutName.isEmpty() ? nullptr : &layoutName});
    }
}

void OdDxfEntityWriter::blockEdge(bool begin, OdDbHandle handle, OdDbBlockTableRecord& block,
                                  const OdGroupList& groups) {
    m_out.put(0, begin ? "BLOCK" : "ENDBLK");
    OdGroup first, second;
    const bool marked = groups.find(100, first);
    const bool split = marked && groups.find(100, second, first.end);
    const std::uint32_t head = marked ? first.begin : 0;
    const std::uint32_t body = split ? second.end : marked ? first.end : 0;
    if (!m_out.isR12()) {
        m_out.putOwnHandle(handle);
        ownerAmong(groups, block.handle(), head);
    }
    m_out.putGroups(groups, OdDxfPart::kCommon, head, body);
    if (begin) {
        m_out.putText(2, block.getName());
        m_out.putText(3, block.getName());
    }
    m_out.putGroups(groups, OdDxfPart::kEntity, body);
}

void OdDxfEntityWriter::block(OdDbBlockTableRecord& block) {
    if (m_out.isR12() && (isSpaceOfEntitiesSection(block) || isPaperSpace(block))) {
        if (!isSpaceOfEntitiesSection(block)) m_leftOut += block.count();
        return;
    }
    blockEdge(true, m_store.blockBeginHandle(block), block, m_store.blockBegin(block));
    if (!isSpaceOfEntitiesSection(block)) entities(block);
    blockEdge(false, m_store.blockEndHandle(block), block, m_store.blockEnd(block));
}

bool OdDxfEntityWriter::hasObject(const OdDbObject& object) const {
    const std::string_view type = object.dxfName();
    const bool since2000 = type == "LAYOUT" || type == "PLOTSETTINGS" || type == "ACDBPLACEHOLDER" ||
                           type == "ACDBDICTIONARYWDFLT";
    return !since2000 || m_out.version() >= OdDb::kDHL_1015;
}

void OdDxfEntityWriter::dictionaryEntries(OdDbDictionary& dictionary) {
    for (const OdDbStore::DictionaryEntry& entry : m_store.entriesOf(dictionary)) {
        const OdDbObject* target = m_store.object(entry.handle);
        if (target && (target->isErased() || !hasObject(*target))) continue;
        m_out.putText(3, entry.name);
        m_out.putHandle(entry.code, entry.handle);
    }
}

void OdDxfEntityWriter::object(OdDbObject& object) {
    if (!hasObject(object)) return;
    m_out.put(0, object.dxfName());
    m_out.putOwnHandle(object.handle());
    const OdGroupList& groups = object.groups();
    OdGroup first, second;
    const bool marked = groups.find(100, first);
    const std::uint32_t head = marked ? first.begin : 0;
    ownerAmong(groups, m_store.ownerOf(object), head);
    auto* dictionary = dynamic_cast<OdDbDictionary*>(&object);
    if (!dictionary) {
        m_out.putGroups(groups, OdDxfPart::kObject, head);
        return;
    }
    if (!marked) m_out.put(100, "AcDbDictionary");
    const std::uint32_t split =
        marked && groups.find(100, second, first.end) ? second.begin : groups.ownEnd();
    m_out.putGroups(groups, OdDxfPart::kObject, head, split);
    dictionaryEntries(*dictionary);
    m_out.putGroups(groups, OdDxfPart::kObject, split);
}

OdGroupList OdDxfEntityWriter::recordForm(OdTableKind kind, const OdGroupList& groups) const {
    const bool names = m_out.version() < OdDb::kDHL_1015;
    OdGroupList form;
    OdGroup group;
    const std::uint32_t end = groups.ownEnd();
    for (std::uint32_t at = 0; groups.read(at, group); at = group.end) {
        bool kept = true;
        if (at >= end) {
            form.add(group);
            continue;
        }
        for (const ArrowCode& arrow : kArrowCodes) {
            if (kind != kDimStyleTable) break;
            if (names && group.code == arrow.handle) {
                kept = false;
                if (const std::string name = recordName(group.handle()); !name.empty())
                    form.addText(arrow.name, name);
            } else if (!names && group.code == arrow.name) {
                kept = false;
                if (const auto* block = m_store.record(kBlockTable, group.wide()))
                    form.addHandle(arrow.handle, block->handle());
            }
        }
        if (kind == kLinetypeTable && m_out.isR12() && isComplexLinetypeCode(group.code)) kept = false;
        if (kind == kBlockTable && group.code == 340 && m_out.version() < OdDb::kDHL_1015) kept = false;
        if (kind == kBlockTable && (group.code == 70 || group.code == 280 || group.code == 281) &&
            m_out.version() < OdDb::kDHL_1021)
            kept = false;
        if (kept) form.add(group);
    }
    return form;
}
