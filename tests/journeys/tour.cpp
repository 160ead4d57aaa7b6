// A scripted tour through the drafter: opens a drawing, edits an object's properties with real keys and
// clicks, and prints what was typed, what the control made of it and what was stored; then shows every picker
// and dialog. Pictures are taken by the script that starts it.
//
//     drafter_tour.exe [drawing.dxf]    the whole tour
//     drafter_tour.exe --dialogs        the pickers and dialogs only, in whatever language
#include <cstdio>

#include <windows.h>
#include <commctrl.h>
#include <od_db.h>

#include "../../samples/drafter/resource.h"
#include "drafter_driver.h"
#include "tour_steps.h"

using namespace journey;

namespace {

/// Types into a field and leaves it; tells what became of the text.
void enter(Drafter& drafter, HWND dialog, int id, const wchar_t* label, const char* name,
           const std::wstring& text) {
    HWND field = item(dialog, id);
    drafter.replaceText(field, text);
    drafter.key(VK_TAB);
    const std::wstring problem = textOf(item(dialog, IDC_MESSAGE));
    std::wstring line =
        std::wstring(label) + L": typed \"" + text + L"\", the control shows \"" + textOf(field) + L"\"";
    if (!problem.empty()) line += L" - " + problem;
    tell(name, line);
}

int run(const std::wstring& source) {
    forgetSettings();
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"tour.dxf";
    if (!::CopyFileW(source.c_str(), path.c_str(), FALSE)) {
        std::printf("error: %s cannot be read\n", odUtf8(source).c_str());
        return 1;
    }
    Drafter drafter(path);
    if (drafter.frame() == nullptr) {
        std::printf("error: the drafter did not start\n");
        return 1;
    }
    tell("drawing", L"Opened " + textOf(drafter.frame()));
    drafter.click(drafter.view(), {4, 4});
    drafter.key('A', true);
    tell("selected", L"Selected everything");
    HWND dialog = drafter.openProperties();
    if (dialog == nullptr) {
        std::printf("error: the properties dialog did not open\n");
        return 1;
    }
    tell("properties", L"Opened " + textOf(dialog));
    enter(drafter, dialog, IDC_THICKNESS, L"Thickness", "invalid", L"-3");
    enter(drafter, dialog, IDC_THICKNESS, L"Thickness", "thickness", L"2.50000001");
    drafter.pickLast(item(dialog, IDC_LAYER));
    HWND layer = drafter.waitForDialog(L"New Layer");
    enter(drafter, layer, IDC_STYLE_NAME, L"New layer", "layer-invalid", L"walls|old?");
    enter(drafter, layer, IDC_STYLE_NAME, L"New layer", "layer", L"Tour");
    drafter.key(VK_RETURN);
    drafter.waitUntilGone(layer);
    tell("layer-picked", L"The layer is " + currentEntry(item(dialog, IDC_LAYER)));
    HWND color = item(dialog, IDC_TRUE_COLOR);
    drafter.drop(color);
    tell("color-list", L"Dropped the colour list: " + std::to_wstring(entryCount(color)) + L" entries");
    drafter.key(VK_HOME);
    drafter.key(VK_END);
    drafter.key(VK_RETURN);
    HWND other = drafter.waitForDialog(L"Select Color");
    tell("select-color", L"Chose the last entry; the host's dialog \"" + textOf(other) + L"\" opened");
    drafter.type(L"40");
    drafter.key(VK_RETURN);
    drafter.waitUntilGone(other);
    tell("color-chosen", L"Typed \"40\" there; the picker shows \"" + currentEntry(color) + L"\"");
    const RECT rect = rectOf(dialog);
    drafter.place(dialog, {rect.left - 80, rect.top - 60, rect.right + 90, rect.bottom + 70});
    tell("resized", L"Moved and enlarged the dialog");
    HWND list = item(dialog, IDC_LAYER_LIST);
    ::SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(24, 0));
    drafter.hover(list, {8, 34});
    drafter.hover(list, {10, 36});
    ::Sleep(300);
    tell("tip", L"Narrowed a column and pointed at a layer name: the tip shows it whole");
    drafter.click(item(dialog, IDOK));
    drafter.waitUntilGone(dialog);
    tell("applied", L"OK: " + textOf(drafter.frame()));
    drafter.key('S', true);
    waitUntil([&] { return textOf(drafter.frame()).find(L'*') == std::wstring::npos; });
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    if (drawing->readDxf(path.c_str(), &error) != kOdOk) {
        std::printf("error: the saved drawing cannot be read: %s\n", odUtf8(error.text.view()).c_str());
        return 1;
    }
    const OdDbEntity* entity = drawing->modelSpaceId().open<OdDbBlockTableRecord>()->entities().front();
    std::printf("    stored: layer %s, thickness %g, colour index %d\n",
                odUtf8(entity->layer().view()).c_str(), entity->thickness(), entity->colorIndex());
    dialog = drafter.openProperties();
    tell("reopened", L"Opened the dialog again: it stands where it was left");
    drafter.key(VK_ESCAPE);
    drafter.waitUntilGone(dialog);
    const bool stored =
        entity->layer() == L"Tour" && entity->thickness() == 2.5 && entity->colorIndex() == 40;
    if (!stored) std::printf("error: what was stored is not what was entered\n");
    return stored ? 0 : 1;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    const std::wstring what = count > 1 ? arguments[1] : drawingsFolder() + L"bracket.dxf";
    const int result = what == L"--dialogs" ? 0 : run(what);
    return result != 0 ? result : ShowDialogs();
}
