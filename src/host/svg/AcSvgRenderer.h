#pragma once
// Pictures of drawings: the model space of a database, or a window of it, as an SVG document on
// white paper, so that people can look at sheets without the host.

#include <string>

#include "host/database/AcDbDatabase.h"
#include "host/svg/AcSvgOptions.h"

class AcSvgRenderer {
public:
    // The database must outlive the renderer.
    AcSvgRenderer(const AcDbDatabase& db, const AcSvgOptions& options);

    // The SVG document. Fails with eInvalidInput for an empty window (error says why) and with
    // eNotInDatabase when the drawing has no model space.
    Acad::ErrorStatus render(std::string& svg, std::wstring* error = nullptr) const;
    // Renders and writes the file through a temporary file, so an existing picture is replaced
    // only by a complete one; error names the file.
    Acad::ErrorStatus writeFile(const std::wstring& fileName, std::wstring* error = nullptr) const;

    // The box around the model space's entities on visible layers; invalid when there are none.
    AcDbExtents drawingExtents() const;
    // The window the picture shows: the options' window, or the drawing's extents made at least a
    // little wide and high (a drawing with one point, or none, still gets a picture).
    AcDbExtents shownWindow() const;

private:
    const AcDbDatabase& m_db;
    AcSvgOptions m_options;
};

Acad::ErrorStatus acdbRenderSvg(const AcDbDatabase& db, const AcSvgOptions& options, std::string& svg,
                                std::wstring* error = nullptr);
Acad::ErrorStatus acdbWriteSvgFile(const AcDbDatabase& db, const AcSvgOptions& options, const ACHAR* fileName,
                                   std::wstring* error = nullptr);
