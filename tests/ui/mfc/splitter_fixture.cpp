#include "splitter_fixture.h"

namespace documents_test {

IMPLEMENT_DYNCREATE(Leaf, CScrollView)
IMPLEMENT_DYNCREATE(SplitFrame, CFrameWnd)

}  // namespace documents_test
