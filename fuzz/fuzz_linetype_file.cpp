// Reads linetype files of any bytes and loads what they define: whatever is loaded is legal and survives a
// drawing's file.
#include <cstdint>
#include <cstdlib>

#include "linetypes/linetype_loader.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int kCodePages[] = {1252, 936, 932};
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const LinetypeFile file = ReadLinetypeFile(bytes, kCodePages[size % std::size(kCodePages)]);
    require(file.definitions.size() <= kMostLinetypes && file.problems.size() <= kMostLinetypeProblems);
    OdDbDatabasePtr drawing(new OdDbDatabase);
    int loaded = 0;
    for (const LinetypeDefinition& definition : file.definitions) {
        require(!definition.name.isEmpty() && definition.line > 0);
        require(definition.dashes.size() >= 2 && definition.dashes.size() <= kMostDashes);
        OdDbObjectId id;
        if (LoadLinetype(*drawing, definition, true, id) != LinetypeLoad::kRefused) ++loaded;
        for (const LinetypeInsert& insert : definition.inserts)
            require(insert.behind >= 0 && insert.behind <= kMostDashes);
    }
    if (loaded == 0) return 0;
    OdDbDatabasePtr read(new OdDbDatabase);
    require(read->readDxfBytes(drawing->writeDxfBytes()) == kOdOk);
    OdDbLinetypeTablePtr before, after;
    drawing->getLinetypeTable(before);
    read->getLinetypeTable(after);
    require(before->count() == after->count());
    return 0;
}
