// The indexed palette of the colour dialog: 255 swatches to click on, or to walk through by the arrow keys.
// Internal to the module.
#pragma once

#include <functional>

#include <afxwin.h>

class CColorPalette : public CStatic {
    DECLARE_DYNAMIC(CColorPalette)

public:
    /// `palette` are the 256 colours that the indexes are shown by, null for the usual ones; `chosen` hears
    /// of the index (1 to 255) that the user goes to.
    void Prepare(const std::uint32_t* palette, std::function<void(int)> chosen);
    /// Marks the swatch of an index, 0 for none. Tells nobody.
    void Select(int index);
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnKillFocus(CWnd* next);
    DECLARE_MESSAGE_MAP()

private:
    CRect area() const;
    static CRect cellOf(int index, const CRect& area);
    /// The index under a place of the palette, 0 for none.
    static int indexAt(CPoint point, const CRect& area);
    /// The nearest index in a direction, or `from` at the edge.
    int neighbour(int from, int stepX, int stepY) const;
    void go(int index);

    const std::uint32_t* m_palette = nullptr;
    std::function<void(int)> m_chosen;
    int m_index = 0;
};
