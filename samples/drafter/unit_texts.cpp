#include "unit_texts.h"

#include <ktdb.h>
#include <od_db.h>

CString FormatDistance(double value) {
    wchar_t text[kKtdbBufferSize];
    return ktdbRToS(value, -1, -1, text) == kKtdbOk ? CString(text) : CString();
}

CString FormatNumber(double value) {
    wchar_t text[kKtdbBufferSize];
    return ktdbRToS(value, OdDb::kDecimal, -1, text) == kKtdbOk ? CString(text) : CString();
}

CString FormatTilt(double radians) {
    const OdDbDatabase* drawing = oddbHostApplicationServices()->workingDatabase();
    const bool hasBearings = drawing != nullptr && drawing->getAUNITS() == OdDb::kSurveyor;
    wchar_t text[kKtdbBufferSize];
    const int mode = hasBearings ? static_cast<int>(OdDb::kDegrees) : -1;
    return ktdbAngToS(radians, mode, -1, text) == kKtdbOk ? CString(text) : CString();
}

CString FormatAngle(double radians) {
    wchar_t text[kKtdbBufferSize];
    return ktdbAngToS(radians, -1, -1, text) == kKtdbOk ? CString(text) : CString();
}
