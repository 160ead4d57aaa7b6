// The steps of the library's load and unload, in their order, seen from outside by a probe of its own
// process.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "probe.h"
#include "ui_test.h"

namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

/// What the probe wrote down about three loads.
struct Loads {
    std::vector<Lines> load, loaded, unload, left;  ///< of each of the three
    std::string holders;                            ///< of the resource library when all is over
};

Lines& sectionOf(Loads& loads, const std::string& name) {
    static Lines others;
    auto& part = name == "load"     ? loads.load
                 : name == "loaded" ? loads.loaded
                 : name == "unload" ? loads.unload
                                    : loads.left;
    if (name == "holders") return others;
    return part.emplace_back();
}

Loads read(const fs::path& file) {
    Loads loads;
    std::ifstream in(file);
    Lines* section = nullptr;
    bool isAboutHolders = false;
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.rfind("-- ", 0) == 0) {
            isAboutHolders = line == "-- holders";
            section = &sectionOf(loads, line.substr(3));
        } else if (isAboutHolders) {
            loads.holders = line;
        } else if (section) {
            section->push_back(line);
        }
    }
    return loads;
}

/// Loads and frees the library three times in a process where `mode` holds (see load_probe.cpp).
Loads loadsWith(const std::wstring& mode) {
    const fs::path binaries = fs::path(ui_test::program_path().GetString()).parent_path();
    const fs::path file = fs::temp_directory_path() / (L"ktui-load-" + mode + L".log");
    const std::wstring command =
        L"\"" + (binaries / L"load_probe.exe").wstring() + L"\" \"" + file.wstring() + L"\" " + mode;
    EXPECT_EQ(ui_test::run_probe(command, binaries.wstring()), 0u);
    Loads loads = read(file);
    std::error_code ignored;
    fs::remove(file, ignored);
    return loads;
}

bool has(const Lines& lines, const std::string& line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

const Lines kBegin = {"load ktdsres",
                      "init ktui.dll",
                      "lists aside own",
                      "load ktdsres.dll",
                      "init ktdsres.dll",
                      "chain ktdsres.dll 0",
                      "images ktui.dll 108 9 1 ff00ff 0 0"};
const Lines kVersions = {"handle COMCTL32.DLL", "system of size right", "find comctl32.dll DllGetVersion",
                         "version of size right", "find comctl32.dll InitCommonControlsEx"};
const Lines kThemeNames = {"CloseThemeData",
                           "DrawThemeBackground",
                           "DrawThemeEdge",
                           "DrawThemeIcon",
                           "DrawThemeParentBackground",
                           "DrawThemeText",
                           "GetThemeBackgroundContentRect",
                           "GetThemeColor",
                           "GetThemeTextExtent",
                           "IsCompositionActive",
                           "IsThemeActive",
                           "IsThemeBackgroundPartiallyTransparent",
                           "OpenThemeData",
                           "SetWindowTheme",
                           "BeginBufferedAnimation",
                           "BufferedPaintInit",
                           "BufferedPaintUnInit",
                           "BufferedPaintRenderAnimation",
                           "BufferedPaintStopAllAnimations",
                           "EndBufferedAnimation",
                           "GetThemeTransitionDuration"};
const Lines kEnd = {"class BUTTON of none", "chain ktui.dll 0"};

/// The look at the theme library up to `last`.
Lines themeLines(const std::string& last) {
    Lines lines = {"load UXTHEME.DLL"};
    for (const std::string& name : kThemeNames) {
        lines.push_back("find uxtheme.dll " + name);
        if (name == last) break;
    }
    return lines;
}

Lines joined(std::initializer_list<Lines> parts) {
    Lines all;
    for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace

TEST(ModuleLoadSteps, ComeInTheirOrderAtEveryLoad) {
    const Loads loads = loadsWith(L"themes");
    const Lines expected = joined({kBegin, kVersions, themeLines("GetThemeTransitionDuration"), kEnd});
    ASSERT_EQ(loads.load.size(), 3u);
    for (const Lines& load : loads.load) EXPECT_EQ(load, expected);
}

TEST(ModuleLoadSteps, LeaveEverythingInItsPlace) {
    const Loads loads = loadsWith(L"themes");
    ASSERT_EQ(loads.loaded.size(), 3u);
    const Lines expected = {"own ktui.dll, resources ktdsres.dll 1",
                            "active ktdsres.dll",
                            "versions 020603 00060051",
                            "button yes, controls yes, images yes, themes uxtheme.dll",
                            "theme entries system and animation",
                            "chain is ktui.dll ktdsres.dll"};
    for (const Lines& loaded : loads.loaded) EXPECT_EQ(loaded, expected);
}

TEST(ModuleLoadSteps, AreUndoneInTheirOrder) {
    const Loads loads = loadsWith(L"themes");
    ASSERT_EQ(loads.unload.size(), 3u);
    const Lines expected = {"free uxtheme.dll", "destroy 2 images of 9 by 9", "term ktdsres.dll 0",
                            "free ktdsres.dll", "term ktui.dll 0"};
    for (const Lines& unload : loads.unload) EXPECT_EQ(unload, expected);
    const Lines nothing = {"toolkit gone", "classes as before", "chain is"};
    ASSERT_EQ(loads.left.size(), 3u);
    for (const Lines& left : loads.left) EXPECT_EQ(left, nothing);
}

TEST(ModuleLoadSteps, NeverLetGoOfTheStringLibrary) {
    EXPECT_EQ(loadsWith(L"plain").holders, "3") << "one for each load";
}

TEST(ModuleLoadSteps, LoadNoThemesWithThisSystemsControls) {
    const Loads loads = loadsWith(L"plain");
    ASSERT_EQ(loads.load.size(), 3u);
    EXPECT_FALSE(has(loads.load[0], "load UXTHEME.DLL"));
    EXPECT_TRUE(has(loads.loaded[0], "versions 020603 00050051"));
    EXPECT_TRUE(has(loads.loaded[0], "theme entries fallback"));
    EXPECT_TRUE(has(loads.loaded[0], "button yes, controls yes, images yes, themes none"));
    EXPECT_EQ(loads.unload[0].front(), "destroy 2 images of 9 by 9") << "no theme library to free";
}

TEST(ModuleLoadSteps, LoadNoThemesBeforeTheFirstSystemWithThem) {
    const Loads loads = loadsWith(L"old-system");
    ASSERT_EQ(loads.load.size(), 3u);
    EXPECT_EQ(loads.load[0], joined({kBegin, kVersions, kEnd}));
    EXPECT_TRUE(has(loads.loaded[0], "versions 020500 00060051"));
    EXPECT_TRUE(has(loads.loaded[0], "theme entries fallback"));
}

TEST(ModuleLoadSteps, TakeControlsThatTellNoVersionForOldOnes) {
    for (const wchar_t* mode : {L"no-DllGetVersion", L"version-fails"}) {
        const Loads loads = loadsWith(mode);
        ASSERT_EQ(loads.loaded.size(), 3u);
        EXPECT_TRUE(has(loads.loaded[0], "versions 020603 00040000")) << mode;
        EXPECT_TRUE(has(loads.loaded[0], "theme entries fallback")) << mode;
    }
}

TEST(ModuleLoadSteps, WithoutImagesSkipVersionsAndThemes) {
    const Loads loads = loadsWith(L"no-images");
    ASSERT_EQ(loads.load.size(), 3u);
    EXPECT_EQ(loads.load[0], joined({kBegin, kEnd}));
    EXPECT_TRUE(has(loads.loaded[0], "versions 000000 00000000"));
    EXPECT_TRUE(has(loads.loaded[0], "button yes, controls no, images no, themes none"));
    EXPECT_EQ(loads.unload[0].front(), "term ktdsres.dll 0") << "no images to destroy";
}

TEST(ModuleLoadSteps, GiveUpWhenTheLibraryItselfCannotJoin) {
    const Loads loads = loadsWith(L"no-own");
    ASSERT_EQ(loads.load.size(), 3u);
    EXPECT_TRUE(loads.loaded.empty()) << "the load has to fail";
    const Lines expected = {"load ktdsres", "init ktui.dll", "lists aside own", "term none 0"};
    EXPECT_EQ(loads.load[0], expected) << "nothing else is done, and nothing freed that wasn't taken";
    EXPECT_TRUE(has(loads.left[0], "toolkit gone"));
    EXPECT_TRUE(has(loads.left[0], "chain is"));
}

TEST(ModuleLoadSteps, GoOnWhenTheResourceLibraryCannotJoin) {
    const Loads loads = loadsWith(L"no-resource-module");
    ASSERT_EQ(loads.loaded.size(), 3u);
    EXPECT_TRUE(has(loads.loaded[0], "own ktui.dll, resources ktdsres.dll 0"));
    EXPECT_TRUE(has(loads.loaded[0], "chain is ktui.dll"));
    const Lines expected = {"free uxtheme.dll", "destroy 2 images of 9 by 9", "free ktdsres.dll",
                            "term ktui.dll 0"};
    EXPECT_EQ(loads.unload[0], expected) << "what didn't join needn't leave";
}

TEST(ModuleLoadSteps, GoOnWithoutTheResourceLibrary) {
    const Loads loads = loadsWith(L"no-ktdsres.dll");
    ASSERT_EQ(loads.loaded.size(), 3u);
    EXPECT_TRUE(has(loads.loaded[0], "own ktui.dll, resources none 0"));
    EXPECT_TRUE(has(loads.loaded[0], "active none"));
    const Lines expected = {"free uxtheme.dll", "destroy 2 images of 9 by 9", "term ktui.dll 0"};
    EXPECT_EQ(loads.unload[0], expected) << "there is nothing to free";
    EXPECT_EQ(loads.holders, "3") << "the strings' own hold is another one";
}

TEST(ModuleLoadSteps, DoWithoutTheButtonsProcedure) {
    const Loads loads = loadsWith(L"no-button");
    ASSERT_EQ(loads.loaded.size(), 3u);
    EXPECT_TRUE(has(loads.loaded[0], "button no, controls yes, images yes, themes uxtheme.dll"));
    EXPECT_EQ(loads.load[0].back(), "chain ktui.dll 0");
}

TEST(ModuleLoadSteps, DoWithoutTheThemeLibrary) {
    const Loads loads = loadsWith(L"no-UXTHEME.DLL");
    ASSERT_EQ(loads.load.size(), 3u);
    EXPECT_EQ(loads.load[0], joined({kBegin, kVersions, {"load UXTHEME.DLL"}, kEnd}));
    EXPECT_TRUE(has(loads.loaded[0], "theme entries fallback"));
    EXPECT_FALSE(has(loads.unload[0], "free uxtheme.dll"));
}

TEST(ModuleLoadSteps, LetGoOfAThemeLibraryThatLacksAWindowEntry) {
    const Loads loads = loadsWith(L"no-DrawThemeIcon");
    ASSERT_EQ(loads.load.size(), 3u);
    EXPECT_EQ(loads.load[0],
              joined({kBegin, kVersions, themeLines("DrawThemeIcon"), {"free uxtheme.dll"}, kEnd}));
    EXPECT_TRUE(has(loads.loaded[0], "button yes, controls yes, images yes, themes none"));
    EXPECT_TRUE(has(loads.loaded[0], "theme entries fallback"));
    EXPECT_FALSE(has(loads.unload[0], "free uxtheme.dll")) << "it is free already";
}

TEST(ModuleLoadSteps, KeepAThemeLibraryThatLacksAnAnimationEntry) {
    const Loads loads = loadsWith(L"no-EndBufferedAnimation");
    ASSERT_EQ(loads.load.size(), 3u);
    EXPECT_EQ(loads.load[0], joined({kBegin, kVersions, themeLines("EndBufferedAnimation"), kEnd}));
    EXPECT_TRUE(has(loads.loaded[0], "theme entries system"));
    EXPECT_EQ(loads.unload[0].front(), "free uxtheme.dll");
}
