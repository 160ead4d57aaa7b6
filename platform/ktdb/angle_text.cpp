// Angles as text and back. Values are radians; texts count in degrees, grads or radians.
//
// The way from radians to degrees and back is off by a few units in the last of some fifteen digits. Since an
// angle is brought within a thousand turns before it is written, that is far below the last place shown, so
// that a text that was written comes back as itself.

#include <cmath>

#include "number_text.h"

namespace {

enum { kDegrees = 0, kDegMinSec, kGrads, kRadians, kSurveyor };

constexpr long double kPi = 3.141592653589793238462643383279502884L;
constexpr double kMostTurns = 1000;
constexpr int kSecondsPerDegree = 3600;

double degreesOf(double radians) { return static_cast<double>(radians * (180.0L / kPi)); }
double radiansOf(double amount, long double perHalfTurn) {
    return static_cast<double>(amount * (kPi / perHalfTurn));
}

// ---- writing ----

/// Degrees in whole steps of the finest unit that a precision shows.
struct Steps {
    long long perDegree;
    int shown;     // 1 degrees, 2 minutes, 3 seconds
    int decimals;  // of the seconds
};

Steps stepsFor(int precision) {
    if (precision == 0) return {1, 1, 0};
    if (precision <= 2) return {60, 2, 0};
    if (precision <= 4) return {kSecondsPerDegree, 3, 0};
    long long perDegree = kSecondsPerDegree;
    for (int i = 4; i < precision; ++i) perDegree *= 10;
    return {perDegree, 3, precision - 4};
}

void addSteps(StackText& out, long long count, const Steps& steps) {
    out.addWhole(count / steps.perDegree);
    out.add('d');
    if (steps.shown == 1) return;
    const long long perMinute = steps.perDegree / 60;
    long long rest = count % steps.perDegree;
    out.addWhole(rest / perMinute);
    out.add('\'');
    if (steps.shown == 2) return;
    rest %= perMinute;
    const long long perSecond = perMinute / 60;
    out.addWhole(rest / perSecond);
    if (steps.decimals) {
        out.add('.');
        rest %= perSecond;
        for (long long unit = perSecond / 10; unit > 0; unit /= 10)
            out.add(static_cast<char>('0' + rest / unit % 10));
    }
    out.add('"');
}

void addBearing(StackText& out, double degrees, int precision, bool inputForm) {
    const Steps steps = stepsFor(precision);
    const long long quarter = 90 * steps.perDegree;
    double within = std::fmod(degrees, 360.0);
    if (within < 0) within += 360.0;
    const long long count = std::llround(within * static_cast<double>(steps.perDegree)) % (4 * quarter);
    const long long quadrant = count / quarter;
    const long long inside = count % quarter;
    if (inside == 0) {
        out.add("ENWS"[quadrant]);
        return;
    }
    // Bearings count from north or south towards east or west.
    out.add(quadrant < 2 ? 'N' : 'S');
    if (!inputForm) out.add(' ');
    addSteps(out, quadrant % 2 == 0 ? quarter - inside : inside, steps);
    if (!inputForm) out.add(' ');
    out.add(quadrant == 0 || quadrant == 3 ? 'E' : 'W');
}

bool hasValue(std::string_view text) { return text.find_first_of("123456789") != std::string_view::npos; }

bool addAngle(StackText& out, double radians, int mode, int precision) {
    switch (mode) {
        case kDegrees: return out.addFixed(degreesOf(radians), precision);
        case kDegMinSec: {
            const Steps steps = stepsFor(precision);
            addSteps(out, std::llround(degreesOf(radians) * static_cast<double>(steps.perDegree)), steps);
            return true;
        }
        case kGrads:
            if (!out.addFixed(static_cast<double>(radians * (200.0L / kPi)), precision)) return false;
            out.add('g');
            return true;
        default:
            if (!out.addFixed(radians, precision)) return false;
            out.add('r');
            return true;
    }
}

// ---- reading ----

bool takeDegreeMark(WideCursor& in) { return in.take(L'd') || in.take(L'\x00B0'); }

/// Reads degrees, minutes and seconds with their marks. Only the last may have decimals, and minutes and
/// seconds behind a larger unit stay below 60. Without any mark it is `bare` that says whether the number
/// counts as degrees.
bool takeDegrees(WideCursor& in, bool bare, double& degrees) {
    constexpr double kUnits[] = {1.0, 60.0, 3600.0};
    degrees = 0;
    int unit = 0;
    for (int count = 0;; ++count) {
        const std::wstring_view number = in.takeNumber();
        double value = 0;
        if (number.empty()) return count > 0;
        if (!ktdbNumberValue(number, value)) return false;
        int found = 3;
        if (takeDegreeMark(in))
            found = 0;
        else if (in.take(L'\''))
            found = 1;
        else if (in.take(L'"'))
            found = 2;
        if (found == 3) {
            degrees = value;
            return bare && count == 0;
        }
        if (found < unit || (count > 0 && value >= 60)) return false;
        degrees += value / kUnits[found];
        unit = found + 1;
        if (unit > 2 || !WideCursor::isWhole(number)) return true;
    }
}

/// Reads a bearing; false without having taken anything if there is none here.
bool takeBearing(WideCursor& in, double& degrees) {
    constexpr double kQuarter = 90;
    if (in.take(L'E')) return degrees = 0, true;
    if (in.take(L'W')) return degrees = 2 * kQuarter, true;
    const bool north = in.take(L'N');
    if (!north && !in.take(L'S')) return false;
    if (in.atEnd()) return degrees = north ? kQuarter : 3 * kQuarter, true;
    double amount = 0;
    in.skipBlanks();
    if (!takeDegrees(in, true, amount) || amount > kQuarter) return false;
    in.skipBlanks();
    const bool east = in.take(L'E');
    if (!east && !in.take(L'W')) return false;
    if (north)
        degrees = east ? kQuarter - amount : kQuarter + amount;
    else
        degrees = east ? 3 * kQuarter + amount : 3 * kQuarter - amount;
    if (degrees >= 4 * kQuarter) degrees -= 4 * kQuarter;
    return true;
}

/// Reads a number with the suffix of its unit, or in the unit of the mode.
bool takeAmount(WideCursor& in, int mode, double& radians) {
    const std::wstring_view start = in.rest();
    const std::wstring_view number = in.takeNumber();
    double value = 0;
    const bool suffixR = !number.empty() && in.take(L'r');
    const bool suffixG = !suffixR && !number.empty() && in.take(L'g');
    const bool bare = !number.empty() && in.atEnd();
    if (suffixR || (bare && mode == kRadians && !suffixG)) return ktdbNumberValue(number, radians);
    if (suffixG || (bare && mode == kGrads)) {
        if (!ktdbNumberValue(number, value)) return false;
        radians = radiansOf(value, 200.0L);
        return true;
    }
    in.restore(start);
    if (!takeDegrees(in, true, value)) return false;
    radians = radiansOf(value, 180.0L);
    return true;
}

}  // namespace

int ktdbAngToF2(int flag, const wchar_t* text, int unitMode, double* value) {
    const KtdbUnits units = unitMode == -1 || flag == 0 ? ktdbCurrentUnits() : KtdbUnits{};
    const int mode = ktdbSetting(unitMode, units.aunits, kDegrees, kSurveyor);
    if (!text || !value || mode < 0) return kKtdbInvalid;
    WideCursor in(text);
    double degrees = 0, radians = 0;
    const std::wstring_view start = in.rest();
    if (takeBearing(in, degrees)) {
        if (!in.atEnd()) return kKtdbInvalid;
        *value = radiansOf(degrees, 180.0L);
        return kKtdbOk;
    }
    in.restore(start);
    const bool negative = in.take(L'-');
    if (!negative) in.take(L'+');
    if (!takeAmount(in, mode, radians) || !in.atEnd() || !std::isfinite(radians)) return kKtdbInvalid;
    if (negative) radians = -radians;
    if (flag == 0) radians = units.angbase + (units.angdir ? -radians : radians);
    *value = radians;
    return kKtdbOk;
}

int ktdbAngToS(double value, int unitMode, int precision, wchar_t* buffer) {
    if (!buffer) return kKtdbInvalid;
    buffer[0] = L'\0';
    const KtdbUnits units = unitMode == -1 || precision == -1 ? ktdbCurrentUnits() : KtdbUnits{};
    const int mode = ktdbSetting(unitMode, units.aunits, kDegrees, kSurveyor);
    const int places = ktdbSetting(precision, units.auprec, 0, 8);
    if (mode < 0 || places < 0) return kKtdbInvalid;
    if (!std::isfinite(value)) return kKtdbRange;
    const double turn = static_cast<double>(2 * kPi);
    if (std::fabs(value) > kMostTurns * turn) value = std::fmod(value, turn);
    StackText out;
    if (mode == kSurveyor) {
        addBearing(out, degreesOf(value), places, unitMode == -1 && units.unitmode == 1);
        return out.give(buffer);
    }
    StackText size;
    if (!addAngle(size, std::fabs(value), mode, places)) return kKtdbRange;
    if (value < 0 && hasValue(size.view())) out.add('-');
    out.add(size.view());
    return out.give(buffer);
}
