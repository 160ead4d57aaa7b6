#include <kmfc/ole_data.h>

namespace {

thread_local bool isReady = false;

}  // namespace

BOOL AfxOleInit() {
    if (isReady) return TRUE;
    isReady = SUCCEEDED(::OleInitialize(nullptr));
    return isReady;
}

void AfxOleTerm(BOOL bJustRevoke) {
    if (!isReady || bJustRevoke) return;
    isReady = false;
    ::OleUninitialize();
}
