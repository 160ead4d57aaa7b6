// Whole files of the plotter as programs see them that nobody here wrote: poppler's and qpdf's.
#include "plotting/drawing_plot.h"

#include <od_db_viewport.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "file_groups.h"
#include "pictures/scene_picture.h"
#include "plot_faces.h"
#include "scene_builder.h"

namespace {

namespace fs = std::filesystem;

/// The output of a command; its failure fails the test.
std::string outputOf(const std::string& command) {
    std::string output;
    std::FILE* const pipe = ::popen((command + " 2>&1").c_str(), "r");
    std::array<char, 4096> part;
    for (std::size_t count = 0; (count = std::fread(part.data(), 1, part.size(), pipe)) > 0;)
        output.append(part.data(), count);
    EXPECT_EQ(::pclose(pipe), 0) << command << "\n" << output;
    return output;
}

/// A picture of a page: binary rows of red, green, blue.
struct Picture {
    int width = 0, height = 0;
    std::string pixels;
    /// The darkest value of each colour near a place in points from the lower left; one pixel is one point.
    std::array<int, 3> at(double x, double y) const {
        const int column = static_cast<int>(x), row = height - 1 - static_cast<int>(y);
        std::array<int, 3> found = {255, 255, 255};
        int darkest = 3 * 255 + 1;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) {
                const int cx = column + dx, cy = row + dy;
                if (cx < 0 || cy < 0 || cx >= width || cy >= height) continue;
                const auto* p = reinterpret_cast<const unsigned char*>(pixels.data()) + (cy * width + cx) * 3;
                if (p[0] + p[1] + p[2] >= darkest) continue;
                darkest = p[0] + p[1] + p[2];
                found = {p[0], p[1], p[2]};
            }
        return found;
    }
};

bool isWhite(const std::array<int, 3>& c) { return c[0] > 250 && c[1] > 250 && c[2] > 250; }
bool isDark(const std::array<int, 3>& c) { return c[0] < 140 && c[1] < 140 && c[2] < 140; }

/// Whether a word of poppler's list of boxes begins at `x` and stands around the height `y`, in points from
/// the upper left.
bool hasWordAt(const std::string& boxes, const std::string& word, double x, double y) {
    const std::string end = ">" + word + "</word>";
    for (std::size_t hit = boxes.find(end); hit != std::string::npos; hit = boxes.find(end, hit + 1)) {
        double left = 0, top = 0, right = 0, bottom = 0;
        const char* const box = boxes.c_str() + boxes.rfind("<word", hit);
        const int read = std::sscanf(box, "<word xMin=\"%lf\" yMin=\"%lf\" xMax=\"%lf\" yMax=\"%lf\"", &left,
                                     &top, &right, &bottom);
        if (read == 4 && std::abs(left - x) < 0.5 && top < y && y < bottom + 1) return true;
    }
    return false;
}

class DrawingPlots : public ::testing::Test {
protected:
    DrawingPlots() : folder(fs::temp_directory_path() / ("ktui-plot-" + std::to_string(::rand()))) {
        fs::create_directories(folder);
    }
    ~DrawingPlots() override { fs::remove_all(folder); }

    std::string save(DrawingPlot& plot, const wchar_t* title = L"title") {
        const std::string path = (folder / "plot.pdf").string();
        std::ofstream(path, std::ios::binary) << plot.write(title);
        return path;
    }
    Picture pictureOf(const std::string& path, int page = 1) {
        const std::string base = (folder / "page").string(), number = std::to_string(page);
        outputOf("pdftoppm -r 72 -f " + number + " -l " + number + " -singlefile " + path + " " + base);
        std::ifstream file(base + ".ppm", std::ios::binary);
        Picture picture;
        std::string kind;
        int most = 0;
        file >> kind >> picture.width >> picture.height >> most;
        file.get();
        std::ostringstream rest;
        rest << file.rdbuf();
        picture.pixels = rest.str();
        EXPECT_EQ(kind, "P6");
        EXPECT_EQ(picture.pixels.size(), static_cast<std::size_t>(picture.width * picture.height * 3));
        return picture;
    }
    static OdDbObjectId blockOf(OdDbDatabase& drawing, const wchar_t* name) {
        OdDbBlockTablePtr blocks;
        drawing.getBlockTable(blocks);
        return blocks->getAt(name);
    }
    static OdDbLine* addLine(OdDbDatabase& drawing, const wchar_t* block, double x0, double y0, double x1,
                             double y1, int color) {
        OdSmartPtr<OdDbLine> line(new OdDbLine);
        line->setDatabaseDefaults(&drawing);
        line->setStartPoint({x0, y0, 0});
        line->setEndPoint({x1, y1, 0});
        line->setColorIndex(color);
        line->setLineWeight(OdDb::kLnWt100);
        blockOf(drawing, block)
            .open<OdDbBlockTableRecord>(OdDb::kForWrite)
            ->appendOdDbEntity(OdDbEntityPtr(line.get()));
        return line.get();
    }
    static OdDbLayoutPtr layoutOf(OdDbDatabase& drawing, const wchar_t* block) {
        return blockOf(drawing, block)
            .open<OdDbBlockTableRecord>()
            ->getLayoutId()
            .open<OdDbLayout>(OdDb::kForWrite);
    }
    static OdDbDatabasePtr sample(const char* name) {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        const std::string path = std::string(KTUI_SAMPLE_FILES) + "/drawings/" + name;
        EXPECT_EQ(drawing->readDxf(odWide(path).c_str()), kOdOk);
        return drawing;
    }
    DrawingPlot plotOf(const OdDbDatabasePtr& drawing, PlotLook look = {}) {
        return DrawingPlot(*drawing, plot_test::face, look);
    }

    fs::path folder;
};

constexpr double kMm = 72 / 25.4;

}  // namespace

TEST_F(DrawingPlots, APageThatWasStoppedIsCutAndThoseAfterItAreNot) {
    const OdDbDatabasePtr drawing = sample("bracket.dxf");
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    const SceneExtents area = ModelExtents(*drawing);
    DrawingPlot plot = plotOf(drawing, {true, true});
    std::stop_source stopped;
    std::atomic<int> percent = 0;
    plot.setProgress(stopped.get_token(), &percent);
    plot.addModel(area, *layout, false);
    EXPECT_FALSE(plot.isCut());
    EXPECT_GT(percent, 90);
    stopped.request_stop();
    plot.addModel(area, *layout, false);
    EXPECT_TRUE(plot.isCut());
    plot.setProgress({}, nullptr);
    plot.addModel(area, *layout, false);
    EXPECT_TRUE(plot.isCut()) << "the file is, whatever is whole in it";
    EXPECT_TRUE(ModelExtents(*drawing, stopped.get_token()).isEmpty());
}

TEST_F(DrawingPlots, SampleDrawingsAreWholeFilesWithTheirTexts) {
    const std::pair<const char*, const char*> samples[] = {
        {"bracket.dxf", nullptr}, {"floor_plan.dxf", nullptr}, {"site_plan.dxf", nullptr}};
    for (const auto& [name, unused] : samples) {
        const OdDbDatabasePtr drawing = sample(name);
        DrawingPlot plot = plotOf(drawing, {true, true});
        const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
        plot.addModel(ModelExtents(*drawing), *layout, false);
        plot.stamp(L"stamp \x4E2D\x6587");
        const std::string path = save(plot, L"sample \x56FE");
        EXPECT_NE(outputOf("qpdf --check " + path).find("No syntax or stream encoding errors"),
                  std::string::npos);
        const std::string information = outputOf("pdfinfo -enc UTF-8 " + path);
        EXPECT_NE(information.find("Pages:           1\n"), std::string::npos) << information;
        EXPECT_NE(information.find("sample \xE5\x9B\xBE"), std::string::npos) << information;
        const std::string texts = outputOf("pdftotext -enc UTF-8 -layout " + path + " -");
        EXPECT_NE(texts.find("stamp \xE4\xB8\xAD\xE6\x96\x87"), std::string::npos) << texts;
        SceneBuilder builder(*drawing, SceneUse::kPaper);
        builder.addBlock(blockOf(*drawing, L"*Model_Space"));
        int found = 0;
        for (const SceneText& text : builder.take().texts)
            if (text.rotation == 0 && !text.text.isEmpty()) {
                const std::string utf8 = odUtf8(text.text.view());
                const std::string word = utf8.substr(0, utf8.find(' '));
                EXPECT_NE(texts.find(word), std::string::npos) << word << "\n" << texts;
                ++found;
            }
        EXPECT_GT(found, 0) << name;
        EXPECT_FALSE(pictureOf(path).pixels.empty());
    }
}

TEST_F(DrawingPlots, TextsInStrokesAreFoundWhereTheyAreDrawn) {
    const OdDbDatabasePtr drawing = sample("bracket.dxf");
    DrawingPlot plot(*drawing, plot_test::face, {});
    SceneOptions options;
    options.shapeFile = [](const OdString& name) {
        std::ifstream file(std::string(KTUI_SAMPLE_FONTS) + "/" + odUtf8(name.view()), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    plot.setFiles(options);
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    const SceneExtents area = ModelExtents(*drawing);
    plot.addModel(area, *layout, false);
    const std::string path = save(plot);
    EXPECT_NE(outputOf("qpdf --check " + path).find("No syntax or stream encoding errors"),
              std::string::npos);
    options.use = SceneUse::kPaper;
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    EXPECT_TRUE(scene.texts.empty());
    const PaperPlace place = PlaceArea(*layout, area, false);
    const std::string boxes = outputOf("pdftotext -bbox " + path + " -");
    const double pageHeight = pictureOf(path).height;
    int found = 0;
    for (const SceneText& text : scene.strokeTexts) {
        if (text.rotation != 0 || text.horizontal != 0) continue;
        const std::wstring word(text.text.view().substr(0, text.text.view().find(L' ')));
        if (word.size() < 4 || word.find_first_of(L"&<>\"") != std::wstring::npos) continue;
        const OdGePoint2d at = place.apply(text.position);
        EXPECT_TRUE(hasWordAt(boxes, odUtf8(word), at.x, pageHeight - at.y)) << odUtf8(word) << "\n" << boxes;
        ++found;
    }
    EXPECT_GT(found, 3);
}

TEST_F(DrawingPlots, LinesOfASampleLieWhereTheyBelongInTheirColors) {
    const OdDbDatabasePtr drawing = sample("bracket.dxf");
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    const SceneExtents area = ModelExtents(*drawing);
    DrawingPlot plot = plotOf(drawing);
    plot.addModel(area, *layout, false);
    const Picture picture = pictureOf(save(plot));
    const PaperPlace place = PlaceArea(*layout, area, false);
    SceneBuilder builder(*drawing, SceneUse::kPaper);
    builder.addBlock(blockOf(*drawing, L"*Model_Space"));
    int looked = 0;
    for (const ScenePath& path : builder.take().paths) {
        if (path.points.size() != 2 || !path.style.dashes.empty() || path.filled) continue;
        const OdGePoint2d at = place.apply(OdGePoint2d{(path.points[0].x + path.points[1].x) / 2,
                                                       (path.points[0].y + path.points[1].y) / 2});
        EXPECT_FALSE(isWhite(picture.at(at.x, at.y))) << at.x << ", " << at.y;
        ++looked;
    }
    EXPECT_GT(looked, 3);
}

TEST_F(DrawingPlots, KnownPlacesOfAKnownDrawing) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    addLine(*drawing, L"*Model_Space", 0, 0, 100, 0, 1);
    addLine(*drawing, L"*Model_Space", 0, 50, 100, 50, 7);
    addLine(*drawing, L"*Model_Space", 50, 0, 50, 50, 5);
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    layout->setPlotPaperSize(110, 60);
    DrawingPlot plot = plotOf(drawing);
    SceneExtents area;
    area.add({0, 0});
    area.add({100, 50});
    plot.addModel(area, *layout, false);
    const Picture picture = pictureOf(save(plot));
    EXPECT_NEAR(picture.width, 110 * kMm, 1);
    EXPECT_NEAR(picture.height, 60 * kMm, 1);
    const auto red = picture.at(30 * kMm, 5 * kMm);
    EXPECT_GT(red[0], 200);
    EXPECT_LT(red[1], 60);
    EXPECT_TRUE(isDark(picture.at(30 * kMm, 55 * kMm))) << "7 is black";
    const auto blue = picture.at(55 * kMm, 30 * kMm);
    EXPECT_GT(blue[2], 200);
    EXPECT_LT(blue[0], 60);
    EXPECT_TRUE(isWhite(picture.at(30 * kMm, 30 * kMm)));
    EXPECT_TRUE(isWhite(picture.at(2 * kMm, 5 * kMm))) << "beside the area";
}

TEST_F(DrawingPlots, AWindowShowsNothingBesideIt) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    addLine(*drawing, L"*Model_Space", -1000, 25, 1000, 25, 7);
    addLine(*drawing, L"*Model_Space", 50, -1000, 50, 1000, 7);
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    layout->setPlotPaperSize(110, 110);
    SceneExtents area;
    area.add({0, 0});
    area.add({100, 50});
    DrawingPlot plot = plotOf(drawing);
    plot.addModel(area, *layout, false);
    const Picture picture = pictureOf(save(plot));
    EXPECT_TRUE(isDark(picture.at(30 * kMm, 55 * kMm)));
    EXPECT_TRUE(isDark(picture.at(55 * kMm, 70 * kMm))) << "within the window";
    EXPECT_TRUE(isWhite(picture.at(55 * kMm, 95 * kMm))) << "above the window";
    EXPECT_TRUE(isWhite(picture.at(2 * kMm, 55 * kMm)));
}

TEST_F(DrawingPlots, ALayoutShowsItsSheetAndWhatItsViewportsShow) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    addLine(*drawing, L"*Model_Space", 1000, 1000, 1100, 1000, 1);
    addLine(*drawing, L"*Paper_Space", 10, 10, 190, 10, 5);
    OdDbEntityPtr viewport(new OdDbViewport);
    const auto block = blockOf(*drawing, L"*Paper_Space").open<OdDbBlockTableRecord>(OdDb::kForWrite);
    block->appendOdDbEntity(viewport);
    OdGroupList& groups = viewport->editGroups();
    groups.setPoint(10, {100, 60, 0});
    groups.setReal(40, 50);
    groups.setReal(41, 40);
    groups.setInteger(68, 2);
    groups.setInteger(69, 2);
    groups.setPoint(12, {1050, 1000, 0}, true);
    groups.setReal(45, 80);
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Paper_Space");
    layout->setPlotPaperSize(200, 100);
    DrawingPlot plot = plotOf(drawing);
    plot.addLayout(*layout, *layout);
    EXPECT_EQ(plot.pageCount(), 1);
    const Picture picture = pictureOf(save(plot));
    EXPECT_NEAR(picture.width, 200 * kMm, 1);
    const auto blue = picture.at(20 * kMm, 10 * kMm);
    EXPECT_GT(blue[2], 200);
    EXPECT_LT(blue[0], 60);
    const auto red = picture.at(90 * kMm, 60 * kMm);
    EXPECT_GT(red[0], 200) << "the model's line at half its size";
    EXPECT_LT(red[1], 60);
    EXPECT_TRUE(isWhite(picture.at(73 * kMm, 60 * kMm))) << "left of the viewport";
    EXPECT_TRUE(isWhite(picture.at(127 * kMm, 60 * kMm)));
    viewport->editGroups().setInteger(68, 0);
    DrawingPlot without = plotOf(drawing);
    without.addLayout(*layout, *layout);
    EXPECT_TRUE(isWhite(pictureOf(save(without)).at(90 * kMm, 60 * kMm))) << "the viewport is off";
}

TEST_F(DrawingPlots, ParagraphsBreakByTheLettersOfTheFile) {
    // Letters of 0.6 em in capitals of 0.72: six of them and a blank of half the width are 5.4 capitals wide.
    const auto lines = [&](double width) {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        OdSmartPtr<OdDbMText> text(new OdDbMText);
        text->setContents(L"AAA BBB");
        text->setTextHeight(10);
        text->setWidth(width);
        blockOf(*drawing, L"*Model_Space")
            .open<OdDbBlockTableRecord>()
            ->appendOdDbEntity(OdDbEntityPtr(text.get()));
        DrawingPlot plot = plotOf(drawing);
        SceneExtents area;
        area.add({-10, -50});
        area.add({100, 50});
        plot.addModel(area, *layoutOf(*drawing, L"*Model_Space"), false);
        const std::string words = outputOf("pdftotext -layout " + save(plot) + " -");
        return std::count(words.begin(), words.end(), '\n');
    };
    EXPECT_EQ(lines(55) + 1, lines(53));
}

TEST_F(DrawingPlots, EachLayoutIsAPageInTheOrderOfTheTabs) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto layouts = LayoutsOnPaper(*drawing);
    ASSERT_EQ(layouts.size(), 1u);
    EXPECT_FALSE(layouts[0]->modelType());
    DrawingPlot plot = plotOf(drawing);
    for (int i = 0; i < 3; ++i) plot.addLayout(*layouts[0], *layouts[0]);
    EXPECT_NE(outputOf("pdfinfo " + save(plot)).find("Pages:           3\n"), std::string::npos);
}

TEST_F(DrawingPlots, LayersOfTheDrawingAreLayersOfTheFile) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    addLine(*drawing, L"*Model_Space", 0, 0, 100, 100, 1);
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    const auto optional = [&](bool layers) {
        DrawingPlot plot = plotOf(drawing, {layers, false});
        plot.addModel(ModelExtents(*drawing), *layout, false);
        return outputOf("qpdf --json=1 --json-key=objects " + save(plot)).find("/OCG") != std::string::npos;
    };
    EXPECT_TRUE(optional(true));
    EXPECT_FALSE(optional(false));
}

TEST_F(DrawingPlots, MergedColorsDarkenWhereLinesCross) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    addLine(*drawing, L"*Model_Space", 0, 50, 100, 50, 1);
    addLine(*drawing, L"*Model_Space", 50, 0, 50, 100, 3);
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    layout->setPlotPaperSize(110, 110);
    SceneExtents area;
    area.add({0, 0});
    area.add({100, 100});
    const auto crossing = [&](bool merges) {
        DrawingPlot plot = plotOf(drawing, {false, merges});
        plot.addModel(area, *layout, false);
        return pictureOf(save(plot)).at(55 * kMm, 55 * kMm);
    };
    EXPECT_TRUE(isDark(crossing(true))) << "red by green";
    EXPECT_GT(crossing(false)[1], 200) << "the later line covers";
}

TEST_F(DrawingPlots, AnOverrideCountsWhereItIsWanted) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    EXPECT_EQ(PlotSettingsOf(*layout, true).get(), layout.get()) << "there is none";
    layout->createExtensionDictionary();
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    settings->copyFrom(*layout);
    settings->setPlotPaperSize(210, 297);
    const auto dictionary = layout->extensionDictionary().open<OdDbDictionary>(OdDb::kForWrite);
    EXPECT_EQ(dictionary->setAt(kPlotOverrideName, OdDbObjectPtr(settings.get())), kOdOk);
    EXPECT_EQ(PlotSettingsOf(*layout, true).get(), settings.get());
    EXPECT_EQ(PlotSettingsOf(*layout, false).get(), layout.get());
    EXPECT_EQ(layout->getPlotPaperWidth(), 420);
}

TEST_F(DrawingPlots, AnEmptyDrawingIsAnEmptyPage) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    EXPECT_TRUE(ModelExtents(*drawing).isEmpty());
    DrawingPlot plot = plotOf(drawing);
    plot.addModel({}, *layoutOf(*drawing, L"*Model_Space"), false);
    EXPECT_NE(outputOf("qpdf --check " + save(plot)).find("No syntax"), std::string::npos);
}

TEST_F(DrawingPlots, PicturesLieInTheFileWhereTheDrawingHasThem) {
    // Red over blue, turned by a quarter turn so that red is on the left, seen through its right boundary.
    constexpr PicturePixel kRed = 0xFFFF0000, kBlue = 0xFF0000FF;
    const auto shown = std::make_shared<ScenePicture>(1, 2, std::vector<PicturePixel>{kRed, kBlue});
    const std::string file = ui_test::fileGroups(
        "0 SECTION|2 HEADER|9 $ACADVER|1 AC1032|0 ENDSEC|0 SECTION|2 ENTITIES|"
        "0 IMAGE|8 0|100 AcDbRasterImage|10 100|20 0|30 0|11 0|21 40|31 0|12 -20|22 0|32 "
        "0|13 1|23 2|340 D0|70 7|280 0|"
        "0 IMAGE|8 0|100 AcDbRasterImage|10 0|20 100|30 0|11 80|21 0|31 0|12 0|22 20|32 0|13 "
        "1|23 2|340 D0|70 7|280 1|71 1|91 2|14 0|24 -.5|14 .5|24 1.5|"
        "0 ENDSEC|0 SECTION|2 OBJECTS|0 IMAGEDEF|5 D0|330 0|100 AcDbRasterImageDef|1 a.png|"
        "0 RASTERVARIABLES|5 E0|330 C|70 0|0 ENDSEC|0 EOF");
    const OdDbDatabasePtr drawing(new OdDbDatabase);
    ASSERT_EQ(drawing->readDxfBytes(file), kOdOk);
    layoutOf(*drawing, L"*Model_Space")->setPlotPaperSize(220, 220);
    DrawingPlot plot = plotOf(drawing);
    SceneOptions files;
    files.picture = [&](const OdString& name) {
        return FoundPicture{name == L"a.png" ? shown : nullptr, false};
    };
    plot.setFiles(files);
    SceneExtents area;
    area.add({0, 0});
    area.add({200, 200});
    const OdDbLayoutPtr layout = layoutOf(*drawing, L"*Model_Space");
    plot.addModel(area, *layout, false);
    const std::string path = save(plot);
    EXPECT_NE(outputOf("pdfimages -list " + path).find("\n   1"), std::string::npos);
    outputOf("qpdf --check " + path);
    const Picture page = pictureOf(path);
    const PaperPlace place = PlaceArea(*layout, area, false);
    const auto color = [&](double x, double y) {
        const OdGePoint2d at = place.apply({x, y});
        return page.at(at.x, at.y);
    };
    EXPECT_EQ(color(70, 20), (std::array<int, 3>{255, 0, 0}));
    EXPECT_EQ(color(90, 20), (std::array<int, 3>{0, 0, 255}));
    EXPECT_TRUE(isWhite(color(70, 60))) << "above it";
    EXPECT_TRUE(isWhite(color(20, 130))) << "left of the boundary";
    EXPECT_EQ(color(60, 130), (std::array<int, 3>{255, 0, 0}));
    EXPECT_EQ(color(60, 110), (std::array<int, 3>{0, 0, 255}));
}

TEST_F(DrawingPlots, APictureThatIsThereTwiceIsWrittenOnce) {
    PdfWriter file;
    const PdfPicture red = {1, 1, std::string("\xFF\0\0", 3), {}}, half = {1, 1, red.colors, "\x80"};
    EXPECT_EQ(file.picture(red), 0);
    EXPECT_EQ(file.picture(half), 1);
    EXPECT_EQ(file.picture(red), 0);
    PdfPage& page = file.addPage(40, 20);
    page.showPicture(0, {20, 0, 0, 20, 0, 0});
    page.showPicture(1, {20, 0, 0, 20, 20, 0});
    const std::string path = (folder / "two.pdf").string();
    std::ofstream(path, std::ios::binary) << file.write();
    outputOf("qpdf --check " + path);
    const Picture shown = pictureOf(path);
    EXPECT_EQ(shown.at(10, 10), (std::array<int, 3>{255, 0, 0}));
    const std::array<int, 3> mixed = shown.at(30, 10);
    EXPECT_EQ(mixed[0], 255);
    EXPECT_NEAR(mixed[1], 127, 2);
    EXPECT_NEAR(mixed[2], 127, 2);
}

TEST_F(DrawingPlots, WhatIsClearInAPictureIsClearOnThePage) {
    Scene scene;
    SceneImage& image = scene.images.emplace_back();
    image.picture = std::make_shared<ScenePicture>(2, 1, std::vector<PicturePixel>{0xFFFF0000, 0x000000FF});
    image.across = {40, 0};
    image.up = {0, 20};
    image.isTransparent = true;
    PdfWriter file;
    PdfPage& page = file.addPage(40, 20);
    page.setFillColor({0, 255, 0});
    page.moveTo({0, 0});
    page.lineTo({40, 0});
    page.lineTo({40, 20});
    page.lineTo({0, 20});
    page.fill();
    PlotScene(file, page, scene, {}, plot_test::face, {});
    const std::string path = (folder / "clear.pdf").string();
    std::ofstream(path, std::ios::binary) << file.write();
    const Picture shown = pictureOf(path);
    EXPECT_EQ(shown.at(10, 10), (std::array<int, 3>{255, 0, 0}));
    EXPECT_EQ(shown.at(30, 10), (std::array<int, 3>{0, 255, 0}));
}
