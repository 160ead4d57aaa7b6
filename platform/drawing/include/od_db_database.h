// OdDbDatabase, one drawing in memory: tables, dictionaries, layouts, entities and header variables, read
// from and written to DXF files, text or binary, from R12 to 2018.
//
//     OdSmartPtr<OdDbDatabase> drawing(new OdDbDatabase);
//     OdDbDxfError error;
//     if (drawing->readDxf(L"part.dxf", &error) != kOdOk) show(error.text, error.line);
//
// What the runtime doesn't understand (objects, entities, sections, groups, variables) is kept and written
// back. A failed read leaves the drawing as it was.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include "od_db_block_table.h"
#include "od_db_dictionary.h"
#include "od_db_dim_style_table.h"
#include "od_db_layer_table.h"
#include "od_db_layout.h"
#include "od_db_linetype_table.h"
#include "od_db_text_style_table.h"
#include "od_dxf_error.h"
#include "od_dxf_form.h"
#include "od_dxf_loss.h"
#include "od_dxf_reading.h"
#include "od_header_variables.h"

struct OdDbStore;

/// One drawing. Make it with new and hold it in an OdSmartPtr. Ids of its objects must not be used after it.
class ODRT_API OdDbDatabase : public OdRxObject {
public:
    /// An empty metric drawing of the newest version: layer 0, the linetypes ByLayer, ByBlock and Continuous,
    /// the text and dimension style Standard, a model and one paper layout, plot style "Normal".
    OdDbDatabase();
    ~OdDbDatabase() override;

    /// Replaces the contents by those of a DXF file. On failure nothing changes, the result isn't
    /// kOdOk, and `error` (if not null) says why. What is wrong in a file that can be read all the same is
    /// mended; `reading` (if not null) tells where and how, or forbids it.
    OdResult readDxf(const wchar_t* path, OdDbDxfError* error = nullptr, OdDxfReading* reading = nullptr);
    /// The same from the bytes of such a file.
    OdResult readDxfBytes(std::string_view bytes, OdDbDxfError* error = nullptr,
                          OdDxfReading* reading = nullptr);
    /// Writes the drawing as a DXF file. Its bytes go to a file beside `path` first, which then takes its
    /// place: a failure leaves an older file whole. R12 has no form for some entities: flat polylines,
    /// ellipses, splines and paragraphs become what R12 has, and the others are left out and counted in
    /// `error`.
    OdResult writeDxf(const wchar_t* path, const OdDxfForm& form, OdDbDxfError* error = nullptr);
    /// The same in the version given (kDHL_Unknown: that of the file that was read), binary if that file was.
    OdResult writeDxf(const wchar_t* path, OdDb::DwgVersion version = OdDb::kDHL_Unknown,
                      OdDbDxfError* error = nullptr);
    /// The same into memory. Lines of a text end with CR LF.
    std::string writeDxfBytes(const OdDxfForm& form, OdDbDxfError* error = nullptr);
    std::string writeDxfBytes(OdDb::DwgVersion version = OdDb::kDHL_Unknown, OdDbDxfError* error = nullptr);
    /// What a file of this version (kDHL_Unknown: of that which was read) would not hold of the drawing, or
    /// in another form: by kind and type, with counts, in the order of the file. Empty where everything has
    /// its place. What a new drawing has as well, and no file needs, isn't among it. Takes about as long as
    /// writing.
    std::vector<OdDxfLoss> lossesIn(OdDb::DwgVersion version = OdDb::kDHL_Unknown) const;
    /// The version of the file that was read; kDHL_1032 for a new drawing.
    OdDb::DwgVersion originalFileVersion() const;
    /// Whether that file was a binary one; false for a new drawing.
    bool originalFileIsBinary() const;
    /// The path last read from or written to; empty for none.
    const OdString& getFilename() const { return m_fileName; }
    /// Whether anything was opened for writing or set since the last read or write.
    bool isModified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }

    /// The tables. kOdOk, with `table` set.
    OdResult getLayerTable(OdDbLayerTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getLinetypeTable(OdDbLinetypeTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getTextStyleTable(OdDbTextStyleTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getBlockTable(OdDbBlockTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getDimStyleTable(OdDbDimStyleTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getViewTable(OdDbSymbolTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getUCSTable(OdDbSymbolTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getViewportTable(OdDbSymbolTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getRegAppTable(OdDbSymbolTablePtr& table, OdDb::OpenMode mode = OdDb::kForRead);

    /// The dictionaries. kOdOk, or kOdKeyNotFound with `dictionary` null.
    OdResult getNamedObjectsDictionary(OdDbDictionaryPtr& dictionary, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getPlotStyleNameDictionary(OdDbDictionaryPtr& dictionary, OdDb::OpenMode mode = OdDb::kForRead);
    OdResult getLayoutDictionary(OdDbDictionaryPtr& dictionary, OdDb::OpenMode mode = OdDb::kForRead);

    /// The block that new entities go to: model space, or the paper space in use when TILEMODE is 0.
    OdDbObjectId currentSpaceId() const;
    OdDbObjectId modelSpaceId() const;
    OdDbObjectId paperSpaceId() const;
    /// The layout that shows the current space.
    OdDbObjectId currentLayoutId() const;

    /// The current layer; null only if even layer 0 was erased.
    OdDbObjectId clayer() const;
    /// kOdInvalidInput if `id` is no layer of this drawing.
    OdResult setClayer(const OdDbObjectId& id);
    /// The current colour, linetype and lineweight for new entities.
    OdCmColor cecolor() const;
    void setCecolor(const OdCmColor& color);
    OdDbObjectId celtype() const;
    OdResult setCeltype(const OdDbObjectId& id);
    OdDb::LineWeight celweight() const;
    OdResult setCelweight(OdDb::LineWeight weight);
    /// The current plot style for new entities, by the names of OdDbEntity::plotStyleName.
    OdString currentPlotStyleName() const;
    /// kOdKeyNotFound for a name that the plot style name dictionary lacks.
    OdResult setCurrentPlotStyleName(const wchar_t* name);
    /// The current text style.
    OdDbObjectId textstyle() const;
    OdResult setTextstyle(const OdDbObjectId& id);
    /// The current dimension style; that of Standard if the header names one that isn't there.
    OdDbObjectId dimstyle() const;
    OdResult setDimstyle(const OdDbObjectId& id);

    /// A getter and a setter for each known header variable.
#define ODDB_DECLARE_INTEGER(name, code, value, version)                        \
    int get##name() const { return static_cast<int>(header().integer(#name)); } \
    void set##name(int newValue) { editHeader().setInteger(#name, newValue); }
    ODDB_INTEGER_VARIABLES(ODDB_DECLARE_INTEGER)
#undef ODDB_DECLARE_INTEGER
#define ODDB_DECLARE_REAL(name, code, value, version)         \
    double get##name() const { return header().real(#name); } \
    void set##name(double newValue) { editHeader().setReal(#name, newValue); }
    ODDB_REAL_VARIABLES(ODDB_DECLARE_REAL)
#undef ODDB_DECLARE_REAL
#define ODDB_DECLARE_POINT(name, code, x, y, z, count, version)     \
    OdGePoint3d get##name() const { return header().point(#name); } \
    void set##name(const OdGePoint3d& newValue) { editHeader().setPoint(#name, newValue); }
    ODDB_POINT_VARIABLES(ODDB_DECLARE_POINT)
#undef ODDB_DECLARE_POINT
    OdString getDIMSTYLE() const { return header().text("DIMSTYLE"); }
    void setDIMSTYLE(const wchar_t* name) { editHeader().setText("DIMSTYLE", name); }

    /// All header variables.
    const OdDbHeader& header() const;
    OdDbHeader& editHeader();
    /// The settings by which numbers become text.
    const OdDbUnitSettings& units() const { return header().units(); }

    /// The object with this number, erased or not; null if there is none.
    OdDbObject* objectByHandle(OdDbHandle handle) const;
    /// The bytes of the preview image (a device-independent bitmap); empty if there is none.
    std::string thumbnail() const;
    /// Puts another image in its place, or none. It goes with a file from 2000 on; the drawing itself counts
    /// as unchanged, and there is nothing to undo.
    void setThumbnail(std::string_view dib);

private:
    friend struct OdDbStore;
    friend class OdDbObject;
    friend class OdDbObjectId;
    friend class OdDbLinetypeUses;
    OdResult openTable(int kind, OdSmartPtr<OdDbSymbolTable>& table, OdDb::OpenMode mode);

    std::unique_ptr<OdDbStore> m_store;
    OdString m_fileName;
    bool m_modified = false;
};
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;
