// The documents facet: resource modules and save formats.
#include "standin_facets.h"

void StandinDocumentServices::pushResourceHandle(HINSTANCE handle) {
    m_pushed.push_back(AfxGetResourceHandle());
    AfxSetResourceHandle(handle);
}

void StandinDocumentServices::popResourceHandle() {
    if (m_pushed.empty()) return;
    AfxSetResourceHandle(m_pushed.back());
    m_pushed.pop_back();
}

bool StandinDocumentServices::saveFormatAt(int index, int& format, OdString& name) {
    if (index < 0 || index >= saveFormatCount()) return false;
    const StandinSaveFormat& found = m_formats[static_cast<std::size_t>(index)];
    if (!found.listed) return false;
    format = found.code;
    name = found.name.GetString();
    return true;
}

bool StandinDocumentServices::saveFormatName(int format, OdString& name) {
    for (const StandinSaveFormat& each : m_formats) {
        if (each.code != format) continue;
        name = each.name.GetString();
        return true;
    }
    return false;
}
