// Makes a module the one that resources come from, for as long as the object lives.
//
//     const ResourceScope scope(module);
//     dialog.DoModal();
//
// Scopes nest. The former module comes back also when an exception leaves the scope.
#pragma once

#include <kh_system.h>

class ResourceScope {
public:
    /// Makes `module` the active resource module through the host.
    explicit ResourceScope(HINSTANCE module) {
        CKhSystem::instance()->documentServices()->pushResourceHandle(module);
    }
    ~ResourceScope() { CKhSystem::instance()->documentServices()->popResourceHandle(); }
    ResourceScope(const ResourceScope&) = delete;
    ResourceScope& operator=(const ResourceScope&) = delete;
};
