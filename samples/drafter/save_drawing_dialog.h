// The dialog that asks where to save a drawing: the type chosen and the switch for binary files on the page
// of its options say the same, whichever of the two was changed last, and a new default format chooses its
// version.
#pragma once

#include <functional>

#include <ktui/nav/ktui_nav_dialog.h>

class CDraftDocument;

class CSaveDrawingDialog : public CKtUiNavDialog {
public:
    /// The types are two lines for each version, text and binary by turns. `lineOfFormat` answers the text
    /// line of the version of a save format (KtApDocument::SaveFormat), -1 for none. `document` outlives the
    /// dialog.
    CSaveDrawingDialog(CNavDataArray& chosen, CNavFilterArray& types, CDraftDocument& document,
                       std::function<int(int format)> lineOfFormat);
    ~CSaveDrawingDialog() override;

    void OnFilterChange() override;

private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR, DWORD);
    /// Calls follow when what is being dispatched is done with.
    void followSoon();
    void follow();

    CDraftDocument& m_document;
    std::function<int(int)> m_lineOfFormat;
    int m_format;  ///< the default format that was followed last
    UINT_PTR m_timer = 0;
};
