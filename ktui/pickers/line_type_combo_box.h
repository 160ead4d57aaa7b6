// CKtUiLineTypeComboBox: picks a linetype of the working drawing. The list mirrors the drawing's linetype
// table: ByLayer, ByBlock, the others by name, none from external references. The cargo of an item is the
// address of its record; what an owner keeps is the record's id, since a reload replaces every record.
//
// The picker subscribes to nothing. When the current document or its table has changed the owner calls
// ShowLTypes(true) and selects again by id:
//
//     picker.ShowLTypes(true);
//     picker.setCurSelByOID(drawing->celtype());
#pragma once

#include <ktui/pickers/linetype_record.h>
#include <ktui/pickers/mru_combo_box.h>

#include <vector>

class OdDbDatabase;

class KTUI_API CKtUiLineTypeComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiLineTypeComboBox)

public:
    CKtUiLineTypeComboBox();
    ~CKtUiLineTypeComboBox() override;

    /// Puts the linetype of the current layer into `id`, for the ByLayer sample. This class answers false and
    /// leaves `id` alone, and the sample is then that of ByLayer itself.
    virtual bool GetCurrentLayerLineType(OdDbObjectId& id);
    /// Non-zero if the current layer's linetype is overridden in the viewport, which the ByLayer item then
    /// says. This class answers 0.
    virtual int GetCurrentLayerVpOverride();

    /// Fills the list anew from the working drawing; without `force` only if it mirrors none. The selection
    /// is lost, the Other item comes back with the next drop-down.
    void ShowLTypes(bool force);
    /// Reads the records of the working drawing, unless a drawing is mirrored and no reload was asked for.
    /// The list stays.
    void LoadContentsFromDatabase();
    /// Deletes all records. Their items stay and stand for no linetype any more.
    void emptyLTypeLocalList();
    /// Fills an empty list: the records only, no option items and no store entries.
    void AddItems();

    /// Index of the first item of linetype `id`, or -1. An item with a cargo of 0 stands for the null id.
    int FindItemByCargo(OdDbObjectId id);
    /// Inserts an item for `record` before the item of the same linetype, which stays, or at the end; answers
    /// its index, or -1. The record stays the caller's and must live as long as the item.
    int AddLTypeToControl(CKtUiLTypeRecord* record);
    /// The record of the item of linetype `id` if the mirrored drawing has it, with its name put into `name`;
    /// otherwise a new record with `name` and `id`, which the caller owns.
    CKtUiLTypeRecord* CreateLTRecord(CString& name, OdDbObjectId& id);

    /// Linetype of the selected item; null without one.
    OdDbObjectId getOIDCurSel();
    /// Linetype of item `index`; null without one.
    OdDbObjectId getOIDSel(int index);
    /// Selects the item of linetype `id` and makes it what the control falls back to; for an unknown linetype
    /// selects what it falls back to. Sends no notification.
    void setCurSelByOID(const OdDbObjectId& id);
    /// Index that the control falls back to when an Other item was chosen.
    int getLastSelection() const { return m_lastSelection; }
    /// Whether the selected item is the Other item, by its text.
    bool isOtherSelected();
    /// Closes the list if the Other item is selected; otherwise SelectOther.
    void forceSelectOther(int which);

    /// The drawing that the records mirror, or null. Not owned.
    OdDbDatabase* getLTLocalMapDB() const { return m_ltLocalMapDB; }
    void setLTLocalMapDB(OdDbDatabase* drawing) { m_ltLocalMapDB = drawing; }
    /// Whether the next load goes ahead although a drawing is mirrored.
    bool getDbReload() const { return m_dbReload; }
    void setDbReload(bool reload) { m_dbReload = reload; }

    void GetLBString(int index, CString& text) override;
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void OnComboBoxInit() override;
    void OnAddItems() override;
    int OnSelectOther(int which, int lastSel, int& newIndex) override;
    int ImageWidth() override;

protected:
    CObList m_ltypeList{10};  ///< owns the records; in display order
    OdDbDatabase* m_ltLocalMapDB = nullptr;
    CKtUiLTypeRecord* m_byLayerRecord = nullptr;  ///< in m_ltypeList
    bool m_dbReload = false;

private:
    void keepInOrder(const std::vector<OdDbObjectId>& ids, const OdDbObjectId& byLayer,
                     const OdDbObjectId& byBlock);
    bool mirrorsCurrentDocument() const;
};
