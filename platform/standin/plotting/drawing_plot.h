// DrawingPlot: writes areas of model space and sheets of layouts as the pages of a PDF file. Knows no window.
//
//     DrawingPlot plot(drawing, faces, look);
//     plot.addModel(area, settings, false);
//     std::string file = plot.write(L"Bracket");
#pragma once

#include <atomic>
#include <stop_token>

#include "plotting/layouts_on_paper.h"
#include "plotting/scene_plotter.h"
#include "scene_options.h"

/// The name in a layout's extension dictionary under which the settings that override its own are kept.
constexpr const wchar_t* kPlotOverrideName = L"AcPublish_PlotSettingsOverride";

/// The settings that `layout` is plotted by: those that override its own for `overrides`, if it has some.
OdDbPlotSettingsPtr PlotSettingsOf(const OdDbLayout& layout, bool overrides);

/// The area that everything that is plotted in model space takes up, as far as it is found until `stop`.
SceneExtents ModelExtents(OdDbDatabase& drawing, std::stop_token stop = {});

class DrawingPlot {
public:
    DrawingPlot(OdDbDatabase& drawing, PlotFaces faces, const PlotLook& look)
        : m_drawing(drawing), m_faces(std::move(faces)), m_look(look) {}

    /// Where pages take shapes, shape fonts and pictures from: of `files` nothing else counts. Without it
    /// shapes are missing, texts are in the letters of `faces`, and of pictures the frames are drawn.
    void setFiles(const SceneOptions& files) {
        m_files.shapeFile = files.shapeFile;
        m_files.shapeFontInPlace = files.shapeFontInPlace;
        m_files.picture = files.picture;
    }

    /// Once `stop` is asked for, pages end where they are. `percent`, if not null, is how far the page at
    /// hand has come; it outlives the pages.
    void setProgress(std::stop_token stop, std::atomic<int>* percent) {
        m_stop = std::move(stop);
        m_percent = percent;
    }

    /// A page that shows `area` of model space and nothing beside it; `keepsScale` as for PlaceArea.
    void addModel(const SceneExtents& area, const OdDbPlotSettings& settings, bool keepsScale);
    /// A page that shows the sheet of `layout` with what its viewports show of model space.
    void addLayout(const OdDbLayout& layout, const OdDbPlotSettings& settings);
    /// A line of text at the foot of the last page.
    void stamp(std::wstring_view text);

    int pageCount() const { return static_cast<int>(m_file.pages().size()); }
    /// Whether a page lacks something, as there is more than scenes hold, or it was stopped.
    bool isCut() const { return m_isCut; }
    /// The whole file.
    std::string write(std::wstring_view title);

private:
    Scene scene(const OdDbObjectId& block);

    OdDbDatabase& m_drawing;
    PlotFaces m_faces;
    SceneOptions m_files;
    PlotLook m_look;
    PdfWriter m_file;
    PdfPage* m_last = nullptr;
    std::stop_token m_stop;
    std::atomic<int>* m_percent = nullptr;
    bool m_isCut = false;
};
