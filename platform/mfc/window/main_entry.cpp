// The program entry of applications of the class layer; linked statically into the executable.
#include <kmfc/app.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int show) {
    // The command line behind the program's own name, in wide characters.
    const wchar_t* line = ::GetCommandLineW();
    const wchar_t stop = *line == L'"' ? L'"' : L' ';
    if (stop == L'"') ++line;
    while (*line != 0 && *line != stop) ++line;
    if (*line != 0) ++line;
    while (*line == L' ') ++line;
    return AfxWinMain(instance, previous, const_cast<LPWSTR>(line), show);
}
