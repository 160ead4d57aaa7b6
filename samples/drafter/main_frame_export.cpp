// The main window's export: the drawing goes to a file, with an area that the user may pick in the view.
#include "main_frame.h"

#include <afxadv.h>
#include <ktut.h>
#include <standin_host.h>
#include <ktui/host/message_box.h>

#include <optional>

#include "drawing_chooser.h"
#include "resource.h"

namespace {

CString textOf(UINT id) {
    CString text;
    text.LoadString(id);
    return text;
}

/// The name of a PDF file beside the drawing.
CString exportedName(const CString& drawing) {
    OdString name;
    ktutSplitPath(drawing, nullptr, nullptr, &name, nullptr);
    return CString(name.c_str()) + L".pdf";
}

}  // namespace

void CMainFrame::OnFileExport() {
    const CString path = m_document->path().c_str();
    const CString last = path.IsEmpty() ? (*AfxGetApp()->m_pRecentFileList)[0] : path;
    const CString name = m_document->name().isEmpty() ? textOf(IDS_PROPOSED_NAME) : shownName();
    CDrawingChange change(m_document->history());
    const CString chosen = AskFileToExport(last.Left(last.ReverseFind(L'\\')), exportedName(name));
    // A page set-up that overrides the layout's own is kept in the drawing.
    change.Keep(textOf(IDS_CHANGE_PAGE_SETUP).GetString());
    showDrawing(true);
    CString message;
    if (!chosen.IsEmpty() && !m_host.ExportDrawing(chosen, message))
        KtUiMessageBox(nullptr, message, MB_ICONEXCLAMATION);
    m_view.SetFocus();
}

bool CMainFrame::displayedArea(OdGePoint2d& low, OdGePoint2d& high) {
    CRect client;
    m_view.GetClientRect(&client);
    if (client.IsRectEmpty()) return false;
    low = m_view.FromPixel(CPoint(client.left, client.bottom));
    high = m_view.FromPixel(CPoint(client.right, client.top));
    return true;
}

/// Whoever asks waits, so messages are served here until both corners are picked.
bool CMainFrame::pickArea(OdGePoint2d& first, OdGePoint2d& second) {
    std::optional<bool> isPicked;
    m_firstPrompt = IDS_EXPORT_CORNER;
    m_view.SetFocus();
    m_view.PickCorners([&](bool picked) { isPicked = picked; });
    showPrompt();
    while (!isPicked)
        if (!AfxGetApp()->PumpMessage()) {
            // The program ends; whoever waits further out is to hear it too.
            AfxPostQuitMessage(0);
            m_view.EndPicking(false);
        }
    if (!*isPicked) return false;
    first = m_view.places()[0];
    second = m_view.places()[1];
    return true;
}
