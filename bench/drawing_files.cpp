// Reading and writing a drawing of 100,000 lines, circles and texts as a DXF file, against Debian's dxflib,
// which hands each entity to a program and keeps nothing itself. Both read the same file into memory and
// write all that they have to a file; neither waits for the disk. Native.
#include <od_db.h>

#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "measure.h"

namespace {

constexpr int kEntities = 100000;
constexpr int kRounds = 9;
constexpr double kGoal = 0.5;

/// What the peer's program keeps of a drawing.
class Kept : public DL_CreationAdapter {
public:
    void addLine(const DL_LineData& data) override { lines.emplace_back(data, attributes); }
    void addCircle(const DL_CircleData& data) override { circles.emplace_back(data, attributes); }
    void addText(const DL_TextData& data) override { texts.emplace_back(data, attributes); }

    std::size_t count() const { return lines.size() + circles.size() + texts.size(); }

    std::vector<std::pair<DL_LineData, DL_Attributes>> lines;
    std::vector<std::pair<DL_CircleData, DL_Attributes>> circles;
    std::vector<std::pair<DL_TextData, DL_Attributes>> texts;
};

std::string pathOf(const char* name) { return (std::filesystem::temp_directory_path() / name).string(); }

/// A drawing with the entities, made through the runtime.
OdDbDatabasePtr madeDrawing() {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto space = drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
    for (int i = 0; i < kEntities; ++i) {
        const double x = i * 0.37;
        OdDbEntityPtr entity;
        if (i % 3 == 0) {
            OdSmartPtr<OdDbLine> line(new OdDbLine);
            line->setStartPoint({x, 1.5, 0});
            line->setEndPoint({2.25, x, 0});
            entity = OdDbEntityPtr(line.get());
        } else if (i % 3 == 1) {
            OdSmartPtr<OdDbCircle> circle(new OdDbCircle);
            circle->setCenter({x, 2.5, 0});
            circle->setRadius(x + 1);
            entity = OdDbEntityPtr(circle.get());
        } else {
            OdSmartPtr<OdDbText> text(new OdDbText);
            text->setPosition({x, 2, 0});
            text->setHeight(2.5);
            text->setTextString((L"note " + std::to_wstring(i)).c_str());
            entity = OdDbEntityPtr(text.get());
        }
        space->appendOdDbEntity(entity);
    }
    return drawing;
}

void require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

double timeReading(const std::string& path) {
    return bench::seconds_of([&] {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        require(drawing->readDxf(odWide(path)) == kOdOk, "the drawing was refused");
        require(drawing->modelSpaceId().open<OdDbBlockTableRecord>()->count() == kEntities,
                "entities are missing");
    });
}

double timePeerReading(const std::string& path) {
    return bench::seconds_of([&] {
        Kept kept;
        DL_Dxf dxf;
        require(dxf.in(path, &kept), "the peer refused the drawing");
        require(kept.count() == kEntities, "the peer misses entities");
    });
}

double timeWriting(OdDbDatabase& drawing, const std::string& path) {
    return bench::seconds_of([&] {
        const std::string bytes = drawing.writeDxfBytes(OdDb::kDHL_1015);
        std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    });
}

double timePeerWriting(const Kept& kept, const std::string& path) {
    return bench::seconds_of([&] {
        DL_Dxf dxf;
        DL_WriterA* writer = dxf.out(path.c_str(), DL_VERSION_2000);
        require(writer != nullptr, "the peer can't write");
        writer->sectionEntities();
        for (const auto& [data, attributes] : kept.lines) dxf.writeLine(*writer, data, attributes);
        for (const auto& [data, attributes] : kept.circles) dxf.writeCircle(*writer, data, attributes);
        for (const auto& [data, attributes] : kept.texts) dxf.writeText(*writer, data, attributes);
        writer->sectionEnd();
        writer->dxfEOF();
        writer->close();
        delete writer;
    });
}

}  // namespace

int main() {
    const std::string path = pathOf("ktui_bench.dxf"), ours = pathOf("ktui_bench_ours.dxf"),
                      peers = pathOf("ktui_bench_peers.dxf");
    const OdDbDatabasePtr drawing = madeDrawing();
    timeWriting(*drawing, path);
    Kept kept;
    require(DL_Dxf().in(path, &kept) && kept.count() == kEntities, "the peer can't read what was written");
    bench::report(
        "reading 100,000 entities, each",
        bench::compare(
            kRounds, kEntities, [&] { return timeReading(path); }, [&] { return timePeerReading(path); }),
        kGoal);
    bench::report("writing 100,000 entities, each",
                  bench::compare(
                      kRounds, kEntities, [&] { return timeWriting(*drawing, ours); },
                      [&] { return timePeerWriting(kept, peers); }),
                  kGoal);
    for (const std::string& file : {path, ours, peers}) std::filesystem::remove(file);
    return 0;
}
