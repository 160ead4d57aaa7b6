// Dialogs that resize, tabs, worksheets, bars and the file dialog.
#include "gallery_page.h"

#include "resource.h"

namespace {

class CResizedDialog : public CKtUiDialog {
public:
    explicit CResizedDialog(CWnd* parent) : CKtUiDialog(IDD_RESIZED, parent, AfxGetInstanceHandle()) {
        SetDialogName(L"Gallery Resized");
    }

protected:
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiDialog::OnInitDialog();
        for (const wchar_t* each : {L"Walls", L"Doors", L"Windows"})
            SendDlgItemMessage(IDC_RESIZED_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(each));
        StretchControlX(IDC_RESIZED_NAME, 100);
        StretchControlXY(IDC_RESIZED_LIST, 100, 100);
        for (const unsigned id : {IDOK, IDCANCEL}) MoveControlXY(id, 100, 100);
        return result;
    }
};

class CTabPage : public CKtUiTabChildDialog {
public:
    explicit CTabPage(const wchar_t* name) : m_name(name) {}

protected:
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiTabChildDialog::OnInitDialog();
        SetDlgItemText(IDC_TAB_NAME, m_name);
        return result;
    }
    int OnTabChanging() override {
        CString text;
        GetDlgItemText(IDC_TAB_NAME, text);
        if (!text.IsEmpty()) return 1;
        text.LoadString(IDS_TAB_EMPTY);
        KtUiMessageBox(nullptr, text, MB_ICONINFORMATION);
        return 0;
    }

private:
    CString m_name;
};

class CTabbedDialog : public CKtUiTabMainDialog {
public:
    explicit CTabbedDialog(CWnd* parent) : CKtUiTabMainDialog(IDD_TABBED, parent, AfxGetInstanceHandle()) {
        SetDialogName(L"Gallery Tabbed");
    }
    BOOL PreTranslateMessage(MSG* message) override {
        return KtUiTurnTabByKey(m_tabs, *message) || CKtUiTabMainDialog::PreTranslateMessage(message);
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CKtUiTabMainDialog::DoDataExchange(exchange);
        DDX_Control(exchange, IDC_TABBED_TABS, m_tabs);
    }
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiTabMainDialog::OnInitDialog();
        AddTab(0, IDS_TAB_FIRST, IDD_TAB_PAGE, &m_first);
        AddTab(1, IDS_TAB_SECOND, IDD_TAB_PAGE, &m_second);
        StretchControlXY(IDC_TABBED_TABS, 100, 100);
        for (const unsigned id : {IDOK, IDCANCEL}) MoveControlXY(id, 100, 100);
        return result;
    }

private:
    CKtUiTab m_tabs;
    CTabPage m_first{L"Plan"};
    CTabPage m_second{L"Section"};
};

/// A worksheet brings no behaviour of its own, down to painting and being destroyed: the client takes from a
/// plain dialog what it wants.
class CNoteSheet : public CKtUiDialogWorksheet {
public:
    explicit CNoteSheet(CWnd* parent) : CKtUiDialogWorksheet(IDD_WORKSHEET, parent, AfxGetInstanceHandle()) {
        SetDialogName(L"Gallery Worksheet");
    }
    BOOL DestroyWindow() override { return ::DestroyWindow(m_hWnd); }
    BOOL PreTranslateMessage(MSG* message) override { return IsDialogMessage(message); }

protected:
    void OnCancel() override { ShowWindow(SW_HIDE); }
    LRESULT OnPlain(WPARAM, LPARAM) { return Default(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CNoteSheet, CKtUiDialogWorksheet)
    ON_MESSAGE(WM_ERASEBKGND, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_CTLCOLORDLG, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_CTLCOLORSTATIC, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_CTLCOLORBTN, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_NCPAINT, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_NCACTIVATE, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_NCHITTEST, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_NCLBUTTONDOWN, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_NCLBUTTONUP, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_NCMOUSEMOVE, &CNoteSheet::OnPlain)
    ON_MESSAGE(WM_SIZE, &CNoteSheet::OnPlain)
END_MESSAGE_MAP()

CString answerText(INT_PTR answer) { return answer == IDOK ? L"IDOK" : L"IDCANCEL"; }

class CResizedPage : public CGalleryPage {
    void Build() override {
        Say(Both(
            L"Each control follows a percentage of the growth. The dialog comes back at its place and size.",
            L"每个控件按百分比随对话框增长。对话框会回到原来的位置和大小。"));
        Command(Both(L"Open it", L"打开"), [this] {
            CResizedDialog dialog(this);
            return answerText(dialog.DoModal());
        });
    }
    void Pose() override {
        m_shown = std::make_unique<CResizedDialog>(this);
        m_shown->Create(IDD_RESIZED, this);
        m_shown->ShowWindow(SW_SHOW);
    }
    void EndPose() override {
        if (m_shown) m_shown->DestroyWindow();
        m_shown.reset();
    }
    std::unique_ptr<CResizedDialog> m_shown;
};

class CTabbedPage : public CGalleryPage {
    void Build() override {
        Say(Both(L"A page may refuse to be left: clear its name and turn the page. Ctrl+Tab turns the pages.",
                 L"页面可以拒绝离开：清除名称再切换页面。Ctrl+Tab 切换页面。"));
        Command(Both(L"Open it", L"打开"), [this] {
            CTabbedDialog dialog(this);
            return answerText(dialog.DoModal());
        });
    }
    void Pose() override {
        m_shown = std::make_unique<CTabbedDialog>(this);
        m_shown->Create(IDD_TABBED, this);
        m_shown->ShowWindow(SW_SHOW);
    }
    void EndPose() override {
        if (m_shown) m_shown->DestroyWindow();
        m_shown.reset();
    }
    std::unique_ptr<CTabbedDialog> m_shown;
};

class CWorksheetPage : public CGalleryPage {
    void Build() override {
        Say(Both(L"A worksheet stays beside the work; the gallery can be used meanwhile.",
                 L"工作表停留在旁边；其间可继续使用控件库。"));
        Command(Both(L"Show it", L"显示"), [this]() -> CString {
            show();
            return {};
        });
    }
    void show() {
        if (!m_sheet) {
            m_sheet = std::make_unique<CNoteSheet>(this);
            m_sheet->Create(IDD_WORKSHEET, this);
            AtEnd([this] { EndPose(); });
        }
        m_sheet->ShowWindow(SW_SHOW);
    }
    void Pose() override { show(); }
    void EndPose() override {
        if (m_sheet && m_sheet->m_hWnd) m_sheet->DestroyWindow();
        m_sheet.reset();
    }
    std::unique_ptr<CNoteSheet> m_sheet;
};

/// A bar of pickers that tells its page what is picked.
class CPickerSample : public CKtUiDialogBar {
public:
    explicit CPickerSample(std::function<void(const CString&)> tell) : m_tell(std::move(tell)) {}
    bool Bind(CWnd& parent) {
        if (!CKtUiDialogBar::Create(&parent, IDD_BAR, CBRS_TOP, AFX_IDW_DIALOGBAR)) return false;
        m_color.SubclassDlgItem(IDC_BAR_COLOR, this);
        m_linetype.SubclassDlgItem(IDC_BAR_LINETYPE, this);
        m_weight.SubclassDlgItem(IDC_BAR_WEIGHT, this);
        m_linetype.ShowLTypes(true);
        for (CKtUiMRUComboBox* each : pickers()) each->SetCurSel(0);
        m_toolTip->AddTool(&m_color, Both(L"Color", L"颜色"));
        m_toolTip->AddTool(&m_linetype, Both(L"Linetype", L"线型"));
        m_toolTip->AddTool(&m_weight, Both(L"Lineweight", L"线宽"));
        return true;
    }
    void EnablePickers(bool on) {
        for (CKtUiMRUComboBox* each : pickers()) each->EnableWindow(on);
    }
    CWnd& color() { return m_color; }

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (HIWORD(wParam) == CBN_SELENDOK) m_tell(L"CBN_SELENDOK");
        return CKtUiDialogBar::OnCommand(wParam, lParam);
    }

private:
    std::array<CKtUiMRUComboBox*, 3> pickers() { return {&m_color, &m_linetype, &m_weight}; }

    std::function<void(const CString&)> m_tell;
    CKtUiTrueColorComboBox m_color;
    CKtUiLineTypeComboBox m_linetype;
    CKtUiLineWeightComboBox m_weight;
};

class CBarPage : public CGalleryPage {
    void Build() override {
        m_bar = std::make_unique<CPickerSample>([this](const CString& line) { Tell(line); });
        m_bar->Bind(*this);
        m_bar->MoveWindow(Room(18));
        m_bar->ShowWindow(SW_SHOW);
        Say(Both(L"A bar serves its controls like a dialog: hover for its tips.",
                 L"栏像对话框一样为控件服务：悬停显示提示。"));
        Switch(Both(L"Enabled", L"启用"), true, [this](bool on) { m_bar->EnablePickers(on); });
        AtEnd([this] { m_bar->DestroyWindow(); });
    }
    void Pose() override { PoseOpen(m_bar->color()); }
    std::unique_ptr<CPickerSample> m_bar;
};

class CFileDialogPage : public CGalleryPage {
    void Build() override {
        Say(Both(L"The system's file dialog with the toolkit's notifications and editor commands.",
                 L"系统文件对话框，带有工具包的通知和编辑器命令。"));
        m_posed = Command(Both(L"Open...", L"打开..."), [this] { return ask(TRUE); });
        Command(Both(L"Save as...", L"另存为..."), [this] { return ask(FALSE); });
    }
    void Pose() override { Press(m_posed); }
    UINT m_posed = 0;
    CString ask(int open) {
        CKtUiFileDialog dialog(open, L"dxf", nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                               Both(L"DXF drawings (*.dxf)|*.dxf|All files (*.*)|*.*||",
                                    L"DXF 图形 (*.dxf)|*.dxf|所有文件 (*.*)|*.*||"),
                               this);
        return dialog.DoModal() == IDOK ? CString(dialog.GetPathName()) : CString(L"IDCANCEL");
    }
};

}  // namespace

std::vector<GalleryEntry> DialogPages() {
    constexpr const wchar_t *kFamily = L"Dialogs", *kChinese = L"对话框";
    return {
        {kFamily, kChinese, L"Resizing dialog", L"可调整大小的对话框", MakePage<CResizedPage>,
         L"class CLayers : public CKtUiDialog {\n    BOOL OnInitDialog() override {\n"
         L"        CKtUiDialog::OnInitDialog();\n        StretchControlXY(IDC_LIST, 100, 100);\n"
         L"        MoveControlXY(IDOK, 100, 100);\n        return TRUE;\n    }\n};\n"
         L"// the template has WS_THICKFRAME;\n// SetDialogName says where the place is kept"},
        {kFamily, kChinese, L"Tabbed dialog", L"选项卡对话框", MakePage<CTabbedPage>,
         L"class COptions : public CKtUiTabMainDialog {\n    BOOL OnInitDialog() override {\n"
         L"        CKtUiTabMainDialog::OnInitDialog();\n        AddTab(0, IDS_FILES, IDD_FILES, &m_files);\n"
         L"        AddTab(1, IDS_UNITS, IDD_UNITS, &m_units);\n        return TRUE;\n    }\n    CKtUiTab "
         L"m_tabs;\n"
         L"};\n// int OnTabChanging() of a page may refuse"},
        {kFamily, kChinese, L"Worksheet", L"工作表", MakePage<CWorksheetPage>,
         L"class CNotes : public CKtUiDialogWorksheet {\n    BOOL DestroyWindow() override {\n"
         L"        return ::DestroyWindow(m_hWnd);\n    }\n    LRESULT OnPlain(WPARAM, LPARAM) {\n"
         L"        return Default();\n    }\n};\n// what the client wants of a plain dialog:\n"
         L"ON_MESSAGE(WM_ERASEBKGND, &CNotes::OnPlain)\nON_MESSAGE(WM_NCPAINT, &CNotes::OnPlain)"},
        {kFamily, kChinese, L"Dialog bar", L"对话框栏", MakePage<CBarPage>,
         L"class CPickers : public CKtUiDialogBar {\n    CKtUiTrueColorComboBox m_color;\n};\n\n"
         L"m_bar.Create(frame, IDD_BAR, CBRS_TOP,\n             AFX_IDW_DIALOGBAR);\n"
         L"m_color.SubclassDlgItem(IDC_COLOR, &m_bar);\nm_toolTip->AddTool(&m_color, L\"Color\");"},
        {kFamily, kChinese, L"File dialog", L"文件对话框", MakePage<CFileDialogPage>,
         L"CKtUiFileDialog dialog(TRUE, L\"dxf\", nullptr,\n    OFN_HIDEREADONLY,\n"
         L"    L\"DXF drawings|*.dxf||\", this);\nif (dialog.DoModal() == IDOK)\n    "
         L"open(dialog.GetPathName());"}};
}
