// The resource module of a dialog's own, current for a while. Private to the library.
#pragma once

#include <afxwin.h>

/// Makes `own` the current resource module for its lifetime; null leaves the current one in force.
/// Kept: one saved handle per dialog, so a second DoModal inside the first is not provided for.
class ResourceSwitch {
public:
    ResourceSwitch(HINSTANCE own, HINSTANCE& saved) : m_own(own), m_saved(saved) {
        if (m_own == nullptr) return;
        m_saved = AfxGetResourceHandle();
        AfxSetResourceHandle(m_own);
    }
    ~ResourceSwitch() {
        if (m_own == nullptr) return;
        AfxSetResourceHandle(m_saved);
        m_saved = nullptr;
    }
    ResourceSwitch(const ResourceSwitch&) = delete;
    ResourceSwitch& operator=(const ResourceSwitch&) = delete;

private:
    HINSTANCE m_own;
    HINSTANCE& m_saved;
};
