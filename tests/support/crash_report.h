// Makes a crash end the program with a stack on its error output, in the place of a dialog that nobody sees.
#pragma once

/// Exit code of a program that crashed.
constexpr unsigned kCrashExitCode = 0xC5;

void install_crash_report();

/// How many faults there were so far in the program's own modules, those included that the system swallowed.
unsigned fault_count();
