#include "title_fields.h"

#include <od_db.h>

#include "resource.h"
#include "title_values.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;  // this module, as the linker names its beginning

namespace {

constexpr int kLongestField = 80;  // characters

constexpr struct {
    int id;
    const wchar_t* name;
} kFields[] = {{IDC_PROJECT, L"Project"}, {IDC_DRAWN_BY, L"DrawnBy"}, {IDC_CHECKED_BY, L"CheckedBy"}};

CString entered(const CWnd& dialog, int id) {
    CString found;
    dialog.GetDlgItemText(id, found);
    return found.Trim();
}

}  // namespace

CString TitleText(UINT id) {
    wchar_t text[200] = {};
    ::LoadStringW(reinterpret_cast<HINSTANCE>(&__ImageBase), id, text, 200);
    return text;
}

void ShowTitleFields(CKbUiDialog& dialog) {
    for (const auto& field : kFields) {
        CString text;
        dialog.GetDialogData(field.name, text);
        dialog.SetDlgItemText(field.id, text);
    }
}

int BadTitleField(CWnd& dialog) {
    for (const auto& field : kFields) {
        if (entered(dialog, field.id).GetLength() <= kLongestField) continue;
        dialog.SetDlgItemText(IDC_TITLE_MESSAGE, TitleText(IDS_TOO_LONG));
        return field.id;
    }
    dialog.SetDlgItemText(IDC_TITLE_MESSAGE, L"");
    return 0;
}

int FillFromTitleFields(CKbUiDialog& dialog) {
    for (const auto& field : kFields) dialog.SetDialogData(field.name, entered(dialog, field.id));
    OdDbDatabase* const drawing = oddbHostApplicationServices()->workingDatabase();
    if (drawing == nullptr) return 0;
    return FillTitleBlock(*drawing,
                          {OdString(entered(dialog, IDC_PROJECT)), OdString(entered(dialog, IDC_DRAWN_BY)),
                           OdString(entered(dialog, IDC_CHECKED_BY))});
}
