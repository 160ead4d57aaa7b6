#include "view_frame.h"

namespace documents_test {

IMPLEMENT_DYNCREATE(Sheet, CScrollView)
IMPLEMENT_DYNCREATE(Form, CFormView)

}  // namespace documents_test
