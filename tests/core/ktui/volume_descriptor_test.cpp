#include <ktui/text/kbui_volume_descriptor.h>

#include <gtest/gtest.h>

#include <vector>

#include "../../support/slot_of.h"

namespace {

/// A descriptor whose fields a test fills.
template <class Base>
class OpenVolume : public Base {
public:
    explicit OpenVolume(const CString& name = L"C:") : Base(name) {}
    using Base::Find;
    using Base::GetConnectionName;
    using Base::IsControl;

    /// Sets the seven flags from the lowest bit on.
    void setFlags(unsigned flags) {
        this->m_flag0 = flags & 1;
        this->m_isRemovable = flags >> 1 & 1;
        this->m_flag2 = flags >> 2 & 1;
        this->m_isRemote = flags >> 3 & 1;
        this->m_flag4 = flags >> 4 & 1;
        this->m_isReadOnly = flags >> 5 & 1;
        this->m_flag6 = flags >> 6 & 1;
    }
    unsigned flags() const {
        return this->m_flag0 | this->m_isRemovable << 1 | this->m_flag2 << 2 | this->m_isRemote << 3 |
               this->m_flag4 << 4 | this->m_isReadOnly << 5 | this->m_flag6 << 6;
    }
    void fill(const CString* name) {
        setFlags(0x55);
        this->m_fileSystem = 7;
        this->m_localName = name;
        for (int i = 0; i < 6; ++i) this->m_numbers[i] = 100u + static_cast<unsigned>(i);
        for (int i = 0; i < 3; ++i) this->m_largeNumbers[i] = (1ll << 40) + i;
    }
    bool isFilled(const CString* name) const {
        bool same = flags() == 0x55 && this->m_fileSystem == 7 && this->m_localName == name;
        for (int i = 0; i < 6; ++i) same = same && this->m_numbers[i] == 100u + static_cast<unsigned>(i);
        for (int i = 0; i < 3; ++i) same = same && this->m_largeNumbers[i] == (1ll << 40) + i;
        return same;
    }
};

class FatVolume : public OpenVolume<CKbUiFATVolumeDescriptor> {
public:
    using OpenVolume::OpenVolume;
    void setOwn(long long number) { m_fatNumber = number; }
    long long own() const { return m_fatNumber; }
};

template <class Class>
class VolumeDescriptor : public ::testing::Test {};
using Classes =
    ::testing::Types<CKbUiNTFSVolumeDescriptor, CKbUiVFATVolumeDescriptor, CKbUiHPFSVolumeDescriptor,
                     CKbUiCDFSVolumeDescriptor, CKbUiUFSVolumeDescriptor, CKbUiNOFSVolumeDescriptor,
                     CKbUiFATVolumeDescriptor>;
TYPED_TEST_SUITE(VolumeDescriptor, Classes);

}  // namespace

TYPED_TEST(VolumeDescriptor, EveryNameMatchesAndNoneIsRejected) {
    OpenVolume<TypeParam> volume;
    const CString a = L"a", b = L"b";
    EXPECT_EQ(volume.VolMatch(&a, &b), 1);
    EXPECT_EQ(volume.VolMatch(L"a", &b), 1);
    EXPECT_EQ(volume.VolMatch(static_cast<const CString*>(nullptr), nullptr), 1);
    EXPECT_EQ(volume.VolMatch(static_cast<const wchar_t*>(nullptr), nullptr), 1);
    const CString odd = L"con:<>|*?";
    EXPECT_EQ(volume.ValidateFilename(&odd, 1), 0);
    EXPECT_EQ(volume.ValidateSegment(&odd, 1), 0);
    EXPECT_EQ(volume.ValidateSegment(nullptr, 0), 0);
}

TYPED_TEST(VolumeDescriptor, FlagsAreTheBitsOneThreeAndFive) {
    OpenVolume<TypeParam> volume;
    for (unsigned flags = 0; flags < 128; ++flags) {
        volume.setFlags(flags);
        EXPECT_EQ(volume.IsRemovable(), (flags & 0x02) != 0 ? 1 : 0) << flags;
        EXPECT_EQ(volume.IsRemote(), (flags & 0x08) != 0 ? 1 : 0) << flags;
        EXPECT_EQ(volume.CheckReadOnly(), (flags & 0x20) != 0 ? 1 : 0) << flags;
    }
}

TYPED_TEST(VolumeDescriptor, TheOtherAnswersAreZero) {
    OpenVolume<TypeParam> volume;
    volume.setFlags(0x7F);
    EXPECT_EQ(volume.AllowsCaseSensitiveLookup(), 0);
    EXPECT_EQ(volume.IsCaseSensitive(), 0);
    EXPECT_EQ(volume.PreservesCase(), 0);
    EXPECT_EQ(volume.VolumeValid(), 0);
    EXPECT_EQ(volume.WillFit(0), 0);
    EXPECT_EQ(volume.GetVolFreeSpace(), 0);
    CString name = L"MiXed";
    volume.VolCase(name);
    EXPECT_EQ(volume.GetConnectionName(name), 0);
    EXPECT_EQ(volume.Find(name, 3), 0);
    EXPECT_EQ(volume.IsControl(7), 0);
    EXPECT_STREQ(name.GetString(), L"MiXed");
}

TYPED_TEST(VolumeDescriptor, CopiesHaveEveryField) {
    const CString name = L"Disk";
    OpenVolume<TypeParam> volume(L"ignored");
    EXPECT_EQ(volume.GetLocalName(), nullptr) << "the name it is made with is not stored";
    volume.fill(&name);
    EXPECT_EQ(volume.GetLocalName(), &name);
    const OpenVolume<TypeParam> copy(volume);
    EXPECT_TRUE(copy.isFilled(&name));
    OpenVolume<TypeParam> assigned;
    assigned = volume;
    EXPECT_TRUE(assigned.isFilled(&name));
}

TEST(FatVolumeDescriptor, KeepsItsOwnFieldInCopies) {
    FatVolume volume;
    volume.setOwn(1ll << 50);
    const FatVolume copy(volume);
    EXPECT_EQ(copy.own(), 1ll << 50);
    FatVolume assigned;
    assigned = volume;
    EXPECT_EQ(assigned.own(), 1ll << 50);
}

TEST(VolumeDescriptorBase, IsDeletedThroughItsBase) {
    static int gone = 0;
    struct Counted : CKbUiNTFSVolumeDescriptor {
        Counted() : CKbUiNTFSVolumeDescriptor(L"") {}
        ~Counted() override { ++gone; }
    };
    CKbUiVolumeDescriptor* base = new Counted;
    delete base;
    EXPECT_EQ(gone, 1);
}

TEST(VolumeDescriptorBase, VirtualOperationsStandInAFixedOrderBehindTheDestructor) {
    using Volume = CKbUiVolumeDescriptor;
    using ui_test::slotOf;
    using ByString = int (Volume::*)(const CString*, const CString*) const;
    using ByText = int (Volume::*)(const wchar_t*, const CString*) const;
    const std::vector<long long> slots = {slotOf(&Volume::CheckReadOnly),
                                          slotOf(&Volume::AllowsCaseSensitiveLookup),
                                          slotOf(&Volume::IsCaseSensitive),
                                          slotOf(&Volume::PreservesCase),
                                          slotOf(&Volume::VolCase),
                                          slotOf(static_cast<ByString>(&Volume::VolMatch)),
                                          slotOf(static_cast<ByText>(&Volume::VolMatch)),
                                          slotOf(&Volume::GetLocalName),
                                          slotOf(&Volume::VolumeValid),
                                          slotOf(&Volume::WillFit),
                                          slotOf(&Volume::GetVolFreeSpace)};
    constexpr long long kDestructors = 2;  // this compiler has two entries for one
    for (std::size_t i = 0; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], kDestructors + static_cast<long long>(i)) << i;
}
