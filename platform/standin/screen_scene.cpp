#include "screen_scene.h"

#include <map>
#include <memory>
#include <tuple>

#include <kh_runtime_host.h>
#include <kh_system.h>

#include "file_bytes.h"
#include "text_face.h"

namespace {

constexpr int kEm = 1000;  // pixels that texts are measured at

/// Measures texts in the screen's fonts, each of which is made once.
class ScreenTextWidths {
public:
    ScreenTextWidths() { m_dc.CreateCompatibleDC(nullptr); }

    double operator()(const SceneFont& font, std::wstring_view text) {
        CFont* const former = m_dc.SelectObject(&face(font));
        SIZE size = {};
        ::GetTextExtentPoint32W(m_dc.m_hDC, text.data(), static_cast<int>(text.size()), &size);
        m_dc.SelectObject(former);
        return size.cx / (kEm * kCapitalShare);
    }

private:
    CFont& face(const SceneFont& font) {
        const Key key = {std::wstring(font.family.view()), std::wstring(font.file.view()), font.bold,
                         font.italic};
        std::unique_ptr<CFont>& made = m_fonts[key];
        if (made) return *made;
        LOGFONT look = TextFace(font);
        look.lfHeight = -kEm;
        made = std::make_unique<CFont>();
        made->CreateFontIndirect(&look);
        return *made;
    }

    using Key = std::tuple<std::wstring, std::wstring, bool, bool>;
    CDC m_dc;
    std::map<Key, std::unique_ptr<CFont>> m_fonts;
};

std::string shapeFileBytes(const OdString& name) {
    constexpr std::size_t kMost = 16 << 20;
    OdString path;
    CKhSystem::instance()->runtimeHost()->findFile(path, name, nullptr, 0);
    std::string bytes;
    if (!path.isEmpty() && !ReadFileBytes(path, kMost, bytes)) bytes.clear();
    return bytes;
}

}  // namespace

SceneOptions ScreenSceneOptions() {
    SceneOptions options;
    // Copies of the options share the fonts.
    const auto widths = std::make_shared<ScreenTextWidths>();
    options.shapeFile = &shapeFileBytes;
    options.textWidth = [widths](const SceneFont& font, std::wstring_view text) {
        return (*widths)(font, text);
    };
    return options;
}
