#include "kh_system.h"

#include <utility>

namespace {

CKhSystem* installedSystem = nullptr;

}  // namespace

CKhSystem* CKhSystem::instance() { return installedSystem; }

CKhSystem* CKhSystem::install(CKhSystem* system) { return std::exchange(installedSystem, system); }
