// An extension of the drafter as the former version of it had one: it knew of no palettes.
extern "C" __declspec(dllexport) int drafterExtensionVersion() { return 1; }
extern "C" __declspec(dllexport) void drafterExtensionAddTabs(void*) { __builtin_trap(); }
