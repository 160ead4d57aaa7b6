#include "screen_scene.h"

#include <functional>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include <kh_runtime_host.h>
#include <kh_system.h>

#include "file_bytes.h"
#include "pictures/picture_store.h"
#include "text_face.h"

namespace {

constexpr int kEm = 1000;  // pixels that texts are measured at

struct DeleteMemoryDc {
    using pointer = HDC;
    void operator()(HDC dc) const { ::DeleteDC(dc); }
};
struct DeleteFace {
    using pointer = HFONT;
    void operator()(HFONT font) const { ::DeleteObject(font); }
};

/// Measures texts in the screen's fonts, each of which is made once. Everything is made on the thread that
/// measures.
class ScreenTextWidths {
public:
    explicit ScreenTextWidths(SceneFamily family) : m_family(std::move(family)) {}

    double operator()(const SceneFont& font, std::wstring_view text) {
        if (!m_dc) m_dc.reset(::CreateCompatibleDC(nullptr));
        const HGDIOBJ former = ::SelectObject(m_dc.get(), face(font));
        SIZE size = {};
        ::GetTextExtentPoint32W(m_dc.get(), text.data(), static_cast<int>(text.size()), &size);
        ::SelectObject(m_dc.get(), former);
        return size.cx / (kEm * kCapitalShare);
    }

private:
    HFONT face(const SceneFont& font) {
        const Key key = {std::wstring(font.family.view()), std::wstring(font.file.view()), font.bold,
                         font.italic};
        std::unique_ptr<HFONT, DeleteFace>& made = m_fonts[key];
        if (made) return made.get();
        LOGFONT look = TextFaceOf(font, m_family(font));
        look.lfHeight = -kEm;
        made.reset(::CreateFontIndirectW(&look));
        return made.get();
    }

    using Key = std::tuple<std::wstring, std::wstring, bool, bool>;
    SceneFamily m_family;
    std::map<Key, std::unique_ptr<HFONT, DeleteFace>> m_fonts;
    std::unique_ptr<HDC, DeleteMemoryDc> m_dc;
};

SceneTextWidth textWidths(SceneFamily family) {
    // Copies of the options share the fonts.
    return [widths = std::make_shared<ScreenTextWidths>(std::move(family))](
               const SceneFont& font, std::wstring_view text) { return (*widths)(font, text); };
}

OdString pathOfShapes(const OdString& name) {
    OdString path;
    CKhSystem::instance()->runtimeHost()->findFile(path, name, nullptr, 0);
    return path;
}

std::string bytesAt(const OdString& path) {
    constexpr std::size_t kMost = 16 << 20;
    std::string bytes;
    if (!path.isEmpty() && !ReadFileBytes(path, kMost, bytes)) bytes.clear();
    return bytes;
}

OdString g_shapeFontInPlace;

ScenePictureFile picturesOf(const OdDbDatabase& drawing, PictureReading reading) {
    const std::wstring_view path = drawing.getFilename().view();
    const std::size_t end = path.find_last_of(L"\\/");
    const std::wstring folder(path.substr(0, end == std::wstring_view::npos ? 0 : end + 1));
    return PictureStore::Shared().source(folder, reading);
}

/// What the host answered for the names in a drawing's text styles.
using Answers = std::map<OdString, OdString>;

OdString answerFor(const Answers& answers, const OdString& name) {
    const auto found = answers.find(name);
    return found != answers.end() ? found->second : OdString();
}

/// The names of font files in a drawing's text styles.
std::vector<OdString> fontFilesOf(OdDbDatabase& drawing) {
    std::vector<OdString> files;
    OdDbTextStyleTablePtr styles;
    drawing.getTextStyleTable(styles);
    for (auto each = styles->newIterator(); !each->done(); each->step()) {
        OdDbSymbolTableRecordPtr record;
        each->getRecord(record);
        const auto& style = static_cast<OdDbTextStyleTableRecord&>(*record);
        for (const OdString& file : {style.fileName(), style.bigFontFileName()})
            if (!file.isEmpty()) files.push_back(file);
    }
    return files;
}

}  // namespace

void SetShapeFontInPlace(const OdString& file) { g_shapeFontInPlace = file; }

SceneOptions ScreenSceneOptions() {
    SceneOptions options;
    options.shapeFile = [](const OdString& name) { return bytesAt(pathOfShapes(name)); };
    options.shapeFontInPlace = g_shapeFontInPlace;
    options.textWidth = textWidths(&FamilyOf);
    return options;
}

SceneOptions ScreenSceneOptions(OdDbDatabase& drawing, bool waitsForPictures) {
    SceneOptions options = ScreenSceneOptions();
    options.picture =
        picturesOf(drawing, waitsForPictures ? PictureReading::kAll : PictureReading::kUnpacked);
    return options;
}

SceneOptions UnaskedSceneOptions(OdDbDatabase& drawing) {
    SceneOptions options;
    options.picture = picturesOf(drawing, PictureReading::kAll);
    options.textWidth = textWidths([](const SceneFont& font) { return font.family; });
    return options;
}

void NameFamilies(Scene& scene) {
    for (SceneText& text : scene.texts)
        if (text.font.family.isEmpty()) text.font.family = TextFaceOf(text.font, {}).lfFaceName;
}

SceneFamily BackgroundFamilies(OdDbDatabase& drawing) {
    Answers families;
    for (const OdString& file : fontFilesOf(drawing)) {
        SceneFont font;
        font.file = file;
        families[file] = FamilyOf(font);
    }
    return [families = std::move(families)](const SceneFont& font) {
        return font.family.isEmpty() ? answerFor(families, font.file) : font.family;
    };
}

SceneOptions BackgroundSceneOptions(OdDbDatabase& drawing) {
    Answers paths;
    if (!g_shapeFontInPlace.isEmpty()) paths[g_shapeFontInPlace] = pathOfShapes(g_shapeFontInPlace);
    for (const OdString& file : fontFilesOf(drawing)) {
        paths[file] = pathOfShapes(file);
        // Styles may leave the extension of a shape font out.
        if (file.view().find(L'.') == std::wstring_view::npos && !file.isEmpty()) {
            const OdString whole = file + L".shx";
            paths[whole] = pathOfShapes(whole);
        }
    }
    SceneOptions options;
    options.shapeFile = [paths = std::move(paths)](const OdString& name) {
        return bytesAt(answerFor(paths, name));
    };
    options.shapeFontInPlace = g_shapeFontInPlace;
    options.picture = picturesOf(drawing, PictureReading::kAll);
    options.textWidth = textWidths(BackgroundFamilies(drawing));
    return options;
}
