// CKbUiVolumeDescriptor and its kin: what is known of a volume, a class for each kind of file system.
//
// An interface with agreed answers: nothing here asks a file system, and nothing fills the fields. A client
// that needs them derives a class that does.
#pragma once

#include <afx.h>

#include <ktui/ktui_api.h>

class KTUI_API CKbUiVolumeDescriptor {
public:
    // Kept: the name is not stored.
    explicit CKbUiVolumeDescriptor(const CString& name);
    CKbUiVolumeDescriptor(const CKbUiVolumeDescriptor&) = default;
    CKbUiVolumeDescriptor& operator=(const CKbUiVolumeDescriptor&) = default;
    virtual ~CKbUiVolumeDescriptor();

    virtual int CheckReadOnly() const;
    // Kept: these answer 0.
    virtual int AllowsCaseSensitiveLookup() const;
    virtual int IsCaseSensitive() const;
    virtual int PreservesCase() const;
    // Kept: the name stays as it is.
    virtual void VolCase(CString& name) const;
    // Kept: every name matches.
    virtual int VolMatch(const CString* a, const CString* b) const;
    virtual int VolMatch(const wchar_t* a, const CString* b) const;
    /// The field; not owned.
    virtual const CString* GetLocalName() const;
    // Kept: these answer 0.
    virtual int VolumeValid() const;
    virtual int WillFit(DWORD bytes) const;
    virtual __int64 GetVolFreeSpace() const;

    /// 1 or 0.
    int IsRemote() const { return m_isRemote; }
    int IsRemovable() const { return m_isRemovable; }

protected:
    // Kept: these do nothing; the answers are 0.
    int GetConnectionName(CString& name) const;
    int Find(CString& name, unsigned flags);
    int IsControl(int character) const;

    int m_fileSystem = 0;
    unsigned m_flag0 : 1 = 0;
    unsigned m_isRemovable : 1 = 0;
    unsigned m_flag2 : 1 = 0;
    unsigned m_isRemote : 1 = 0;
    unsigned m_flag4 : 1 = 0;
    unsigned m_isReadOnly : 1 = 0;
    unsigned m_flag6 : 1 = 0;
    const CString* m_localName = nullptr;  ///< not owned
    unsigned m_numbers[6] = {};
    __int64 m_largeNumbers[3] = {};
};

// What the classes have besides their names: a constructor, and two tests that reject no name.
#define KTUI_VOLUME_DESCRIPTOR_MEMBERS(Class)             \
public:                                                   \
    explicit Class(const CString& name);                  \
    Class(const Class&) = default;                        \
    Class& operator=(const Class&) = default;             \
    /* Kept: both answer 0. */                            \
    int ValidateFilename(const CString* name, int flags); \
    int ValidateSegment(const CString* segment, int flags);

class KTUI_API CKbUiNTFSVolumeDescriptor : public CKbUiVolumeDescriptor {
    KTUI_VOLUME_DESCRIPTOR_MEMBERS(CKbUiNTFSVolumeDescriptor)
};
class KTUI_API CKbUiVFATVolumeDescriptor : public CKbUiVolumeDescriptor {
    KTUI_VOLUME_DESCRIPTOR_MEMBERS(CKbUiVFATVolumeDescriptor)
};
class KTUI_API CKbUiHPFSVolumeDescriptor : public CKbUiVolumeDescriptor {
    KTUI_VOLUME_DESCRIPTOR_MEMBERS(CKbUiHPFSVolumeDescriptor)
};
class KTUI_API CKbUiCDFSVolumeDescriptor : public CKbUiVolumeDescriptor {
    KTUI_VOLUME_DESCRIPTOR_MEMBERS(CKbUiCDFSVolumeDescriptor)
};
class KTUI_API CKbUiUFSVolumeDescriptor : public CKbUiVolumeDescriptor {
    KTUI_VOLUME_DESCRIPTOR_MEMBERS(CKbUiUFSVolumeDescriptor)
};
class KTUI_API CKbUiNOFSVolumeDescriptor : public CKbUiVolumeDescriptor {
    KTUI_VOLUME_DESCRIPTOR_MEMBERS(CKbUiNOFSVolumeDescriptor)
};
class KTUI_API CKbUiFATVolumeDescriptor : public CKbUiVolumeDescriptor {
    KTUI_VOLUME_DESCRIPTOR_MEMBERS(CKbUiFATVolumeDescriptor)

protected:
    __int64 m_fatNumber = 0;
};

#undef KTUI_VOLUME_DESCRIPTOR_MEMBERS
