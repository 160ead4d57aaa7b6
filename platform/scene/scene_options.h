// What a scene is for, how fine it is, and what the builder takes from whoever knows fonts and files.
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <set>
#include <stop_token>
#include <string>
#include <string_view>

#include "scene.h"

/// What a scene is for.
enum class SceneUse {
    kScreen,  ///< what the user sees
    kPaper    ///< the same without layers that aren't plotted, and always with lineweights
};

/// Width of a text that is one unit high (its capitals) at a width factor of 1.
using SceneTextWidth = std::function<double(const SceneFont& font, std::wstring_view text)>;
/// The bytes of a file of shapes that a drawing names; empty if there is none.
using SceneShapeFile = std::function<std::string(const OdString& fileName)>;

/// What there is of a picture file.
struct FoundPicture {
    std::shared_ptr<const ScenePicture> picture;  ///< null for a file that is missing or no picture
    bool isLater = false;                         ///< no picture yet: reading it here would take too long
};
/// The picture in a file that a drawing names.
using ScenePictureFile = std::function<FoundPicture(const OdString& fileName)>;

struct SceneOptions {
    SceneUse use = SceneUse::kScreen;
    /// How far a curve's points may leave it, in drawing units; 0 for arcs in steps of five degrees and other
    /// curves to a thousandth of their size.
    double tolerance = 0;
    /// Height of what is seen, in drawing units, for point marks that are a share of it; 0 if not known, and
    /// then the extents in the drawing's header stand for it.
    double viewHeight = 0;
    /// Without one, widths are estimated.
    SceneTextWidth textWidth = {};
    /// Without one, shapes aren't drawn.
    SceneShapeFile shapeFile = {};
    /// The shape font whose strokes stand for those of one that isn't there; without it a screen font does.
    OdString shapeFontInPlace = {};
    /// Without one, pictures are frames with the names of their files.
    ScenePictureFile picture = {};
    /// When this much work is done (about one for each point, 40 for each path, text and entity), building
    /// ends and says so.
    std::size_t workLimit = 40'000'000;
    /// Whether polylines have their widths; without them they are lines.
    bool polylineWidths = true;
    /// Entities of the outermost block that alone are drawn; null for all.
    std::shared_ptr<const std::set<OdDbObjectId>> only = {};
    /// Asked at each piece; once it is stopped, building ends as it does at the limit.
    std::stop_token stop = {};
    /// If not null, how far the building has come, in per cent: of the entities of the block, or of the limit
    /// where that is nearer. Outlives the builder.
    std::atomic<int>* percent = nullptr;
};
