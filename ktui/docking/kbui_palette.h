// CKbUiPalette: one page of a palette set, a plain child window whose name shows on the set's strip.
//
// Applications derive from it and put their controls on it. A palette that is in a set when the set's window
// goes is destroyed and deleted with it; one that was taken out before stays the caller's.
//
//     auto* layers = new LayersPalette;
//     layers->SetName(L"Layers");
//     set.AddPalette(layers);
//     set.SetActivePalette(layers);
#pragma once

#include <afxwin.h>
#include <unknwn.h>

#include <ktui/ktui_api.h>

class CKbUiPaletteSet;

class KTUI_API CKbUiPalette : public CWnd {
    DECLARE_DYNCREATE(CKbUiPalette)

public:
    CKbUiPalette();
    ~CKbUiPalette() override;

    /// Makes the window as a visible child of the set, which the palette remembers. Non-zero on success.
    virtual int Create(CKbUiPaletteSet* set);
    // Kept: the argument of both is not used, and each key holds an address of this run, so that the name
    // can't be read in a later one.
    /// Reads the name from the user's settings and takes it. 1.
    virtual int Load(IUnknown* node);
    /// Writes the name to the user's settings. 1.
    virtual int Save(IUnknown* node);
    /// Makes this the set's active palette; the one before hears OnKillActive. Call it in a set with an
    /// active palette only.
    virtual void OnSetActive();
    /// Told that another palette becomes active; the answer is not looked at. 0.
    virtual int OnKillActive();
    /// The name of the window's class, at most 260 characters.
    virtual CString GetClassName();
    /// The set's sizes in pixels; 0 without a set, otherwise 1.
    virtual int GetMinimumSize(CSize& size);
    virtual int GetMaximumSize(CSize& size);
    /// Whether the set isn't docked.
    virtual bool CanFrameworkTakeFocus();
    /// Lets the user rename the palette over its tab, or at a point (client). Nothing happens before Create.
    virtual void EditName();
    virtual void EditName(CPoint& point);
    // Kept: not asked when a name edit ends.
    /// For subclasses. Whether the pointer isn't null.
    virtual int NameEditValidation(CEdit* edit);

    // Kept: `paletteStyle` is not used.
    /// Makes the window as a child of `set`; its palette style becomes 1. 0 for a null set and when there is
    /// no window, otherwise 1.
    int Create(unsigned long style, const wchar_t* name, CKbUiPaletteSet* set, unsigned long paletteStyle);
    CString GetName() const { return m_name; }
    /// Takes the name, and shows it on the palette's tab if it has one.
    void SetName(CString name);
    unsigned long GetPaletteStyle() const { return m_style; }
    // Kept: the style becomes 1, whatever is given.
    void SetPaletteStyle(unsigned long style);
    /// Whether bit 0 of the style is set.
    int EditNameStyle() const { return (m_style & 1) != 0; }

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg LRESULT OnBeginNameEdit(WPARAM point, LPARAM);
    afx_msg LRESULT OnEndNameEdit(WPARAM edit, LPARAM text);
    DECLARE_MESSAGE_MAP()

    CString m_name;
    CKbUiPaletteSet* m_paletteSet = nullptr;  ///< not owned
    CObArray m_children;                      ///< kept, not used
    unsigned m_style = 0;
    CObject* m_extra = nullptr;  ///< owned

    // Kept: cleared by each construction, without another use.
    static unsigned m_classWord;

private:
    CPoint nameEditPlace(const CPoint* point) const;
    CPoint placeOfTab() const;
};
