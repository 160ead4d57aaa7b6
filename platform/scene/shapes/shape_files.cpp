#include "shapes/shape_files.h"

const ShapeFile* ShapeFiles::file(const OdString& name) {
    if (!m_source || name.isEmpty()) return nullptr;
    const auto found = m_files.find(name.view());
    if (found != m_files.end()) return found->second.get();
    const std::string bytes = m_source(name);
    std::unique_ptr<ShapeFile> file;
    if (!bytes.empty()) file = std::make_unique<ShapeFile>(bytes);
    return m_files.emplace(name.view(), std::move(file)).first->second.get();
}

const ShapeFile* ShapeFiles::fileOf(const OdDbObjectId& style) {
    const auto record = style.open<OdDbTextStyleTableRecord>();
    return record ? file(record->fileName()) : nullptr;
}
