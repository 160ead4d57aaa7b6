// The letters of the screen's fonts as outlines, for files that bring their letters along. Internal to the
// module.
#pragma once

#include <map>
#include <memory>

#include <afxwin.h>

#include "plotting/scene_plotter.h"

/// Gives the letters of the faces that texts are shown in. Faces live as long as it does.
class GlyphOutlines {
public:
    GlyphOutlines();
    PlotFace face(const SceneFont& font);

private:
    Glyph glyph(CFont& font, char32_t character);

    CDC m_dc;
    std::map<std::string, std::unique_ptr<CFont>> m_fonts;
};
