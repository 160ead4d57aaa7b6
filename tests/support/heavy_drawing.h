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

/// Blocks within blocks, nine references in each and `depth` of them within each other. The innermost has a
/// line and a text, or without `contents` a line that isn't seen.
inline void fillWithReferences(OdDbDatabase& drawing, const wchar_t* contents, int depth) {
    constexpr int kReferences = 9;
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks, OdDb::kForWrite);
    OdDbObjectId inner;
    for (int at = 0; at <= depth; ++at) {
        OdDbBlockTableRecordPtr block;
        if (at < depth) {
            block = new OdDbBlockTableRecord;
            block->setName((L"HEAVY" + std::to_wstring(at)).c_str());
            blocks->add(OdDbSymbolTableRecordPtr(block.get()));
        } else {
            block = drawing.modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
        }
        if (at == 0) {
            OdDbLine* const line = newLine(0, 0, 100, 50);
            block->appendOdDbEntity(OdDbEntityPtr(line));
            if (contents != nullptr)
                block->appendOdDbEntity(OdDbEntityPtr(newMeasuredText(contents)));
            else
                line->setVisibility(OdDb::kInvisible);
        }
        for (int i = 0; at > 0 && i < kReferences; ++i) {
            const OdSmartPtr<OdDbBlockReference> reference(new OdDbBlockReference);
            block->appendOdDbEntity(OdDbEntityPtr(reference.get()));
            reference->setBlockTableRecord(inner);
            reference->setPosition({static_cast<double>(i), 0, 0});
        }
        inner = block->objectId();
    }
}

/// Of such depth that nobody sees it drawn to its end, and whose texts are measured.
inline void fillWithoutEnd(OdDbDatabase& drawing) { fillWithReferences(drawing, L"%%umeasured", 10); }

/// The same where each text takes some milliseconds to measure, so that even its limit is far.
inline void fillWithoutEndSlowly(OdDbDatabase& drawing) {
    std::wstring marks;
    for (int i = 0; i < 100; ++i) marks += L"%%ua%%u ";
    fillWithReferences(drawing, marks.c_str(), 10);
}

}  // namespace ui_test
