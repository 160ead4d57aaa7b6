// CMap and the hash table behind every map class of the layer.
#pragma once

#include <memory>

#include "kmfc/element_helpers.h"
#include "kmfc/node_pool.h"
#include "kmfc/position.h"

/// A hash table from keys to values. Keys are looked up by HashKey and CompareElements. The number of buckets
/// stays as InitHashTable sets it. Iteration is in no particular order and is broken by removing elements,
/// save the one just met.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMapCore : public CObject {
public:
    struct CPair {
        const KEY key;
        VALUE value;
    };

    /// `nBlockSize` is how many entries are allocated at a time.
    explicit CMapCore(INT_PTR nBlockSize = 10) : m_pool(nBlockSize) {}
    ~CMapCore() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    /// Copies the value of the key; FALSE, and `rValue` is unchanged, when there is none.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const;
    /// The entry of the key, null when there is none.
    const CPair* PLookup(ARG_KEY key) const { return find(key, hash_of(key)); }
    CPair* PLookup(ARG_KEY key) { return find(key, hash_of(key)); }
    /// The value of the key, which is entered with an empty value when it isn't there.
    VALUE& operator[](ARG_KEY key);
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    /// FALSE when there is no such key.
    BOOL RemoveKey(ARG_KEY key);
    void RemoveAll();

    /// Null when the map is empty.
    POSITION GetStartPosition() const { return position_of(first_from(0)); }
    /// The entry at the position, which moves to the next, null at the end.
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const;
    const CPair* PGetFirstAssoc() const { return first_from(0); }
    CPair* PGetFirstAssoc() { return first_from(0); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const { return next_of(pAssocRet); }
    CPair* PGetNextAssoc(const CPair* pAssocRet) { return next_of(pAssocRet); }

    UINT GetHashTableSize() const { return m_nHashTableSize; }
    /// Sets the number of buckets; only while the map is empty. They are allocated at once unless told
    /// otherwise.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE);

private:
    struct Entry : CPair {
        UINT hash;
        Entry* next;
    };

    static constexpr UINT kDefaultBuckets = 17;

    static POSITION position_of(const Entry* entry) {
        return reinterpret_cast<POSITION>(const_cast<Entry*>(entry));
    }
    static UINT hash_of(ARG_KEY key) { return HashKey<ARG_KEY>(key); }
    Entry* find(ARG_KEY key, UINT hash) const;
    Entry* first_from(UINT bucket) const;
    Entry* next_of(const CPair* pair) const;

    kmfc::NodePool<Entry> m_pool;
    std::unique_ptr<Entry*[]> m_buckets;
    UINT m_nHashTableSize = kDefaultBuckets;
    INT_PTR m_nCount = 0;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::find(ARG_KEY key, UINT hash) const -> Entry* {
    if (!m_buckets) return nullptr;
    for (Entry* entry = m_buckets[hash % m_nHashTableSize]; entry; entry = entry->next) {
        if (entry->hash == hash && CompareElements(&entry->key, &key)) return entry;
    }
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::first_from(UINT bucket) const -> Entry* {
    for (; m_buckets && bucket < m_nHashTableSize; ++bucket) {
        if (m_buckets[bucket]) return m_buckets[bucket];
    }
    return nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
auto CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::next_of(const CPair* pair) const -> Entry* {
    const auto* entry = static_cast<const Entry*>(pair);
    if (!entry) AfxThrowInvalidArgException();
    return entry->next ? entry->next : first_from(entry->hash % m_nHashTableSize + 1);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& rValue) const {
    const Entry* entry = find(key, hash_of(key));
    if (entry) rValue = entry->value;
    return entry != nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key) {
    const UINT hash = hash_of(key);
    if (Entry* entry = find(key, hash)) return entry->value;
    if (!m_buckets) InitHashTable(m_nHashTableSize);
    Entry*& bucket = m_buckets[hash % m_nHashTableSize];
    bucket = m_pool.make(CPair{KEY(key), VALUE()}, hash, bucket);
    ++m_nCount;
    return bucket->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key) {
    Entry* entry = find(key, hash_of(key));
    if (!entry) return FALSE;
    Entry** link = &m_buckets[entry->hash % m_nHashTableSize];
    while (*link != entry) link = &(*link)->next;
    *link = entry->next;
    --m_nCount;
    m_pool.destroy(entry);
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll() {
    const std::unique_ptr<Entry*[]> buckets = std::move(m_buckets);
    m_nCount = 0;
    for (UINT i = 0; buckets && i < m_nHashTableSize; ++i) {
        for (Entry* entry = buckets[i]; entry;) {
            Entry* const next = entry->next;
            m_pool.destroy(entry);
            entry = next;
        }
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION& rNextPosition, KEY& rKey,
                                                            VALUE& rValue) const {
    const auto* entry = reinterpret_cast<const Entry*>(rNextPosition);
    if (rNextPosition == BEFORE_START_POSITION) entry = first_from(0);
    if (!entry) AfxThrowInvalidArgException();
    rNextPosition = position_of(next_of(entry));
    rKey = entry->key;
    rValue = entry->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>::InitHashTable(UINT hashSize, BOOL bAllocNow) {
    if (m_nCount != 0 || hashSize == 0) AfxThrowInvalidArgException();
    m_buckets.reset();
    m_nHashTableSize = hashSize;
    if (bAllocNow) m_buckets = std::make_unique<Entry*[]>(hashSize);
}

/// Adds serialization by SerializeElements to a map.
template <class Map, class KEY, class VALUE>
class CSerialMap : public Map {
public:
    using Map::Map;
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(this->GetCount()));
            for (auto* pair = this->PGetFirstAssoc(); pair; pair = this->PGetNextAssoc(pair)) {
                SerializeElements<KEY>(ar, const_cast<KEY*>(&pair->key), 1);
                SerializeElements<VALUE>(ar, &pair->value, 1);
            }
            return;
        }
        for (DWORD_PTR count = ar.ReadCount(); count > 0; --count) {
            KEY key{};
            VALUE value{};
            SerializeElements<KEY>(ar, &key, 1);
            SerializeElements<VALUE>(ar, &value, 1);
            this->SetAt(key, value);
        }
    }
};

/// A hash table of any types. `ARG_KEY` and `ARG_VALUE` are how keys and values are passed.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CSerialMap<CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>, KEY, VALUE> {
public:
    using CSerialMap<CMapCore<KEY, ARG_KEY, VALUE, ARG_VALUE>, KEY, VALUE>::CSerialMap;
};
