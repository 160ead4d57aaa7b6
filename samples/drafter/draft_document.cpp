#include "draft_document.h"

#include <ktut.h>

#include <windows.h>

#include <algorithm>

#include "drawing_thumbnail.h"

namespace {

// Variables of the page of options for exchange files.
constexpr const wchar_t* kPrecision = L"DXFSAVEPRECISION";
constexpr const wchar_t* kBinary = L"DXFSAVEBINARY";

/// When a file was written last; 0 for none.
unsigned long long whenWritten(const wchar_t* path) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &data)) return 0;
    return static_cast<unsigned long long>(data.ftLastWriteTime.dwHighDateTime) << 32 |
           data.ftLastWriteTime.dwLowDateTime;
}

/// Keeps what stands at `path` as the file of that name with the extension .bak. The former backup stays
/// until the new one is whole. Where there can be none, the drawing is saved all the same: its own file is
/// not touched before the new one is whole.
void keepBackup(const wchar_t* path) {
    OdString drive, folder, name, extension;
    ktutSplitPath(path, &drive, &folder, &name, &extension);
    if (extension.iCompare(L".bak") == 0) return;
    const OdString backup = drive + folder + name + L".bak";
    const OdString beside = backup + L".new";
    if (!::CopyFileW(path, beside.c_str(), FALSE)) return;
    ::SetFileAttributesW(beside.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (!::MoveFileExW(beside.c_str(), backup.c_str(), MOVEFILE_REPLACE_EXISTING))
        ::DeleteFileW(beside.c_str());
}

}  // namespace

CDraftDocument::CDraftDocument()
    : m_drawing(new OdDbDatabase), m_history(std::make_unique<CUndoHistory>(m_drawing)) {}

bool CDraftDocument::Open(const wchar_t* path, OdDbDxfError& error) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDxfReading reading;
    if (drawing->readDxf(path, &error, &reading) != kOdOk) return false;
    m_reading = std::move(reading);
    m_drawing = drawing;
    m_form = {drawing->originalFileVersion(), drawing->originalFileIsBinary()};
    m_history = std::make_unique<CUndoHistory>(m_drawing);
    m_written = whenWritten(path);
    m_isNew = false;
    return true;
}

bool CDraftDocument::StartFrom(const wchar_t* path, OdDbDxfError& error) {
    if (!Open(path, error)) return false;
    m_isNew = true;
    m_written = 0;
    return true;
}

bool CDraftDocument::Save(const wchar_t* path, const OdDxfForm& form) {
    m_drawing->setThumbnail(DrawingThumbnail(*m_drawing));
    keepBackup(path);
    OdDxfForm written = form;
    getInt(kPrecision, written.precision);
    if (m_drawing->writeDxf(path, written) != kOdOk) return false;
    m_form = written;
    m_history->MarkSaved();
    m_reading = {};
    m_written = whenWritten(path);
    m_isNew = false;
    return true;
}

bool CDraftDocument::LosesMore(OdDb::DwgVersion version, std::vector<OdDxfLoss>& losses) const {
    losses = m_drawing->lossesIn(version);
    const auto isKnown = [&](const OdDxfLoss& loss) {
        return std::any_of(m_acceptedLosses.begin(), m_acceptedLosses.end(), [&](const OdDxfLoss& known) {
            return known.kind == loss.kind && known.type == loss.type && known.becomes == loss.becomes &&
                   known.count >= loss.count;
        });
    };
    return version != m_acceptedVersion ? !losses.empty()
                                        : !std::all_of(losses.begin(), losses.end(), isKnown);
}

void CDraftDocument::AcceptLosses(OdDb::DwgVersion version, const std::vector<OdDxfLoss>& losses) {
    m_acceptedVersion = version;
    m_acceptedLosses = losses;
}

bool CDraftDocument::IsFileNewer() const { return m_written != 0 && whenWritten(path().c_str()) > m_written; }

OdString CDraftDocument::name() const {
    OdString name, extension;
    ktutSplitPath(path(), nullptr, nullptr, &name, &extension);
    return name + extension;
}

bool CDraftDocument::getInt(const wchar_t* name, int& value) {
    const auto found = m_numbers.find(name);
    if (found == m_numbers.end()) return false;
    value = found->second;
    return true;
}

bool CDraftDocument::setInt(const wchar_t* name, int value) {
    m_numbers[name] = value;
    return true;
}

bool CDraftDocument::getBool(const wchar_t* name, bool& value) {
    int number = 0;
    if (!getInt(name, number)) return false;
    value = number != 0;
    return true;
}

bool CDraftDocument::setBool(const wchar_t* name, bool value) {
    setInt(name, value ? 1 : 0);
    if (m_binaryListener && std::wcscmp(name, kBinary) == 0) m_binaryListener();
    return true;
}

bool CDraftDocument::SavesBinary() {
    bool isBinary = false;
    getBool(kBinary, isBinary);
    return isBinary;
}

void CDraftDocument::SetSavesBinary(bool binary) { setBool(kBinary, binary); }
