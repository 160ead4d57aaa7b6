// Format > Dimension Style: arrowheads, size, the look of the dimension line and the callout of each
// dimension style, with a sample.
#pragma once

#include "block_pickers.h"
#include "dimension_values.h"
#include "property_pickers.h"
#include "scene_preview.h"
#include "style_dialog.h"

class CDimensionStyleDialog : public CStyleValuesDialog<DimensionValues> {
    DECLARE_DYNAMIC(CDimensionStyleDialog)

public:
    CDimensionStyleDialog(OdDbDatabase& drawing, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void ShowStyle(std::size_t index) override;
    void KeepStyle(std::size_t index) override;
    void WriteStyle(const DimensionValues& style) override { WriteDimensionStyle(m_drawing, style); }
    void MakeCurrent(const OdString& name) override { SetCurrentDimensionStyle(m_drawing, name); }

    afx_msg void OnPicked();
    afx_msg void OnPickedRange(UINT id);
    afx_msg void OnCalloutClosed();
    DECLARE_MESSAGE_MAP()

private:
    void showSample();

    OdDbDatabase& m_drawing;
    CArrowheadPicker m_first, m_second, m_leader;
    CReportingEdit<CKtUiNumericEdit> m_size;
    double m_shownSize = 0;  ///< what the size field began with
    CKtUiColorComboBox m_lineColor;
    CLineWeightPicker m_lineWeight;
    CLayerLineTypePicker m_linetype;
    CCalloutPicker m_callout;
    CScenePreview m_sample;
};
