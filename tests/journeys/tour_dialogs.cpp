// The part of the tour that shows every picker and every dialog. It knows no titles, so that it runs in any
// language.
#include "tour_steps.h"

#include <cstdio>

#include <windows.h>
#include <od_db.h>

#include "../../samples/drafter/resource.h"
#include "drafter_driver.h"

using namespace journey;

namespace {

/// Thrown away steps are worse than none: the first dialog that does not come up ends the tour.
struct Missing {
    const char* what;
};

HWND opened(Drafter& drafter, HWND owner, const char* what) {
    HWND dialog = drafter.waitForDialogOf(owner);
    if (dialog == nullptr) throw Missing{what};
    return dialog;
}

HWND openByKey(Drafter& drafter, WORD letter, const char* what) {
    drafter.activate(drafter.frame());
    drafter.key(letter, true);
    return opened(drafter, drafter.frame(), what);
}

void close(Drafter& drafter, HWND dialog) {
    drafter.key(VK_ESCAPE);
    drafter.waitUntilGone(dialog);
}

void dropped(Drafter& drafter, HWND dialog, int id, const char* name) {
    HWND combo = item(dialog, id);
    drafter.drop(combo);
    tell(name, L"Dropped a list of " + std::to_wstring(entryCount(combo)) + L" entries");
    drafter.key(VK_ESCAPE);
}

/// Takes the last entry of a dropped list, which leads to another dialog; shows and cancels that.
void other(Drafter& drafter, HWND dialog, int id, const char* name) {
    drafter.pickLast(item(dialog, id));
    HWND behind = opened(drafter, dialog, name);
    tell(name, L"Chose the last entry; \"" + textOf(behind) + L"\" opened");
    close(drafter, behind);
}

void showProperties(Drafter& drafter) {
    drafter.click(drafter.view(), {4, 4});
    drafter.key('A', true);
    HWND dialog = openByKey(drafter, '1', "the properties dialog");
    tell("properties-named", L"Opened \"" + textOf(dialog) + L"\" on a drawing with named plot styles");
    dropped(drafter, dialog, IDC_TRUE_COLOR, "true-color");
    dropped(drafter, dialog, IDC_INDEX_COLOR, "index-color");
    dropped(drafter, dialog, IDC_LINETYPE, "linetype");
    dropped(drafter, dialog, IDC_LINE_WEIGHT, "lineweight");
    dropped(drafter, dialog, IDC_PLOT_STYLE, "plot-style");
    other(drafter, dialog, IDC_LINETYPE, "linetype-manager");
    other(drafter, dialog, IDC_PLOT_STYLE, "plot-style-other");
    other(drafter, dialog, IDC_INDEX_COLOR, "color-other");
    drafter.pickByMouse(item(dialog, IDC_LINETYPE), L"DASHED");
    drafter.pickByMouse(item(dialog, IDC_LINE_WEIGHT), L"0.50 mm");
    tell("properties-picked", L"Picked linetype and lineweight");
    drafter.click(item(dialog, IDOK));
    drafter.waitUntilGone(dialog);
    drafter.key(VK_ESCAPE);
    tell("properties-drawn", L"OK: the objects are drawn dashed and heavier");
}

void showDimensionStyle(Drafter& drafter) {
    HWND dialog = openByKey(drafter, 'D', "the dimension style dialog");
    tell("dimension-style", L"Opened \"" + textOf(dialog) + L"\"");
    dropped(drafter, dialog, IDC_FIRST_ARROW, "arrowhead");
    dropped(drafter, dialog, IDC_DIMENSION_COLOR, "dimension-color");
    dropped(drafter, dialog, IDC_CALLOUT, "callout");
    other(drafter, dialog, IDC_LEADER_ARROW, "user-arrow");
    drafter.pick(item(dialog, IDC_FIRST_ARROW), 9);
    drafter.pick(item(dialog, IDC_LEADER_ARROW), 12);
    drafter.pick(item(dialog, IDC_CALLOUT), 4);
    drafter.pick(item(dialog, IDC_DIMENSION_COLOR), 5);
    drafter.replaceText(item(dialog, IDC_ARROW_SIZE), L"2");
    tell("dimension-sample", L"Picked arrowheads, callout and color; the sample follows");
    drafter.replaceText(item(dialog, IDC_ARROW_SIZE), L"-1");
    tell("dimension-invalid", L"A size below 0: " + textOf(item(dialog, IDC_MESSAGE)));
    drafter.replaceText(item(dialog, IDC_ARROW_SIZE), L"2");
    drafter.click(item(dialog, IDC_NEW_STYLE));
    HWND name = opened(drafter, dialog, "the name of a new style");
    drafter.type(L"Tour");
    tell("new-style", L"Asked for a new style: \"" + textOf(name) + L"\"");
    drafter.key(VK_RETURN);
    drafter.waitUntilGone(name);
    drafter.click(item(dialog, IDOK));
    drafter.waitUntilGone(dialog);
}

void showTextStyle(Drafter& drafter) {
    HWND dialog = openByKey(drafter, 'T', "the text style dialog");
    tell("text-style", L"Opened \"" + textOf(dialog) + L"\"");
    dropped(drafter, dialog, IDC_STYLE, "text-styles");
    dropped(drafter, dialog, IDC_FONT, "font");
    drafter.pickByMouse(item(dialog, IDC_STYLE), L"TITLES");
    tell("text-true-type", L"A style of a TrueType font");
    if (::IsWindowEnabled(item(dialog, IDC_FONT_STYLE)))
        dropped(drafter, dialog, IDC_FONT_STYLE, "font-style");
    drafter.replaceText(item(dialog, IDC_TEXT_SLANT), L"15");
    drafter.replaceText(item(dialog, IDC_TEXT_WIDTH), L"1.3");
    tell("text-sample", L"Slanted and widened; the sample follows");
    drafter.click(item(dialog, IDOK));
    drafter.waitUntilGone(dialog);
}

/// Whether the saved drawing holds what was picked.
bool isStored(Drafter& drafter, const std::wstring& path) {
    drafter.activate(drafter.frame());
    drafter.key('S', true);
    waitUntil([&] { return textOf(drafter.frame()).find(L'*') == std::wstring::npos; });
    OdDbDatabasePtr drawing(new OdDbDatabase);
    if (drawing->readDxf(path.c_str()) != kOdOk) return false;
    const OdDbEntity* entity = drawing->modelSpaceId().open<OdDbBlockTableRecord>()->entities().front();
    const auto style = drawing->dimstyle().open<OdDbDimStyleTableRecord>();
    std::printf(
        "    stored: linetype %s, lineweight %d, dimension style %s with first arrowhead %s, size %g\n",
        odUtf8(entity->linetype().view()).c_str(), entity->lineWeight(),
        odUtf8(style->getName().view()).c_str(), odUtf8(style->dimblk1().view()).c_str(), style->dimasz());
    return entity->linetype() == L"DASHED" && entity->lineWeight() == 50 && style->getName() == L"Tour" &&
           style->dimblk1() == L"_Open90" && style->dimasz() == 2;
}

}  // namespace

void tell(const char* name, const std::wstring& text) {
    static int step = 0;
    std::printf("%2d. %s\n", ++step, odUtf8(text).c_str());
    std::fflush(stdout);
    char file[64];
    std::snprintf(file, sizeof(file), "%02d-%s", step, name);
    picture(file);
}

int ShowDialogs() {
    forgetSettings();
    const std::wstring path = scratchCopy(L"site_plan.dxf");
    Drafter drafter(path);
    if (drafter.frame() == nullptr) {
        std::printf("error: the drafter did not start\n");
        return 1;
    }
    try {
        showProperties(drafter);
        showDimensionStyle(drafter);
        showTextStyle(drafter);
    } catch (const Missing& missing) {
        std::printf("error: %s did not come up\n", missing.what);
        return 1;
    }
    const bool stored = isStored(drafter, path);
    std::printf("%s\n", stored ? "The tour is complete." : "error: what was stored is not what was picked");
    return stored ? 0 : 1;
}
