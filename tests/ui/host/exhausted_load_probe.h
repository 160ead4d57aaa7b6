// Exit codes of the program that loads the toolkit while memory runs out.
#pragma once

constexpr int kProbeLoaded = 70;          ///< a request was refused, and the toolkit is there
constexpr int kProbeLoadRefused = 71;     ///< a request was refused, and the load with it
constexpr int kProbeNothingRefused = 72;  ///< the load needed no more requests than were granted
constexpr int kProbeMisused = 73;
