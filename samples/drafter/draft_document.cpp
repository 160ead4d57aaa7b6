#include "draft_document.h"

#include <ktut.h>

CDraftDocument::CDraftDocument() : m_drawing(new OdDbDatabase) {}

bool CDraftDocument::Open(const wchar_t* path, OdDbDxfError& error) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    if (drawing->readDxf(path, &error) != kOdOk) return false;
    m_drawing = drawing;
    m_isNew = false;
    return true;
}

bool CDraftDocument::StartFrom(const wchar_t* path, OdDbDxfError& error) {
    if (!Open(path, error)) return false;
    m_isNew = true;
    return true;
}

bool CDraftDocument::Save(const wchar_t* path) {
    if (m_drawing->writeDxf(path) != kOdOk) return false;
    m_isNew = false;
    return true;
}

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
