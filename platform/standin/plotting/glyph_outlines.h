// The letters of the screen's fonts as outlines, for files that bring their letters along. Internal to the
// module.
#pragma once

#include <map>
#include <memory>

#include <afxwin.h>

#include "plotting/scene_plotter.h"
#include "screen_scene.h"

/// Gives the letters of the faces that texts are shown in. Faces live as long as it does. Made, used and
/// destroyed on one thread.
class GlyphOutlines {
public:
    explicit GlyphOutlines(SceneFamily family);
    PlotFace face(const SceneFont& font);

private:
    Glyph glyph(CFont& font, char32_t character);

    SceneFamily m_family;
    CDC m_dc;
    std::map<std::string, std::unique_ptr<CFont>> m_fonts;
};
