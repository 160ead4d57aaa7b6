// A scene of a hundred thousand entities against reading the drawing that it shows. Native.
#include <string>

#include <scene.h>

#include "many_entities.h"
#include "measure.h"

namespace {

constexpr int kRounds = 7;

std::size_t kept;  // keeps the work from being optimised away

}  // namespace

int main() {
    const std::string file = bench::drawingFile();
    OdDbDatabasePtr drawing(new OdDbDatabase);
    if (drawing->readDxfBytes(file) != kOdOk) return 1;
    const auto build = [&] {
        return bench::seconds_of([&] {
            const Scene scene = BuildScene(*drawing, drawing->modelSpaceId());
            kept += scene.paths.size() + scene.texts.size();
        });
    };
    const auto read = [&] {
        return bench::seconds_of([&] {
            OdDbDatabasePtr again(new OdDbDatabase);
            kept += again->readDxfBytes(file) == kOdOk ? 1 : 0;
        });
    };
    bench::report("a scene of 100,000 entities", bench::compare(kRounds, 1, build, read), 0);
    return kept != 0 ? 0 : 1;
}
