#include "od_comment_code.h"
#include "od_db_store.h"

namespace {

/// The value of the block of application data called `name` (with its brace), or false.
bool findApplicationData(const OdGroupList& groups, std::string_view name, OdGroup& value) {
    OdGroup group;
    for (std::uint32_t at = 0; groups.read(at, group); at = group.end)
        if (group.code == 102 && group.text == name) return groups.read(group.end, value);
    return false;
}

/// The places from the 1001 group of `application` to the end of its data, or false.
bool findXData(const OdGroupList& groups, const wchar_t* application, std::uint32_t& begin,
               std::uint32_t& body, std::uint32_t& end) {
    constexpr int kApplicationName = 1001;
    OdGroup group;
    bool found = false;
    for (std::uint32_t at = 0; groups.read(at, group); at = group.end) {
        if (group.code != kApplicationName && (!found || odIsExtendedDataCode(group.code))) continue;
        if (found) {
            end = group.begin;
            return true;
        }
        if (odCompareFolded(group.wide().view(), application) == 0) {
            found = true;
            begin = group.begin;
            body = group.end;
        }
    }
    end = groups.size();
    return found;
}

/// Place of the comments at the end, or that end.
std::uint32_t commentsBegin(const OdGroupList& groups) {
    OdGroup group;
    std::uint32_t at = groups.ownEnd();
    while (groups.read(at, group) && group.code != kOdComment) at = group.end;
    return at;
}

}  // namespace

const OdDbObjectId OdDbObjectId::kNull;

bool OdDbObjectId::isValid() const { return !openObject().isNull(); }

bool OdDbObjectId::isErased() const {
    const OdDbObject* object = m_database ? m_database->objectByHandle(m_handle) : nullptr;
    return object && object->isErased();
}

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode mode, bool openErased) const {
    OdDbObject* object = m_database ? m_database->objectByHandle(m_handle) : nullptr;
    if (!object || (object->isErased() && !openErased)) return nullptr;
    if (mode == OdDb::kForWrite) m_database->setModified(true);
    return object;
}

OdDbObject::~OdDbObject() = default;

OdDbObjectId OdDbObject::objectId() const { return m_store ? m_store->id(m_handle) : OdDbObjectId(); }

OdDbDatabase* OdDbObject::database() const { return m_store ? m_store->database : nullptr; }

OdDbObjectId OdDbObject::ownerId() const { return m_store ? m_store->id(m_owner) : OdDbObjectId(); }

OdResult OdDbObject::erase(bool erasing) {
    if (m_store) m_store->willChange(*this);
    m_erased = erasing;
    if (m_store) m_store->database->setModified(true);
    return kOdOk;
}

OdGroupList& OdDbObject::editGroups() {
    if (m_store) {
        m_store->willChange(*this);
        m_store->database->setModified(true);
    }
    return m_groups;
}

OdDbObjectId OdDbObject::extensionDictionary() const {
    OdGroup group;
    if (!m_store || !findApplicationData(m_groups, "{ACAD_XDICTIONARY", group)) return {};
    return m_store->id(group.handle());
}

int OdDbObject::createExtensionDictionary() {
    constexpr int kMade = 0;
    constexpr int kExistsAlready = 31;
    if (!m_store) return kOdNoDatabase;
    if (extensionDictionary().isValid()) return kExistsAlready;
    OdSmartPtr<OdDbDictionary> dictionary(new OdDbDictionary);
    m_store->adopt(OdDbObjectPtr(dictionary.get()), 0, m_handle);
    m_store->fileObjects.push_back(dictionary.get());
    OdGroupList block;
    block.addText(102, "{ACAD_XDICTIONARY");
    block.addHandle(360, dictionary->handle());
    block.addText(102, "}");
    OdGroup stale;
    if (findApplicationData(m_groups, "{ACAD_XDICTIONARY", stale)) {
        OdGroupList handle;
        handle.addHandle(360, dictionary->handle());
        editGroups().replace(stale.begin, stale.end, handle);
    } else {
        editGroups().replace(0, 0, block);
    }
    return kMade;
}

OdGroupList OdDbObject::xData(const wchar_t* application) const {
    OdGroupList data;
    std::uint32_t begin = 0, body = 0, end = 0;
    if (!application || !findXData(m_groups, application, begin, body, end)) return data;
    OdGroup group;
    for (std::uint32_t at = body; at < end && m_groups.read(at, group); at = group.end) data.add(group);
    return data;
}

void OdDbObject::setXData(const wchar_t* application, const OdGroupList& data) {
    if (!application || !*application) return;
    OdGroupList whole;
    if (!data.isEmpty()) {
        whole.addText(1001, application);
        whole.add(data);
        if (m_store) m_store->needRecord(kRegAppTable, application);
    }
    std::uint32_t begin = m_groups.size(), body = 0, end = m_groups.size();
    if (!findXData(m_groups, application, begin, body, end)) begin = end = commentsBegin(m_groups);
    editGroups().replace(begin, end, whole);
}
