// The benchmarks with windows; bench/run starts it.
#include "window_bench.h"

#include <cstring>

#include <kmfc/app.h>
#include <standin_host.h>

namespace {

class BenchApplication : public CWinApp {
public:
    BenchApplication() : CWinApp(L"ktui bench") {}
};

BenchApplication application;

struct Row {
    const char* name;
    void (*measure)();
};

constexpr Row kRows[] = {
    {"keystroke", bench::measure_keystroke},
    {"picker", bench::measure_picker},
    {"drawing_pickers", bench::measure_drawing_pickers},
    {"fonts", bench::measure_fonts},
    {"dialog", bench::measure_dialog},
    {"tabbed_dialog", bench::measure_tabbed_dialog},
    {"messages", bench::measure_messages},
    {"buttons", bench::measure_buttons},
    {"resize", bench::measure_resize},
    {"docking", bench::measure_docking},
    {"file_dialog", bench::measure_file_dialog},
    {"find_files", bench::measure_find_files},
    {"scene", bench::measure_scene_painting},
};

}  // namespace

/// Measures every row, or those named on the command line.
int main(int argc, char** argv) {
    AfxWinInit(::GetModuleHandleW(nullptr), nullptr, const_cast<LPWSTR>(L""), SW_SHOWNORMAL);
    {
        CStandinHost host(application);
        host.runtimeHost()->shxFontList();  // so that no look for fonts runs beside a row
        for (const Row& row : kRows) {
            bool wanted = argc < 2;
            for (int i = 1; i < argc; ++i) wanted = wanted || std::strcmp(argv[i], row.name) == 0;
            if (wanted) row.measure();
        }
    }
    AfxWinTerm();
    return 0;
}
