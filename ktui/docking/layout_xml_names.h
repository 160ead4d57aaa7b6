// The names in a file of layouts. Private to the library.
#pragma once

namespace layouts::xml {

constexpr const wchar_t kRoot[] = L"KtUiPaletteLayouts", kLayout[] = L"Layout", kDocked[] = L"Docked",
                        kFloating[] = L"Floating", kTabs[] = L"Tabs", kPanes[] = L"Panes", kRow[] = L"Row",
                        kFrame[] = L"Frame", kSplit[] = L"Split", kPane[] = L"Pane",
                        kTabGroup[] = L"TabGroup", kTab[] = L"Tab", kState[] = L"State";
constexpr const wchar_t kVersion[] = L"Version", kName[] = L"Name", kSide[] = L"Side", kExtent[] = L"Extent",
                        kDirection[] = L"Direction", kShare[] = L"Share", kId[] = L"Id", kShown[] = L"Shown",
                        kHides[] = L"Hides", kLeft[] = L"Left", kTop[] = L"Top", kWidth[] = L"Width",
                        kHeight[] = L"Height", kActive[] = L"Active", kPalette[] = L"Palette";
constexpr const wchar_t* kSideNames[] = {L"left", L"top", L"right", L"bottom"};
constexpr const wchar_t kBeside[] = L"beside", kBelow[] = L"below";

}  // namespace layouts::xml
