#include <ktui/nav/never_blocked.h>

#include <atomic>

namespace {

std::atomic<unsigned> limit = 0;

}  // namespace

unsigned KtUiSetNeverBlocked(unsigned milliseconds) { return limit.exchange(milliseconds); }

unsigned KtUiNeverBlockedLimit() { return limit; }
