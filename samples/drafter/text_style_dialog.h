// Format > Text Style: font, big font, height, width and slant of each text style, with a sample.
#pragma once

#include "scene_preview.h"
#include "style_dialog.h"
#include "text_style_values.h"

class CKhFont;

class CTextStyleDialog : public CStyleValuesDialog<TextStyleValues> {
    DECLARE_DYNAMIC(CTextStyleDialog)

public:
    CTextStyleDialog(OdDbDatabase& drawing, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void ShowStyle(std::size_t index) override;
    void KeepStyle(std::size_t index) override;
    void WriteStyle(const TextStyleValues& style) override { WriteTextStyle(m_drawing, style); }
    void MakeCurrent(const OdString& name) override { SetCurrentTextStyle(m_drawing, name); }

    afx_msg void OnFont();
    afx_msg void OnChanged();
    afx_msg void OnUseBigFont();
    DECLARE_MESSAGE_MAP()

private:
    void showFont(const TextStyleValues& style);
    void keepFont(TextStyleValues& style);
    void showBigFont(const TextStyleValues& style);
    void keepBigFont(TextStyleValues& style);
    /// Lets the big font be chosen for a shape font only.
    void enableBigFont();
    /// The font selected; null without one.
    CKhFont* selectedFont();
    CString fontText();
    void showSample();

    OdDbDatabase& m_drawing;
    TextStyleValues m_shown;  ///< what the controls began with
    CString m_shownFont;      ///< what the font controls answered then
    CKtUiFontComboBox m_font;
    CComboBox m_fontStyle;
    CButton m_useBigFont;
    CKtUiShxFontList m_bigFonts;
    CReportingEdit<CKtUiNumericEdit> m_height, m_width;
    CReportingEdit<CKtUiAngleEdit> m_slant;
    CScenePreview m_sample;
};
