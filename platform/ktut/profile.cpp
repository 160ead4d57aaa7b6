#include "ktut.h"

namespace {

constexpr const wchar_t* kDefaultFile = L"Software\\Velmora\\ktui";
constexpr const wchar_t* kDefaultRoot = L"Default";

OdString& profileFile() {
    static OdString name(kDefaultFile);
    return name;
}

OdString& profileRoot() {
    static OdString name(kDefaultRoot);
    return name;
}

}  // namespace

OdString ktutProfileFileName() { return profileFile(); }

OdString ktutProfileRootName() { return profileRoot(); }

void ktutSetProfileFileName(const wchar_t* name) { profileFile() = name && *name ? name : kDefaultFile; }

void ktutSetProfileRootName(const wchar_t* name) { profileRoot() = name && *name ? name : kDefaultRoot; }
