// The status word that every call into the host and the drawing runtime answers.
#pragma once

/// Code of success of the host's and the drawing services' calls. Every other value is a failure; callers
/// make no further distinction.
constexpr int kKhStatusOk = 5100;
