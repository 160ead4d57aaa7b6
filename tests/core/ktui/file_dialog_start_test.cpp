// What the platform's file dialog starts with, from the settings and what is stored.
#include <ktui/nav/file_dialog_start.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TextSource gives(const wchar_t* text) {
    return [text](CString& out) {
        out = text;
        return true;
    };
}

const TextSource kFails = [](CString& out) {
    out = L"left over";
    return false;
};

/// Sources of which none has a folder.
FolderSources none() { return {L"", L"", kFails, kFails, kFails}; }

CString repeated(wchar_t character, int count) { return CString(character, count); }

}  // namespace

TEST(FileDialogFlags, FollowTheSettings) {
    EXPECT_EQ(PlatformFlags({}), 0x8ul);
    FileDialogSettings settings;
    settings.acceptsAnyExtension = true;
    EXPECT_EQ(PlatformFlags(settings), 0x8ul | 0x400);
    settings = {};
    settings.allowsMultiSelect = true;
    EXPECT_EQ(PlatformFlags(settings), 0x8ul | 0x200);
    settings = {};
    settings.opensWithoutTemplate = true;
    EXPECT_EQ(PlatformFlags(settings), 0x8ul | 0x2000000);
    settings = {};
    settings.createsFile = true;
    EXPECT_EQ(PlatformFlags(settings), 0x8ul);
}

TEST(FileDialogFlags, OneSettingRequiresTheFileOrAsksBeforeItIsReplaced) {
    FileDialogSettings settings;
    settings.confirmsReplace = true;
    EXPECT_EQ(PlatformFlags(settings), 0x8ul | 0x800 | 0x1000);
    settings.createsFile = true;
    EXPECT_EQ(PlatformFlags(settings), 0x8ul | 0x2);
}

TEST(FileDialogFlags, AddUp) {
    EXPECT_EQ(PlatformFlags({true, true, false, true, true}),
              0x8ul | 0x400 | 0x800 | 0x1000 | 0x200 | 0x2000000);
}

TEST(FileDialogName, IsEmptyForOneWithALineEndOrATab) {
    EXPECT_EQ(StartName(L"plan a.dwg"), L"plan a.dwg");
    EXPECT_EQ(StartName(L""), L"");
    EXPECT_EQ(StartName(L"plan\t.dwg"), L"");
    EXPECT_EQ(StartName(L"\rplan"), L"");
    EXPECT_EQ(StartName(L"plan\n"), L"");
}

TEST(FileDialogFilter, TheForcedOneWins) {
    EXPECT_EQ(StartFilterIndex({2, 1, 1, 0, 3}), 3ul);
    EXPECT_EQ(StartFilterIndex({0, 1, 1, 0, 3}), 1ul);
}

TEST(FileDialogFilter, AForcedOneThatIsNotThereIsPassedOver) {
    EXPECT_EQ(StartFilterIndex({99, 1, 0, 0, 3}), 2ul);
    EXPECT_EQ(StartFilterIndex({99, {}, 2, 0, 3}), 3ul);
    EXPECT_EQ(StartFilterIndex({3, {}, 1, 0, 3}), 2ul);
    EXPECT_EQ(StartFilterIndex({-1, {}, 1, 0, 3}), 2ul);
    EXPECT_EQ(StartFilterIndex({-2, {}, 1, 0, 3}), 2ul);
}

TEST(FileDialogFilter, TheStoredOneComesNextWhateverItIs) {
    EXPECT_EQ(StartFilterIndex({-1, 2, 1, 0, 3}), 3ul);
    EXPECT_EQ(StartFilterIndex({-1, 7, 2, 0, 3}), 1ul);
    EXPECT_EQ(StartFilterIndex({-1, 3, 2, 0, 3}), 1ul);
    EXPECT_EQ(StartFilterIndex({-1, 0x7FFFFFFF, 2, 0, 3}), 1ul);
    EXPECT_EQ(StartFilterIndex({-1, 0xFFFFFFFF, 2, 0, 3}), 0ul);
}

TEST(FileDialogFilter, WithoutFiltersThereIsNone) { EXPECT_EQ(StartFilterIndex(FilterChoice()), 0ul); }

TEST(FileDialogFilter, TheDefaultOneComesLastIfItIsThere) {
    EXPECT_EQ(StartFilterIndex({-1, {}, 2, 0, 3}), 3ul);
    EXPECT_EQ(StartFilterIndex({-1, {}, 0, 0, 3}), 1ul);
    EXPECT_EQ(StartFilterIndex({-1, {}, 3, 0, 3}), 0ul);
    EXPECT_EQ(StartFilterIndex({-1, {}, -1, 2, 3}), 2ul);
    EXPECT_EQ(StartFilterIndex({-1, {}, -1, 4, 3}), 1ul);
    EXPECT_EQ(StartFilterIndex({-1, {}, 0, 0, 0}), 0ul);
    EXPECT_EQ(StartFilterIndex({-1, 0, 0, 0, 0}), 1ul);
}

TEST(FileDialogFolder, TheFirstThatThereIsWins) {
    FolderSources sources = {L"forced", L"given", gives(L"stored"), gives(L"personal"), gives(L"working")};
    std::vector<std::wstring> shown, kept;
    const auto note = [&] {
        const StartFolder start = FirstFolder(sources);
        shown.push_back(start.shown.GetString());
        kept.push_back(start.kept.GetString());
    };
    note();
    sources.forced = L"";
    note();
    sources.given = L"";
    note();
    sources.stored = kFails;
    note();
    sources.personal = kFails;
    note();
    sources.working = kFails;
    note();
    EXPECT_EQ(shown,
              (std::vector<std::wstring>{L"forced", L"given", L"stored", L"personal", L"working", L""}));
    EXPECT_EQ(kept, (std::vector<std::wstring>{L"", L"", L"stored", L"personal", L"working", L""}));
}

TEST(FileDialogFolder, AnEmptyTextIsNone) {
    FolderSources sources = none();
    sources.stored = gives(L"");
    sources.working = gives(L"working");
    EXPECT_EQ(FirstFolder(sources).shown, L"working");
}

TEST(FileDialogFolder, NobodyIsAskedOnceThereIsOne) {
    int asked = 0;
    const TextSource counts = [&](CString&) { return ++asked, false; };
    FirstFolder({L"", L"given", counts, counts, counts});
    EXPECT_EQ(asked, 0);
    FirstFolder({L"", L"", gives(L"stored"), counts, counts});
    EXPECT_EQ(asked, 0);
}

TEST(FileDialogFolder, OnlyTheLastThreeAreCut) {
    const CString path = repeated(L'p', 300);
    FolderSources sources = none();
    sources.stored = gives(path);
    EXPECT_EQ(FirstFolder(sources).shown, repeated(L'p', 259));
    EXPECT_EQ(FirstFolder(sources).kept, repeated(L'p', 259));
    sources.given = path;
    EXPECT_EQ(FirstFolder(sources).shown, path);
    sources.given = L"";
    sources.forced = path;
    EXPECT_EQ(FirstFolder(sources).shown, path);
}

TEST(FileDialogFolder, OfTemplatesIsKept) {
    const StartFolder start = TemplateFolder(L"C:\\templates");
    EXPECT_EQ(start.shown, L"C:\\templates");
    EXPECT_EQ(start.kept, L"C:\\templates");
    EXPECT_EQ(TemplateFolder(repeated(L'p', 300)).kept, repeated(L'p', 259));
    EXPECT_EQ(TemplateFolder(L"").shown, L"");
}

TEST(FileDialogName, LosesItsFolderWhenADialogStartsInOne) {
    const StartFolder start = {L"D:\\work", L""};
    EXPECT_EQ(NameInFolder(start, L"C:\\a\\b.dwg"), CString(L"b.dwg"));
    EXPECT_EQ(NameInFolder(start, L"b"), CString(L"b"));
    EXPECT_EQ(NameInFolder(start, L""), std::nullopt);
    EXPECT_EQ(NameInFolder(start, L"C:\\a\\"), std::nullopt);
    EXPECT_EQ(NameInFolder(start, L"C:\\a\\.dwg"), std::nullopt);
    EXPECT_EQ(NameInFolder({L"", L""}, L"C:\\a\\b.dwg"), std::nullopt);
}

TEST(FileDialogName, ItsPartsAreTheLastOfThePath) {
    struct Case {
        const wchar_t *path, *name, *extension;
    };
    for (const Case& each :
         {Case{L"C:\\a\\b.dwg", L"b", L".dwg"}, Case{L"b.dwg", L"b", L".dwg"},
          Case{L"C:b.dwg", L"b", L".dwg"}, Case{L"C:/a/b.c.dwg", L"b.c", L".dwg"},
          Case{L"C:\\a.b\\c", L"c", L""}, Case{L"C:\\a\\.dwg", L"", L".dwg"}, Case{L"a.", L"a", L"."},
          Case{L"", L"", L""}, Case{L"C:\\a.b\\", L"", L""}, Case{L"ab:c.d", L"ab:c", L".d"}}) {
        EXPECT_EQ(NamePart(each.path), each.name) << std::wstring(each.path).size();
        EXPECT_EQ(ExtensionPart(each.path), each.extension) << std::wstring(each.path).size();
    }
    EXPECT_EQ(NamePart(repeated(L'n', 255)), repeated(L'n', 255));
    EXPECT_EQ(NamePart(repeated(L'n', 256)), L"");
}

TEST(FileDialogExtension, IsThatOfTheFirstPatternOfTheFirstFilter) {
    CNavFilterArray filters;
    EXPECT_EQ(ExtensionOfFirstFilter(filters), std::nullopt);
    filters.AddData()->Add(L"*.dwg");
    filters.GetData(0)->Add(L"*.dxf");
    filters.AddData()->Add(L"*.txt");
    EXPECT_EQ(ExtensionOfFirstFilter(filters), CString(L"dwg"));
    filters.GetData(0)->SetAt(0, L"dwg");
    EXPECT_EQ(ExtensionOfFirstFilter(filters), CString(L"dwg"));
}

TEST(FileDialogExtension, ThrowsForAFirstFilterWithoutPatterns) {
    CNavFilterArray filters;
    filters.AddData();
    filters.AddData()->Add(L"*.dwg");
    try {
        ExtensionOfFirstFilter(filters);
        FAIL();
    } catch (CInvalidArgException* exception) {
        exception->Delete();
    }
}

TEST(FileDialogDataName, IsOfTheModuleAndTheTemplate) {
    EXPECT_EQ(NameByModule(L"C:\\Program Files\\ktdsres.dll", 57010), L"KTDSRES.DLL-57010");
    EXPECT_EQ(NameByModule(L"a.dll", 0), L"A.DLL-0");
    EXPECT_EQ(NameByModule(L"", 5), L"-5");
}
