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
    CSize m_currentDelta{0, 0};                   ///< Kept: nothing writes it; clients read (0, 0)
    CSize m_lastClient{0, 0};
    CRect m_initialRect{0, 0, 0, 0};
    ElasticExtent m_minExtent;
    ElasticExtent m_maxExtent;

private:
    /// Where the control of a tag stands and goes in one change of size. Tags of one id share the first's.
    struct Place {
        size_t m_owner = 0;          ///< index of the first tag of this id
        HWND m_control = nullptr;    ///< as last found; may be gone by now
        CRect m_before{0, 0, 0, 0};  ///< in client coordinates
        CRect m_rect{0, 0, 0, 0};
        bool m_isRead = false;  ///< whether the rectangles are of this change
    };

    /// Moves the controls by what the change comes to; false if all stay.
    bool moveControls(int dx, int dy);
    /// The control with `id`: the one found last if it is still there. Null if there is none.
    HWND findControl(Place& place, unsigned id) const;
    bool readPlace(Place& place, unsigned id) const;

    std::vector<Place> m_places;  ///< in step with m_tags
};
