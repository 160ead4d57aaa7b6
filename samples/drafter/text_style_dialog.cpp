#include "text_style_dialog.h"

#include <kh_font_list.h>
#include <kh_system.h>

#include <ktui/host/message_box.h>

#include "ask_file.h"
#include "resource.h"
#include "text_sample.h"
#include "unit_texts.h"

namespace {

constexpr double kDegree = 0.017453292519943295;  // radians
constexpr double kSteepest = 85 * kDegree;
constexpr double kWidest = 100;  // times the font's own width

bool hasWord(const CString& text, const wchar_t* word) {
    CString lower = text;
    lower.MakeLower();
    return lower.Find(word) >= 0;
}

}  // namespace

IMPLEMENT_DYNAMIC(CTextStyleDialog, CStyleDialog)

BEGIN_MESSAGE_MAP(CTextStyleDialog, CStyleDialog)
    ON_CBN_DROPDOWN(IDC_FONT, &CTextStyleDialog::OnFontList)
    ON_CBN_SELCHANGE(IDC_FONT, &CTextStyleDialog::OnFont)
    ON_CBN_CLOSEUP(IDC_FONT, &CTextStyleDialog::OnFontListClosed)
    ON_CBN_SELCHANGE(IDC_FONT_STYLE, &CTextStyleDialog::OnChanged)
    ON_BN_CLICKED(IDC_BROWSE_FONT, &CTextStyleDialog::OnBrowseFont)
    ON_BN_CLICKED(IDC_USE_BIG_FONT, &CTextStyleDialog::OnUseBigFont)
    ON_LBN_SELCHANGE(IDC_BIG_FONTS, &CTextStyleDialog::OnChanged)
    ON_EN_CHANGE(IDC_TEXT_HEIGHT, &CTextStyleDialog::OnChanged)
    ON_EN_CHANGE(IDC_TEXT_WIDTH, &CTextStyleDialog::OnChanged)
    ON_EN_CHANGE(IDC_TEXT_SLANT, &CTextStyleDialog::OnChanged)
END_MESSAGE_MAP()

CTextStyleDialog::CTextStyleDialog(OdDbDatabase& drawing, CWnd* parent, FontLoader loader)
    : CStyleValuesDialog(IDD_TEXT_STYLE, L"TextStyle", ReadTextStyles(drawing), parent),
      m_drawing(drawing),
      m_loader(std::move(loader)) {
    AddField(IDC_TEXT_HEIGHT, m_height, IDS_BAD_TEXT_HEIGHT, FormatDistance(2.5));
    AddField(IDC_TEXT_WIDTH, m_width, IDS_BAD_TEXT_WIDTH);
    AddField(IDC_TEXT_SLANT, m_slant, IDS_BAD_TEXT_SLANT, FormatTilt(15 * kDegree));
}

void CTextStyleDialog::DoDataExchange(CDataExchange* exchange) {
    CStyleDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_FONT, m_font);
    DDX_Control(exchange, IDC_FONT_STYLE, m_fontStyle);
    DDX_Control(exchange, IDC_USE_BIG_FONT, m_useBigFont);
    DDX_Control(exchange, IDC_BIG_FONTS, m_bigFonts);
    DDX_Control(exchange, IDC_SAMPLE, m_sample);
}

BOOL CTextStyleDialog::OnInitDialog() {
    const BOOL result = CStyleDialog::OnInitDialog();
    m_height.SetStyleMask(kKtUiEditValidateOnKillFocus | kKtUiEditNoNegative);
    m_width.SetStyleMask(kKtUiEditNoNegative | kKtUiEditNoZero);
    m_width.SetRange(0, kWidest);
    m_slant.SetRange(-kSteepest, kSteepest);
    m_font.setBuddy(&m_fontStyle, true);
    m_bigFonts.FillList(true);
    m_listed = hostStyles();
    GetDlgItem(IDC_BROWSE_FONT)->EnableWindow(m_loader != nullptr);
    const auto style = m_drawing.textstyle().open<OdDbTextStyleTableRecord>();
    ListStyles(style ? style->getName() : OdString());
    ResizeStyleRow();
    ResizeRow(IDC_FONT, IDC_FONT_STYLE_LABEL, IDC_FONT_STYLE);
    MoveControlX(IDC_BROWSE_FONT, 100);
    StretchControlXY(IDC_SAMPLE, 100, 100);
    ResizeFrame({IDC_GROUP_FONT, IDC_GROUP_SIZE, IDC_BIG_FONTS});
    return result;
}

CKhFont* CTextStyleDialog::selectedFont() {
    const __int64 cargo = m_font.GetCurrentItemCargo();
    return cargo > 0 ? reinterpret_cast<CKhFont*>(static_cast<INT_PTR>(cargo)) : nullptr;
}

CString CTextStyleDialog::fontText() {
    CString file;
    m_font.getCurrentFont(file);
    return file;
}

CString CTextStyleDialog::fontStyleText() const {
    CString text;
    if (m_fontStyle.GetCurSel() >= 0) m_fontStyle.GetLBText(m_fontStyle.GetCurSel(), text);
    return text;
}

void CTextStyleDialog::ShowStyle(std::size_t index) {
    m_shown = m_styles[index];
    showFont(m_shown);
    showBigFont(m_shown);
    FillField(IDC_TEXT_HEIGHT, FormatDistance(m_shown.height));
    FillField(IDC_TEXT_WIDTH, FormatNumber(m_shown.width));
    FillField(IDC_TEXT_SLANT, FormatTilt(m_shown.slant));
    tellIfUnknown();
    showSample();
}

void CTextStyleDialog::tellIfUnknown() {
    CString text;
    if (selectedFont() == nullptr) text.Format(IDS_FONT_NOT_FOUND, m_shown.file.c_str());
    ShowMessage(text);
}

void CTextStyleDialog::selectFont(const CString& file) {
    // A font that isn't known leaves the pickers as they are, so they begin empty.
    m_font.SetCurSel(-1);
    m_fontStyle.ResetContent();
    m_fontStyle.EnableWindow(FALSE);
    m_font.setCurrentFont(file);
}

void CTextStyleDialog::showFont(const TextStyleValues& style) {
    selectFont(style.file.c_str());
    m_shownFont = fontText();
}

void CTextStyleDialog::keepFont(TextStyleValues& style) {
    CKhFont* font = selectedFont();
    const CString file = fontText();
    if (font == nullptr || file == m_shownFont) {
        style.file = m_shown.file;
        style.family = m_shown.family;
        style.bold = m_shown.bold;
        style.italic = m_shown.italic;
        return;
    }
    const CString cut = fontStyleText();
    style.file = OdString(file);
    style.family = font->isTrueType() ? font->name() : L"";
    style.bold = font->isTrueType() && hasWord(cut, L"bold");
    style.italic = font->isTrueType() && (hasWord(cut, L"italic") || hasWord(cut, L"oblique"));
}

void CTextStyleDialog::showBigFont(const TextStyleValues& style) {
    m_useBigFont.SetCheck(style.bigFile.isEmpty() ? BST_UNCHECKED : BST_CHECKED);
    m_bigFonts.SetCurSel(m_bigFonts.FindStringExact(-1, style.bigFile));
    enableBigFont();
}

void CTextStyleDialog::keepBigFont(TextStyleValues& style) {
    style.bigFile = m_shown.bigFile;
    const CKhFont* font = selectedFont();
    if (font != nullptr && !font->isShx()) style.bigFile.empty();
    if (!m_useBigFont.IsWindowEnabled()) return;
    if (m_useBigFont.GetCheck() != BST_CHECKED) {
        style.bigFile.empty();
        return;
    }
    const int index = m_bigFonts.GetCurSel();
    if (index < 0) return;
    CString name;
    m_bigFonts.GetText(index, name);
    style.bigFile = OdString(name);
}

void CTextStyleDialog::enableBigFont() {
    const CKhFont* font = selectedFont();
    const bool offered = font != nullptr && font->isShx() && m_bigFonts.GetCount() > 0;
    m_useBigFont.EnableWindow(offered);
    m_bigFonts.EnableWindow(offered && m_useBigFont.GetCheck() == BST_CHECKED);
}

void CTextStyleDialog::KeepStyle(std::size_t index) {
    TextStyleValues& style = m_styles[index];
    keepFont(style);
    keepBigFont(style);
    if (m_height.Validate()) style.height = EditedDistance(IDC_TEXT_HEIGHT).value_or(m_shown.height);
    if (m_width.Validate()) style.width = EditedDistance(IDC_TEXT_WIDTH).value_or(m_shown.width);
    if (m_slant.Validate()) style.slant = EditedAngle(IDC_TEXT_SLANT).value_or(m_shown.slant);
}

void CTextStyleDialog::showSample() {
    CString words;
    words.LoadString(IDS_SAMPLE_TEXT);
    m_sample.SetScene(TextSample(m_styles[current()], words));
}

std::vector<const CKhFontStyle*> CTextStyleDialog::hostStyles() {
    std::vector<const CKhFontStyle*> styles;
    const CKhFontList* fonts = CKhSystem::instance()->runtimeHost()->shxFontList();
    for (int i = 0; fonts != nullptr && i < fonts->count(); ++i)
        for (int k = 0; k < fonts->at(i)->styleCount(); ++k) styles.push_back(fonts->at(i)->styleAt(k));
    return styles;
}

void CTextStyleDialog::relistFonts() {
    const CString file = fontText(), cut = fontStyleText();
    m_font.ResetContent();
    m_font.AddItems();
    relistBigFonts();
    m_listed = hostStyles();
    selectFont(file);
    // A file may hold several styles, of which it stands for the first.
    const int style = cut.IsEmpty() ? -1 : m_fontStyle.FindStringExact(-1, cut);
    if (selectedFont() == nullptr)
        showFont(m_shown);
    else if (style >= 0)
        m_fontStyle.SetCurSel(style);
}

void CTextStyleDialog::relistBigFonts() {
    CString name;
    if (m_bigFonts.GetCurSel() >= 0) m_bigFonts.GetText(m_bigFonts.GetCurSel(), name);
    m_bigFonts.FillList(true);
    m_bigFonts.SetCurSel(name.IsEmpty() ? -1 : m_bigFonts.FindStringExact(-1, name));
}

void CTextStyleDialog::OnFontList() {
    if (hostStyles() == m_listed) return;
    const CString before = fontText();
    relistFonts();
    tellIfUnknown();
    if (selectedFont() != nullptr && !before.IsEmpty() && fontText() != before) {
        CString text;
        text.Format(IDS_FONT_GONE, before.GetString());
        ShowMessage(text);
    }
    enableBigFont();
    OnChanged();
}

CString CTextStyleDialog::AskFontFile() { return AskFileToOpen(*this, IDS_FONT_FILTER); }

void CTextStyleDialog::OnBrowseFont() {
    const CString file = AskFontFile();
    if (file.IsEmpty()) return;
    CString message;
    const CKhFontStyle* style = m_loader(file, message);
    if (style == nullptr) {
        KtUiMessageBox(nullptr, message, MB_ICONEXCLAMATION);
        return;
    }
    OnFontList();
    if (style->font()->isBigFont())
        showLoadedBigFont(style->font()->name());
    else
        showLoadedFont(*style);
}

void CTextStyleDialog::showLoadedFont(const CKhFontStyle& style) {
    selectFont(style.fileName());
    OnFont();
}

void CTextStyleDialog::showLoadedBigFont(const CString& name) {
    const CKhFont* font = selectedFont();
    if (font == nullptr || !font->isShx()) {
        CString text;
        text.Format(IDS_BIG_FONT_ADDED, name.GetString());
        ShowNote(text);
        return;
    }
    m_useBigFont.SetCheck(BST_CHECKED);
    m_bigFonts.SetCurSel(m_bigFonts.FindStringExact(-1, name));
    OnUseBigFont();
}

void CTextStyleDialog::OnFont() {
    tellIfUnknown();
    OnFontListClosed();
}

void CTextStyleDialog::OnFontListClosed() {
    // What was said when the list was dropped stays, unless closing it has brought the unknown font back.
    if (selectedFont() == nullptr) tellIfUnknown();
    enableBigFont();
    OnChanged();
}

void CTextStyleDialog::OnUseBigFont() {
    enableBigFont();
    OnChanged();
}

void CTextStyleDialog::OnChanged() {
    if (isShowing()) return;
    KeepStyle(current());
    showSample();
}
