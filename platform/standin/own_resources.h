// The module's resources in force for a while. Internal to the module.
#pragma once

#include <afxwin.h>

extern "C" IMAGE_DOS_HEADER __ImageBase;

/// Takes resources from this module for as long as it lives.
class OwnResources {
public:
    OwnResources() : m_former(AfxGetResourceHandle()) {
        AfxSetResourceHandle(reinterpret_cast<HINSTANCE>(&__ImageBase));
    }
    ~OwnResources() { AfxSetResourceHandle(m_former); }
    OwnResources(const OwnResources&) = delete;
    OwnResources& operator=(const OwnResources&) = delete;

private:
    HINSTANCE m_former;
};
