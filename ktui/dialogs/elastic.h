// KbUiElastic: the resize state of one dialog: which controls follow a change of size, and the limits.
//
// Made and freed by its CKbUiDialog. Private to the library; clients see it through the dialog only.
#pragma once

#include <vector>

#include <afxtempl.h>
#include <afxwin.h>

#include <ktui/dialogs/elastic_arithmetic.h>

class CKbUiDialog;

/// Smallest or largest window size in pixels; a negative value is no limit.
struct ElasticExtent {
    int m_width = -1;
    int m_height = -1;
};

class KbUiElastic {
public:
    explicit KbUiElastic(CKbUiDialog* dialog);
    ~KbUiElastic();
    KbUiElastic(const KbUiElastic&) = delete;
    KbUiElastic& operator=(const KbUiElastic&) = delete;

    /// Enters a control. 1 if it stands in the list now; a pair of id and kind that stood there keeps its
    /// first percentages.
    int Register(unsigned id, KBUI_ELASTIC_KIND kind, int percentX, int percentY);
    /// Moves the controls for a client size of `cx` by `cy` pixels and remembers that size.
    void Resize(int cx, int cy);
    /// Fills in the limits that are set and leaves the others.
    void GetMinMaxInfo(MINMAXINFO& info) const;

    CKbUiDialog* m_dialog;
    CArray<_SControlTag*, _SControlTag*> m_tags;  ///< owned, in order of registration
    CSize m_currentDelta{0, 0};                   ///< Kept: nothing writes it
    CSize m_lastClient{0, 0};
    CRect m_initialRect{0, 0, 0, 0};
    ElasticExtent m_minExtent;
    ElasticExtent m_maxExtent;

private:
    /// Moves the controls, one tag after the other, by what the change comes to; false if all stay.
    bool moveControls(int dx, int dy);
    /// Moves the control of `tag` by `step` from where it stands now; false if it stays.
    bool moveControl(const _SControlTag& tag, CSize step, HWND& known) const;
    /// The control with `id`: `known` if it is that control still. Null if there is none.
    HWND findControl(HWND known, unsigned id) const;

    std::vector<HWND> m_found;  ///< by index of the tag: its control as last found; may be gone by now
};
