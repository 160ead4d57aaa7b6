#include <ktui/nav/find_file_walk.h>

#include <atomic>

namespace {

std::atomic<KTUI_FIND_FILE_WALK> chosen = kKtUiFindSettled;

}  // namespace

KTUI_FIND_FILE_WALK KtUiSetFindFileWalk(KTUI_FIND_FILE_WALK walk) {
    return chosen.exchange(walk == kKtUiFindOnce ? kKtUiFindOnce : kKtUiFindSettled);
}

KTUI_FIND_FILE_WALK KtUiFindFileWalk() { return chosen; }
