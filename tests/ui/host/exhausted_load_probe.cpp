// Loads the toolkit while one request for memory, or all from one on, is refused.
//
//     exhausted_load_probe <number of requests granted> one|all
//
// The exit code tells what came of it; an exception that leaves the library's entry ends the process
// otherwise.
#include <cstdlib>
#include <cwchar>

#include <afxwin.h>

#include "exhausted_load_probe.h"
#include "scarce_memory.h"

namespace {

CWinApp application;

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return kProbeMisused;
    for (const wchar_t* name :
         {L"ktrx.dll", L"ktdb.dll", L"ktut.dll", L"odrt.dll", L"ktdsres.dll", L"comctl32.dll"})
        if (!::LoadLibraryW(name)) return kProbeMisused;
    bool isWatched = false;
    for (const wchar_t* name : {L"libstdc++-6.dll", L"kmfc.dll"})
        if (ui_test::watch_malloc(::GetModuleHandleW(name))) isWatched = true;
    if (!isWatched) return kProbeMisused;

    ui_test::refuseAllBehind = std::wcscmp(arguments[2], L"all") == 0;
    ui_test::grantedRequests = std::wcstol(arguments[1], nullptr, 10);
    const HMODULE toolkit = ::LoadLibraryW(L"ktui.dll");
    ui_test::grantedRequests = -1;
    if (ui_test::refusedRequests == 0) return kProbeNothingRefused;
    return toolkit ? kProbeLoaded : kProbeLoadRefused;
}
