// CKtUiLTypeRecord: one linetype as the linetype picker knows it. The address of a record is the cargo of its
// item.
#pragma once

#include <afxwin.h>
#include <od_db_object_id.h>

#include <ktui/ktui_api.h>

class KTUI_API CKtUiLTypeRecord : public CObject {
public:
    /// A record of linetype `id`, shown as `name`.
    CKtUiLTypeRecord(const CString& name, const OdDbObjectId& id);
    ~CKtUiLTypeRecord() override;
    CKtUiLTypeRecord(const CKtUiLTypeRecord&) = delete;
    CKtUiLTypeRecord& operator=(const CKtUiLTypeRecord&) = delete;

    /// The record whose address is `cargo`, or null if no record lives there: an item may outlive its record.
    static CKtUiLTypeRecord* fromCargo(__int64 cargo);
    /// The address, as an item carries it.
    __int64 cargo() const { return static_cast<__int64>(reinterpret_cast<INT_PTR>(this)); }

    CString m_name;     ///< as the drawing has it
    OdDbObjectId m_id;  ///< in the linetype table
    int m_flags = 0;    ///< always 0
};
