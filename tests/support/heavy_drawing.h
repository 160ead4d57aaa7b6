// Drawings that take long to draw.
#pragma once

#include <string>

#include <od_db.h>

namespace ui_test {

inline void addEntity(OdDbDatabase& drawing, OdDbEntity* entity) {
    drawing.modelSpaceId()
        .open<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(OdDbEntityPtr(entity));
}

inline OdDbLine* newLine(double x1, double y1, double x2, double y2) {
    auto* const line = new OdDbLine;
    line->setStartPoint({x1, y1, 0});
    line->setEndPoint({x2, y2, 0});
    return line;
}

/// A text whose width is asked for.
inline OdDbText* newMeasuredText(const wchar_t* contents = L"%%umeasured") {
    auto* const text = new OdDbText;
    text->setTextString(contents);
    text->setHeight(5);
    return text;
}

/// More lines than are drawn at once, within 0, 0 and 200, 100, and behind them a text that is measured.
inline void fillWithLines(OdDbDatabase& drawing) {
    constexpr int kLines = 6000;
    for (int i = 0; i < kLines; ++i) addEntity(drawing, newLine(i % 200, 0, i % 200, 100));
    addEntity(drawing, newMeasuredText());
}

/// A block within blocks that nobody sees drawn to its end, and whose texts are measured.
inline void fillWithoutEnd(OdDbDatabase& drawing, const wchar_t* contents) {
    constexpr int kDepth = 10, kReferences = 9;
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks, OdDb::kForWrite);
    OdDbObjectId inner;
    for (int depth = 0; depth <= kDepth; ++depth) {
        OdDbBlockTableRecordPtr block;
        if (depth < kDepth) {
            block = new OdDbBlockTableRecord;
            block->setName((L"HEAVY" + std::to_wstring(depth)).c_str());
            blocks->add(OdDbSymbolTableRecordPtr(block.get()));
        } else {
            block = drawing.modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        }
        if (depth == 0) {
            block->appendOdDbEntity(OdDbEntityPtr(newMeasuredText(contents)));
            block->appendOdDbEntity(OdDbEntityPtr(newLine(0, 0, 100, 50)));
        }
        for (int i = 0; depth > 0 && i < kReferences; ++i) {
            const OdSmartPtr<OdDbBlockReference> reference(new OdDbBlockReference);
            block->appendOdDbEntity(OdDbEntityPtr(reference.get()));
            reference->setBlockTableRecord(inner);
            reference->setPosition({static_cast<double>(i), 0, 0});
        }
        inner = block->objectId();
    }
}

inline void fillWithoutEnd(OdDbDatabase& drawing) { fillWithoutEnd(drawing, L"%%umeasured"); }

/// The same where each text takes some milliseconds to measure, so that even its limit is far.
inline void fillWithoutEndSlowly(OdDbDatabase& drawing) {
    std::wstring marks;
    for (int i = 0; i < 100; ++i) marks += L"%%ua%%u ";
    fillWithoutEnd(drawing, marks.c_str());
}

}  // namespace ui_test
