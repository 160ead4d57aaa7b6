// A file that takes the place of another when it is complete.
#pragma once

#include <kmfc/file.h>

namespace kmfc {

/// Written under a name of its own in the folder of the file that it replaces, so that a failure leaves that
/// whole. Closing puts it in place; Abort and the destructor give it up. Where the folder takes no new file,
/// or the file is a link or the like, the file itself is written.
class ReplacingFile : public CFile {
public:
    ReplacingFile() = default;
    ~ReplacingFile() override;

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    /// Throws CFileException when the file can't be put in place; what was written is given up then.
    void Close() override;
    void Abort() override;
    /// The file that is replaced.
    CString GetFilePath() const override { return m_target; }

private:
    void give_up();

    CString m_target;
    CString m_temporary;  ///< empty where the file itself is written
};

}  // namespace kmfc
