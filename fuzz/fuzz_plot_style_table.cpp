// Reads plot style tables of any bytes; what is read survives being written. The bytes serve once as a file
// and once as the text inside of one, so that the blocks are reached without an unpacking that fits.
#include <cstdint>
#include <cstdlib>

#include "plotting/plot_style_packing.h"
#include "plotting/plot_style_table.h"

namespace {

void require(bool holds) {
    if (!holds) std::abort();
}

void readAndWrite(std::string_view bytes) {
    PlotStyleTable table, again;
    if (ReadPlotStyleTable(bytes, 1252, table) != PlotStyleFault::kNone) {
        require(table.styles.empty());
        return;
    }
    for (const PlotStyle& style : table.styles) require(!style.name.isEmpty());
    require(ReadPlotStyleTable(WritePlotStyleTable(table), 1252, again) == PlotStyleFault::kNone);
    require(again.isColorDependent == table.isColorDependent && again.styles.size() == table.styles.size());
    for (std::size_t i = 0; i < table.styles.size(); ++i) {
        require(again.styles[i].name == table.styles[i].name);
        require(again.styles[i].rgb == table.styles[i].rgb);
        require(again.styles[i].lineweight == table.styles[i].lineweight);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readAndWrite(bytes);
    if (size <= kMostPlotStyleText) readAndWrite(PackPlotStyleText(bytes, size % 2 != 0));
    return 0;
}
