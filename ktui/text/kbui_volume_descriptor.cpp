#include <ktui/text/kbui_volume_descriptor.h>

CKbUiVolumeDescriptor::CKbUiVolumeDescriptor(const CString&) {}
CKbUiVolumeDescriptor::~CKbUiVolumeDescriptor() = default;

int CKbUiVolumeDescriptor::CheckReadOnly() const { return m_isReadOnly; }
int CKbUiVolumeDescriptor::AllowsCaseSensitiveLookup() const { return 0; }
int CKbUiVolumeDescriptor::IsCaseSensitive() const { return 0; }
int CKbUiVolumeDescriptor::PreservesCase() const { return 0; }
void CKbUiVolumeDescriptor::VolCase(CString&) const {}
int CKbUiVolumeDescriptor::VolMatch(const CString*, const CString*) const { return 1; }
int CKbUiVolumeDescriptor::VolMatch(const wchar_t*, const CString*) const { return 1; }
const CString* CKbUiVolumeDescriptor::GetLocalName() const { return m_localName; }
int CKbUiVolumeDescriptor::VolumeValid() const { return 0; }
int CKbUiVolumeDescriptor::WillFit(DWORD) const { return 0; }
__int64 CKbUiVolumeDescriptor::GetVolFreeSpace() const { return 0; }

int CKbUiVolumeDescriptor::GetConnectionName(CString&) const { return 0; }
int CKbUiVolumeDescriptor::Find(CString&, unsigned) { return 0; }
int CKbUiVolumeDescriptor::IsControl(int) const { return 0; }

#define KTUI_VOLUME_DESCRIPTOR(Class)                                  \
    Class::Class(const CString& name) : CKbUiVolumeDescriptor(name) {} \
    int Class::ValidateFilename(const CString*, int) { return 0; }     \
    int Class::ValidateSegment(const CString*, int) { return 0; }

KTUI_VOLUME_DESCRIPTOR(CKbUiNTFSVolumeDescriptor)
KTUI_VOLUME_DESCRIPTOR(CKbUiVFATVolumeDescriptor)
KTUI_VOLUME_DESCRIPTOR(CKbUiHPFSVolumeDescriptor)
KTUI_VOLUME_DESCRIPTOR(CKbUiCDFSVolumeDescriptor)
KTUI_VOLUME_DESCRIPTOR(CKbUiUFSVolumeDescriptor)
KTUI_VOLUME_DESCRIPTOR(CKbUiNOFSVolumeDescriptor)
KTUI_VOLUME_DESCRIPTOR(CKbUiFATVolumeDescriptor)
