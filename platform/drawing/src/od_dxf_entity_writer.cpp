#include "od_dxf_entity_writer.h"

#include <algorithm>
#include <iterator>

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
    for (std::uint32_t at = 0; groups.read(at, group); at = group.end) {
        // Behind a marker that none knows there may be another layer or linetype, which without markers would
        // count.
        const bool isElsewhere = group.code == 100 || odIsEntityPropertyCode(group.code);
        if (!isElsewhere || at >= end) plain.add(group);
    }
    odCompleteEntityMarkers(type, plain);
    return plain;
}

/// Whether the layout is that of model space or of the one sheet, and as a new drawing has it.
bool isUsualLayout(const OdDbLayout& layout) {
    const auto block = layout.getBlockTableRecordId().open<OdDbBlockTableRecord>();
    if (!block || !isSpaceOfEntitiesSection(*block)) return false;
    OdGroupList usual;
    odGiveNewLayoutGroups(usual, layout.getLayoutName(), block->handle(), layout.getTabOrder());
    return layout.groups() == usual;
}

/// Replaces text groups that name blocks by groups that hold their handles, or the other way round.
struct ArrowCode {
    int name, handle;
};
constexpr ArrowCode kArrowCodes[] = {{5, 342}, {6, 343}, {7, 344}};

}  // namespace

void OdDxfEntityWriter::prepare() {
    m_nextHandle = m_store.nextHandle;
    if (m_out.isR12()) m_names = odR12Names(m_store);
}

OdString OdDxfEntityWriter::nameOf(OdTableKind kind, const OdDbSymbolTableRecord& record) const {
    if (kind == kBlockTable && m_out.isR12()) {
        if (odIsModelSpaceName(record.getName())) return L"$Model_Space";
        if (odIsPaperSpaceName(record.getName())) return L"$Paper_Space";
    }
    return m_names.of(kind, record.getName());
}

std::string OdDxfEntityWriter::recordName(OdTableKind kind, OdDbHandle handle) const {
    const auto* record = m_store.object<OdDbSymbolTableRecord>(handle);
    return record ? odUtf8(nameOf(kind, *record).view()) : std::string();
}

void OdDxfEntityWriter::commonProperties(const Common& common) {
    if (common.paperSpace) m_out.putInteger(67, 1);
    if (common.layout && m_out.version() >= OdDb::kDHL_1015) m_out.putText(410, *common.layout);
    m_out.putText(8, recordName(kLayerTable, common.layer));
    if (common.linetype) m_out.putText(6, recordName(kLinetypeTable, common.linetype));
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
    m_out.putGroups(groups, OdDxfPart::kOwn, second.end);
}

void OdDxfEntityWriter::sequenceEnd(const Common& common) {
    m_out.put(0, "SEQEND");
    m_out.beginRecord(OdDxfRecordKind::kEntity, "SEQEND");
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
    m_out.beginRecord(OdDxfRecordKind::kEntity, type);
    m_out.putOwnHandle(handle);
    const bool attributesFollow = type == "POLYLINE" || (parts && hasParts);
    if (m_out.isR12()) {
        OdGroupList plain = unmarkedForm(type, entity.groups());
        m_names.replaceIn(type, plain);
        body(plain, common, attributesFollow);
    } else {
        body(entity.groups(), common, attributesFollow);
    }
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
    if (hasEntity(entity.dxfName())) {
        written(entity, common, entity.handle());
        return;
    }
    const std::vector<OdDbEntityPtr> forms = odOlderForm(entity, m_out.version());
    m_out.losses().add(OdDxfLossKind::kEntity, entity.dxfName(),
                       forms.empty() ? std::string_view() : forms[0]->dxfName());
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
    m_out.beginRecord(OdDxfRecordKind::kBlock, begin ? "BLOCK" : "ENDBLK");
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
        m_out.putText(2, nameOf(kBlockTable, block));
        m_out.putText(3, nameOf(kBlockTable, block));
    }
    m_out.putGroups(groups, OdDxfPart::kOwn, body);
    if (begin && m_names.find(kBlockTable, block.getName()))
        m_out.putGroups(odWholeNameData(nameOf(kBlockTable, block), block.getName()), OdDxfPart::kObject);
}

bool OdDxfEntityWriter::hasBlock(const OdDbBlockTableRecord& block) const {
    if (m_out.version() >= OdDb::kDHL_1015 || !isPaperSpace(block)) return true;
    return isSpaceOfEntitiesSection(block);
}

void OdDxfEntityWriter::noteLeftOut(const OdDbBlockTableRecord& block) {
    for (const OdDbEntity* entity : block.entities())
        if (!entity->isErased()) m_out.losses().add(OdDxfLossKind::kEntity, entity->dxfName());
}

void OdDxfEntityWriter::block(OdDbBlockTableRecord& block) {
    if (!hasBlock(block)) return noteLeftOut(block);
    const bool fileHadIt = m_store.hasSpaceBlocks && m_store.version <= OdDb::kDHL_1009;
    if (m_out.isR12() && isSpaceOfEntitiesSection(block) && !fileHadIt) return;
    blockEdge(true, m_store.blockBeginHandle(block), block, m_store.blockBegin(block));
    if (!isSpaceOfEntitiesSection(block)) entities(block);
    blockEdge(false, m_store.blockEndHandle(block), block, m_store.blockEnd(block));
}

/// Whether this version lacks the type and no file of this version or an older one brought it. From 2000 on a
/// type that its file describes as a class may stand in any version.
bool OdDxfEntityWriter::isNewerThanFile(std::string_view type, OdDb::DwgVersion since) const {
    if (since <= m_out.version() || m_store.version <= m_out.version()) return false;
    if (m_out.version() < OdDb::kDHL_1015) return true;
    return std::none_of(m_store.classes.begin(), m_store.classes.end(), [&](const OdRawRecord& described) {
        OdGroup name;
        return described.groups.find(1, name) && name.text == type;
    });
}

bool OdDxfEntityWriter::hasEntity(std::string_view type) const {
    const OdDb::DwgVersion since = odFirstVersionOfEntity(type);
    if (m_out.isR12()) return since <= OdDb::kDHL_1009;
    // Flat polylines have an older form, so that they needn't stand where they don't belong.
    if (type == "LWPOLYLINE") return since <= m_out.version();
    return !isNewerThanFile(type, since);
}

bool OdDxfEntityWriter::hasObject(const OdDbObject& object) const {
    if (m_out.isR12()) return false;
    const OdDb::DwgVersion since = odFirstVersionOfObject(object.dxfName());
    // What every drawing here has was put there by the runtime and not by a file.
    if (m_out.version() < OdDb::kDHL_1015 && since == OdDb::kDHL_1015) return false;
    return !isNewerThanFile(object.dxfName(), since);
}

/// Whether the object is one that every drawing has, as it is in a new one.
bool OdDxfEntityWriter::isUsual(const OdDbObject& object) const {
    if (const auto* layout = dynamic_cast<const OdDbLayout*>(&object)) return isUsualLayout(*layout);
    if (object.handle() == m_store.rootDictionary) return true;
    const OdDbDictionary* root = m_store.root();
    const auto* owner = m_store.object<OdDbDictionary>(m_store.ownerOf(object));
    const OdString name = owner ? owner->nameAt(m_store.id(object.handle())) : OdString();
    if (owner == root)
        return name == L"ACAD_GROUP" || name == L"ACAD_LAYOUT" || name == L"ACAD_PLOTSTYLENAME";
    return owner && owner == m_store.named(L"ACAD_PLOTSTYLENAME") && name == L"Normal";
}

void OdDxfEntityWriter::noteLeftOut(const OdDbObject& object) {
    if (object.isErased() || isUsual(object)) return;
    const bool isLayout = std::string_view(object.dxfName()) == "LAYOUT";
    m_out.losses().add(isLayout ? OdDxfLossKind::kLayout : OdDxfLossKind::kObject,
                       isLayout ? std::string_view() : object.dxfName());
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
    if (!hasObject(object)) return noteLeftOut(object);
    m_out.put(0, object.dxfName());
    m_out.beginRecord(OdDxfRecordKind::kObject, object.dxfName());
    m_out.putOwnHandle(object.handle());
    const OdGroupList& groups = object.groups();
    auto* dictionary = dynamic_cast<OdDbDictionary*>(&object);
    OdGroup first, second;
    const bool marked = dictionary ? groups.findMarker("AcDbDictionary", first) : groups.find(100, first);
    const std::uint32_t head = marked ? first.begin : 0;
    ownerAmong(groups, m_store.ownerOf(object), head);
    if (!dictionary) {
        m_out.putGroups(groups, OdDxfPart::kObject, head);
        return;
    }
    if (!marked) m_out.put(100, "AcDbDictionary");
    const std::uint32_t split =
        groups.find(100, second, marked ? first.end : 0) ? second.begin : groups.ownEnd();
    m_out.putGroups(groups, OdDxfPart::kObject, head, split);
    dictionaryEntries(*dictionary);
    m_out.putGroups(groups, OdDxfPart::kObject, split);
}

OdGroupList OdDxfEntityWriter::recordForm(OdTableKind kind, const OdDbSymbolTableRecord& record) const {
    if (kind != kDimStyleTable && m_names.isEmpty()) return record.groups();
    OdGroupList form = kind == kDimStyleTable ? arrowForm(record.groups()) : record.groups();
    m_names.replaceIn(record.dxfName(), form);
    if (m_names.find(kind, record.getName()))
        form.add(odWholeNameData(nameOf(kind, record), record.getName()));
    return form;
}

/// The groups of a dimension style with its arrowheads by name before 2000, and by handle from then on.
OdGroupList OdDxfEntityWriter::arrowForm(const OdGroupList& groups) const {
    const bool byName = m_out.version() < OdDb::kDHL_1015;
    OdGroupList form;
    OdGroup group;
    const std::uint32_t end = groups.ownEnd();
    for (std::uint32_t at = 0; groups.read(at, group); at = group.end) {
        const auto* arrow =
            std::find_if(std::begin(kArrowCodes), std::end(kArrowCodes),
                         [&](const ArrowCode& a) { return group.code == (byName ? a.handle : a.name); });
        if (at >= end || arrow == std::end(kArrowCodes)) {
            form.add(group);
        } else if (byName) {
            const auto* block = m_store.object<OdDbSymbolTableRecord>(group.handle());
            if (block) form.addText(arrow->name, block->getName());
        } else if (const auto* block = m_store.record(kBlockTable, group.wide())) {
            form.addHandle(arrow->handle, block->handle());
        }
    }
    return form;
}
