// Draws model space of drawings and says what is drawn, as standard input asks: a line for each of the file
// and, behind a tab, a kind that is left out (or nothing, or "-" for an answer without places). Answers with
// "L" and the places of each line or boundary, "T" and the letters of each text, and "end"; or "refused".
// With a shape font as its argument texts are in the strokes of that.
#include <scene_options.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>

namespace {

void sayLine(const OdGePoint2d* points, std::size_t count) {
    std::printf("L");
    for (std::size_t i = 0; i < count; ++i) std::printf(" %.9g %.9g", points[i].x, points[i].y);
    std::printf("\n");
}

void say(const ScenePath& path) {
    std::size_t first = 0;
    for (std::size_t i = 0; i <= path.breaks.size(); ++i) {
        const std::size_t end = i < path.breaks.size() ? path.breaks[i] : path.points.size();
        sayLine(path.points.data() + first, end - first);
        if (path.filled && end > first) {
            const OdGePoint2d closing[] = {path.points[end - 1], path.points[first]};
            sayLine(closing, 2);
        }
        first = end;
    }
}

void say(const std::string& path, const std::string& kind, const std::string& font) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    if (drawing->readDxf(odWide(path).c_str()) != kOdOk) {
        std::printf("refused\n");
        return;
    }
    for (OdDbEntity* entity : drawing->modelSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite)->entities())
        if (kind == entity->dxfName()) entity->erase();
    SceneOptions options;
    if (!font.empty()) options.shapeFile = [&font](const OdString&) { return font; };
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    if (kind != "-") {
        for (const ScenePath& each : scene.paths)
            if (!each.isEndless) say(each);
        for (const SceneText& text : scene.texts) std::printf("T %s\n", odUtf8(text.text.view()).c_str());
    }
    std::printf("end\n");
}

}  // namespace

int main(int count, char** arguments) {
    std::string font;
    if (count > 1) {
        std::ifstream file(arguments[1], std::ios::binary);
        font.assign(std::istreambuf_iterator<char>(file), {});
    }
    for (std::string line; std::getline(std::cin, line);) {
        const std::size_t tab = std::min(line.find('\t'), line.size());
        say(line.substr(0, tab), tab < line.size() ? line.substr(tab + 1) : "", font);
        std::fflush(stdout);
    }
    return 0;
}
