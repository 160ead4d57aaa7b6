#include "od_db_change.h"

#include <algorithm>
#include <utility>

#include "od_db_change_notes.h"

namespace {

/// Calls `field(ofObject, ofState)` for each pair of fields that an object of this kind has.
template <class State, class Field>
void forEachField(const OdDbStore& store, OdDbObject& object, State& state, Field field) {
    field(store.groupsOf(object), state.groups);
    field(store.isErasedOf(object), state.isErased);
    auto* block = dynamic_cast<OdDbBlockTableRecord*>(&object);
    // The names of blocks change with the layout that is shown, and with nothing else.
    if (auto* record = dynamic_cast<OdDbSymbolTableRecord*>(&object); record && !block)
        field(store.nameOf(*record), state.name);
    if (auto* entity = dynamic_cast<OdDbEntity*>(&object)) {
        field(store.layerOf(*entity), state.layer);
        field(store.linetypeOf(*entity), state.linetype);
        if (auto* parts = store.partsOf(*entity)) field(*parts, state.parts);
    }
    if (block) {
        field(store.blockBegin(*block), state.blockBegin);
        field(store.blockEnd(*block), state.blockEnd);
    }
    if (auto* dictionary = dynamic_cast<OdDbDictionary*>(&object)) {
        field(store.entriesOf(*dictionary), state.entries);
        field(store.hasDefault(*dictionary), state.hasDefault);
    }
}

bool same(const OdDbEntityPtr& a, const OdDbEntityPtr& b) { return a.get() == b.get(); }
bool same(const OdDbStore::DictionaryEntry& a, const OdDbStore::DictionaryEntry& b) {
    return a.handle == b.handle && a.name.view() == b.name.view();
}
template <class T>
bool same(const T& a, const T& b) {
    return a == b;
}
template <class T>
bool same(const std::vector<T>& a, const std::vector<T>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const T& one, const T& other) { return same(one, other); });
}

bool same(const OdDbHeader& a, const OdDbHeader& b) {
    return std::equal(a.variables().begin(), a.variables().end(), b.variables().begin(), b.variables().end(),
                      [](const OdDbHeader::Variable& one, const OdDbHeader::Variable& other) {
                          return one.name == other.name && one.groups == other.groups;
                      });
}

}  // namespace

void OdDbChangeNotes::willChange(const OdDbObject& object) {
    if (created.contains(object.handle()) || before.contains(object.handle())) return;
    // Only read from here, by the functions that also write.
    auto& own = const_cast<OdDbObject&>(object);
    forEachField(*store, own, before[object.handle()], [](auto& field, auto& kept) { kept = field; });
}

void OdDbChangeNotes::willChangeHeader() {
    if (!header) header = store->header;
}

void OdDbChangeNotes::tidy() {
    std::erase_if(before, [this](auto& entry) {
        bool isSame = true;
        OdDbObject& object = *store->object(entry.first);
        forEachField(*store, object, entry.second,
                     [&](auto& field, auto& kept) { isSame = isSame && same(field, kept); });
        return isSame;
    });
    std::erase_if(created, [this](OdDbHandle handle) { return store->object(handle)->isErased(); });
    if (header && same(*header, store->header)) header.reset();
}

void OdDbChangeNotes::exchange() {
    if (store != &OdDbStore::of(*drawing)) return;
    store->endSharedReading();
    for (auto& entry : before)
        forEachField(*store, *store->object(entry.first), entry.second,
                     [](auto& field, auto& kept) { std::swap(field, kept); });
    for (const OdDbHandle handle : created) {
        bool& isErased = store->isErasedOf(*store->object(handle));
        isErased = !isErased;
    }
    if (header) {
        const auto shown = static_cast<int>(store->header.integer("TILEMODE"));
        std::swap(*header, store->header);
        store->setTileMode(shown);
    }
    store->refreshNames();
    drawing->setModified(true);
}

OdDbChange::OdDbChange(std::unique_ptr<OdDbChangeNotes> notes) : m_notes(std::move(notes)) {}

OdDbChange::~OdDbChange() = default;

bool OdDbChange::isEmpty() const {
    return m_notes->before.empty() && m_notes->created.empty() && !m_notes->header;
}

void OdDbChange::exchange() { m_notes->exchange(); }

OdDbChangeRecorder::OdDbChangeRecorder(const OdDbDatabasePtr& drawing)
    : m_drawing(drawing), m_notes(std::make_unique<OdDbChangeNotes>(drawing)) {
    m_notes->store->notes = m_notes.get();
}

OdDbChangeRecorder::~OdDbChangeRecorder() {
    // The store that it noted may have gone with what the drawing was read from.
    OdDbStore& store = OdDbStore::of(*m_drawing);
    if (store.notes == m_notes.get()) store.notes = nullptr;
}

std::unique_ptr<OdDbChange> OdDbChangeRecorder::take() {
    auto next = std::make_unique<OdDbChangeNotes>(m_drawing);
    OdDbStore& store = OdDbStore::of(*m_drawing);
    if (store.notes == m_notes.get()) {
        store.notes = next.get();
        m_notes->tidy();
        std::swap(next, m_notes);
    }
    return std::unique_ptr<OdDbChange>(new OdDbChange(std::move(next)));
}
