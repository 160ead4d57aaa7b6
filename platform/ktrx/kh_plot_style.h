// The optional service that knows the plot styles of a style sheet.
#pragma once

#include "kh_service_manager.h"
#include "od_array.h"
#include "od_string.h"

/// Name under which the service is registered.
constexpr const wchar_t* kKhPlotStyleService = L"CKhPlotStyle";

class CKhPlotStyle : public CKhService {
public:
    /// Fills `names` with the style names of the style sheet file `sheet` ("monochrome.stb"). False if the
    /// sheet can't be read, and `names` is then not looked at.
    virtual bool getStyleNames(const OdString& sheet, OdArray<OdString>& names) = 0;

protected:
    ~CKhPlotStyle() = default;
};
