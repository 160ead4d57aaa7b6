// The colours of the system that tests of legibility put in force: the standard ones, dark ones, and those of
// high contrast.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "system_colors.h"

namespace ui_test {

/// Colours of the system by what they are for.
struct Scheme {
    const char* name;
    COLORREF window, windowText, face, faceText, highlight, highlightText, gray;
};

inline constexpr Scheme kSchemes[] = {
    {"Standard", RGB(255, 255, 255), RGB(0, 0, 0), RGB(240, 240, 240), RGB(0, 0, 0), RGB(0, 92, 170),
     RGB(255, 255, 255), RGB(109, 109, 109)},
    {"Dark", RGB(32, 32, 32), RGB(240, 240, 240), RGB(45, 45, 48), RGB(240, 240, 240), RGB(120, 190, 255),
     RGB(0, 0, 0), RGB(160, 160, 160)},
    {"HighContrast", RGB(0, 0, 0), RGB(255, 255, 0), RGB(0, 0, 0), RGB(0, 255, 0), RGB(0, 255, 255),
     RGB(0, 0, 0), RGB(0, 192, 0)}};

/// Puts the colours of a scheme in force for as long as it lives.
class ColorsOfScheme : public SystemColors {
public:
    explicit ColorsOfScheme(const Scheme& scheme)
        : SystemColors({{COLOR_WINDOW, scheme.window},
                        {COLOR_WINDOWTEXT, scheme.windowText},
                        {COLOR_BTNFACE, scheme.face},
                        {COLOR_MENU, scheme.face},
                        {COLOR_BTNTEXT, scheme.faceText},
                        {COLOR_HIGHLIGHT, scheme.highlight},
                        {COLOR_HIGHLIGHTTEXT, scheme.highlightText},
                        {COLOR_GRAYTEXT, scheme.gray}}) {}
};

/// Names a parameterized test after its scheme.
inline std::string nameOfScheme(const ::testing::TestParamInfo<Scheme>& each) { return each.param.name; }

}  // namespace ui_test
