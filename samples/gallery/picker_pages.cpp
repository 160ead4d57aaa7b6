// The pickers, on a drawing of the gallery's own.
#include "gallery_page.h"

#include <od_db.h>

namespace {

/// A picker page: the picker in its states, and switches for what it offers besides its list.
template <class Picker>
class CPickerPage : public CGalleryPage {
protected:
    /// The picker, with the entry `selected` chosen.
    Picker& add(const CString& label, int selected, bool enabled = true) {
        Picker& picker = ShowPicker<Picker>(label);
        prepare(picker);
        picker.SetCurSel(selected);
        if (!enabled) picker.EnableWindow(FALSE);
        return picker;
    }
    /// What the picker needs before it shows.
    virtual void prepare(Picker& picker) { refill(picker); }
    static void refill(Picker& picker) {
        picker.ResetContent();
        picker.AddItems();
    }
    void Build() override {
        m_disabled = &add(Both(L"Disabled", L"禁用"), 1, false);
        add(Both(L"Nothing chosen (varying)", L"未选择（多种）"), -1);
        addOptions();
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_picker->EnableWindow(on); });
        // Last, so that its list covers no other row.
        m_picker = &add(Both(L"Normal", L"正常"), 1);
    }
    virtual void addOptions() {}
    /// A switch for one of the entries that a picker may offer.
    void option(const CString& text, void (CKtUiMRUComboBox::*set)(int), bool on) {
        Switch(text, on, [this, set](bool now) {
            (m_picker->*set)(now);
            const int selected = m_picker->GetCurSel();
            prepare(*m_picker);
            m_picker->SetCurSel(selected);
        });
    }
    void byLayerOptions() {
        option(L"ByLayer", &CKtUiMRUComboBox::SetUseByLayer, m_disabled->GetUseByLayer() != 0);
        option(L"ByBlock", &CKtUiMRUComboBox::SetUseByBlock, m_disabled->GetUseByBlock() != 0);
        option(Both(L"Other...", L"其他..."), &CKtUiMRUComboBox::SetUseOther, m_disabled->GetUseOther() != 0);
    }
    void Pose() override { PoseOpen(*m_picker); }
    Picker* m_picker = nullptr;
    Picker* m_disabled = nullptr;
};

class CIndexColorPage : public CPickerPage<CKtUiColorComboBox> {
    void prepare(CKtUiColorComboBox& picker) override { refill(picker); }
    void addOptions() override { byLayerOptions(); }
};

class CTrueColorPage : public CPickerPage<CKtUiTrueColorComboBox> {
    void addOptions() override {
        byLayerOptions();
        Command(Both(L"Add 255,127,0", L"添加 255,127,0"), [this]() -> CString {
            OdCmColor color;
            color.setRGB(255, 127, 0);
            m_picker->SetCurSel(m_picker->AddColorToMRU(color));
            return {};
        });
    }
};

class CPageColorPage : public CPickerPage<CKtUiTrueColorComboBoxForPagesetup> {};
class CWhiteBlackPage : public CPickerPage<CKtUiWhiteBlackTrueColorComboBox> {};

class CLinetypePage : public CPickerPage<CKtUiLineTypeComboBox> {
    void prepare(CKtUiLineTypeComboBox& picker) override { picker.ShowLTypes(true); }
    void addOptions() override { byLayerOptions(); }
};

class CLineweightPage : public CPickerPage<CKtUiLineWeightComboBox> {
    void addOptions() override {
        byLayerOptions();
        Switch(Both(L"Millimeters", L"毫米"), oddbHostApplicationServices()->lineWeightsInMillimetres(),
               [this](bool on) {
                   oddbHostApplicationServices()->setLineWeightsInMillimetres(on);
                   prepare(*m_picker);
                   m_picker->SetCurSel(1);
               });
    }
};

class CPlotStylePage : public CPickerPage<CKtUiPlotStyleNamesComboBox> {
    void prepare(CKtUiPlotStyleNamesComboBox& picker) override { refill(picker); }
    void addOptions() override {
        Switch(Both(L"By color", L"按颜色"), false, [this](bool on) {
            m_picker->ResetContent();
            if (on)
                m_picker->SetColorDependentMode();
            else
                m_picker->SetNamedMode();
            if (!on) m_picker->AddItems();
            m_picker->SetCurSel(0);
        });
    }
};

class CStyleTablesPage : public CPickerPage<CKtUiPlotStyleTablesComboBox> {
    /// It has filled itself when it was made.
    void prepare(CKtUiPlotStyleTablesComboBox& picker) override { picker.SetFileType(true, true); }
    void addOptions() override {
        Command(Both(L"How many tables?", L"样式表数量"), [this]() -> CString {
            CString count;
            count.Format(L"%d", m_picker->GetCount() - 1);
            return count;
        });
    }
};

class CArrowheadPage : public CPickerPage<CKtUiArrowHeadComboBox> {};
class CBlockPage : public CPickerPage<CKtUiPredefBlockComboBox> {};

class CFontPage : public CGalleryPage {
    void Build() override {
        auto& disabled = ShowPicker<CKtUiFontComboBox>(Both(L"Disabled", L"禁用"));
        disabled.ResetContent();
        disabled.AddItems();
        disabled.SetCurSel(0);
        disabled.EnableWindow(FALSE);
        auto& style =
            Show<CComboBox>(Both(L"Its styles (a buddy)", L"其样式（伙伴）"), CBS_DROPDOWNLIST | WS_VSCROLL);
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_font->EnableWindow(on); });
        Command(Both(L"Which file?", L"哪个文件？"), [this]() -> CString {
            CString name;
            m_font->getCurrentFont(name);
            return name;
        });
        m_font = &ShowPicker<CKtUiFontComboBox>(Both(L"Font", L"字体"));
        m_font->setBuddy(&style, false);
        m_font->ResetContent();
        m_font->AddItems();
        m_font->SetCurSel(m_font->GetCount() > 3 ? 3 : 0);
        SendMessage(WM_COMMAND, MAKEWPARAM(m_font->GetDlgCtrlID(), CBN_SELCHANGE),
                    reinterpret_cast<LPARAM>(m_font->m_hWnd));
    }
    void Pose() override { PoseOpen(*m_font); }
    CKtUiFontComboBox* m_font = nullptr;
};

}  // namespace

std::vector<GalleryEntry> PickerPages() {
    constexpr const wchar_t *kFamily = L"Pickers", *kChinese = L"选择器";
    return {
        {kFamily, kChinese, L"Index color", L"索引颜色", MakePage<CIndexColorPage>,
         L"CKtUiColorComboBox m_color;\n\nDDX_Control(x, IDC_COLOR, m_color);\nm_color.SetUseByLayer(1);\n"
         L"m_color.SetUseOther(1);\nm_color.AddItems();\nm_color.SetCurSel(\n"
         L"    m_color.FindItemByColorIndex(3));\n\nint index = m_color.GetCurrentItemColorIndex();"},
        {kFamily, kChinese, L"True color", L"真彩色", MakePage<CTrueColorPage>,
         L"CKtUiTrueColorComboBox m_color;\n\nDDX_Control(x, IDC_COLOR, m_color);\nOdCmColor orange;\n"
         L"orange.setRGB(255, 127, 0);\nm_color.SetCurSel(\n    m_color.AddColorToMRU(orange));\n\n"
         L"OdCmColor chosen;\nm_color.GetCurrentItemColor(chosen);"},
        {kFamily, kChinese, L"Page setup color", L"页面设置颜色", MakePage<CPageColorPage>,
         L"CKtUiTrueColorComboBoxForPagesetup m_color;\n\nDDX_Control(x, IDC_COLOR, m_color);\n"
         L"OdCmColor chosen;\nm_color.GetCurrentItemColor(chosen);"},
        {kFamily, kChinese, L"White or black", L"白或黑", MakePage<CWhiteBlackPage>,
         L"CKtUiWhiteBlackTrueColorComboBox m_color;\n\nDDX_Control(x, IDC_COLOR, m_color);\n"
         L"OdCmColor chosen;\nm_color.GetCurrentItemColor(chosen);"},
        {kFamily, kChinese, L"Linetype", L"线型", MakePage<CLinetypePage>,
         L"CKtUiLineTypeComboBox m_linetype;\n\nDDX_Control(x, IDC_LINETYPE, m_linetype);\n"
         L"m_linetype.ShowLTypes(true);\nm_linetype.setCurSelByOID(id);\n\n"
         L"OdDbObjectId chosen =\n    m_linetype.getOIDCurSel();"},
        {kFamily, kChinese, L"Lineweight", L"线宽", MakePage<CLineweightPage>,
         L"CKtUiLineWeightComboBox m_weight;\n\nDDX_Control(x, IDC_WEIGHT, m_weight);\nm_weight.SetCurSel(\n"
         L"    m_weight.FindItemByLineWeight(50));\n\nint chosen = // hundredths of a millimeter\n"
         L"    m_weight.GetCurrentItemLineWeight();"},
        {kFamily, kChinese, L"Plot style", L"打印样式", MakePage<CPlotStylePage>,
         L"CKtUiPlotStyleNamesComboBox m_style;\n\nDDX_Control(x, IDC_STYLE, m_style);\n"
         L"if (drawing.getPSTYLEMODE() != 0)\n    m_style.SetColorDependentMode();\nelse\n"
         L"    m_style.AddItems();\n\nCString chosen;\nm_style.GetLBText(m_style.GetCurSel(), chosen);"},
        {kFamily, kChinese, L"Plot style table", L"打印样式表", MakePage<CStyleTablesPage>,
         L"CKtUiPlotStyleTablesComboBox m_table;\n\n// fills itself from the folders of the path\n"
         L"// variable \"PrinterStyleSheetDir\"\nDDX_Control(x, IDC_TABLE, m_table);\n\nCString chosen;\n"
         L"m_table.GetLBText(m_table.GetCurSel(), chosen);"},
        {kFamily, kChinese, L"Arrowhead", L"箭头", MakePage<CArrowheadPage>,
         L"CKtUiArrowHeadComboBox m_arrow;\n\nDDX_Control(x, IDC_ARROW, m_arrow);\n"
         L"m_arrow.SetUseOrigin2(1);\nm_arrow.SetCurSel(0);\n\nint chosen = static_cast<int>(\n"
         L"    m_arrow.GetCurrentItemCargo());"},
        {kFamily, kChinese, L"Block", L"块", MakePage<CBlockPage>,
         L"CKtUiPredefBlockComboBox m_block;\n\nDDX_Control(x, IDC_BLOCK, "
         L"m_block);\nm_block.SetCurSel(0);\n\n"
         L"int chosen = static_cast<int>(\n    m_block.GetCurrentItemCargo());"},
        {kFamily, kChinese, L"Font", L"字体", MakePage<CFontPage>,
         L"CKtUiFontComboBox m_font;\nCComboBox m_style;\n\nDDX_Control(x, IDC_FONT, m_font);\n"
         L"DDX_Control(x, IDC_STYLE, m_style);\nm_font.setBuddy(&m_style, true);\nm_font.AddItems();\n"
         L"m_font.setCurrentFont(L\"arial.ttf\");\n\nCString file;\nm_font.getCurrentFont(file);"}};
}
