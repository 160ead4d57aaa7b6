// A module of the drawing runtime that writes down what its entry points are told.
#include <windows.h>

#include "entry_points.h"

namespace {

EntryCall last = {};

int note(int name, int message, void* packet) {
    last = {last.count + 1, name, message, packet};
    return kEntryAnswer + message;
}

}  // namespace

extern "C" {
#ifdef WITH_FIRST_NAME
__declspec(dllexport) int ktrxEntryPoint(int message, void* packet) { return note(1, message, packet); }
#endif
__declspec(dllexport) int acrxEntryPoint(int message, void* packet) { return note(2, message, packet); }
__declspec(dllexport) const EntryCall* lastEntryCall() { return &last; }
}
