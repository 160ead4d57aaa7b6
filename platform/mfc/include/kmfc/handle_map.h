// CHandleMap: which object stands for a handle, on one thread.
//
// An object that is attached to a handle is its permanent object. Any other handle gets a temporary object on
// request, which lasts until DeleteTemp, called when the thread is idle. Temporary objects and their map
// nodes are kept and used again, so that one per message costs no allocation.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

namespace kmfc {

/// The member of a wrapper class that holds its handle.
template <class T>
auto& handle_member(T& object) {
    if constexpr (requires { object.m_hWnd; }) {
        return object.m_hWnd;
    } else if constexpr (requires { object.m_hDC; }) {
        return object.m_hDC;
    } else if constexpr (requires { object.m_hObject; }) {
        return object.m_hObject;
    } else if constexpr (requires { object.m_hMenu; }) {
        return object.m_hMenu;
    } else {
        return object.m_hImageList;
    }
}

}  // namespace kmfc

/// The objects of one thread by handle. T is default constructible and lets its handle go unharmed when that
/// is null. The map owns temporary objects only.
template <class T>
class CHandleMap {
public:
    using Handle = std::remove_reference_t<decltype(kmfc::handle_member(std::declval<T&>()))>;

    CHandleMap() = default;
    ~CHandleMap() { DeleteTemp(); }
    CHandleMap(const CHandleMap&) = delete;
    CHandleMap& operator=(const CHandleMap&) = delete;

    /// The permanent object of the handle, or else its temporary one, made if need be. Null for a null
    /// handle.
    T* FromHandle(Handle handle) {
        if (!handle) return nullptr;
        if (T* permanent = LookupPermanent(handle)) return permanent;
        const auto found = m_temporary.find(handle);
        return found != m_temporary.end() ? found->second.get() : make_temporary(handle);
    }

    /// The permanent object of the handle, or null.
    T* LookupPermanent(Handle handle) const {
        const auto found = m_permanent.find(handle);
        return found != m_permanent.end() ? found->second : nullptr;
    }

    /// The temporary object of the handle, or null.
    T* LookupTemporary(Handle handle) const {
        const auto found = m_temporary.find(handle);
        return found != m_temporary.end() ? found->second.get() : nullptr;
    }

    /// Makes `object` the handle's permanent one. It stays the caller's, who calls RemoveHandle before it
    /// goes.
    void SetPermanent(Handle handle, T* object) { m_permanent[handle] = object; }

    /// Forgets the handle's permanent object.
    void RemoveHandle(Handle handle) { m_permanent.erase(handle); }

    /// Ends all temporary objects. Pointers to them must not be used any more.
    void DeleteTemp() {
        while (!m_temporary.empty()) {
            auto node = m_temporary.extract(m_temporary.begin());
            T* object = node.mapped().get();
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

    using Temporaries = std::unordered_map<Handle, std::unique_ptr<T>>;

    static void set_handle(T& object, Handle handle) {
        kmfc::handle_member(object) = handle;
        if constexpr (requires { object.m_hAttribDC; }) object.m_hAttribDC = handle;
    }

    T* make_temporary(Handle handle) {
        T* object;
        if (m_spare.empty()) {
            object = m_temporary.emplace(handle, std::make_unique<T>()).first->second.get();
        } else {
            m_spare.back().key() = handle;
            object = m_temporary.insert(std::move(m_spare.back())).position->second.get();
            m_spare.pop_back();
        }
        set_handle(*object, handle);
        return object;
    }

    std::unordered_map<Handle, T*> m_permanent;
    Temporaries m_temporary;
    std::vector<typename Temporaries::node_type> m_spare;
};
