// Format > Text Style: font, big font, height, width and slant of each text style, with a sample.
//
// The fonts are those of the host as they are now: they are listed anew when the list is dropped and some
// have come or gone. A font that is gone leaves the picker; the style then has the font it began with.
#pragma once

#include <functional>

#include "scene_preview.h"
#include "style_dialog.h"
#include "text_style_values.h"

class CKhFont;
class CKhFontStyle;

class CTextStyleDialog : public CStyleValuesDialog<TextStyleValues> {
    DECLARE_DYNAMIC(CTextStyleDialog)

public:
    /// Makes a font file known to the host and answers its first style, which the host owns; null, with
    /// `message` the reason to show, if it is no usable font.
    using FontLoader = std::function<CKhFontStyle*(const CString& file, CString& message)>;

    /// Without a loader the user can't browse for font files.
    CTextStyleDialog(OdDbDatabase& drawing, CWnd* parent, FontLoader loader = {});

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void ShowStyle(std::size_t index) override;
    void KeepStyle(std::size_t index) override;
    void WriteStyle(const TextStyleValues& style) override { WriteTextStyle(m_drawing, style); }
    void MakeCurrent(const OdString& name) override { SetCurrentTextStyle(m_drawing, name); }

    /// Asks for a font file; empty if the user cancelled.
    virtual CString AskFontFile();

    afx_msg void OnFontList();
    afx_msg void OnFont();
    afx_msg void OnFontListClosed();
    afx_msg void OnBrowseFont();
    afx_msg void OnChanged();
    afx_msg void OnUseBigFont();
    DECLARE_MESSAGE_MAP()

private:
    /// Every style of the host's fonts, in order.
    static std::vector<const CKhFontStyle*> hostStyles();
    /// Lists the host's fonts anew, with the same ones selected as far as they are still there.
    void relistFonts();
    void relistBigFonts();
    /// Selects the font and style that a file holds; nothing for one that isn't known.
    void selectFont(const CString& file);
    void showLoadedFont(const CKhFontStyle& style);
    void showLoadedBigFont(const CString& name);
    void showFont(const TextStyleValues& style);
    void keepFont(TextStyleValues& style);
    void showBigFont(const TextStyleValues& style);
    void keepBigFont(TextStyleValues& style);
    /// Lets the big font be chosen for a shape font only.
    void enableBigFont();
    /// The font selected; null without one.
    CKhFont* selectedFont();
    /// File of the font and style selected; empty without a font.
    CString fontText();
    CString fontStyleText() const;
    /// Says that the style's font isn't known, or nothing if it is.
    void tellIfUnknown();
    void showSample();

    OdDbDatabase& m_drawing;
    const FontLoader m_loader;
    std::vector<const CKhFontStyle*> m_listed;  ///< what the font controls were filled from
    TextStyleValues m_shown;                    ///< what the controls began with
    CString m_shownFont;                        ///< what the font controls answered then
    CKtUiFontComboBox m_font;
    CComboBox m_fontStyle;
    CButton m_useBigFont;
    CKtUiShxFontList m_bigFonts;
    CReportingEdit<CKtUiNumericEdit> m_height, m_width;
    CReportingEdit<CKtUiAngleEdit> m_slant;
    CScenePreview m_sample;
};
