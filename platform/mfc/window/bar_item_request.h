// What a bar asks of the handlers of its items' commands: one loop, and one kind of request for buttons.
#pragma once

#include <kmfc/control_bar.h>
#include <kmfc/status_bar.h>

namespace kmfc {

/// One request for each item of a bar in turn, from the first (m_nIndex 0). Derive from it to say how the
/// items show what is answered.
class BarItemRequest : public CCmdUI {
public:
    explicit BarItemRequest(CWnd& bar) { m_pOther = &bar; }

    /// Asks for `count` items: the bar's own map first, then `target`. With `disableIfNoHandler` an item that
    /// nobody handles is disabled.
    void ask_all(int count, CCmdTarget* target, BOOL disableIfNoHandler);

    void SetRadio(BOOL bOn) override { SetCheck(bOn ? 1 : 0); }

protected:
    /// The command of an item; 0 for one that has none and isn't asked for.
    virtual UINT command_of(int index) = 0;
    int index() const { return static_cast<int>(m_nIndex); }
};

/// Of the panes of a status bar that knows them by SBPS_ styles.
template <class Bar>
class PaneRequest : public BarItemRequest {
public:
    explicit PaneRequest(Bar& bar) : BarItemRequest(bar), m_bar(bar) {}

    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        const UINT style = m_bar.GetPaneStyle(index());
        m_bar.SetPaneStyle(index(), bOn ? style & ~SBPS_DISABLED : style | SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override {
        const UINT style = m_bar.GetPaneStyle(index());
        m_bar.SetPaneStyle(index(), nCheck != 0 ? style | SBPS_POPOUT : style & ~SBPS_POPOUT);
    }
    void SetText(LPCTSTR lpszText) override { m_bar.SetPaneText(index(), lpszText); }

protected:
    UINT command_of(int index) override { return m_bar.GetItemID(index); }

private:
    Bar& m_bar;
};

/// Of the buttons of a bar that knows them by TBBS_ styles.
template <class Bar>
class ButtonRequest : public BarItemRequest {
public:
    explicit ButtonRequest(Bar& bar) : BarItemRequest(bar), m_bar(bar) {}

    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        // A button that is disabled is let go.
        change(TBBS_DISABLED | (bOn ? 0u : TBBS_PRESSED), bOn ? 0u : TBBS_DISABLED);
    }
    void SetCheck(int nCheck) override {
        const UINT state = nCheck == 1 ? TBBS_CHECKED : nCheck == 2 ? TBBS_INDETERMINATE : 0u;
        change(TBBS_CHECKED | TBBS_INDETERMINATE, TBBS_CHECKBOX | state);
    }
    /// Texts of menu items aren't those of buttons.
    void SetText(LPCTSTR) override {}

protected:
    UINT command_of(int index) override {
        return (m_bar.GetButtonStyle(index) & TBBS_SEPARATOR) == 0 ? m_bar.GetItemID(index) : 0;
    }

private:
    void change(UINT without, UINT with) {
        m_bar.SetButtonStyle(index(), (m_bar.GetButtonStyle(index()) & ~without) | with);
    }

    Bar& m_bar;
};

}  // namespace kmfc
