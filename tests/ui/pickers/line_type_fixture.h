// A linetype picker over a drawing whose linetypes a test adds, and the view that draws its samples.
#pragma once

#include <ktui/pickers/line_type_combo_box.h>
#include <od_db_linetype_table.h>

#include "picker_fixture.h"
#include "working_drawing.h"

namespace ui_test {

/// Adds linetype `name` to the drawing; answers its id.
inline OdDbObjectId addLinetype(OdDbDatabase* drawing, const wchar_t* name) {
    OdDbLinetypeTablePtr table;
    drawing->getLinetypeTable(table, OdDb::kForWrite);
    const OdDbSymbolTableRecordPtr record = table->newRecord();
    record->setName(name);
    OdDbObjectId id;
    EXPECT_EQ(table->add(record, &id), kOdOk);
    return id;
}

inline OdDbObjectId linetypeId(OdDbDatabase* drawing, const wchar_t* name) {
    OdDbLinetypeTablePtr table;
    drawing->getLinetypeTable(table);
    return table->getAt(name);
}

/// A document over one drawing, with a view of its own or none.
class OneDocument final : public KtApDocument {
public:
    explicit OneDocument(OdDbDatabase* drawing) : m_drawing(drawing) {}
    CKhDrawingView* view = nullptr;

    OdDbDatabase* database() override { return m_drawing; }
    CKhDrawingView* drawingView() override { return view; }
    CKhVariableStore* variables() override { return nullptr; }

private:
    OdDbDatabase* m_drawing;
};

/// A view that records what it is asked to draw.
class RecordingView final : public CKhDrawingView, public CKhLinetypePreview {
public:
    bool hasPreview = true;
    int drawn = 0;
    HDC dc = nullptr;
    CRect rect;
    OdDbObjectId id;
    COLORREF foreground = 1;
    COLORREF background = 1;

    CKhLinetypePreview* linetypePreview() override { return hasPreview ? this : nullptr; }
    void drawLinetype(HDC where, const RECT& area, const OdDbObjectId& linetype, COLORREF ink,
                      COLORREF paper) override {
        ++drawn;
        dc = where;
        rect = area;
        id = linetype;
        foreground = ink;
        background = paper;
    }
};

class LinetypePicker : public CKtUiLineTypeComboBox {
public:
    int viewportOverride = 0;
    OdDbObjectId layerLinetype;
    int GetCurrentLayerVpOverride() override { return viewportOverride; }
    bool GetCurrentLayerLineType(OdDbObjectId& id) override {
        if (layerLinetype.isNull()) return false;
        id = layerLinetype;
        return false;
    }
    INT_PTR recordCount() const { return m_ltypeList.GetCount(); }
};

/// A picker over the linetypes of a new drawing, to which "Zigzag", "dash10" and "Dash2" were added.
struct LinetypePickerInHolder {
    WorkingDrawing drawing;
    OdDbObjectId zigzag = addLinetype(drawing.database(), L"Zigzag");
    OdDbObjectId dash10 = addLinetype(drawing.database(), L"dash10");
    OdDbObjectId dash2 = addLinetype(drawing.database(), L"Dash2");
    InHolder<LinetypePicker> in;
    LinetypePicker& picker = in.picker;
    TestHost& host = in.host;

    OdDbObjectId idOf(const wchar_t* name) { return linetypeId(drawing.database(), name); }
};

}  // namespace ui_test
