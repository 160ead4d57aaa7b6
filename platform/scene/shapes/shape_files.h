// The shape files of a drawing, each read once. Internal to the module.
#pragma once

#include <map>
#include <memory>

#include "scene_options.h"
#include "shapes/shape_code.h"

class ShapeFiles {
public:
    explicit ShapeFiles(SceneShapeFile source) : m_source(std::move(source)) {}
    /// Whether anybody is asked for files.
    bool haveSource() const { return m_source != nullptr; }
    /// The file with a name; null if nobody has it.
    const ShapeFile* file(const OdString& name);
    /// The file of a text style.
    const ShapeFile* fileOf(const OdDbObjectId& style);

private:
    SceneShapeFile m_source;
    std::map<std::wstring, std::unique_ptr<ShapeFile>, std::less<>> m_files;
};
