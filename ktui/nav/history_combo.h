// CHistoryCombo: a combo box that remembers its last ten texts per user. Private to the library.
//
// The texts are read when the object takes the window of a dialog's template, and stored when that goes.
#pragma once

#include <afxwin.h>

#include <memory>

#include <ktui/nav/history_store.h>

class CHistoryCombo : public CComboBox {
    DECLARE_DYNAMIC(CHistoryCombo)

public:
    /// `section` and `valueFormat` as for HistoryStore.
    CHistoryCombo(const wchar_t* section, const wchar_t* valueFormat);
    ~CHistoryCombo() override;

    /// Puts `text`, trimmed, at the top, selected, in the place of an equal one or of the oldest; 0. Nothing
    /// for an empty one, -1.
    int AddText(const wchar_t* text);

protected:
    void PreSubclassWindow() override;
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<HistoryStore> m_store;
};
