// A drawing's export: it goes to a file, with an area that the user may pick in the view.
#include "drawing_window.h"

#include <ktut.h>
#include <standin_host.h>
#include <ktui/host/message_box.h>

#include <optional>

#include "drawing_chooser.h"
#include "recent_drawings.h"
#include "resource.h"
#include "resource_text.h"

namespace {

/// The name of a PDF file beside the drawing.
CString exportedName(const CString& drawing) {
    OdString name;
    ktutSplitPath(drawing, nullptr, nullptr, &name, nullptr);
    return CString(name.c_str()) + L".pdf";
}

}  // namespace

void CDrawingWindow::OnFileExport() {
    const CString path = m_document->path().c_str();
    const CString folder = path.IsEmpty() ? RecentFolder() : path.Left(path.ReverseFind(L'\\'));
    CDrawingChange change(m_document->history());
    const CString chosen = AskFileToExport(folder, exportedName(proposedName()));
    // A page set-up that overrides the layout's own is kept in the drawing.
    change.Keep(textOf(IDS_CHANGE_PAGE_SETUP).GetString());
    Refresh(true);
    CString message;
    if (!chosen.IsEmpty()) m_desk.Host().ExportDrawing(chosen, message);
    if (!message.IsEmpty()) KtUiMessageBox(nullptr, message, MB_ICONEXCLAMATION);
    m_view.SetFocus();
}

bool CDrawingWindow::displayedArea(OdGePoint2d& low, OdGePoint2d& high) {
    CRect client;
    m_view.GetClientRect(&client);
    if (client.IsRectEmpty()) return false;
    low = m_view.FromPixel(CPoint(client.left, client.bottom));
    high = m_view.FromPixel(CPoint(client.right, client.top));
    return true;
}

/// Whoever asks waits, so messages are served here until both corners are picked.
bool CDrawingWindow::pickArea(OdGePoint2d& first, OdGePoint2d& second) {
    std::optional<bool> isPicked;
    m_firstPrompt = IDS_EXPORT_CORNER;
    m_view.SetFocus();
    m_view.PickCorners([&](bool picked) { isPicked = picked; });
    sayPrompt();
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
