#include "pictures/picture_files.h"

const FoundPicture& PictureFiles::file(const OdString& name) {
    static const FoundPicture none;
    if (!m_source || name.isEmpty()) return none;
    const auto found = m_found.find(name.view());
    if (found != m_found.end()) return found->second;
    return m_found.emplace(name.view(), m_source(name)).first->second;
}
