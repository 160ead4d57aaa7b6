#include "layer_drop_site.h"

#include "dropped_files.h"
#include "layer_list.h"
#include "resource.h"

IMPLEMENT_DYNAMIC(CLayerDropSite, CKtUiDropSite)

void CLayerDropSite::Attach(UINT id, CWnd* dialog, Dropped dropped) {
    m_dropped = std::move(dropped);
    SubclassDlgItem(id, dialog);
    AutoLoad();
    DragAcceptFiles();
}

void CLayerDropSite::OnDragDrop(HDROP drop) {
    const std::vector<CString> files = TakeDroppedFiles(drop);
    if (files.empty() || !m_dropped) return;
    const CString& path = files.front();
    // The line of the dialog is too short for most paths.
    const CString name = path.Mid(path.ReverseFind(L'\\') + 1);
    CString words;
    if (const UINT problem = WhyNoDrawing(path)) {
        words.Format(problem, name.GetString());
        words.Replace(L"\n\n", L" - ");
        m_dropped({}, words);
        return;
    }
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    if (drawing->readDxf(path, &error) != kOdOk) {
        words.Format(IDS_DROP_UNREADABLE, name.GetString(), error.text.c_str());
        m_dropped({}, words);
        return;
    }
    if (files.size() > 1)
        words.Format(IDS_DROP_LAYERS_FIRST, name.GetString(), static_cast<int>(files.size()));
    else
        words.Format(IDS_DROP_LAYERS, name.GetString(), static_cast<int>(ListLayers(*drawing).size()));
    m_dropped(drawing, words);
}
