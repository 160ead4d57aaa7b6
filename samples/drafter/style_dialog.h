// CStyleDialog: a dialog over the named styles of a drawing, of which one is shown at a time (IDC_STYLE) and
// new ones are made as copies (IDC_NEW_STYLE). Everything is written by OK, and the style shown becomes the
// current one; Cancel changes nothing.
#pragma once

#include "fields_dialog.h"

class CStyleDialog : public CFieldsDialog {
    DECLARE_DYNAMIC(CStyleDialog)

public:
    using CFieldsDialog::CFieldsDialog;

protected:
    /// Names of the styles, those made by this dialog included.
    virtual std::vector<OdString> StyleNames() const = 0;
    /// Fills the controls from style `index`.
    virtual void ShowStyle(std::size_t index) = 0;
    /// Takes what the controls show into style `index`; the fields are valid.
    virtual void KeepStyle(std::size_t index) = 0;
    /// Appends a copy of style `index` under another name.
    virtual void CopyStyle(std::size_t index, const OdString& name) = 0;
    /// Writes all styles and makes style `index` the current one.
    virtual void ApplyStyles(std::size_t index) = 0;

    /// Lists the styles and shows that of this name; after the controls are bound.
    void ListStyles(const OdString& name);
    std::size_t current() const { return m_current; }
    /// Whether the controls are being filled: what they report then is no choice of the user's.
    bool isShowing() const { return m_isShowing; }
    /// Resizing of the row of styles.
    void ResizeStyleRow();

    void Apply() override;

    afx_msg void OnStyle();
    afx_msg void OnStylesDropped();
    afx_msg void OnStylesCancelled();
    afx_msg void OnNewStyle();
    DECLARE_MESSAGE_MAP()

private:
    void show(std::size_t index);

    std::size_t m_current = 0;
    int m_formerStyle = 0;    ///< what a cancel of the open list puts back
    bool m_isShowing = true;  ///< from the start, until the first style is shown
};

/// A dialog over styles that are read into `Values`, which have a name and can be compared.
template <class Values>
class CStyleValuesDialog : public CStyleDialog {
public:
    CStyleValuesDialog(UINT templateId, const wchar_t* name, std::vector<Values> styles, CWnd* parent)
        : CStyleDialog(templateId, name, parent), m_before(std::move(styles)), m_styles(m_before) {
        // A drawing whose styles all belong to references still gets one to edit.
        if (m_styles.empty()) m_styles.emplace_back().name = L"Standard-1";
    }

protected:
    virtual void WriteStyle(const Values& style) = 0;
    virtual void MakeCurrent(const OdString& name) = 0;

    std::vector<OdString> StyleNames() const override {
        std::vector<OdString> names;
        for (const Values& style : m_styles) names.push_back(style.name);
        return names;
    }
    void CopyStyle(std::size_t index, const OdString& name) override {
        Values copy = m_styles[index];
        copy.name = name;
        m_styles.push_back(std::move(copy));
    }
    void ApplyStyles(std::size_t index) override {
        for (std::size_t i = 0; i < m_styles.size(); ++i)
            if (i >= m_before.size() || !(m_styles[i] == m_before[i])) WriteStyle(m_styles[i]);
        MakeCurrent(m_styles[index].name);
    }

    std::vector<Values> m_before;  ///< as read
    std::vector<Values> m_styles;
};
