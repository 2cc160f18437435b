#include "CCatalogCommand.h"

#include "framework/cad/CXimoCDraw.h"
#include "framework/cad/CXimoCEdit.h"
#include "framework/catalog/CCatalog.h"
#include "framework/config/CModuleConfiguration.h"
#include "host/base/AcString.h"
#include "host/svg/AcSvgRenderer.h"
#include "module/catalog/CASCatalog.h"
#include "module/catalog/CASElementDrawing.h"
#include "module/manager/CASManager.h"

#include <algorithm>
#include <vector>

namespace XimoGis::Asch {

namespace po = boost::program_options;
using AssemblySchemes::CASCatalog;
using AssemblySchemes::CASElementDrawing;
using AssemblySchemes::CASManager;
using AssemblySchemes::enmViewDirection;
using Data::CCatalogItem;

namespace {

std::string Utf8(const std::wstring& text) { return acutWcharToUtf8(text); }

std::string Value(const Data::CPropertyValue& value) { return value.IsNull() ? "(null)" : Utf8(value.GetText()); }

void List(const CCatalogItem& item, int depth, std::ostream& out) {
    const std::string indent(2 * static_cast<std::size_t>(depth), ' ');
    if (item.IsGroup()) {
        out << indent << Utf8(item.GetName()) << "/\n";
        for (const auto& child : item.GetChildren()) List(*child, depth + 1, out);
        return;
    }
    const std::wstring type = CASCatalog::GetElementType(&item);
    out << indent << Utf8(item.GetName()) << "  [" << Utf8(CASCatalog::GetCatalogNumber(&item)) << "]  "
        << Utf8(type) << (CASManager::Instance()->GetAETypeProvider(type.c_str()) ? " (provider)" : " (block files)")
        << "  " << Utf8(item.GetId()) << '\n';
}

// The item with that id, or else the only one with that name.
CCatalogItem* FindItem(const Data::CCatalog& catalog, const std::wstring& reference, std::wstring& error) {
    if (CCatalogItem* item = catalog.GetItem(reference)) return item;
    std::vector<CCatalogItem*> named;
    for (CCatalogItem* item : catalog.GetItemsInTreeOrder()) {
        if (!item->IsGroup() && item->GetName() == reference) named.push_back(item);
    }
    if (named.size() == 1) return named.front();
    error = named.empty() ? L"the catalog has no item \"" + reference + L"\""
                          : L"several catalog items are named \"" + reference + L"\"; give the id";
    return nullptr;
}

void Show(const CCatalogItem& item, const std::wstring& blockFolder, std::ostream& out) {
    out << Utf8(item.GetName()) << "  " << Utf8(item.GetId()) << '\n';
    std::wstring path;
    for (const CCatalogItem* parent = item.GetParentItem(); parent; parent = parent->GetParentItem())
        path = parent->GetName() + (path.empty() ? L"" : L" / " + path);
    out << "group: " << (path.empty() ? "(root)" : Utf8(path)) << "\nitem type: " << Utf8(item.GetItemType())
        << "\nproperties:\n";
    for (const auto& category : item.GetProperties().GetCategories()) {
        for (const auto& property : category->GetProperties()) {
            out << "  " << Utf8(property->GetTag()) << " = " << Value(property->GetValue());
            if (property->GetHiddenValue() != property->GetValue())
                out << " (hidden: " << Value(property->GetHiddenValue()) << ')';
            out << '\n';
        }
    }
    const std::wstring type = CASCatalog::GetElementType(&item);
    out << "element type " << Utf8(type) << ": ";
    if (const auto provider = CASManager::Instance()->GetAETypeProvider(type.c_str())) {
        std::wstring problem;
        out << "provider \"" << Utf8(provider->GetDescription()) << '"';
        if (!provider->CheckCatalogItem(&item, problem)) out << ", which cannot draw this item: " << Utf8(problem);
        out << '\n';
    } else {
        out << "no provider, drawn from block files\n";
    }
    out << "views:\n";
    for (const enmViewDirection view : AssemblySchemes::kViewDirections) {
        const auto source = CASElementDrawing::Find(view, &item, blockFolder);
        out << "  " << Utf8(AssemblySchemes::GetViewDirectionName(view)) << " (" << static_cast<int>(view) << "): ";
        if (source.provider) out << "provider " << Utf8(source.provider->GetProviderId()) << '\n';
        else if (!source.blockFile.empty()) out << "block file " << Utf8(source.blockFile) << '\n';
        else out << "none (" << Utf8(source.problem) << ")\n";
    }
}

// Draws the views side by side from left to right, 100 mm apart, each named below in text 30 mm
// high (a view is given room for its name).
int Draw(CCatalogItem& item, const std::wstring& blockFolder, const std::vector<enmViewDirection>& views,
         const std::wstring& output, CAschConsole& console) {
    AcDbDatabase db;
    acdbHostApplicationServices()->setWorkingDatabase(&db);
    std::wstring error;
    double x = 0.0;
    int drawn = 0;
    for (const enmViewDirection view : views) {
        const auto source = CASElementDrawing::Find(view, &item, blockFolder);
        if (views.size() > 1 && !source.provider && source.blockFile.empty()) continue;
        AcDbObjectIdArray ids;
        if (!CASElementDrawing::Draw(AcGePoint3d::kOrigin, view, &item, nullptr, blockFolder, ids, error)) break;
        AcDbExtents extents;
        for (int i = 0; i < ids.length(); ++i) {
            CXimoCEntityPtr entity(ids[i], AcDb::kForRead);
            AcDbExtents part;
            if (entity && entity->getGeomExtents(part) == Acad::eOk) extents.addExt(part);
        }
        const AcGeVector3d shift(x - extents.minPoint().x, 0.0, 0.0);
        for (int i = 0; i < ids.length(); ++i) CXimoCEdit::moveEntity(ids[i], shift);
        CXimoCDraw::text(AcGePoint3d(x, extents.minPoint().y - 60.0, 0.0), AssemblySchemes::GetViewDirectionName(view),
                         30.0);
        x += std::max(extents.maxPoint().x - extents.minPoint().x, 200.0) + 100.0;
        ++drawn;
    }
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    if (!error.empty() || drawn == 0)
        return console.Fail(error.empty() ? L"catalog item \"" + item.GetName() + L"\" is drawn from no view" : error);
    const bool dxf = output.size() >= 4 && output.compare(output.size() - 4, 4, L".dxf") == 0;
    if ((dxf ? db.dxfOut(output.c_str(), &error) : acdbWriteSvgFile(db, AcSvgOptions(), output.c_str(), &error)) !=
        Acad::eOk)
        return console.Fail(error);
    console.Out() << "wrote " << Utf8(output) << ": " << Utf8(item.GetName()) << ", " << drawn << " view(s)\n";
    return kExitOk;
}

}  // namespace

void CCatalogCommand::DescribeArguments(CAschArguments& arguments) const {
    arguments.AddPositional("action", "list, show or draw", true);
    arguments.AddPositional("item", "id or name of the catalog item (show, draw)", false);
    arguments.AddWorkspace();
    arguments.AddOptions()("view", po::value<std::string>()->value_name("V")->default_value("all"),
                           "draw: the view direction, or all")(
        "output,o", po::value<std::string>()->value_name("OUT"), "draw: the file to write, .dxf or .svg");
}

int CCatalogCommand::Run(const CAschArguments& arguments, CAschConsole& console) const {
    const std::string action = Utf8(arguments.GetText("action"));
    if (action != "list" && action != "show" && action != "draw") {
        console.Fail("unknown action '" + action + "' (list, show or draw)");
        return kExitUsage;
    }
    const std::wstring reference = arguments.GetText("item");
    if (action != "list" && reference.empty()) {
        console.Fail(action + " needs an item");
        return kExitUsage;
    }
    std::vector<enmViewDirection> views(std::begin(AssemblySchemes::kViewDirections),
                                        std::end(AssemblySchemes::kViewDirections));
    const std::wstring view = arguments.GetText("view");
    if (view != L"all") {
        views.resize(1);
        if (!AssemblySchemes::ParseViewDirection(view, views.front())) {
            console.Fail(L"unknown view '" + view + L"'");
            return kExitUsage;
        }
    }
    if (action == "draw" && arguments.GetText("output").empty()) {
        console.Fail(std::string("draw needs an output file (-o OUT)"));
        return kExitUsage;
    }

    std::wstring error;
    if (!CModuleConfiguration::Instance()->Open(arguments.GetWorkspace(), error)) return console.Fail(error);
    Data::CCatalog* catalog = CASCatalog::GetCatalog(error);
    if (!catalog) return console.Fail(error);
    CASManager* manager = CASManager::Instance();  // loads the workspace's element plug-ins
    if (action == "list") {
        console.Out() << Utf8(catalog->GetName()) << ": " << catalog->GetItemCount() << " entries, "
                      << manager->GetAssemblyElementTypeRegistry()->size() << " element type provider(s)\n";
        for (const auto& root : catalog->GetRootItems()) List(*root, 0, console.Out());
        return kExitOk;
    }
    CCatalogItem* item = FindItem(*catalog, reference, error);
    if (!item) return console.Fail(error);
    if (action == "show") {
        Show(*item, manager->GetASElementsBlockPath(), console.Out());
        return kExitOk;
    }
    return Draw(*item, manager->GetASElementsBlockPath(), views, arguments.GetText("output"), console);
}

}  // namespace XimoGis::Asch
