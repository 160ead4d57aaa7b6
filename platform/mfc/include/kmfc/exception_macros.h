// TRY, CATCH and their kin: try and catch with the exception freed at the end of the block.
//
//     TRY {
//         file.Write(data, size);
//     }
//     CATCH(CFileException, e) {
//         report(e->m_cause);        // freed after the block; THROW_LAST() passes it on instead
//     }
//     END_CATCH
#pragma once

#include "kmfc/exceptions.h"

/// One TRY block in progress. Frees the exception it caught when it ends.
struct KMFC_API AFX_EXCEPTION_LINK {
    AFX_EXCEPTION_LINK();
    ~AFX_EXCEPTION_LINK();
    AFX_EXCEPTION_LINK(const AFX_EXCEPTION_LINK&) = delete;
    AFX_EXCEPTION_LINK& operator=(const AFX_EXCEPTION_LINK&) = delete;

    AFX_EXCEPTION_LINK* m_pLinkPrev;  ///< the TRY block around this one, on this thread
    CException* m_pException;         ///< what was caught; freed at the end of the block
};

/// Hands a caught exception to the innermost TRY block of this thread.
KMFC_API void AFXAPI AfxKeepCaught(CException* pException);
/// Takes the exception back from the innermost TRY block, so that it lives on when thrown again.
KMFC_API void AFXAPI AfxThrowLastCleanup();

#define KMFC_JOIN2(a, b) a##b
#define KMFC_JOIN(a, b) KMFC_JOIN2(a, b)

#define TRY                                                             \
    {                                                                   \
        AFX_EXCEPTION_LINK KMFC_JOIN(afx_exception_link_, __COUNTER__); \
        try {
#define CATCH(class_name, e) \
    }                        \
    catch (class_name * e) { \
        AfxKeepCaught(e);
#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define END_CATCH \
    }             \
    }
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) CATCH(CException, e)
#define END_CATCH_ALL END_CATCH
/// Ends a TRY block that swallows every exception.
#define END_TRY CATCH(CException, e) END_CATCH
#define THROW(e) throw e
#define THROW_LAST() (AfxThrowLastCleanup(), throw)
