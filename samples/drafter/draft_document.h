// CDraftDocument: the open drawing as the toolkit sees it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <kh_system.h>
#include <od_db.h>

#include "drawing_lock.h"
#include "undo_history.h"

class CDraftDocument final : public KtApDocument, private CKhVariableStore {
public:
    CDraftDocument();

    /// The changes of the drawing since it was opened.
    CUndoHistory& history() { return *m_history; }

    OdDbDatabase* database() override { return m_drawing.get(); }
    CKhDrawingView* drawingView() override { return nullptr; }
    CKhVariableStore* variables() override { return this; }

    /// Replaces the drawing by that of a file; on failure nothing changes and `error` says why. What was
    /// mended in it stands in Reading() until the drawing is saved.
    bool Open(const wchar_t* path, OdDbDxfError& error);
    const OdDxfReading& Reading() const { return m_reading; }
    /// The same for a template: the drawing is a new one then, without a file.
    bool StartFrom(const wchar_t* path, OdDbDxfError& error);
    /// Writes the drawing, with its thumbnail, in place of the file, which is kept with the extension .bak. A
    /// text file has the decimals of the document's variable DXFSAVEPRECISION, whatever `form` says.
    bool Save(const wchar_t* path, const OdDxfForm& form);
    /// The same in the form that the file has, or that of a new one.
    bool Save(const wchar_t* path) { return Save(path, m_form); }
    /// Whether a file of this version would lack something that the user wasn't told of yet; `losses` becomes
    /// all that it would lack.
    bool LosesMore(OdDb::DwgVersion version, std::vector<OdDxfLoss>& losses) const;
    /// Takes note that the user knows of these losses in this version.
    void AcceptLosses(OdDb::DwgVersion version, const std::vector<OdDxfLoss>& losses);
    /// The form of the drawing's file; 2018 as text for a new drawing.
    const OdDxfForm& form() const { return m_form; }
    /// Whether the page of options for exchange files says binary, and setting that; whoever listens hears of
    /// every setting, by the page too. Nobody listens at first.
    bool SavesBinary();
    void SetSavesBinary(bool binary);
    void SetBinaryListener(std::function<void()> listener) { m_binaryListener = std::move(listener); }
    /// Whether the drawing's file was written by others since it was opened or saved.
    bool IsFileNewer() const;

    /// The lock of the drawing's file.
    CDrawingLock& lock() { return m_lock; }
    /// Whether another program has the file, so that it must not be written.
    bool IsReadOnly() const { return m_isReadOnly; }
    void SetReadOnly(bool readOnly) { m_isReadOnly = readOnly; }

    /// Full path of the file, empty for a new drawing.
    OdString path() const { return m_isNew ? OdString() : m_drawing->getFilename(); }
    /// Name to show for the drawing, empty for a new one.
    OdString name() const;

private:
    bool getInt(const wchar_t* name, int& value) override;
    bool setInt(const wchar_t* name, int value) override;
    bool getBool(const wchar_t* name, bool& value) override;
    bool setBool(const wchar_t* name, bool value) override;

    OdDbDatabasePtr m_drawing;
    OdDxfReading m_reading;
    OdDxfForm m_form{OdDb::kDHL_1032};
    OdDb::DwgVersion m_acceptedVersion = OdDb::kDHL_Unknown;
    std::vector<OdDxfLoss> m_acceptedLosses;
    std::unique_ptr<CUndoHistory> m_history;
    unsigned long long m_written = 0;  ///< when the file was, as far as we know; 0 without one
    CDrawingLock m_lock;
    bool m_isReadOnly = false;
    bool m_isNew = false;  ///< the file that the drawing was read from is its template
    std::map<std::wstring, int> m_numbers;
    std::function<void()> m_binaryListener;
};
