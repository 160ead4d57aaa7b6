#include "drawing_chooser.h"

#include <iterator>

#include <ktdsres/find_file_ids.h>
#include <ktdsres/nav_file_dialog_ids.h>
#include <ktdsres/places_ids.h>
#include <ktdsres/save_options_ids.h>
#include <ktui/nav/ktui_nav_dialog.h>
#include <standin_host.h>

#include "draft_document.h"
#include "resource.h"
#include "resource_text.h"
#include "save_drawing_dialog.h"

namespace {

/// A version that drawings can be saved in; each has a text and a binary form.
struct SavedVersion {
    OdDb::DwgVersion version;
    const wchar_t* name;
};
constexpr SavedVersion kSavedVersions[] = {
    {OdDb::kDHL_1032, L"2018"}, {OdDb::kDHL_1027, L"2013"}, {OdDb::kDHL_1024, L"2010"},
    {OdDb::kDHL_1021, L"2007"}, {OdDb::kDHL_1018, L"2004"}, {OdDb::kDHL_1015, L"2000"},
    {OdDb::kDHL_1014, L"R14"},  {OdDb::kDHL_1012, L"R13"},  {OdDb::kDHL_1009, L"R12"},
};

void addType(CNavFilterArray& filters, const CString& description, const wchar_t* pattern) {
    CNavFilter* const filter = filters.AddData();
    filter->SetDescription(description);
    filter->Add(pattern);
}

/// Two lines for each version: text, binary.
void addSavedForms(CNavFilterArray& filters) {
    for (const SavedVersion& saved : kSavedVersions)
        for (const UINT id : {IDS_SAVED_AS_TEXT, IDS_SAVED_AS_BINARY}) {
            CString description;
            description.Format(id, saved.name);
            addType(filters, description, L"*.dxf");
        }
}

int lineOf(const OdDxfForm& form) {
    int line = 0;
    for (const SavedVersion& saved : kSavedVersions) {
        if (saved.version == form.version) return line + (form.binary ? 1 : 0);
        line += 2;
    }
    return form.binary ? 1 : 0;
}

/// The text line of the version that a save format has, whatever it saves; -1 for none.
int lineOfFormat(int format) {
    constexpr struct {
        int first;  // of the version's formats, of which there are up to four
        OdDb::DwgVersion version;
    } kVersions[] = {{KtApDocument::k2013Dwg, OdDb::kDHL_1027}, {KtApDocument::k2010Dwg, OdDb::kDHL_1024},
                     {KtApDocument::k2007Dwg, OdDb::kDHL_1021}, {KtApDocument::k2004Dwg, OdDb::kDHL_1018},
                     {KtApDocument::k2000Dwg, OdDb::kDHL_1015}, {KtApDocument::kR14Dwg, OdDb::kDHL_1014},
                     {KtApDocument::kR13Dwg, OdDb::kDHL_1012},  {KtApDocument::kR12Dxf, OdDb::kDHL_1009}};
    for (const auto& each : kVersions)
        if (format >= each.first && format < each.first + 4) return lineOf({each.version});
    return -1;
}

OdDxfForm formOf(int line) {
    OdDxfForm form;
    const int version = line / 2;
    if (version < 0 || version >= static_cast<int>(std::size(kSavedVersions))) return form;
    form.version = kSavedVersions[version].version;
    form.binary = line % 2 != 0;
    return form;
}

/// Runs the dialog; the path chosen, empty if there is none.
CString pathChosen(CKtUiNavDialog& dialog) {
    CString path;
    if (dialog.DoModal() == IDOK) dialog.GetSingleDataFullPath(path);
    return path;
}

}  // namespace

DrawingsToOpen AskDrawingsToOpen(const CString& folder) {
    CNavDataArray chosen;
    CNavFilterArray filters;
    addType(filters, textOf(IDS_DRAWING_TYPE), L"*.dxf");
    addType(filters, textOf(IDS_ANY_TYPE), L"*.*");
    CKtUiNavDialog dialog(chosen, filters);
    dialog.SetDialogName(L"DrafterOpen");
    dialog.SetDefaultInitialFolder(folder);
    dialog.SetPreviewVisible(1);
    dialog.SetReadOnlyAllowed(1);
    dialog.SetReadOnlyHidden(0);
    dialog.SetMultiSelectAllowed(1);
    DrawingsToOpen answer;
    if (dialog.DoModal() != IDOK) return answer;
    for (int i = 0; i < chosen.GetCount(); ++i) answer.paths.emplace_back(chosen.GetData(i)->GetText());
    answer.isReadOnly = dialog.GetReadOnlySpecified() != 0;
    return answer;
}

DrawingToSave AskDrawingToSave(const CString& folder, const CString& name, CDraftDocument& document) {
    CNavDataArray chosen;
    CNavFilterArray filters;
    addSavedForms(filters);
    document.SetSavesBinary(document.form().binary);
    CSaveDrawingDialog dialog(chosen, filters, document, &lineOfFormat);
    dialog.SetDialogName(L"DrafterSave");
    dialog.SetCreatingFile(1);
    dialog.SetConfirmReplace(1);
    dialog.SetDefaultInitialFolder(folder);
    dialog.SetInitialFileName(name);
    dialog.SetDefaultFileExtension(L"dxf");
    dialog.SetForceFilterIndex(lineOf(document.form()));
    DrawingToSave answer;
    answer.path = pathChosen(dialog);
    answer.form = formOf(dialog.GetFilterIndex());
    return answer;
}

CString AskFileToExport(const CString& folder, const CString& name) {
    constexpr int kUnderlayExport = 0x10000000;
    constexpr struct {
        const wchar_t *kind, *pattern;
    } kTypes[] = {{L"PDF", L"*.pdf"}, {L"DWFx", L"*.dwfx"}, {L"DWF", L"*.dwf"}};
    CNavDataArray chosen;
    CNavFilterArray filters;
    for (const auto& type : kTypes) {
        CString description;
        description.Format(IDS_EXPORTED_TYPE, type.kind);
        addType(filters, description, type.pattern);
    }
    CKtUiNavDialog dialog(chosen, filters);
    dialog.SetDialogName(L"DrafterExport");
    dialog.SetDialogHelpTag(L"Export");
    dialog.SetDialogCaption(textOf(IDS_EXPORT_TITLE));
    dialog.SetCreatingFile(1);
    dialog.SetConfirmReplace(1);
    dialog.SetDefaultInitialFolder(folder);
    dialog.SetInitialFileName(name);
    dialog.SetDefaultFileExtension(L"pdf");
    dialog.SetForceFilterIndex(0);
    dialog.ConvertFlagsToState(kUnderlayExport);
    try {
        return pathChosen(dialog);
    } catch (CInvalidArgException* noFile) {
        // The dialog ends so for a file that is held.
        noFile->Delete();
        return {};
    }
}

void SetFileHelpTopics(CStandinHost& host) {
    // The ids of templates of the toolkit: a dialog that opens has a preview, one that saves has none.
    host.SetHelpTopic(IDD_NAV_FILE_PREVIEW, L"OpenDrawing");
    host.SetHelpTopic(IDD_NAV_FILE, L"SaveDrawing");
    host.SetHelpTopic(IDD_FIND_FILE, L"FindFiles");
    host.SetHelpTopic(IDD_PLACE, L"Places");
    for (const unsigned page : {IDD_DWG_PAGE, IDD_DXF_PAGE}) host.SetHelpTopic(page, L"SaveOptions");
}
