#include <ktui/pickers/line_weights.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kThinScale = 0.2000000001;  // up to here, thin and middle weights are one pixel
constexpr double kFullScale = 0.9999999999;  // from here on, thin weights are two pixels
constexpr int kMiddleWeight = 90;
constexpr int kThinWeight = 25;
constexpr int kMinimumOfHeavy = 2;
constexpr double kHeaviest = 211.0;

}  // namespace

const std::array<LineWeightName, kLineWeightCount>& LineWeightNames() {
    static constexpr std::array<LineWeightName, kLineWeightCount> kNames = {{
        {0, L"0.00 mm", L"0.000\""},   {5, L"0.05 mm", L"0.002\""},   {9, L"0.09 mm", L"0.004\""},
        {13, L"0.13 mm", L"0.005\""},  {15, L"0.15 mm", L"0.006\""},  {18, L"0.18 mm", L"0.007\""},
        {20, L"0.20 mm", L"0.008\""},  {25, L"0.25 mm", L"0.010\""},  {30, L"0.30 mm", L"0.012\""},
        {35, L"0.35 mm", L"0.014\""},  {40, L"0.40 mm", L"0.016\""},  {50, L"0.50 mm", L"0.020\""},
        {53, L"0.53 mm", L"0.021\""},  {60, L"0.60 mm", L"0.024\""},  {70, L"0.70 mm", L"0.028\""},
        {80, L"0.80 mm", L"0.031\""},  {90, L"0.90 mm", L"0.035\""},  {100, L"1.00 mm", L"0.039\""},
        {106, L"1.06 mm", L"0.042\""}, {120, L"1.20 mm", L"0.047\""}, {140, L"1.40 mm", L"0.055\""},
        {158, L"1.58 mm", L"0.062\""}, {200, L"2.00 mm", L"0.079\""}, {211, L"2.11 mm", L"0.083\""},
    }};
    return kNames;
}

const wchar_t* LineWeightText(bool inch, int weight) {
    for (const LineWeightName& name : LineWeightNames())
        if (name.weight == weight) return inch ? name.inches : name.millimetres;
    return L"";
}

int LineWeightBarThickness(int height, int weight, double scale) {
    if (weight <= 0) return 1;
    // Kept: both thresholds lie just off 0.2 and 1.0.
    if (scale <= kThinScale && weight <= kMiddleWeight) return 1;
    if (weight <= kThinWeight) return scale >= kFullScale ? 2 : 1;
    const double thickness = std::trunc(weight * ((scale + 0.1) * (2.0 * height)) / kHeaviest);
    // Kept: two pixels even in a lower rectangle.
    if (thickness < kMinimumOfHeavy) return kMinimumOfHeavy;
    return thickness < height ? static_cast<int>(thickness) : height;
}

bool LineWeightBar(const RECT& rect, int weight, double scale, RECT& bar) {
    const int height = static_cast<int>(rect.bottom - rect.top);
    if (height < 0) return false;
    const int thickness = LineWeightBarThickness(height, weight, scale);
    bar = rect;
    bar.top = rect.top + static_cast<int>(std::trunc((height - thickness) * 0.5 + 0.5));
    bar.bottom = bar.top + std::max(thickness, 1);
    return true;
}
