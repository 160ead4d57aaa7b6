#include <ktui/nav/dxf_page.h>

#include <kh_system.h>
#include <kt_ap_document.h>

#include <ktdsres/save_options_ids.h>

#include <ktui/host/loaded_module.h>

IMPLEMENT_DYNAMIC(CDxfPage, CPropertyPage)

BEGIN_MESSAGE_MAP(CDxfPage, CPropertyPage)
    ON_BN_CLICKED(IDC_DXF_TEXT, &CDxfPage::OnText)
    ON_BN_CLICKED(IDC_DXF_BINARY, &CDxfPage::OnBinary)
END_MESSAGE_MAP()

namespace {

constexpr int kMostDecimals = 16;
constexpr const wchar_t* kPrecision = L"DXFSAVEPRECISION";
constexpr const wchar_t* kBinary = L"DXFSAVEBINARY";
constexpr const wchar_t* kObject = L"DXFSAVEOBJECT";

CKhVariableStore& variables() {
    return *CKhSystem::instance()->documentServices()->currentDocument()->variables();
}

bool variable(const wchar_t* name) {
    bool value = false;
    variables().getBool(name, value);
    return value;
}

UINT checked(bool isChecked) { return isChecked ? BST_CHECKED : BST_UNCHECKED; }

}  // namespace

CDxfPage::CDxfPage() : CPropertyPage(IDD_DXF_PAGE), m_precision(kMostDecimals) {
    m_psp.hInstance = LoadedToolkit().resourceLibrary;
}

CDxfPage::~CDxfPage() = default;

void CDxfPage::DoDataExchange(CDataExchange* exchange) {
    CPropertyPage::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_DXF_PRECISION, m_precision);
    DDV_MinMaxInt(exchange, m_precision, 0, kMostDecimals);
}

BOOL CDxfPage::OnInitDialog() {
    const BOOL result = CPropertyPage::OnInitDialog();
    m_precision = kMostDecimals;
    variables().getInt(kPrecision, m_precision);
    const bool isBinary = variable(kBinary);
    CheckDlgButton(IDC_DXF_TEXT, checked(!isBinary));
    CheckDlgButton(IDC_DXF_BINARY, checked(isBinary));
    CheckDlgButton(IDC_DXF_OBJECT, checked(variable(kObject)));
    GetDlgItem(IDC_DXF_PREVIEW)->EnableWindow(FALSE);
    enablePrecision(!isBinary);
    UpdateData(FALSE);
    return result;
}

void CDxfPage::OnText() { enablePrecision(true); }
void CDxfPage::OnBinary() { enablePrecision(false); }

void CDxfPage::enablePrecision(bool enable) { GetDlgItem(IDC_DXF_PRECISION)->EnableWindow(enable); }

void CDxfPage::OnOK() {
    if (!UpdateData(TRUE)) return;
    variables().setBool(kBinary, IsDlgButtonChecked(IDC_DXF_BINARY) != BST_UNCHECKED);
    variables().setInt(kPrecision, m_precision);
    variables().setBool(kObject, IsDlgButtonChecked(IDC_DXF_OBJECT) != BST_UNCHECKED);
    CPropertyPage::OnOK();
}
