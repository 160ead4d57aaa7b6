// What the drafter is told on its command line. Knows no window.
//
//     drafter.exe [--clean] [drawing.dxf ...]    a name with spaces in quotes
#pragma once

#include <functional>
#include <string>
#include <vector>

struct DrafterCommandLine {
    bool isClean = false;  ///< window and palettes are to stand where they stand at first
    std::vector<std::wstring> files;
};

/// Reads what follows the program's name. Words without a quote among them that together are the path of a
/// file, which `isFile` says, are that one file.
DrafterCommandLine ReadCommandLine(std::wstring line, const std::function<bool(const std::wstring&)>& isFile);
