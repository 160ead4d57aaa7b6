#include <kmfc/global_data.h>

namespace {

void remake(CFont& font, const LOGFONT& wanted) {
    font.DeleteObject();
    font.CreateFontIndirect(&wanted);
}

}  // namespace

void AFX_GLOBAL_DATA::UpdateFonts() {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    if (!::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)) return;
    remake(fontRegular, metrics.lfMenuFont);
    remake(fontTooltip, metrics.lfStatusFont);
}

AFX_GLOBAL_DATA* GetGlobalData() {
    // Never freed: windows still ask for fonts while modules are unloaded.
    static AFX_GLOBAL_DATA* const data = [] {
        auto* made = new AFX_GLOBAL_DATA;
        made->UpdateFonts();
        return made;
    }();
    return data;
}
