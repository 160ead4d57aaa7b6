// Short DXF texts for tests: pairs are written as "code|value" lines.
#pragma once

#include <od_db.h>

#include <string>

/// Turns lines of "code|value" into the pairs of a DXF file with this line end.
inline std::string dxf(const std::string& pairs, const std::string& lineEnd = "\n") {
    std::string text;
    std::size_t at = 0;
    while (at < pairs.size()) {
        const std::size_t end = std::min(pairs.find('\n', at), pairs.size());
        const std::string line = pairs.substr(at, end - at);
        const std::size_t bar = line.find('|');
        text += line.substr(0, bar) + lineEnd + line.substr(bar + 1) + lineEnd;
        at = end + 1;
    }
    return text;
}

/// A header section with a version and nothing else.
inline std::string header(const std::string& version) {
    return "0|SECTION\n2|HEADER\n9|$ACADVER\n1|" + version + "\n0|ENDSEC\n";
}

/// A whole file with these entities.
inline std::string withEntities(const std::string& entities, const std::string& version = "AC1015") {
    return dxf(header(version) + "0|SECTION\n2|ENTITIES\n" + entities + "0|ENDSEC\n0|EOF");
}

/// A drawing read from a DXF text; null if it was refused.
inline OdDbDatabasePtr readDrawing(const std::string& text) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    return drawing->readDxfBytes(text) == kOdOk ? drawing : OdDbDatabasePtr();
}

/// The entities of model space that aren't erased.
inline std::vector<OdDbEntity*> modelEntities(OdDbDatabase& drawing) {
    std::vector<OdDbEntity*> live;
    for (OdDbEntity* entity : drawing.modelSpaceId().open<OdDbBlockTableRecord>()->entities())
        if (!entity->isErased()) live.push_back(entity);
    return live;
}

/// The first entity of model space as a T.
template <class T>
T* firstEntity(OdDbDatabase& drawing) {
    const auto entities = modelEntities(drawing);
    return entities.empty() ? nullptr : dynamic_cast<T*>(entities[0]);
}

/// Every version that can be written.
inline constexpr OdDb::DwgVersion kAllVersions[] = {OdDb::kDHL_1009, OdDb::kDHL_1012, OdDb::kDHL_1014,
                                                    OdDb::kDHL_1015, OdDb::kDHL_1018, OdDb::kDHL_1021,
                                                    OdDb::kDHL_1024, OdDb::kDHL_1027, OdDb::kDHL_1032};

/// How often `part` stands in a written text.
inline int occurrences(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

/// Whether the pairs occur one after the other in a written text.
inline bool has(const std::string& text, const std::string& pairs) {
    std::string flat;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find("\r\n", at);
        std::string line = text.substr(at, end - at);
        line.erase(0, line.find_first_not_of(' ') == std::string::npos ? 0 : line.find_first_not_of(' '));
        flat.append(line).append(1, '\n');
        at = end + 2;
    }
    const std::string wanted = dxf(pairs);
    const std::size_t at = flat.find(wanted);
    return at != std::string::npos && (at == 0 || flat[at - 1] == '\n');
}

/// A text after reading and writing it.
inline std::string rewritten(const std::string& text, OdDb::DwgVersion version = OdDb::kDHL_Unknown) {
    const OdDbDatabasePtr drawing = readDrawing(text);
    return drawing ? drawing->writeDxfBytes(version) : "(refused)";
}
