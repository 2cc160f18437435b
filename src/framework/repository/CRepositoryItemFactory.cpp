#include "framework/repository/CRepositoryItemFactory.h"

#include "framework/systems/CGisSystem.h"

namespace XimoGis {

CRepositoryItem* CRepositoryItemFactory::CreateRepositoryItem(const CRepositoryItem* source) {
    return source ? new CRepositoryItem(*source) : nullptr;
}

CRepositoryItem* CRepositoryItemFactory::CreateRepositoryItem(enmEntityType type, System::CGisSystem* system) {
    auto* item = new CRepositoryItem();
    item->SetEntType(type);
    if (system) item->SetTopologyType(system->GetTopologyType());
    return item;
}

CRepositoryItem* CRepositoryItemFactory::CreateRepositoryItemUI(const CRepositoryItem* source) {
    return CreateRepositoryItem(source);
}

CRepositoryItem* CRepositoryItemFactory::CreateRepositoryItemUI(enmEntityType type, System::CGisSystem* system) {
    return CreateRepositoryItem(type, system);
}

int CRepositoryItemFactory::EditRepositoryItemUI(CRepositoryItem* /*item*/) { return 0; }

}  // namespace XimoGis
