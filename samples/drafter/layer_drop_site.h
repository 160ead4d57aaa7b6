// CLayerDropSite: a picture that a drawing is dropped on. It reads the drawing and gives it to its dialog.
#pragma once

#include <functional>

#include <ktui/ktui.h>

class CLayerDropSite : public CKtUiDropSite {
    DECLARE_DYNAMIC(CLayerDropSite)

public:
    /// Called with the drawing that was dropped and what to say of it; the drawing is null if it can't be
    /// used.
    using Dropped = std::function<void(OdDbDatabasePtr drawing, const CString& words)>;

    /// Takes the place of control `id` of `dialog`, whose caption begins with the picture's name.
    void Attach(UINT id, CWnd* dialog, Dropped dropped);

protected:
    void OnDragDrop(HDROP files) override;

private:
    Dropped m_dropped;
};
