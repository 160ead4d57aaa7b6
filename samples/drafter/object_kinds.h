// What the user calls the objects of a drawing.
#pragma once

#include <vector>

#include <afxwin.h>
#include <od_db.h>

/// The kind of an object, such as "Line"; its name in files if it has none in words.
CString KindOf(const OdDbEntity& entity);

/// The objects in words, such as "Line", "2 Lines" or, of several kinds, "3 objects".
CString DescribeObjects(const std::vector<OdDbObjectId>& objects);
