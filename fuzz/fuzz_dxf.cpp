// Any bytes as a DXF file, text or binary: they are refused with a reason, or read, mended where they have to
// be, and then what is written is stable in the file's own version, in R12, R14 and in 2018, whole but for
// what goes back as it was, and everything drawn from the entities and lost in a version can be asked for.
#include <od_db.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

/// Asks an entity for everything that drawing it needs.
void look(OdDbEntity& entity) {
    entity.color();
    entity.linetype();
    entity.plotStyleName();
    entity.hyperlink();
    if (auto* polyline = dynamic_cast<OdDbPolyline*>(&entity)) polyline->vertices();
    if (auto* polyline = dynamic_cast<OdDb2dPolyline*>(&entity)) polyline->vertices();
    if (auto* spline = dynamic_cast<OdDbSpline*>(&entity)) spline->samplePoints(20);
    if (auto* paragraph = dynamic_cast<OdDbMText*>(&entity)) paragraph->plainText();
    if (auto* insert = dynamic_cast<OdDbBlockReference*>(&entity)) insert->blockTableRecord();
    if (auto* solid = dynamic_cast<OdDbSolid*>(&entity)) solid->pointAt(3);
}

void expectStable(OdDbDatabase& drawing, OdDb::DwgVersion version) {
    const std::string first = drawing.writeDxfBytes(OdDxfForm{version});
    OdDbDatabasePtr again(new OdDbDatabase);
    OdDbDxfError error;
    // What was no value in the file goes back to its own version as it was.
    OdDxfReading reading;
    reading.strict = version != drawing.originalFileVersion();
    if (again->readDxfBytes(first, &error, &reading) != kOdOk) {
        std::fprintf(stderr, "line %d: %s\n%s", error.line, odUtf8(error.text.view()).c_str(), first.c_str());
        std::abort();
    }
    const std::string second = again->writeDxfBytes(OdDxfForm{version});
    if (first == second) return;
    std::size_t at = 0;
    while (at < first.size() && at < second.size() && first[at] == second[at]) ++at;
    const std::size_t from = at > 200 ? at - 200 : 0;
    std::fprintf(stderr, "version %d differs\n--- first\n%s\n--- second\n%s\n", version,
                 first.substr(from, 400).c_str(), second.substr(from, 400).c_str());
    std::abort();
}

/// What is written as a binary file is whole as well.
void expectWholeBinary(OdDbDatabase& drawing, OdDb::DwgVersion version) {
    const std::string bytes = drawing.writeDxfBytes(OdDxfForm{version, true});
    OdDbDatabasePtr again(new OdDbDatabase);
    OdDbDxfError error;
    OdDxfReading strict;
    strict.strict = true;
    if (again->readDxfBytes(bytes, &error, &strict) == kOdOk) return;
    std::fprintf(stderr, "version %d, byte %zu: %s\n", version, error.byte,
                 odUtf8(error.text.view()).c_str());
    std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (drawing->readDxfBytes(text, &error) != kOdOk) {
        require(error.code != OdDxfErrorCode::kNone && !error.text.isEmpty(), "a refusal without a reason");
        require(drawing->clayer().isValid(), "a refusal that broke the drawing");
        return 0;
    }
    OdDbBlockTablePtr blocks;
    drawing->getBlockTable(blocks);
    for (auto it = blocks->newIterator(); !it->done(); it->step()) {
        OdDbSymbolTableRecordPtr record;
        it->getRecord(record);
        for (OdDbEntity* entity : static_cast<OdDbBlockTableRecord&>(*record).entities()) look(*entity);
    }
    for (const OdDb::DwgVersion version :
         {drawing->originalFileVersion(), OdDb::kDHL_1009, OdDb::kDHL_1014, OdDb::kDHL_1032}) {
        for (const OdDxfLoss& loss : drawing->lossesIn(version)) require(loss.count > 0, "a loss of nothing");
        expectStable(*drawing, version);
        expectWholeBinary(*drawing, version);
    }
    return 0;
}
