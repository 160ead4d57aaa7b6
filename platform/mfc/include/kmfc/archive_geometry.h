// Points, sizes and rectangles in archives.
#pragma once

#include <kmfc/archive.h>
#include <kmfc/exceptions.h>
#include <kmfc/geometry.h>

namespace kmfc {

template <class Value>
CArchive& write_value(CArchive& ar, const Value& value) {
    ar.Write(&value, sizeof(value));
    return ar;
}

/// Throws CArchiveException at the end of the file.
template <class Value>
CArchive& read_value(CArchive& ar, Value& value) {
    if (ar.Read(&value, sizeof(value)) != sizeof(value))
        AfxThrowArchiveException(CArchiveException::endOfFile);
    return ar;
}

}  // namespace kmfc

inline CArchive& operator<<(CArchive& ar, const POINT& point) { return kmfc::write_value(ar, point); }
inline CArchive& operator<<(CArchive& ar, const SIZE& size) { return kmfc::write_value(ar, size); }
inline CArchive& operator<<(CArchive& ar, const RECT& rect) { return kmfc::write_value(ar, rect); }
inline CArchive& operator>>(CArchive& ar, POINT& point) { return kmfc::read_value(ar, point); }
inline CArchive& operator>>(CArchive& ar, SIZE& size) { return kmfc::read_value(ar, size); }
inline CArchive& operator>>(CArchive& ar, RECT& rect) { return kmfc::read_value(ar, rect); }
