// Measures saving and loading a large drawing as DXF beside dxflib's bare parse of the same
// file (a creation interface whose callbacks do nothing): the loader does all its checking and
// building within what dxflib alone takes to read the file.
//
// Usage: dxf_bench [lines] (200000 by default). Each figure is the best of three runs.

#include <dl_creationadapter.h>
#include <dl_dxf.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbLine.h"

namespace {
// The best of three runs; prepare runs before each, untimed.
double bestSeconds(const std::function<void()>& run, const std::function<void()>& prepare = [] {}) {
    double best = 1e100;
    for (int i = 0; i < 3; ++i) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        run();
        best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    return best;
}

void buildDrawing(AcDbDatabase& db, int lines) {
    db.registerApplication(L"XIMO_BENCH");
    AcDbBlockTableRecord* model = nullptr;
    acdbOpenObject(model, db.modelSpaceId(), AcDb::kForWrite);
    for (int i = 0; i < lines; ++i) {
        const AcGePoint3d start(i * 0.37, i * 1.13, 0.0);
        auto* line = new AcDbLine(start, start + AcGeVector3d(12.5, -3.25, 0.0));
        line->setXData(AcDbXDataApp{L"XIMO_BENCH",
                                    {AcDbXDataValue::string(L"element " + std::to_wstring(i)),
                                     AcDbXDataValue::real(i * 0.001),
                                     AcDbXDataValue::int16(static_cast<Adesk::Int16>(i % 30000)),
                                     AcDbXDataValue::int32(i), AcDbXDataValue::point(AcGePoint3d(i, -i, 0.5))}});
        model->appendAcDbEntity(line);
        line->close();
    }
    model->close();
}

std::size_t modelSpaceSize(const AcDbDatabase& db) {
    const auto* model = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(db.modelSpaceId()));
    return model ? model->entityIds().size() : 0;
}
}  // namespace

int main(int argc, char** argv) {
    const int lines = argc > 1 ? std::atoi(argv[1]) : 200000;
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "ximo_dxf_bench.dxf";
    const std::wstring name = file.wstring();

    AcDbDatabase db;
    buildDrawing(db, lines);
    std::wstring error;
    const double save = bestSeconds([&] {
        if (db.dxfOut(name.c_str(), &error) != Acad::eOk) std::fprintf(stderr, "%s\n", acutWcharToUtf8(error).c_str());
    });
    const double megabytes = static_cast<double>(std::filesystem::file_size(file)) / 1e6;

    // Loading into a fresh database; freeing it afterwards is not part of loading.
    std::unique_ptr<AcDbDatabase> loaded;
    const double load = bestSeconds(
        [&] {
            if (loaded->dxfIn(name.c_str(), &error) != Acad::eOk)
                std::fprintf(stderr, "%s\n", acutWcharToUtf8(error).c_str());
        },
        [&] { loaded = std::make_unique<AcDbDatabase>(false); });
    const std::size_t loadedLines = modelSpaceSize(*loaded);

    const double bare = bestSeconds([&] {
        DL_CreationAdapter nothing;
        DL_Dxf dxf;
        dxf.in(file.string(), &nothing);
    });

    std::printf("%d lines with 5 extended data items each, %.1f MB\n", lines, megabytes);
    std::printf("save            %7.3f s  %7.1f MB/s\n", save, megabytes / save);
    std::printf("load            %7.3f s  %7.1f MB/s  (%zu lines read back)\n", load, megabytes / load, loadedLines);
    std::printf("dxflib parse    %7.3f s  %7.1f MB/s  (callbacks doing nothing)\n", bare, megabytes / bare);
    std::filesystem::remove(file);
    return loadedLines == static_cast<std::size_t>(lines) ? 0 : 1;
}
