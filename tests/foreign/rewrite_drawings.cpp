// Reads drawings and writes them again, as standard input asks: a line for each of the file to read, the file
// to write, the version's number (1009 to 1032; 0 for that of the file) and "text", "binary", or "nothing"
// for reading alone, parted by tabs. Answers with a line for each: "read", the version, the count of mends
// and that of lost kinds, or "refused", the line and why.
#include <od_db.h>

#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

OdDb::DwgVersion versionOf(int number) {
    switch (number) {
        case 1009: return OdDb::kDHL_1009;
        case 1012: return OdDb::kDHL_1012;
        case 1014: return OdDb::kDHL_1014;
        case 1015: return OdDb::kDHL_1015;
        case 1018: return OdDb::kDHL_1018;
        case 1021: return OdDb::kDHL_1021;
        case 1024: return OdDb::kDHL_1024;
        case 1027: return OdDb::kDHL_1027;
        case 1032: return OdDb::kDHL_1032;
        default: return OdDb::kDHL_Unknown;
    }
}

std::vector<std::string> fieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, '\t');) fields.push_back(field);
    return fields;
}

std::string rewritten(const std::vector<std::string>& job) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    OdDxfReading reading;
    const auto refused = [&] {
        return "refused\t" + std::to_string(error.line) + "\t" + odUtf8(error.text.view());
    };
    if (drawing->readDxf(odWide(job[0]), &error, &reading) != kOdOk) return refused();
    const int version = drawing->originalFileVersion();
    const auto read = [&](std::size_t losses) {
        return "read\t" + std::to_string(version) + "\t" + std::to_string(reading.mendCount) + "\t" +
               std::to_string(losses);
    };
    if (job[3] == "nothing") return read(0);
    const OdDxfForm form{versionOf(std::stoi(job[2])), job[3] == "binary"};
    const std::size_t losses = drawing->lossesIn(form.version).size();
    if (drawing->writeDxf(odWide(job[1]), form, &error) != kOdOk) return refused();
    return read(losses);
}

}  // namespace

int main() {
    for (std::string line; std::getline(std::cin, line);) {
        const std::vector<std::string> job = fieldsOf(line);
        if (job.size() != 4) {
            std::cerr << "four fields are needed: " << line << "\n";
            return 2;
        }
        std::cout << rewritten(job) << std::endl;
    }
    return 0;
}
