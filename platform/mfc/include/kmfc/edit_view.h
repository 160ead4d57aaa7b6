// CEditView: a view that is a text of several lines.
#pragma once

#include <kmfc/ctrl_view.h>
#include <kmfc/standard_controls.h>

class CArchive;

/// Edits plain text, which is all of its document: the document's Serialize calls SerializeRaw. The commands
/// of the edit menu act on it. Typing marks the document as modified.
class KMFC_API CEditView : public CCtrlView {
    DECLARE_DYNCREATE(CEditView)
public:
    static const DWORD dwStyleDefault;

    CEditView();
    ~CEditView() override;

    CEdit& GetEditCtrl() const { return m_control.over(m_hWnd); }
    void GetSelectedText(CString& strResult) const;
    UINT GetBufferLength() const;  ///< characters
    /// Selects the next or the former place of `lpszFind`, seen from the selection. FALSE where there is
    /// none.
    BOOL FindText(LPCTSTR lpszFind, BOOL bNext = TRUE, BOOL bCase = TRUE);
    /// Reads or writes the text as a file of text: in the machine's code page, or as UTF-16 where it begins
    /// with that mark; written as it was read, UTF-8 with its mark where the code page lacks a character.
    void SerializeRaw(CArchive& ar);
    void Serialize(CArchive& ar) override { SerializeRaw(ar); }
    /// Distance of tab stops in dialog units.
    void SetTabStops(int nTabStops);
    void DeleteContents();

protected:
    afx_msg void OnUpdateNeedSel(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedClip(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNeedText(CCmdUI* pCmdUI);
    afx_msg void OnUpdateEditUndo(CCmdUI* pCmdUI);
    afx_msg BOOL OnEditChange();
    afx_msg void OnEditCut();
    afx_msg void OnEditCopy();
    afx_msg void OnEditPaste();
    afx_msg void OnEditClear();
    afx_msg void OnEditUndo();
    afx_msg void OnEditSelectAll();

    DECLARE_MESSAGE_MAP()

private:
    enum class Encoding { codePage, utf8, utf16 };

    Encoding m_encoding = Encoding::codePage;
    kmfc::ControlOverView<CEdit> m_control;
};
