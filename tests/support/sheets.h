// A drawing with sheets, as its file says it.
#pragma once

#include <string>
#include <vector>

#include "file_groups.h"

namespace ui_test {

inline std::string blockRecord(const std::string& name, const std::string& handle,
                               const std::string& layout) {
    return "0 BLOCK_RECORD|5 " + handle + "|100 AcDbSymbolTableRecord|100 AcDbBlockTableRecord|2 " + name +
           "|340 " + layout + "|";
}

inline std::string blockOf(const std::string& name, const std::string& handle, const std::string& entities) {
    return "0 BLOCK|5 " + handle + "0|8 0|100 AcDbBlockBegin|2 " + name + "|70 0|10 0|20 0|3 " + name + "|" +
           entities + "0 ENDBLK|5 " + handle + "1|8 0|";
}

/// A layout on paper of 200 by 100 millimetres with margins of 10, or model space for order 0.
inline std::string layoutObject(const std::string& name, const std::string& handle, int order,
                                const std::string& block) {
    return "0 LAYOUT|5 " + handle + "|330 B0|100 AcDbPlotSettings|40 10|41 10|42 10|43 10|44 200|45 100|" +
           "142 1|143 1|72 1|73 0|75 16|70 " + (order == 0 ? "1024" : "0") + "|100 AcDbLayout|1 " + name +
           "|71 " + std::to_string(order) + "|330 " + block + "|";
}

inline std::string lineOf(const std::string& handle, const std::string& more, double x1, double y1, double x2,
                          double y2) {
    return "0 LINE|5 " + handle + "|" + more + "|100 AcDbLine|10 " + std::to_string(x1) + "|20 " +
           std::to_string(y1) + "|11 " + std::to_string(x2) + "|21 " + std::to_string(y2) + "|";
}

/// The window that stands for the sheet itself.
inline std::string wholeSheetOf(const std::string& handle, const std::string& block) {
    return "0 VIEWPORT|5 " + handle + "|330 " + block +
           "|67 1|8 0|100 AcDbViewport|10 90|20 40|40 400|41 200|" +
           "68 1|69 1|12 90|22 40|16 0|26 0|36 1|17 0|27 0|37 0|45 200|51 0|";
}

/// A window of the sheet in its middle, 80 by 40, that shows model space from above, ten times smaller.
inline std::string viewportOf(const std::string& handle, const std::string& block) {
    return "0 VIEWPORT|5 " + handle + "|330 " + block +
           "|67 1|8 0|100 AcDbViewport|10 90|20 40|40 80|41 40|68 2|69 2|" +
           "12 500|22 200|16 0|26 0|36 1|17 0|27 0|37 0|45 400|51 0|";
}

/// The file of a drawing whose tabs are Model, "Plan" and "Detail" (Plan & Detail stand the other way round
/// in the file): in model space a red line from 300, 100 to 700, 300, on Plan a window that shows it, on
/// Detail a green line from 0, 0 to 100, 50. `further` are the names of more sheets, all empty.
inline std::string sheetsFile(const std::vector<std::string>& further = {}) {
    std::string records = blockRecord("*Model_Space", "1A", "A1") + blockRecord("*Paper_Space", "2A", "A2") +
                          blockRecord("*Paper_Space0", "3A", "A3");
    std::string blocks = blockOf("*Model_Space", "1A", "") + blockOf("*Paper_Space", "2A", "") +
                         blockOf("*Paper_Space0", "3A", viewportOf("C3", "3A"));
    std::string names = "3 Model|350 A1|3 Detail|350 A2|3 Plan|350 A3|";
    std::string layouts = layoutObject("Model", "A1", 0, "1A") + layoutObject("Detail", "A2", 2, "2A") +
                          layoutObject("Plan", "A3", 1, "3A");
    int number = 0x100;
    for (const std::string& name : further) {
        const std::string handle = std::to_string(++number);
        records += blockRecord("*Paper_Space" + handle, "4" + handle, "5" + handle);
        blocks += blockOf("*Paper_Space" + handle, "4" + handle, "");
        names += "3 " + name + "|350 5" + handle + "|";
        layouts += layoutObject(name, "5" + handle, number, "4" + handle);
    }
    return fileGroups(
        "0 SECTION|2 HEADER|9 $ACADVER|1 AC1032|9 $TILEMODE|70 1|0 ENDSEC|0 SECTION|2 TABLES|0 TABLE|" +
        std::string("2 BLOCK_RECORD|70 3|") + records + "0 ENDTAB|0 ENDSEC|0 SECTION|2 BLOCKS|" + blocks +
        "0 ENDSEC|0 SECTION|2 ENTITIES|" + lineOf("C1", "330 1A|8 0|62 1", 300, 100, 700, 300) +
        wholeSheetOf("C4", "2A") + lineOf("C2", "330 2A|67 1|8 0|62 3", 0, 0, 100, 50) +
        "0 ENDSEC|0 SECTION|2 OBJECTS|0 DICTIONARY|5 AA|100 AcDbDictionary|3 ACAD_LAYOUT|350 B0|" +
        "0 DICTIONARY|5 B0|330 AA|100 AcDbDictionary|" + names + layouts + "0 ENDSEC|0 EOF");
}

}  // namespace ui_test
