// The code of comments, which stand behind everything else of their record.
#pragma once

inline constexpr int kOdComment = 999;
