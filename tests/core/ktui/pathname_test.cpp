#include <ktui/text/ktui_pathname.h>

#include <gtest/gtest.h>

#include <string>

#include "../../support/slot_of.h"

namespace {

/// A path that a test fills.
template <class Base>
class OpenPath : public Base {
public:
    explicit OpenPath(const wchar_t* text, wchar_t separator = L'\\') : whole(text) {
        this->m_path = &whole;
        this->m_separator = separator;
        set(0, 0, 0);
        this->m_volume = nullptr;
    }
    void set(path_type kind, int origin, int prefix) {
        this->m_pathType = kind;
        this->m_origin = origin;
        this->m_hadPrefix = prefix;
    }
    void setVolume(const CKbUiVolumeDescriptor* volume) { this->m_volume = volume; }
    const CKbUiVolumeDescriptor* volume() const { return this->m_volume; }
    const CString* text() const { return this->m_path; }
    std::wstring now() const { return whole.GetString(); }

    CString whole;
};
using Path = OpenPath<CKbUiPathname>;

/// What an operation that fills its argument gives for a path.
std::wstring Filled(const wchar_t* text, void (CKbUiPathname::*get)(CString&) const,
                    const wchar_t* before = L"old") {
    const Path path(text);
    CString out = before;
    (path.*get)(out);
    EXPECT_EQ(path.now(), text);
    return out.GetString();
}
std::wstring Basename(const wchar_t* text) { return Filled(text, &CKbUiPathname::GetBasename); }
std::wstring Filename(const wchar_t* text) { return Filled(text, &CKbUiPathname::GetFilename); }
std::wstring Extension(const wchar_t* text) { return Filled(text, &CKbUiPathname::GetExtension); }

struct Edited {
    PathErr answer;
    std::wstring text;
    bool operator==(const Edited&) const = default;
};
void PrintTo(const Edited& edited, std::ostream* out) {
    *out << edited.answer << " " << std::string(edited.text.begin(), edited.text.end());
}

Edited After(const wchar_t* text, PathErr (CKbUiPathname::*edit)()) {
    Path path(text);
    const PathErr answer = (path.*edit)();
    return {answer, path.now()};
}
Edited After(const wchar_t* text, PathErr (CKbUiPathname::*edit)(const wchar_t*), const wchar_t* argument) {
    Path path(text);
    const PathErr answer = (path.*edit)(argument);
    return {answer, path.now()};
}
std::wstring Changed(const wchar_t* text, void (CKbUiPathname::*change)()) {
    Path path(text);
    (path.*change)();
    return path.now();
}

}  // namespace

TEST(Pathname, TellsItsFields) {
    Path path(L"x", L'/');
    const int volume = 0;
    path.setVolume(reinterpret_cast<const CKbUiVolumeDescriptor*>(&volume));
    for (int kind = -1; kind <= 6; ++kind) {
        path.set(kind, 5, 7 + kind);
        EXPECT_EQ(path.GetPathType(), kind);
        EXPECT_EQ(path.IsEmpty(), kind == 0 ? 1 : 0) << kind;
        EXPECT_EQ(path.IsPath(), kind >= 1 && kind <= 4 ? 1 : 0) << kind;
        EXPECT_EQ(path.HadPrefix(), 7 + kind);
    }
    for (int origin = -1; origin <= 3; ++origin) {
        path.set(1, origin, 0);
        EXPECT_EQ(path.WasAbsolute(), origin == 0 || origin == 1 ? 1 : 0) << origin;
        EXPECT_EQ(path.WasRoot(), origin == 2 ? 1 : 0) << origin;
    }
    EXPECT_EQ(path.GetSeparator(), L'/');
    EXPECT_EQ(path.GetVolumeDescriptor(), path.volume());
    EXPECT_NE(path.volume(), nullptr);
}

TEST(Pathname, ACopyHasNeitherVolumeNorText) {
    Path path(L"x");
    const int volume = 0;
    path.setVolume(reinterpret_cast<const CKbUiVolumeDescriptor*>(&volume));
    const Path copy(path);
    EXPECT_EQ(copy.volume(), nullptr);
    EXPECT_EQ(copy.text(), nullptr);
}

TEST(Pathname, AssignmentGoesThroughTheVirtualOperation) {
    class Counting : public Path {
    public:
        using Path::Path;
        int copies = 0;
        void AssignCopy(const CKbUiPathname&) override { ++copies; }
    } counting(L"a");
    const Path other(L"b");
    static_cast<CKbUiPathname&>(counting) = other;
    EXPECT_EQ(counting.copies, 1);
    Path path(L"a");
    path.set(3, 2, 1);
    static_cast<CKbUiPathname&>(path) = other;
    EXPECT_EQ(path.now(), L"a") << "the class itself copies nothing";
    EXPECT_EQ(path.GetPathType(), 3);
}

TEST(Pathname, BasenameIsTheLastComponentWithItsExtension) {
    EXPECT_EQ(Basename(L"c:\\a.b\\name.tar.dxf"), L"name.tar.dxf");
    EXPECT_EQ(Basename(L"name"), L"name");
    EXPECT_EQ(Basename(L"a\\"), L"");
    EXPECT_EQ(Basename(L""), L"");
    EXPECT_EQ(Basename(L"a/b"), L"a/b") << "only the path's own separator counts";
}

TEST(Pathname, FilenameEndsAtTheLastDotAndIsEmptyWithoutOne) {
    EXPECT_EQ(Filename(L"c:\\a\\name.tar.dxf"), L"name.tar");
    EXPECT_EQ(Filename(L"c:\\a.b\\name"), L"");
    EXPECT_EQ(Filename(L"name"), L"");
    EXPECT_EQ(Filename(L".rc"), L"");
    EXPECT_EQ(Filename(L"name."), L"name");
}

TEST(Pathname, ExtensionFollowsTheLastDotOfTheLastComponent) {
    EXPECT_EQ(Extension(L"c:\\a\\name.tar.dxf"), L"dxf");
    EXPECT_EQ(Extension(L"c:\\a.b\\name"), L"");
    EXPECT_EQ(Extension(L".rc"), L"rc");
    EXPECT_EQ(Extension(L"name."), L"");
}

TEST(Pathname, ParentIsNotGiven) {
    EXPECT_EQ(Filled(L"a\\b\\c", &CKbUiPathname::GetParent), L"old");
    EXPECT_EQ(Filled(L"a\\b\\", &CKbUiPathname::GetParent, L"kept"), L"kept");
}

TEST(Pathname, TrimCutsBehindTheLastSeparator) {
    EXPECT_EQ(After(L"a\\b\\c.d", &CKbUiPathname::Trim), (Edited{kPathOk, L"a\\b\\"}));
    EXPECT_EQ(After(L"\\c", &CKbUiPathname::Trim), (Edited{kPathOk, L"\\"}));
    for (const wchar_t* bad : {L"", L"a\\", L"abc", L"\\"})
        EXPECT_EQ(After(bad, &CKbUiPathname::Trim), (Edited{kPathBad, bad}));
    EXPECT_EQ(kPathBad, 3);
}

TEST(Pathname, TrimSlashTakesSeparatorsOffBothEnds) {
    EXPECT_EQ(After(L"\\\\a\\b\\\\", &CKbUiPathname::TrimSlash), (Edited{kPathOk, L"a\\b"}));
    EXPECT_EQ(After(L"a\\", &CKbUiPathname::TrimSlash), (Edited{kPathOk, L"a"}));
    for (const wchar_t* bad : {L"", L"\\a", L"a", L"\\", L"\\\\\\"})
        EXPECT_EQ(After(bad, &CKbUiPathname::TrimSlash), (Edited{kPathBad, bad}));
}

TEST(Pathname, TrimComponentCutsInFrontOfTheLastSeparator) {
    EXPECT_EQ(After(L"a\\b\\c", &CKbUiPathname::TrimComponent), (Edited{kPathOk, L"a\\b"}));
    EXPECT_EQ(After(L"a\\", &CKbUiPathname::TrimComponent), (Edited{kPathOk, L"a"}));
    for (const wchar_t* bad : {L"", L"abc", L"\\c", L"\\"})
        EXPECT_EQ(After(bad, &CKbUiPathname::TrimComponent), (Edited{kPathBad, bad}));
}

TEST(Pathname, AppendJoinsWhateverItIsGiven) {
    EXPECT_EQ(After(L"a\\", &CKbUiPathname::Append, L"b.c"), (Edited{kPathOk, L"a\\b.c"}));
    EXPECT_EQ(After(L"", &CKbUiPathname::Append, L"b"), (Edited{kPathOk, L"b"}));
    EXPECT_EQ(After(L"a", &CKbUiPathname::Append, L""), (Edited{kPathOk, L"a"}));
}

TEST(Pathname, AppendSlashEndsTheTextInOneSeparator) {
    EXPECT_EQ(After(L"a", &CKbUiPathname::AppendSlash), (Edited{kPathOk, L"a\\"}));
    EXPECT_EQ(After(L"a\\", &CKbUiPathname::AppendSlash), (Edited{kPathOk, L"a\\"}));
    EXPECT_EQ(After(L"", &CKbUiPathname::AppendSlash), (Edited{kPathBad, L""}));
}

TEST(Pathname, AppendComponentAddsASeparatorAndNotItsArgument) {
    EXPECT_EQ(After(L"a", &CKbUiPathname::AppendComponent, L"b"), (Edited{kPathOk, L"a\\"}));
    EXPECT_EQ(After(L"a\\", &CKbUiPathname::AppendComponent, nullptr), (Edited{kPathOk, L"a\\\\"}));
    EXPECT_EQ(After(L"", &CKbUiPathname::AppendComponent, L"b"), (Edited{kPathBad, L""}));
}

TEST(Pathname, ReplacingAnExtensionGoesByTheFirstDot) {
    const auto replace = &CKbUiPathname::ReplaceExtensionAlways;
    EXPECT_EQ(After(L"name.dwg", replace, L"dxf"), (Edited{kPathOk, L"name.dxf"}));
    EXPECT_EQ(After(L"a.b\\name.dwg", replace, L"dxf"), (Edited{kPathOk, L"a.dxf"}));
    EXPECT_EQ(After(L"name", replace, L"dxf"), (Edited{kPathOk, L"namedxf"}));
    EXPECT_EQ(After(L"name.dwg", replace, L""), (Edited{kPathOk, L"name."}));
    EXPECT_EQ(After(L".", replace, L"x"), (Edited{kPathOk, L".x"}));
    EXPECT_EQ(After(L"", replace, L"dxf"), (Edited{kPathBad, L""}));
}

TEST(Pathname, RemovingAnExtensionCutsInsideAFolderWithADot) {
    EXPECT_EQ(Changed(L"a.b\\name.dwg", &CKbUiPathname::RemoveExtensionAlways), L"a");
    EXPECT_EQ(Changed(L"name.tar.dwg", &CKbUiPathname::RemoveExtensionAlways), L"name");
    EXPECT_EQ(Changed(L"name", &CKbUiPathname::RemoveExtensionAlways), L"name");
    EXPECT_EQ(Changed(L".x", &CKbUiPathname::RemoveExtensionAlways), L"");
}

TEST(Pathname, TheCaseIsThatOfTheLastComponentWhichIsAllThatStays) {
    EXPECT_EQ(Changed(L"C:\\Dir\\NaMe.DxF", &CKbUiPathname::BaseToLower), L"name.dxf");
    EXPECT_EQ(Changed(L"C:\\Dir\\NaMe.DxF", &CKbUiPathname::BaseToUpper), L"NAME.DXF");
}

TEST(Pathname, RemovingSpacesLeavesTheFilenameAlone) {
    EXPECT_EQ(Changed(L"a\\  my drawing  .dxf", &CKbUiPathname::RemoveSpaces), L"my drawing");
    EXPECT_EQ(Changed(L"a\\\tx\t.dxf", &CKbUiPathname::RemoveSpaces), L"\tx\t") << "only blanks go";
    EXPECT_EQ(Changed(L" name ", &CKbUiPathname::RemoveSpaces), L"") << "no dot, no filename";
}

TEST(Pathname, EmptyEmptiesTheTextAndNotTheKind) {
    Path path(L"a\\b");
    path.set(2, 0, 0);
    path.Empty();
    EXPECT_EQ(path.now(), L"");
    EXPECT_EQ(path.GetPathType(), 2);
}

TEST(Pathname, FixedAnswersChangeNothing) {
    Path path(L"a\\b.c");
    path.set(2, 1, 1);
    const Path other(L"a\\b.c");
    CString out = L"old";
    wchar_t buffer[4] = L"old";
    EXPECT_EQ(path.Parse(L"d:\\x", 1), 0);
    EXPECT_EQ(path.ParseRelative(L"x", other, 1), 0);
    EXPECT_EQ(path.ParseAndOSFind(L"x", 1), 0);
    EXPECT_EQ(path.AddExtensionAlways(L"x"), 0);
    EXPECT_EQ(path.AddExtensionIfNoMatch(L"x", L"y"), 0);
    EXPECT_EQ(path.ReplaceExtensionIfNoMatch(L"x", L"y"), 0);
    EXPECT_EQ(path.RemoveExtensionIfMatch(L"c"), 0);
    EXPECT_EQ(path.Exists(), 0);
    EXPECT_EQ(path.GetFullPath(out), 0);
    EXPECT_EQ(path.GetFullPath(buffer, 4), 0);
    EXPECT_EQ(path.GetFullUNCPath(out), 0);
    EXPECT_EQ(path.GetDisplayName(out), 0);
    EXPECT_EQ(path.GetUniqueName(L"x"), 0);
    EXPECT_EQ(path.GetPathString(), nullptr);
    EXPECT_EQ(path.PathMatch(other), 0);
    EXPECT_EQ(path.PathMatch(L"a\\b.c"), 0);
    EXPECT_EQ(path.VerifyExtension(L"c"), 0);
    EXPECT_EQ(path.Open(0), nullptr);
    EXPECT_EQ(path.Open(0, out), nullptr);
    EXPECT_EQ(path.OpenReadOnly(), nullptr);
    EXPECT_EQ(path.OpenWriteOnly(), nullptr);
    EXPECT_EQ(path.Remove(), 0);
    EXPECT_EQ(path.Rename(L"x"), 0);
    EXPECT_EQ(path.GetFileSystem(L"c:"), 0);
    EXPECT_EQ(path.FindVolumeDescriptor(L"c:"), nullptr);
    EXPECT_EQ(path.NewVolDescriptor(L"c:", 1), nullptr);
    EXPECT_EQ(path.IsDeviceName(L"con"), 0);
    EXPECT_EQ(path.GetLastCharacter(), 0);
    EXPECT_EQ(path.GetAttributes(), 0u);
    EXPECT_EQ(path.GetFirstExtInList(L"a;b", out), 0);
    EXPECT_EQ(path.StripSpaces(out), 0);
    EXPECT_EQ(path.lstrncpy_x(buffer, L"new", 4), 0);
    EXPECT_EQ(path.Unquote(out), 0);
    EXPECT_EQ(path.now(), L"a\\b.c");
    EXPECT_STREQ(out.GetString(), L"old");
    EXPECT_STREQ(buffer, L"old");
    EXPECT_FALSE(path.IsEmpty()) << "Parse leaves the kind as it was";
}

TEST(Pathname, OfTheApplicationLayerAnswersTheSame) {
    OpenPath<CKtUiPathname> path(L"a");
    path.set(0, 0, 0);
    CKbUiPathname& base = path;
    EXPECT_EQ(base.Parse(L"d:\\x", 1), 0);
    EXPECT_TRUE(path.IsEmpty());
    EXPECT_EQ(path.Open(1), nullptr);
    EXPECT_EQ(path.Status(), 0);
    base.AssignCopy(Path(L"b"));
    const OpenPath<CKtUiPathname> other(L"b");
    static_cast<CKtUiPathname&>(path) = other;
    EXPECT_EQ(path.now(), L"a");
    const OpenPath<CKtUiPathname> copy(path);
    EXPECT_EQ(copy.text(), nullptr);
}

TEST(Pathname, VirtualOperationsStandInAFixedOrder) {
    using ui_test::slotOf;
    EXPECT_EQ(slotOf(&CKbUiPathname::Parse), 0);
    EXPECT_EQ(slotOf(&CKbUiPathname::AssignCopy), 1);
    EXPECT_EQ(slotOf(&CKtUiPathname::Parse), 0);
    EXPECT_EQ(slotOf(&CKtUiPathname::AssignCopy), 1);
    EXPECT_EQ(slotOf(&CKtUiPathname::Status), 2);
}
