#include "draft_document.h"

#include <ktut.h>

#include <windows.h>

namespace {

/// When a file was written last; 0 for none.
unsigned long long whenWritten(const wchar_t* path) {
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (!::GetFileAttributesExW(path, GetFileExInfoStandard, &data)) return 0;
    return static_cast<unsigned long long>(data.ftLastWriteTime.dwHighDateTime) << 32 |
           data.ftLastWriteTime.dwLowDateTime;
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

bool CDraftDocument::Save(const wchar_t* path) {
    if (m_drawing->writeDxf(path) != kOdOk) return false;
    m_history->MarkSaved();
    m_reading = {};
    m_written = whenWritten(path);
    m_isNew = false;
    return true;
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

bool CDraftDocument::setBool(const wchar_t* name, bool value) { return setInt(name, value ? 1 : 0); }
