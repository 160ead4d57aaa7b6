// Degrees, as files hold them, and radians, as interfaces speak.
#pragma once

constexpr double kOdPi = 3.14159265358979323846;

/// Radians of an angle in degrees.
constexpr double odRadians(double degrees) { return degrees * (kOdPi / 180.0); }
/// Degrees of an angle in radians.
constexpr double odDegrees(double radians) { return radians * (180.0 / kOdPi); }
