// A drawing of a hundred thousand entities, for the benchmarks of scenes.
#pragma once

#include <string>

namespace bench {

constexpr int kEntities = 100000;

/// One of five kinds in turn, in rows.
inline void append(std::string& file, int number) {
    const std::string x = std::to_string(number % 300 * 10), y = std::to_string(number / 300 * 10);
    const std::string place = "\n10\n" + x + "\n20\n" + y + "\n30\n0\n";
    switch (number % 5) {
        case 0: file += "0\nLINE\n8\n0" + place + "11\n" + x + ".5\n21\n" + y + ".5\n31\n0\n"; break;
        case 1: file += "0\nCIRCLE\n8\n0" + place + "40\n4\n"; break;
        case 2: file += "0\nARC\n8\n0" + place + "40\n4\n50\n10\n51\n200\n"; break;
        case 3: file += "0\nTEXT\n8\n0" + place + "40\n2\n1\nText " + std::to_string(number) + "\n"; break;
        default:
            file += "0\nLWPOLYLINE\n8\n0\n90\n3\n70\n1\n10\n" + x + "\n20\n" + y + "\n10\n" + x + ".5\n20\n" +
                    y + "\n42\n0.3\n10\n" + x + "\n20\n" + y + ".5\n";
    }
}

inline std::string drawingFile() {
    std::string file = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < kEntities; ++i) append(file, i);
    return file + "0\nENDSEC\n0\nEOF\n";
}

}  // namespace bench
