#include "unit_texts.h"

#include <ktdb.h>

CString FormatDistance(double value) {
    wchar_t text[kKtdbBufferSize];
    return ktdbRToS(value, -1, -1, text) == kKtdbOk ? CString(text) : CString();
}

CString FormatAngle(double radians) {
    wchar_t text[kKtdbBufferSize];
    return ktdbAngToS(radians, -1, -1, text) == kKtdbOk ? CString(text) : CString();
}
