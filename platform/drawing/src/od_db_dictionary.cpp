#include "od_db_store.h"

#include <algorithm>

namespace {

constexpr int kSoftOwner = 350;
constexpr int kDefaultCode = 340;

}  // namespace

OdDbDictionaryIterator::OdDbDictionaryIterator(OdDbDictionaryPtr dictionary)
    : m_dictionary(std::move(dictionary)), m_index(-1) {
    next();
}

OdDbDictionaryIterator::~OdDbDictionaryIterator() = default;

bool OdDbDictionaryIterator::done() const { return m_index >= m_dictionary->numEntries(); }

bool OdDbDictionaryIterator::next() {
    if (done()) return false;
    do {
        ++m_index;
    } while (!done() && !objectId().isValid());
    return !done();
}

OdString OdDbDictionaryIterator::name() const {
    return done() ? OdString() : m_dictionary->m_entries[static_cast<std::size_t>(m_index)].name;
}

OdDbObjectId OdDbDictionaryIterator::objectId() const {
    if (done()) return {};
    return OdDbObjectId(m_dictionary->database(),
                        m_dictionary->m_entries[static_cast<std::size_t>(m_index)].handle);
}

std::unique_ptr<OdDbDictionaryIterator> OdDbDictionary::newIterator() const {
    return std::make_unique<OdDbDictionaryIterator>(OdDbDictionaryPtr(const_cast<OdDbDictionary*>(this)));
}

const OdDbDictionary::Entry* OdDbDictionary::find(const wchar_t* name) const {
    for (const Entry& entry : m_entries)
        if (entry.name.iCompare(name) == 0) return &entry;
    return nullptr;
}

bool OdDbDictionary::has(const wchar_t* name) const { return !getAt(name).isNull(); }

bool OdDbDictionary::has(const OdDbObjectId& id) const {
    return !id.isNull() && id.database() == database() &&
           std::any_of(m_entries.begin(), m_entries.end(),
                       [&](const Entry& e) { return e.handle == id.handle(); });
}

OdDbObjectId OdDbDictionary::getAt(const wchar_t* name) const {
    const Entry* entry = find(name);
    if (!entry || !store()) return {};
    const OdDbObjectId id = store()->id(entry->handle);
    return id.isValid() ? id : OdDbObjectId();
}

OdResult OdDbDictionary::getAt(const wchar_t* name, OdDbObjectId& id) const {
    id = getAt(name);
    return id.isNull() ? kOdKeyNotFound : kOdOk;
}

OdString OdDbDictionary::nameAt(const OdDbObjectId& id) const {
    if (id.isNull() || id.database() != database()) return {};
    for (const Entry& entry : m_entries)
        if (entry.handle == id.handle()) return entry.name;
    return {};
}

OdResult OdDbDictionary::setAt(const wchar_t* name, const OdDbObjectPtr& object, OdDbObjectId* id) {
    if (!store()) return kOdNoDatabase;
    if (!name || !*name || !object || (object->database() && object->database() != database()))
        return kOdInvalidInput;
    if (!object->database()) {
        store()->adopt(object, 0, handle());
        store()->fileObjects.push_back(object.get());
    }
    store()->willChange(*this);
    if (const Entry* entry = find(name))
        const_cast<Entry*>(entry)->handle = object->handle();
    else
        m_entries.push_back({OdString(name), object->handle(), kSoftOwner});
    database()->setModified(true);
    if (id) *id = object->objectId();
    return kOdOk;
}

OdResult OdDbDictionary::remove(const wchar_t* name) {
    const Entry* entry = find(name);
    if (!entry) return kOdKeyNotFound;
    if (store()) store()->willChange(*this);
    m_entries.erase(m_entries.begin() + (entry - m_entries.data()));
    if (database()) database()->setModified(true);
    return kOdOk;
}

OdDbObjectId OdDbDictionary::defaultId() const {
    return store() && m_hasDefault ? store()->id(m_groups.handle(kDefaultCode)) : OdDbObjectId();
}

void OdDbDictionary::setDefaultId(const OdDbObjectId& id) {
    OdGroupList& groups = editGroups();
    m_hasDefault = true;
    OdGroup group;
    if (!groups.findMarker("AcDbDictionaryWithDefault", group)) {
        OdGroupList marker;
        marker.addText(100, "AcDbDictionaryWithDefault");
        const std::uint32_t end = groups.ownEnd();
        groups.replace(end, end, marker);
    }
    groups.setHandle(kDefaultCode, id.handle());
}
