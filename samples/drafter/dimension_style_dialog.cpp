#include "dimension_style_dialog.h"

#include "resource.h"
#include "unit_texts.h"

IMPLEMENT_DYNAMIC(CDimensionStyleDialog, CStyleDialog)

BEGIN_MESSAGE_MAP(CDimensionStyleDialog, CStyleDialog)
    ON_CONTROL_RANGE(CBN_SELENDOK, IDC_FIRST_ARROW, IDC_CALLOUT, &CDimensionStyleDialog::OnPickedRange)
    ON_CONTROL_RANGE(CBN_CLOSEUP, IDC_FIRST_ARROW, IDC_DIMENSION_LINETYPE,
                     &CDimensionStyleDialog::OnPickedRange)
    ON_CBN_CLOSEUP(IDC_CALLOUT, &CDimensionStyleDialog::OnCalloutClosed)
    ON_EN_CHANGE(IDC_ARROW_SIZE, &CDimensionStyleDialog::OnPicked)
END_MESSAGE_MAP()

CDimensionStyleDialog::CDimensionStyleDialog(OdDbDatabase& drawing, CWnd* parent)
    : CStyleValuesDialog(IDD_DIMENSION_STYLE, L"DimensionStyle", ReadDimensionStyles(drawing), parent),
      m_drawing(drawing) {
    AddField(IDC_ARROW_SIZE, m_size, IDS_BAD_ARROW_SIZE, FormatDistance(2.5));
}

void CDimensionStyleDialog::DoDataExchange(CDataExchange* exchange) {
    CStyleDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_FIRST_ARROW, m_first);
    DDX_Control(exchange, IDC_SECOND_ARROW, m_second);
    DDX_Control(exchange, IDC_LEADER_ARROW, m_leader);
    DDX_Control(exchange, IDC_DIMENSION_COLOR, m_lineColor);
    DDX_Control(exchange, IDC_DIMENSION_WEIGHT, m_lineWeight);
    DDX_Control(exchange, IDC_DIMENSION_LINETYPE, m_linetype);
    DDX_Control(exchange, IDC_CALLOUT, m_callout);
    DDX_Control(exchange, IDC_SAMPLE, m_sample);
}

BOOL CDimensionStyleDialog::OnInitDialog() {
    const BOOL result = CStyleDialog::OnInitDialog();
    m_size.SetStyleMask(kKtUiEditValidateOnKillFocus | kKtUiEditNoNegative);
    const auto style = m_drawing.dimstyle().open<OdDbDimStyleTableRecord>();
    ListStyles(style ? style->getName() : OdString());
    ResizeStyleRow();
    StretchControlXY(IDC_SAMPLE, 100, 100);
    ResizeFrame({IDC_CALLOUT});
    return result;
}

void CDimensionStyleDialog::ShowStyle(std::size_t index) {
    const DimensionValues& style = m_styles[index];
    m_first.Show(style.first);
    m_second.Show(style.second);
    m_leader.Show(style.leader);
    m_shownSize = style.arrowSize;
    FillField(IDC_ARROW_SIZE, FormatDistance(style.arrowSize));
    m_lineColor.SetCurSel(m_lineColor.AddColorToMRU(style.lineColor.colorIndex()));
    m_lineWeight.Show(style.lineWeight);
    m_linetype.Show(style.linetype);
    m_callout.Show(style.callout);
    showSample();
}

void CDimensionStyleDialog::KeepStyle(std::size_t index) {
    DimensionValues& style = m_styles[index];
    style.first = m_first.Picked();
    style.second = m_second.Picked();
    style.leader = m_leader.Picked();
    if (m_size.Validate()) style.arrowSize = EditedDistance(IDC_ARROW_SIZE).value_or(m_shownSize);
    const __int64 color = m_lineColor.GetCurrentItemColorIndex();
    if (color >= 0) style.lineColor.setColorIndex(static_cast<int>(color));
    style.lineWeight = m_lineWeight.Picked().value_or(style.lineWeight);
    style.linetype = m_linetype.Picked().value_or(style.linetype);
    style.callout = m_callout.Picked();
}

void CDimensionStyleDialog::showSample() {
    m_sample.SetScene(DimensionSample(m_drawing, m_styles[current()]));
}

void CDimensionStyleDialog::OnPicked() {
    if (isShowing()) return;
    KeepStyle(current());
    showSample();
}

void CDimensionStyleDialog::OnPickedRange(UINT) { OnPicked(); }

void CDimensionStyleDialog::OnCalloutClosed() {
    m_callout.OnClosed();
    OnPicked();
}
