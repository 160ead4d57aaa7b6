// CHandleMap: which object stands for a handle, on one thread.
//
// An object that is attached to a handle is its permanent object. Any other handle gets a temporary object on
// request, which lasts until DeleteTemp, called when the thread is idle. Temporary objects and their map
// nodes are kept and used again, so that one per message costs no allocation.
//
// A loop inside a handler is idle while the handler still uses the temporary objects that it got before: it
// opens a scope, and DeleteTemp leaves alone what is older.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include <kmfc/safe_handle.h>

/// The objects of one thread by handle. T is default constructible and lets its handle go unharmed when that
/// is null. The map owns temporary objects only.
template <class T>
class CHandleMap {
public:
    using Handle = std::remove_reference_t<decltype(kmfc::handle_member(std::declval<T&>()))>;

    CHandleMap() = default;
    ~CHandleMap() {
        m_scope = 0;
        DeleteTemp();
    }
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    /// The permanent object of the handle, or else its temporary one, made if need be. Null for a null
    /// handle.
    T* FromHandle(Handle handle) {
        if (!handle) return nullptr;
        if (T* permanent = LookupPermanent(handle)) return permanent;
        const auto found = m_temporary.find(key_of(handle));
        return found != m_temporary.end() ? found->second.object.get() : make_temporary(handle);
    }

    /// The permanent object of the handle, or null.
    T* LookupPermanent(Handle handle) const {
        const auto found = m_permanent.find(key_of(handle));
        return found != m_permanent.end() ? found->second : nullptr;
    }

    /// The temporary object of the handle, or null.
    T* LookupTemporary(Handle handle) const {
        const auto found = m_temporary.find(key_of(handle));
        return found != m_temporary.end() ? found->second.object.get() : nullptr;
    }

    /// Makes `object` the handle's permanent one. It stays the caller's, who calls RemoveHandle before it
    /// goes.
    void SetPermanent(Handle handle, T* object) { m_permanent[key_of(handle)] = object; }

    /// Forgets the handle's permanent object if that is `object`: another may have been attached since.
    void RemoveHandle(Handle handle, const T* object) {
        const auto found = m_permanent.find(key_of(handle));
        if (found != m_permanent.end() && found->second == object) m_permanent.erase(found);
    }

    /// From here on temporary objects are of a scope of their own, which EndScope closes. Scopes nest.
    void BeginScope() { ++m_scope; }
    /// Closes the innermost scope; its temporary objects become the outer one's.
    void EndScope() { --m_scope; }

    /// Ends the temporary objects of the innermost scope. Pointers to them must not be used any more.
    void DeleteTemp() {
        for (auto at = m_temporary.begin(); at != m_temporary.end();) {
            const auto each = at++;
            if (each->second.scope < m_scope) continue;
            auto node = m_temporary.extract(each);
            T* object = node.mapped().object.get();
            set_handle(*object, nullptr);
            if (m_spare.size() == kMostSpare) continue;
            std::destroy_at(object);
            std::construct_at(object);
            m_spare.push_back(std::move(node));
        }
    }

    /// How many temporary objects are in use.
    size_t TemporaryCount() const { return m_temporary.size(); }

private:
    static constexpr size_t kMostSpare = 64;  // more than one idle step's messages need

    struct Temporary {
        std::unique_ptr<T> object;
        unsigned scope;  ///< the one it was made in
    };
    using Key = std::uint32_t;
    using Temporaries = std::unordered_map<Key, Temporary>;

    /// The significant bits of a handle. Wine gives the same window with its upper half filled with ones to
    /// one function and with zeros to another once the lower half's highest bit is set, which is after 32,768
    /// uses of a place in its table.
    static Key key_of(Handle handle) { return static_cast<Key>(reinterpret_cast<std::uintptr_t>(handle)); }

    static void set_handle(T& object, Handle handle) {
        kmfc::handle_member(object) = handle;
        if constexpr (requires { object.m_hAttribDC; }) object.m_hAttribDC = handle;
    }

    T* make_temporary(Handle handle) {
        T* object;
        if (m_spare.empty()) {
            auto made = std::make_unique<T>();
            object = made.get();
            m_temporary.emplace(key_of(handle), Temporary{std::move(made), m_scope});
        } else {
            m_spare.back().key() = key_of(handle);
            m_spare.back().mapped().scope = m_scope;
            object = m_temporary.insert(std::move(m_spare.back())).position->second.object.get();
            m_spare.pop_back();
        }
        set_handle(*object, handle);
        return object;
    }

    unsigned m_scope = 0;  ///< how many scopes are open
    std::unordered_map<Key, T*> m_permanent;
    Temporaries m_temporary;
    std::vector<typename Temporaries::node_type> m_spare;
};
