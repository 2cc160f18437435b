#include "module/editor/CASEditor.h"

#include "host/base/AcString.h"

#include "module/catalog/CASElementDrawing.h"
#include "module/components/IASComponentInterface.h"
#include "module/definitions/CASDefinition.h"
#include "module/editor/CASFlange.h"
#include "module/instances/CASInstance.h"
#include "module/instances/CASInstanceStorage.h"
#include "module/manager/CASManager.h"
#include "module/support/CASCheckMark.h"
#include "module/support/CASEntityGroup.h"
#include "module/support/CASFormat.h"
#include "module/support/CASSelectionSet.h"

#include "framework/cad/CXimoCDocLock.h"
#include "framework/cad/CXimoCDraw.h"
#include "framework/cad/CXimoCEdit.h"
#include "framework/catalog/CCatalogItem.h"
#include "framework/config/CModuleConfiguration.h"
#include "framework/data/CDDCache.h"
#include "framework/data/CDataRW.h"
#include "framework/data/CManholeManager.h"
#include "framework/longitudinal/CLSEditor.h"
#include "framework/manholescheme/CMSManager.h"
#include "framework/systems/CGisSystem.h"
#include "framework/systems/CSystemManager.h"
#include "framework/topology/CNode.h"
#include "framework/topology/CTopologyMultiStorage.h"
#include "framework/ui/CProgressBar.h"
#include "framework/utility/CUtility.h"
#include "framework/workspace/CWsManager.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbLine.h"
#include "host/entities/AcDbMText.h"
#include "host/input/acedDragGen.h"
#include "host/input/acedGraphics.h"
#include "host/input/acedInput.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <limits>

namespace XimoGis::AssemblySchemes {

namespace {

constexpr int kProgressMessage = 3457;
constexpr int kPickPointMessage = 6260;
constexpr int kManholeFailedMessage = 9965;
constexpr int kNoManholeMessage = 9968;
constexpr int kCrossColor = 1;
constexpr int kElementFlangeMessage = 22024;
constexpr int kSchemeFlangeMessage = 22023;
constexpr int kMirrorMessage = 9977;
constexpr int kRotateMessage = 22021;
// The drag takes any typed text (RSG_OTHER) and ignores object snaps (RSG_NOOSNAP).
constexpr int kPlacementInputFlags = 2176;
constexpr int kElementEntityType = 512;
constexpr const wchar_t* kCommentComponent = L"01CMMNT";

System::CGisSystem* ActiveSystem() { return System::CSystemManager::Instance()->GetActiveSystem(); }

// The layer of the reference in the system, recreating the system's layers once when the system
// lacks the reference or the drawing lacks the layer.
const System::CGisSystemLayer* ResolveLayer(System::CGisSystem& system, const std::wstring& reference) {
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    const System::CGisSystemLayer* layer = system.GetLayerByReference(reference.c_str());
    if (layer && (!database || !database->layerId(layer->GetLayerName()).isNull())) return layer;
    system.RecreateSystemlayers(database);
    return system.GetLayerByReference(reference.c_str());
}

// The definition's first component of the type; null when it has none.
CASComponentData* ComponentOfType(CASDefinition* definition, const std::wstring& typeId) {
    if (!definition) return nullptr;
    for (const auto& [internalId, component] : definition->GetComponents()) {
        if (component->GetId() == typeId) return component.get();
    }
    return nullptr;
}

void SetTranslation(ads_matrix matrix, const AcGeVector3d& v) {
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) matrix[r][c] = r == c ? 1.0 : 0.0;
    matrix[0][3] = v.x;
    matrix[1][3] = v.y;
    matrix[2][3] = v.z;
}

}  // namespace

CASEditor* CASEditor::m_pInstance = nullptr;
CDragGenData_Draw* CASEditor::m_pDragGenData_Draw = nullptr;
AcGePoint3d CASEditor::m_ptASGroupBP;

CASEditor* CASEditor::Instance() {
    if (!m_pInstance) {
        m_pInstance = new CASEditor();
        m_pDragGenData_Draw = new CDragGenData_Draw();
    }
    return m_pInstance;
}

boost::shared_ptr<CASInstance> CASEditor::Draw(AcGePoint3d& basePoint, CASDefinition* definition,
                                               Topology::CNode* node) {
    if (!definition) return {};
    const double width = definition->GetPaperWidth();
    const double height = definition->GetPaperHeight();
    const AcGePoint3d& p = basePoint;

    auto instance = boost::make_shared<CASInstance>();
    instance->SetDefinitionId(definition->GetId().c_str());
    instance->SetBasePoint(p);
    instance->SetWidth(width);
    instance->SetHeight(height);
    if (node) instance->SetRefNode(node->GetGuid().c_str());

    if (definition->GetIntProperty(L"ASDPF", 0, 1)) {
        // The sheet frame lies in the plan whatever the base point's elevation.
        const AcArray<AcGePoint3d> corners{{p.x, p.y, 0.0},
                                           {p.x + width, p.y, 0.0},
                                           {p.x + width, p.y + height, 0.0},
                                           {p.x, p.y + height, 0.0}};
        CXimoCEntityPtr frame = CXimoCDraw::polylineLW(corners, true, 0.0);
        if (frame) {
            frame.setColorIndex(static_cast<Adesk::UInt16>(definition->GetIntProperty(L"ASFLC", 0, 1) & 0xFFFF));
            frame.setLinetype(definition->GetStrProperty(L"ASFLLT", L"Continuous", 1).c_str());
            m_collected.append(frame.objectId());
            instance->SetThirdGeneralEntity(frame.objectId());
        }
    }

    const AcDbObjectId lower = CXimoCDraw::point(p).objectId();
    const AcDbObjectId upper = CXimoCDraw::point(AcGePoint3d(p.x + width, p.y + height, p.z)).objectId();
    SetLayer(AcDbObjectIdArray{lower, upper}, nullptr, L"SCHEME_NP");
    instance->SetBasePointEntity(lower);
    instance->SetSecondGeneralEntity(upper);

    CASManager* manager = CASManager::Instance();
    for (const auto& [internalId, component] : definition->GetComponents()) {
        const std::wstring typeId = component->GetId();
        const auto type = manager->GetASComponentById(typeId.c_str());
        if (!type || type->IsInteractive()) continue;
        AcDbObjectIdArray drawn;
        type->DrawComponent(component.get(), instance.get(), drawn);
        instance->AddDrawnByComponent(typeId.c_str(), drawn);
        SetLayer(drawn, nullptr, typeId);
    }
    return instance;
}

int CASEditor::Draw(CASDefinition* definition, int rows, int columns, double gapX, double gapY, NodeVector* nodes) {
    if (!definition) return 0;
    m_collected.removeAll();
    CASManager* manager = CASManager::Instance();
    manager->ReloadInstanceStorage();
    const std::size_t cells =
        static_cast<std::size_t>(std::max(rows, 0)) * static_cast<std::size_t>(std::max(columns, 0));
    const std::size_t count = nodes ? nodes->size() : cells;
    const double width = definition->GetPaperWidth();
    const double height = definition->GetPaperHeight();

    AcGePoint3d base;
    if (!Longitudinal::CLSEditor::GetLSGridBP(columns, rows, width, height, gapX, gapY, &base,
                                              Longitudinal::CLSEditor::eGridBottomLeft))
        return 0;

    UI::CProgressBar* progress = UI::CProgressBar::Instance();
    progress->SaveState();
    progress->Show(kProgressMessage, 0, static_cast<int>(count));
    System::CGisSystem* system = ActiveSystem();
    if (!system) {
        progress->Hide();
        return 0;
    }
    const auto& storage = manager->GetASIStorage();
    std::size_t drawn = 0;
    // Rows are bounded by the number of sheets only: more nodes than cells grow the grid upwards.
    for (int row = 0; drawn < count; ++row) {
        for (int column = 0; column < columns && drawn < count; ++column, ++drawn) {
            AcGePoint3d point(base.x + column * width + column * gapX, base.y + row * height + row * gapY, base.z);
            Topology::CNode* node = nodes ? (*nodes)[drawn].get() : nullptr;
            const auto instance = Draw(point, definition, node);
            if (!instance) continue;
            instance->Serialize(system);
            storage->AddASInstance(instance);
            progress->Step();
        }
    }
    SetLayer(m_collected, system, L"SCHEME");
    manager->SaveInstanceStorage();
    progress->Hide();
    return 1;
}

void CASEditor::SetLayer(const AcDbObjectIdArray& ids, System::CGisSystem* system, const std::wstring& layerReference) {
    if (!system) {
        system = ActiveSystem();
        if (!system || system->GetTopologyType() != System::CGisSystem::kSchemeTopologyType) return;
    }
    const System::CGisSystemLayer* layer = ResolveLayer(*system, layerReference);
    if (!layer) return;
    for (const AcDbObjectId& id : ids) {
        CXimoCEntityPtr entity(id, AcDb::kForWrite);
        if (entity) entity.setLayer(layer->GetLayerName().c_str());
    }
}

void CASEditor::SetLayer(const AcDbObjectId& id, System::CGisSystem* system, const std::wstring& layerReference) {
    SetLayer(AcDbObjectIdArray{id}, system, layerReference);
}

void CASEditor::DeleteASInstances(InstanceVector& instances) {
    const auto& storage = CASManager::Instance()->GetASIStorage();
    for (const auto& instance : instances) {
        if (!instance) continue;
        instance->DeleteGraphics();
        storage->DeleteASInstance(instance);
    }
    CASManager::Instance()->SaveInstanceStorage();
    acedUpdateDisplay();
}

void CASEditor::DeleteASInstances(const std::wstring& definitionId, int) {
    CASManager* manager = CASManager::Instance();
    manager->ReloadInstanceStorage();
    InstanceVector instances;
    for (const auto& [id, instance] : manager->GetASIStorage()->GetASRegistry()) {
        if (instance->GetDefinitionId() == definitionId) instances.push_back(instance);
    }
    DeleteASInstances(instances);
}

void CASEditor::DeleteASInstances() {
    CASManager* manager = CASManager::Instance();
    // The schemes of every system: the event responder deletes them all whichever system goes.
    manager->ReloadInstanceStorage();
    InstanceVector instances;
    for (const auto& [id, instance] : manager->GetASIStorage()->GetASRegistry()) instances.push_back(instance);
    DeleteASInstances(instances);
}

boost::shared_ptr<CASInstance> CASEditor::GetInstanceByPosition(const AcGePoint3d& point) const {
    for (const auto& [id, instance] : CASManager::Instance()->GetASIStorage()->GetASRegistry()) {
        AcGePoint3d base;
        instance->GetBasePoint(base);
        if (point.x >= base.x && point.x <= base.x + instance->GetWidth() && point.y >= base.y &&
            point.y <= base.y + instance->GetHeight())
            return instance;
    }
    return {};
}

int CASEditor::DrawASElement(Data::CCatalogItem* item, enmViewDirection view) {
    if (!item) return 0;
    CASManager* manager = CASManager::Instance();
    // Drawn at the scale of a new definition; the sheet it goes to may want another.
    const auto drawing = boost::make_shared<CASDefinition>();
    const std::wstring blocks = manager->GetASElementsBlockPath();
    const CASElementDrawing::Source source = CASElementDrawing::Find(view, item, blocks);
    AcDbObjectIdArray ids;
    std::wstring error;
    if (!CASElementDrawing::Draw(AcGePoint3d::kOrigin, view, item, drawing.get(), blocks, ids, error)) {
        Workspace::CWsManager::LogMessage(4, error, item->GetId());
        return 0;
    }
    int placed = 0;
    {
        [[maybe_unused]] CXimoCDocLock lock;
        if (DragElement(ids) == RTNORM) {
            const std::wstring providerId = source.provider ? source.provider->GetProviderId() : L"";
            placed = InsertElement(ids, *item, providerId, drawing->GetScale()->x()) ? 1 : 0;
        }
        if (!placed) Utility::CUtility::EraseElements(ids);
    }
    m_pDragGenData_Draw->Finish();
    HideASButtons(0);
    acedRedraw(nullptr, 1);
    return placed;
}

int CASEditor::DragElement(const AcDbObjectIdArray& ids) {
    // An element drawn from its block file is one block reference, its flange lines inside.
    CXimoCEntityPtr first(ids.first(), AcDb::kForRead);
    auto* block = ids.length() == 1 ? dynamic_cast<AcDbBlockReference*>(first.get()) : nullptr;
    const AcGePoint3d centre = block ? GetBlockCenterPoint(block) : GetCenterPoint(ids);
    first.close();
    m_pDragGenData_Draw->Start(ids, centre, &m_mover,
                               [this](const AcGePoint3d& point) { return GetInstanceByPosition(point); });

    // The host's wide formats "%s %s %s %s" and "%s %s %s %s _ Rot Mir Elf Scf"; here "%ls" takes
    // the wide words.
    using Messages = CModuleConfiguration;
    const std::wstring words[] = {Messages::GetMsg(kElementFlangeMessage), Messages::GetMsg(kSchemeFlangeMessage),
                                  Messages::GetMsg(kMirrorMessage), Messages::GetMsg(kRotateMessage)};
    const std::wstring prompt =
        CASFormat::Format(L"%ls %ls %ls %ls", words[0].c_str(), words[1].c_str(), words[2].c_str(), words[3].c_str());
    const std::wstring keywords = CASFormat::Format(L"%ls %ls %ls %ls _ Rot Mir Elf Scf", words[0].c_str(),
                                                    words[1].c_str(), words[2].c_str(), words[3].c_str());
    const CASSelectionSet selection(ids);
    for (;;) {
        acedInitGet(kPlacementInputFlags, keywords.c_str());
        ads_point picked;
        const int status = acedDragGen(selection.Get(), prompt.c_str(), 0, DrawCallback, picked);
        if (status != RTKWORD) return status;
        ACHAR keyword[133] = {};
        acedGetInput(keyword, 133);
        const std::wstring chosen = keyword;
        if (chosen == L"Rot") {
            m_pDragGenData_Draw->SetMode(CDragGenData_Draw::eModeRotate);
        } else if (chosen == L"Mir") {
            m_pDragGenData_Draw->SetMode(CDragGenData_Draw::eModeMirror);
            m_pDragGenData_Draw->Repeat();
        } else if (chosen == L"Elf") {
            m_pDragGenData_Draw->SetMode(CDragGenData_Draw::eModeElementFlange);
        } else if (chosen == L"Scf") {
            m_pDragGenData_Draw->SetMode(CDragGenData_Draw::eModeSchemeFlange);
        }
    }
}

bool CASEditor::InsertElement(const AcDbObjectIdArray& ids, const Data::CCatalogItem& item,
                              const std::wstring& providerId, double drawnScale) {
    const AcGePoint3d point = m_pDragGenData_Draw->GetHandle();
    const auto instance = GetInstanceByPosition(point);
    if (!instance) return false;
    CASManager* manager = CASManager::Instance();
    CASDefinition* definition = manager->GetASDefinitionById(instance->GetDefinitionId().c_str());
    const double sheetScale = definition ? definition->GetScale()->x() : drawnScale;
    if (sheetScale > 0.0 && drawnScale > 0.0 && sheetScale != drawnScale)
        m_mover.Scale(ids, sheetScale / drawnScale, point);

    CASElementInstance::MarkAsDataHolder(ids.first());
    const auto element = instance->CreateElementInstance(providerId.c_str(), item.GetId().c_str(), ids);
    for (const AcDbObjectId& id : ids) Data::CDataRW::Write(id, Data::CDDCache::GetEntityType(), kElementEntityType);
    SetLayer(ids, nullptr, L"SCHEME");
    instance->AddDrawnByComponent(L"01SCHEME", ids);
    instance->Serialize(ActiveSystem());
    manager->Raise_OnAfterASElementInserted(instance.get(), definition, element.get());
    return true;
}

boost::shared_ptr<CASInstance> CASEditor::SelectScheme() const {
    ads_point picked;
    if (acedGetPoint(nullptr, L"\nSelect a scheme: ", picked) != RTNORM) return {};
    return GetInstanceByPosition(AcGePoint3d(picked[0], picked[1], picked[2]));
}

AcGePoint3d CASEditor::GetCenterPoint(const AcArray<AcDbEntity*>& entities) {
    AcDbExtents box;
    std::vector<CASFlange> flanges;
    for (AcDbEntity* entity : entities) {
        if (!entity) continue;
        AcDbExtents extents;
        if (entity->getGeomExtents(extents) == Acad::eOk) box.addExt(extents);
        if (CASFlange::IsFlangeLine(entity)) {
            const auto* line = static_cast<const AcDbLine*>(entity);
            flanges.emplace_back(line->startPoint(), line->endPoint(), entity->objectId());
        }
    }
    const AcGePoint3d middle = box.isValid() ? box.center() : AcGePoint3d::kOrigin;
    const double crossSize =
        box.isValid() ? std::max(0.1, (box.maxPoint() - box.minPoint()).length() * 0.05) : 1.0;
    const auto show = [&](const AcGePoint3d& point) {
        Utility::CUtility::acedGrDrawCross(point, crossSize, kCrossColor);
        return point;
    };
    if (flanges.empty()) return middle;
    if (flanges.size() == 1) return show(flanges.front().GetAxis().closestPointTo(middle));
    // Consecutive axes: the first pair that meets gives the centre; pairs on one line (or
    // parallel) offer the point of either axis nearest the middle of the box.
    bool met = false;
    AcGePoint3d centre = middle;
    double nearest = std::numeric_limits<double>::max();
    for (std::size_t i = 0; i + 1 < flanges.size(); ++i) {
        const AcGeLine3d first = flanges[i].GetAxis();
        const AcGeLine3d second = flanges[i + 1].GetAxis();
        AcGePoint3d crossing;
        if (first.intersectWith(second, crossing)) {
            show(crossing);
            if (!met) centre = crossing;
            met = true;
            continue;
        }
        const AcGePoint3d onFirst = first.closestPointTo(middle);
        const AcGePoint3d onSecond = second.closestPointTo(middle);
        const AcGePoint3d candidate =
            onFirst.distanceTo(middle) <= onSecond.distanceTo(middle) ? onFirst : onSecond;
        show(candidate);
        if (!met && candidate.distanceTo(middle) < nearest) {
            nearest = candidate.distanceTo(middle);
            centre = candidate;
        }
    }
    return centre;
}

AcGePoint3d CASEditor::GetCenterPoint(const AcDbObjectIdArray& ids) {
    std::vector<CXimoCEntityPtr> open;
    AcArray<AcDbEntity*> entities;
    for (const AcDbObjectId& id : ids) {
        open.emplace_back(id, AcDb::kForRead);
        if (open.back()) entities.append(open.back().get());
    }
    return GetCenterPoint(entities);
}

AcGePoint3d CASEditor::GetBlockCenterPoint(AcDbBlockReference* block) {
    if (!block) return AcGePoint3d::kOrigin;
    AcDbVoidPtrArray parts;
    if (block->explode(parts) != Acad::eOk || parts.isEmpty()) return block->position();
    AcArray<AcDbEntity*> entities;
    for (void* part : parts) entities.append(static_cast<AcDbEntity*>(part));
    const AcGePoint3d centre = GetCenterPoint(entities);
    for (AcDbEntity* entity : entities) delete entity;
    return centre;
}

int CASEditor::MoveCallback(ads_point cursor, ads_matrix matrix) {
    SetTranslation(matrix, AcGePoint3d(cursor[0], cursor[1], cursor[2]) - m_ptASGroupBP);
    return RTNORM;
}

int CASEditor::DrawCallback(ads_point cursor, ads_matrix matrix) {
    SetTranslation(matrix, AcGeVector3d());
    if (m_pDragGenData_Draw) m_pDragGenData_Draw->OnCursor(AcGePoint3d(cursor[0], cursor[1], cursor[2]));
    return RTNONE;
}

bool CASEditor::DragGroup(const AcDbObjectIdArray& ids, const AcGePoint3d& base, AcGePoint3d& picked) {
    const CASSelectionSet selection(ids);
    m_ptASGroupBP = base;
    const std::wstring prompt = CModuleConfiguration::GetMsg(kPickPointMessage);
    ads_point point;
    if (acedDragGen(selection.Get(), prompt.c_str(), 0, MoveCallback, point) != RTNORM) return false;
    picked.set(point[0], point[1], point[2]);
    return true;
}

void CASEditor::DrawComment(const std::wstring& text) {
    if (text.empty()) return;
    CXimoCEntityPtr prototype = CXimoCDraw::mtext(AcGePoint3d::kOrigin, text, 1.0);
    if (!prototype) return;
    const AcDbObjectId prototypeId = prototype.objectId();
    prototype.close();
    CASManager* manager = CASManager::Instance();
    AcGePoint3d picked;
    while (DragGroup(AcDbObjectIdArray{prototypeId}, AcGePoint3d::kOrigin, picked)) {
        AcDbObjectId copy;
        if (CXimoCEdit::copyEntity(prototypeId, copy) != Acad::eOk) continue;
        CXimoCEdit::moveEntity(copy, AcGePoint3d::kOrigin, picked);
        const auto instance = GetInstanceByPosition(picked);
        if (!instance) continue;
        CASComponentData* comment =
            ComponentOfType(manager->GetASDefinitionById(instance->GetDefinitionId().c_str()), kCommentComponent);
        if (!comment) continue;
        const Data::CPropertiesEx& properties = *comment->GetDrawData()->GetProperties();
        const std::wstring style = properties.GetStrProperty(L"TEXT_STYLE", L"Standard", 1);
        CXimoCEntityPtr entity(copy, AcDb::kForWrite);
        if (auto* mtext = dynamic_cast<AcDbMText*>(entity.get())) {
            mtext->setTextHeight(properties.GetDblProperty(L"TEXT_HEIGHT", 1.0, 1));
            AcDbDatabase* database = mtext->database();
            if (database && !database->textStyleId(style).isNull()) mtext->setTextStyleName(style.c_str());
            mtext->setColorIndex(static_cast<Adesk::UInt16>(properties.GetIntProperty(L"TEXT_COLOR", 256, 1) & 0xFFFF));
        }
        entity.close();
        instance->AddDrawnByComponent(kCommentComponent, AcDbObjectIdArray{copy});
        instance->Serialize(ActiveSystem());
        SetLayer(copy, nullptr, L"SCHEME");
    }
    Utility::CUtility::EraseElements(AcDbObjectIdArray{prototypeId});
}

int CASEditor::DrawManholeView(int side) {
    const auto instance = SelectScheme();
    if (!instance) return 0;
    CASDefinition* definition = CASManager::Instance()->GetASDefinitionById(instance->GetDefinitionId().c_str());
    System::CGisSystem* system = ActiveSystem();
    Topology::CTopologyStorage* topology = Topology::CTopologyMultiStorage::Instance()->GetTopology(system);
    const Topology::CNode* node = topology ? topology->GetNodeByGuid(instance->GetRefNode()) : nullptr;
    const wchar_t* componentId = side ? L"05MANH_S" : L"05MANH_T";
    if (!definition || !node || !ComponentOfType(definition, componentId)) return 0;
    using ManholeScheme::CMSManager;
    const auto drawData =
        CMSManager::Instance()->GetComponentById(side ? CMSManager::kFrontViewId : CMSManager::kTopViewId);
    const auto scale = drawData ? drawData->GetProperties()->GetProperty(L"MSMS_SCALE") : nullptr;
    if (!scale) return 0;
    scale->SetHiddenValue(definition->GetScale()->x());

    AcDbObjectIdArray ids;
    const Data::enmManholeDrawResult result = side ? Data::CManholeManager::DrawFrontView(node, drawData.get(), ids)
                                                   : Data::CManholeManager::DrawTopView(node, drawData.get(), ids);
    if (result == Data::mdrNoManhole) {
        // The host's wide format "%s'%s'" with its wide arguments.
        Workspace::CWsManager::LogMessage(
            4, CASFormat::Format(L"%ls'%ls'", CModuleConfiguration::GetMsg(kNoManholeMessage).c_str(),
                                 node->GetName().c_str()),
            node->GetGuid());
        return 0;
    }
    if (result != Data::mdrDrawn) {
        Workspace::CWsManager::LogMessage(4, CModuleConfiguration::GetMsg(kManholeFailedMessage));
        return 0;
    }
    // The view hangs on the cursor by the middle of its box.
    AcDbExtents box;
    const AcGePoint3d base = CASEntityGroup::GetExtents(ids, box) ? box.center() : AcGePoint3d::kOrigin;
    AcGePoint3d picked;
    if (!DragGroup(ids, base, picked)) {
        Utility::CUtility::EraseElements(ids);
        return 0;
    }
    const AcGeMatrix3d displacement = AcGeMatrix3d::translation(picked - base);
    for (const AcDbObjectId& id : ids) CXimoCEdit::transformEntity(id, displacement);
    SetLayer(ids, nullptr, L"SCHEME");
    instance->AddDrawnByComponent(componentId, ids);
    instance->Serialize(system);
    acedUpdateDisplay();
    return 1;
}

void CASEditor::DrawCheckMark(const AcGePoint3d& point, double size, double, int color, int) {
    CASCheckMark::Draw(point, size, color);
}

void CASEditor::OnButtonClicked(const wchar_t* id) {
    if (!id || !m_pDragGenData_Draw) return;
    const std::wstring upper = acutUpperName(id);
    if (upper == L"ROTATE") {
        m_pDragGenData_Draw->SetMode(CDragGenData_Draw::eModeRotate);
    } else if (upper == L"MIRROR") {
        m_pDragGenData_Draw->SetMode(CDragGenData_Draw::eModeMirror);
        m_pDragGenData_Draw->Repeat();
    } else if (upper == L"SEL_CONN") {
        m_pDragGenData_Draw->SetMode(CDragGenData_Draw::eModeElementFlange);
    } else if (upper == L"SEL_CONN_SCHEME") {
        m_pDragGenData_Draw->SetMode(CDragGenData_Draw::eModeSchemeFlange);
    }
}

void CASEditor::HideASButtons(unsigned int /*mask*/) {
    // Without windows there is no button to hide; what the drag needs to know is kept.
    if (m_pDragGenData_Draw) m_pDragGenData_Draw->SetButtonsShown(false);
}

}  // namespace XimoGis::AssemblySchemes
