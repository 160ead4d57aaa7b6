// The pictures of a drawing, each asked for once. Internal to the module.
#pragma once

#include <map>
#include <string>

#include "scene_options.h"

class PictureFiles {
public:
    explicit PictureFiles(ScenePictureFile source) : m_source(std::move(source)) {}
    /// The picture in a file that the drawing names; none for an empty name.
    const FoundPicture& file(const OdString& name);

private:
    ScenePictureFile m_source;
    std::map<std::wstring, FoundPicture, std::less<>> m_found;
};
