// The part of the tour that shows every picker and every dialog. It knows no titles, so that it runs in any
// language.
#include "tour_steps.h"

#include <cstdio>

#include <windows.h>
#include <commctrl.h>
#include <od_db.h>

#include "../../platform/standin/resource.h"
#include "../../samples/drafter/resource.h"
#include "drafter_driver.h"

using namespace journey;

namespace {

constexpr const wchar_t* kLoaded = L"HIDDEN";  // in the linetype files of the program

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

std::wstring rowCount(HWND dialog, int list) {
    return std::to_wstring(::SendMessageW(item(dialog, list), LVM_GETITEMCOUNT, 0, 0));
}

/// Shows the linetype manager, and loads a linetype from the program's own file.
void showLinetypeManager(Drafter& drafter, HWND dialog) {
    drafter.pickLast(item(dialog, IDC_LINETYPE));
    HWND manager = opened(drafter, dialog, "the linetype manager");
    tell("linetype-manager", L"Chose the last entry; \"" + textOf(manager) + L"\" opened with " +
                                 rowCount(manager, IDC_LINETYPE_LIST) + L" linetypes");
    drafter.key('O', false, true);
    HWND load = opened(drafter, manager, "the dialog that loads linetypes");
    drafter.type(kLoaded);
    tell("load-linetypes", L"\"" + textOf(load) + L"\" lists " + rowCount(load, IDC_LOAD_LIST) +
                               L" linetypes of " + textOf(item(load, IDC_LOAD_FILE)) + L"; typed " + kLoaded);
    drafter.key(VK_RETURN);
    drafter.waitUntilGone(load);
    tell("linetype-loaded",
         L"Loaded it: the manager lists " + rowCount(manager, IDC_LINETYPE_LIST) + L" linetypes");
    drafter.key(VK_RETURN);
    drafter.waitUntilGone(manager);
}

/// Shows the dialog of plot styles with the table of the layout.
void showPlotStyles(Drafter& drafter, HWND dialog) {
    drafter.pickLast(item(dialog, IDC_PLOT_STYLE));
    HWND styles = opened(drafter, dialog, "the plot style dialog");
    tell("plot-style-other", L"Chose the last entry; \"" + textOf(styles) + L"\" opened. " +
                                 textOf(item(styles, IDC_PLOT_STYLE_SHEET)));
    close(drafter, styles);
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
    showPlotStyles(drafter, dialog);
    other(drafter, dialog, IDC_INDEX_COLOR, "color-other");
    showLinetypeManager(drafter, dialog);
    drafter.pickByMouse(item(dialog, IDC_LINE_WEIGHT), L"0.50 mm");
    tell("properties-picked",
         L"Took " + currentEntry(item(dialog, IDC_LINETYPE)) + L", and picked a lineweight");
    drafter.click(item(dialog, IDOK));
    drafter.waitUntilGone(dialog);
    drafter.key(VK_ESCAPE);
    tell("properties-drawn", L"OK: the objects are drawn with it, and heavier");
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

/// Shows the dialog that asks for a font file.
void showBrowse(Drafter& drafter, HWND dialog) {
    drafter.click(item(dialog, IDC_BROWSE_FONT));
    HWND question = opened(drafter, dialog, "the question for a font file");
    drafter.type(programFolder() + L"fonts");
    drafter.key(VK_RETURN);
    tell("font-file", L"Browsed for a font file: \"" + textOf(question) + L"\" lists the program's own");
    close(drafter, question);
}

void showTextStyle(Drafter& drafter) {
    HWND dialog = openByKey(drafter, 'T', "the text style dialog");
    tell("text-style", L"Opened \"" + textOf(dialog) + L"\"");
    dropped(drafter, dialog, IDC_STYLE, "text-styles");
    drafter.pickByMouse(item(dialog, IDC_STYLE), L"TITLES");
    const std::wstring message = textOf(item(dialog, IDC_MESSAGE));
    tell("text-true-type",
         L"Chose the style TITLES: " + (message.empty() ? currentEntry(item(dialog, IDC_FONT)) : message));
    showBrowse(drafter, dialog);
    drafter.pickByMouse(item(dialog, IDC_FONT), L"Liberation Serif");
    dropped(drafter, dialog, IDC_FONT, "font");
    dropped(drafter, dialog, IDC_FONT_STYLE, "font-style");
    drafter.pickByMouse(item(dialog, IDC_FONT_STYLE), L"Bold");
    drafter.replaceText(item(dialog, IDC_TEXT_SLANT), L"15");
    drafter.replaceText(item(dialog, IDC_TEXT_WIDTH), L"1.3");
    tell("text-sample", L"Picked a font and its style, slanted and widened; the sample follows");
    drafter.click(item(dialog, IDOK));
    drafter.waitUntilGone(dialog);
    tell("text-drawn", L"OK: the titles are drawn with it");
}

/// Every page of the options, the extension's too; turned by keys, which are the same in any language.
void showOptions(Drafter& drafter) {
    drafter.activate(drafter.frame());
    drafter.key('O', true, false, true);
    HWND dialog = opened(drafter, drafter.frame(), "the options");
    HWND tabs = item(dialog, IDC_TABS);
    const int count = static_cast<int>(::SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
    const char* const names[] = {"options-files", "options-display", "options-units", "options-extension"};
    for (int i = 0; i < count && i < 4; ++i) {
        waitUntil([&] { return ::SendMessageW(tabs, TCM_GETCURSEL, 0, 0) == i; });
        tell(names[i], L"Page " + std::to_wstring(i + 1) + L" of \"" + textOf(dialog) + L"\"");
        drafter.key(VK_NEXT, true);
    }
    close(drafter, dialog);
    if (count != 4) throw Missing{"the extension's page"};
}

/// Measures a distance in the drawing.
void showMeasure(Drafter& drafter) {
    HWND dialog = openByKey(drafter, 'M', "the measure dialog");
    drafter.click(item(dialog, IDC_PICK_DISTANCE));
    waitUntil([&] { return !::IsWindowVisible(dialog) && ::IsWindowEnabled(drafter.frame()); });
    HWND status = ::GetDlgItem(drafter.frame(), 0xE801);
    const std::wstring first = textOf(status);
    drafter.click(drafter.view(), {200, 200});
    waitUntil([&] { return textOf(status) != first; });
    drafter.hover(drafter.view(), {360, 280});
    tell("measure-band", L"Picked the first place: a rubber band follows");
    drafter.click(drafter.view(), {400, 300});
    waitUntil([&] { return ::IsWindowVisible(dialog) && !::IsWindowEnabled(drafter.frame()); });
    tell("measure", L"The distance is " + textOf(item(dialog, IDC_MEASURED_DISTANCE)));
    close(drafter, dialog);
}

void showPickerBar(Drafter& drafter) {
    drafter.activate(drafter.frame());
    drafter.key('A', true);
    HWND bar = ::GetDlgItem(drafter.frame(), 0xE805);
    if (bar == nullptr) throw Missing{"the picker bar"};
    HWND color = item(bar, IDC_TRUE_COLOR);
    drafter.drop(color);
    tell("picker-bar",
         L"Dropped the colors of the picker bar: " + std::to_wstring(entryCount(color)) + L" entries");
    drafter.key(VK_ESCAPE);
    drafter.activate(drafter.frame());
    drafter.key(VK_ESCAPE);
}

/// Opening with its preview and search, and the forms that a drawing is saved in.
void showFiles(Drafter& drafter) {
    constexpr int kFiles = 1121, kTypes = 1136, kFind = 57012;
    HWND dialog = openByKey(drafter, 'O', "the dialog that opens drawings");
    HWND list = ::GetWindow(item(dialog, kFiles), GW_CHILD);
    waitUntil([&] { return ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) > 0; });
    drafter.click(list, {60, 10});
    tell("open", L"Chose one of " + std::to_wstring(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)) +
                     L" drawings; its preview shows");
    drafter.click(item(::FindWindowExW(dialog, nullptr, L"#32770", nullptr), kFind));
    HWND find = opened(drafter, dialog, "the search for files");
    tell("find-file", L"Opened \"" + textOf(find) + L"\"");
    close(drafter, find);
    close(drafter, dialog);
    drafter.activate(drafter.frame());
    drafter.key('F', false, true);
    drafter.key('A');
    dialog = opened(drafter, drafter.frame(), "the dialog that saves drawings");
    drafter.drop(item(dialog, kTypes));
    tell("save-as", L"Dropped the forms that a drawing is saved in");
    drafter.key(VK_ESCAPE);
    close(drafter, dialog);
}

/// The export with its areas, and the window that is picked for it.
void showExport(Drafter& drafter) {
    constexpr int kArea = 57212, kWindowArea = 2;
    HWND dialog = openByKey(drafter, 'E', "the dialog that exports drawings");
    HWND area = item(::FindWindowExW(dialog, nullptr, L"#32770", nullptr), kArea);
    drafter.drop(area);
    tell("export", L"Dropped the areas that a drawing is exported in");
    drafter.key(VK_ESCAPE);
    wchar_t window[100] = {};
    ::SendMessageW(area, CB_GETLBTEXT, kWindowArea, reinterpret_cast<LPARAM>(window));
    drafter.pickByMouse(area, window);
    waitUntil([&] { return !::IsWindowVisible(dialog) && ::IsWindowEnabled(drafter.frame()); });
    // Of a view of any size.
    const RECT view = rectOf(drafter.view());
    const LONG wide = view.right - view.left, high = view.bottom - view.top;
    drafter.click(drafter.view(), {wide / 4, high / 4});
    drafter.hover(drafter.view(), {wide * 2 / 3, high * 2 / 3});
    tell("export-window", L"Picked the first corner of the window to export");
    drafter.click(drafter.view(), {wide * 2 / 3, high * 2 / 3});
    waitUntil([&] { return ::IsWindowVisible(dialog) && !::IsWindowEnabled(drafter.frame()); });
    close(drafter, dialog);
}

/// The question that closing with the changes so far asks; cancelled.
void showQuestion(Drafter& drafter) {
    ::PostMessageW(drafter.frame(), WM_CLOSE, 0, 0);
    HWND question = opened(drafter, drafter.frame(), "the question for changes");
    tell("unsaved-changes", L"Closed with changes: \"" + textOf(question) + L"\" asks");
    close(drafter, question);
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
    const auto text = drawing->textstyle().open<OdDbTextStyleTableRecord>();
    std::printf(
        "    stored: linetype %s, lineweight %d, dimension style %s with first arrowhead %s, size %g, text "
        "style %s with font %s\n",
        odUtf8(entity->linetype().view()).c_str(), entity->lineWeight(),
        odUtf8(style->getName().view()).c_str(), odUtf8(style->dimblk1().view()).c_str(), style->dimasz(),
        odUtf8(text->getName().view()).c_str(), odUtf8(text->fileName().view()).c_str());
    return entity->linetype() == kLoaded && entity->lineWeight() == 50 && style->getName() == L"Tour" &&
           style->dimblk1() == L"_Open90" && style->dimasz() == 2 && text->isBold() &&
           text->typeFace() == L"Liberation Serif";
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
        showFiles(drafter);
        showExport(drafter);
        showProperties(drafter);
        showDimensionStyle(drafter);
        showTextStyle(drafter);
        showOptions(drafter);
        showMeasure(drafter);
        showPickerBar(drafter);
        if (const char* missing = ShowPalettes(drafter)) throw Missing{missing};
        if (const char* missing = ShowDrawings(drafter)) throw Missing{missing};
        showQuestion(drafter);
    } catch (const Missing& missing) {
        std::printf("error: %s did not come up\n", missing.what);
        return 1;
    }
    const bool stored = isStored(drafter, path);
    std::printf("%s\n", stored ? "The tour is complete." : "error: what was stored is not what was picked");
    return stored ? 0 : 1;
}
