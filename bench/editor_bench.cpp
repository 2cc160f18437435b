// Measures the scheme editor on the demo workspace: a grid of sheets drawn (each serialised and
// stored) and the drawing saved, as sheets per second; then elements inserted one by one into one
// sheet through the placement drag, as the time of the first and of the last hundred inserts.
//
// Usage: editor_bench [sheets] [elements] (1000 and 1000 by default).

#include "framework/catalog/CCatalogItem.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/demo/CDemoWorkspace.h"
#include "framework/repository/CRepositoryManager.h"
#include "framework/systems/CSystemManager.h"
#include "host/base/AcString.h"
#include "host/documents/AcApDocManager.h"
#include "host/input/AcEdInputScript.h"
#include "module/catalog/CASCatalog.h"
#include "module/catalog/CASDemoElements.h"
#include "module/definitions/CASDefinition.h"
#include "module/definitions/CASRepository.h"
#include "module/editor/CASEditor.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"

#include <unistd.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

using namespace XimoGis;
using namespace XimoGis::AssemblySchemes;

namespace {

using Clock = std::chrono::steady_clock;

double Since(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

bool Fail(const std::wstring& message) {
    std::fprintf(stderr, "editor_bench: %s\n", acutWcharToUtf8(message).c_str());
    return false;
}

// The demo workspace with its element plug-ins, opened.
bool OpenDemo(const std::filesystem::path& folder) {
    std::wstring error;
    const std::vector<Workspace::CWorkspaceBuilder::Step> elements = {
        [](const std::wstring& built, std::wstring& e) {
            return CASDemoElements::InstallPlugins(acutUtf8ToWchar(XIMO_PLUGIN_DIR), built, e);
        },
        &CASDemoElements::WriteBlockFiles,
    };
    if (!Demo::CDemoWorkspace::Build(folder.wstring(), error, elements)) return Fail(error);
    if (!CModuleConfiguration::Instance()->Open(folder.wstring(), error)) return Fail(error);
    if (!System::CSystemManager::Instance()->OpenWorkspace(error)) return Fail(error);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const int sheets = argc > 1 ? std::atoi(argv[1]) : 1000;
    const int elements = argc > 2 ? std::atoi(argv[2]) : 1000;
    if (sheets < 1 || elements < 1) {
        std::fprintf(stderr, "usage: editor_bench [sheets] [elements]\n");
        return 2;
    }
    const auto folder = std::filesystem::temp_directory_path() / ("editor_bench_" + std::to_string(::getpid()));
    std::filesystem::remove_all(folder);
    if (!OpenDemo(folder / "workspace")) return 1;
    CASManager* manager = CASManager::Instance();
    CASEditor* editor = CASEditor::Instance();
    System::CGisSystem* system = System::CSystemManager::Instance()->GetActiveSystem();
    auto* repository = CRepositoryManager::GetSystemRepository(system, CASRepository::kRepositoryKey, 0);
    auto* definition = repository ? dynamic_cast<CASDefinition*>(repository->GetRepositoryItemByName(L"A4 portrait"))
                                  : nullptr;
    if (!definition) return Fail(L"the demo has no definition \"A4 portrait\""), 1;
    acDocManager->appContextNewDocument();
    AcDbDatabase* db = acDocManager->curDocument()->database();
    const std::wstring drawing = (folder / "bench.dxf").wstring();

    // The grid: as square as the count allows, its lower-left sheet at the origin.
    const int columns = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(sheets))));
    const int rows = (sheets + columns - 1) / columns;
    std::vector<boost::shared_ptr<Topology::CNode>> nodes(static_cast<std::size_t>(sheets));
    acedInputScript()->addPick(AcGePoint3d::kOrigin);
    auto start = Clock::now();
    if (!editor->Draw(definition, rows, columns, 20.0, 20.0, &nodes)) return Fail(L"the grid was not drawn"), 1;
    const double drawn = Since(start);
    start = Clock::now();
    if (db->dxfOut(drawing.c_str()) != Acad::eOk) return Fail(L"cannot save " + drawing), 1;
    const double saved = Since(start);
    std::printf("grid of %d sheets (%d x %d): drawn in %.3f s, saved in %.3f s: %.0f sheets/s drawn, %.0f sheets/s "
                "drawn and saved (%zu objects, %.1f MB)\n",
                sheets, rows, columns, drawn, saved, sheets / drawn, sheets / (drawn + saved), db->numObjects(),
                std::filesystem::file_size(drawing) / 1e6);

    // Elements on the lower-left sheet: pipe pieces, tees and bends in turn, on a lattice.
    const wchar_t* const items[] = {L"{E3591C61-32BC-58FD-8582-98EBB619F013}",
                                    L"{2761AEBD-F37E-5918-9F42-755B282BA026}",
                                    L"{8CB28F65-26D1-5494-8D56-5A2CC3CFD7BE}"};
    std::vector<double> seconds;
    for (int i = 0; i < elements; ++i) {
        Data::CCatalogItem* item = CASCatalog::GetItem(items[i % 3]);
        if (!item) return Fail(L"the demo catalog has no item " + std::wstring(items[i % 3])), 1;
        const AcGePoint3d at(40.0 + (i % 5) * 35.0, 40.0 + ((i / 5) % 7) * 35.0, 0.0);
        acedInputScript()->addMove(at);
        acedInputScript()->addPick(at);
        start = Clock::now();
        if (!editor->DrawASElement(item, eViewTop)) return Fail(L"element " + std::to_wstring(i) + L" not placed"), 1;
        seconds.push_back(Since(start));
    }
    const std::size_t hundred = std::min<std::size_t>(100, seconds.size());
    double first = 0.0, last = 0.0;
    for (std::size_t i = 0; i < hundred; ++i) {
        first += seconds[i];
        last += seconds[seconds.size() - hundred + i];
    }
    start = Clock::now();
    db->dxfOut(drawing.c_str());
    std::printf("%d elements inserted one by one into one sheet: first %zu in %.3f s (%.2f ms each), last %zu in "
                "%.3f s (%.2f ms each); saved in %.3f s\n",
                elements, hundred, first, first * 1000.0 / hundred, hundred, last, last * 1000.0 / hundred,
                Since(start));
    const auto sheet = editor->GetInstanceByPosition({40.0, 40.0, 0.0});
    std::printf("the sheet holds %zu elements; %zu sheets stored\n", sheet ? sheet->GetElementInstances().size() : 0,
                manager->GetASIStorage()->GetASRegistry().size());
    std::filesystem::remove_all(folder);
    return 0;
}
