// Automation, as far as its exceptions and its dates go.
#pragma once
#define __AFXDISP_H__  ///< what programs test to see that this header was there

#include <afxwin.h>

#include <ATLComTime.h>
#include <kmfc/ole_exception.h>
