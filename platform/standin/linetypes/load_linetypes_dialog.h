// The dialog that loads linetypes from a definition file into a drawing. Internal to the module.
#pragma once

#include <vector>

#include <afxwin.h>
#include <od_db.h>

#include "linetypes/linetype_file.h"
#include "linetypes/linetype_list.h"

class CLoadLinetypesDialog : public CDialog {
    DECLARE_DYNAMIC(CLoadLinetypesDialog)

public:
    /// Starts with the definition file that comes with the application and fits the drawing's units, if
    /// there is one.
    CLoadLinetypesDialog(OdDbDatabase& drawing, CWnd* parent);

    /// The linetypes of the drawing that the chosen ones have become, at least one after DoModal has answered
    /// IDOK.
    const std::vector<OdDbObjectId>& loaded() const { return m_loaded; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnBrowse();
    afx_msg void OnSelectAll();
    afx_msg void OnDoubleClick(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    /// Lists what the file has; says why not if it can't be read, and what is wrong in it.
    void readFile(const CString& name);
    void showProblems(const LinetypeFile& file) const;
    std::vector<const LinetypeDefinition*> chosen() const;
    /// Asks what happens to linetypes that are there already: IDYES, IDNO or IDCANCEL.
    int askToReplace(const std::vector<const LinetypeDefinition*>& definitions) const;
    /// Loads them; the names of those that can't be loaded go to `refused`.
    void load(const std::vector<const LinetypeDefinition*>& definitions, bool replace, CString& refused);

    OdDbDatabase& m_drawing;
    CString m_shownName;  ///< in the field when the file was read
    CString m_path;
    std::vector<LinetypeDefinition> m_definitions;
    std::vector<OdDbObjectId> m_loaded;
    CLinetypeList m_list;
};
