// The dialog that finds a file in folders. Private to the library.
#pragma once

class OdString;

/// Looks for files of the types in `filter` (as the platform's dialog takes them), at first of type
/// `filterIndex` (from 1) in `folder`. True with the folder and the name of the file chosen.
bool ktuiFindFileDialog(const wchar_t* filter, int filterIndex, const wchar_t* folder, OdString& outFolder,
                        OdString& outFile);
