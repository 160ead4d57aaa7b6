// PlotScene: draws a scene onto a page of a PDF file. Knows no window: the letters come from whoever knows
// fonts.
#pragma once

#include <functional>

#include "plotting/paper_place.h"
#include "plotting/pdf_writer.h"

/// Where the letters of a text come from.
struct PlotFace {
    std::string name;  ///< the same for fonts of the same letters
    GlyphSource source;
};
using PlotFaces = std::function<PlotFace(const SceneFont& font)>;

/// How a drawing is written.
struct PlotLook {
    bool layers = false;  ///< each layer can be switched in the file
    bool merges = false;  ///< colours merge where lines overlap
};

/// The colour of ink: that of the drawing, but black where the drawing has white by its number 7, which
/// stands out from any paper.
STANDIN_API PdfColor InkOf(const OdCmColor& color);

/// The dashes of a linetype as dash and gap in turn, in points; none for a continuous line. `dot` is the
/// length of a dot.
STANDIN_API std::vector<double> DashesOnPaper(const std::vector<double>& dashes, double scale, double dot);

/// Draws `scene` onto `page`, mapped by `place`.
STANDIN_API void PlotScene(PdfWriter& file, PdfPage& page, const Scene& scene, const PaperPlace& place,
                           const PlotFaces& faces, const PlotLook& look);
