#include <kh_system.h>
#include <ktui/pickers/palette_lookup.h>

bool LookupInPalette(int index, const LOGPALETTE* palette, COLORREF& color) {
    if (!palette || static_cast<unsigned>(index) >= 256) return false;
    const PALETTEENTRY& entry = palette->palPalEntry[index];
    color = RGB(entry.peRed, entry.peGreen, entry.peBlue);
    return true;
}

COLORREF LookupAtHost(int index) {
    CKhColorServices* services = CKhSystem::instance()->colorServices();
    return services ? services->colorOfIndex(index) : 0;
}
