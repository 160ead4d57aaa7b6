// Asks for the drawing to open or to save to, through the toolkit's dialog: with places, a preview, search,
// and a list of the forms that a drawing can be saved in.
#pragma once

#include <vector>

#include <afxwin.h>

#include <od_dxf_form.h>

class CDraftDocument;
class CStandinHost;

struct DrawingsToOpen {
    std::vector<CString> paths;  ///< none if the user cancelled
    bool isReadOnly = false;
};
/// `folder` is shown the first time; later the dialog begins where it was left. Several can be chosen at
/// once.
DrawingsToOpen AskDrawingsToOpen(const CString& folder);

struct DrawingToSave {
    CString path;  ///< empty if the user cancelled
    OdDxfForm form;
};
/// Proposes `name`, a file's name with or without its folder, and the form of `document`'s file.
DrawingToSave AskDrawingToSave(const CString& folder, const CString& name, CDraftDocument& document);

/// The help pages of these dialogs and of those that they open.
void SetFileHelpTopics(CStandinHost& host);

/// Asks for the file that the drawing is exported to, and for what of it and how, which the host's plot
/// service keeps. Empty if the user cancelled, or chose a file that another program holds, which was told.
CString AskFileToExport(const CString& folder, const CString& name);

/// Shows previews of exchange files in the dialogs: the picture that a drawing brings with it, and for one
/// without a picture that of what the drawing view would show, which is kept until the file changes.
void ShowPreviewsOfDrawings();
