// The exception classes that are thrown and caught as pointers, and the functions that throw them.
//
// An exception is deleted by whoever handles it, with Delete(): it frees those made on the heap and leaves
// the shared ones, so a handler need not know which it has got. The CATCH macros do that by themselves.
#pragma once

#include "kmfc/object.h"

/// Base of all exceptions.
class KMFC_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException() : m_bAutoDelete(TRUE) {}
    /// `bAutoDelete` FALSE for an object that Delete() must leave alone.
    explicit CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

    /// Frees the object if it was made on the heap.
    void Delete();
    /// Copies a text for the user, cut to `nMaxError` characters with the closing zero. FALSE, and an empty
    /// text, when there is none. `pnHelpContext`, if given, receives 0.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const;
#ifdef _WIN32
    /// Shows the text (or that of string `nMessageID` when the exception has none) in a message box and
    /// answers its result.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);
#endif

    BOOL m_bAutoDelete;  ///< whether Delete() frees the object
};

/// Base of the exceptions that stand for one condition and have a fixed text.
class KMFC_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException() = default;
    explicit CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

protected:
    /// The fixed text in English.
    virtual LPCTSTR message() const;
};

#define KMFC_DECLARE_SIMPLE_EXCEPTION(class_name)                                \
    class KMFC_API class_name : public CSimpleException {                        \
        DECLARE_DYNAMIC(class_name)                                              \
    public:                                                                      \
        class_name() = default;                                                  \
        explicit class_name(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {} \
                                                                                 \
    protected:                                                                   \
        LPCTSTR message() const override;                                        \
    };

KMFC_DECLARE_SIMPLE_EXCEPTION(CMemoryException)        ///< memory is short
KMFC_DECLARE_SIMPLE_EXCEPTION(CNotSupportedException)  ///< a function this object does not have
KMFC_DECLARE_SIMPLE_EXCEPTION(CResourceException)      ///< a resource or system object could not be had
KMFC_DECLARE_SIMPLE_EXCEPTION(CUserException)          ///< the user has been told and the work is stopped
KMFC_DECLARE_SIMPLE_EXCEPTION(CInvalidArgException)    ///< an argument out of range

#undef KMFC_DECLARE_SIMPLE_EXCEPTION

[[noreturn]] KMFC_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] KMFC_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] KMFC_API void AFXAPI AfxThrowResourceException();
[[noreturn]] KMFC_API void AFXAPI AfxThrowUserException();

namespace kmfc {

/// Copies `text` to a buffer of `capacity` characters, cut at the end; answers whether there was any.
KMFC_API BOOL copy_message(LPCTSTR text, LPTSTR buffer, UINT capacity);

}  // namespace kmfc
