#pragma once
// Makes and edits the items of one kind of repository. This base makes plain repository items
// and has no user interface: the "UI" forms create without asking and editing is never
// confirmed. Modules derive to make their own items and show their own dialogs.

#include "framework/repository/CRepositoryItem.h"
#include "framework/repository/enmEntityType.h"

namespace XimoGis::System {
class CGisSystem;
}

namespace XimoGis {

class CRepositoryItemFactory {
public:
    virtual ~CRepositoryItemFactory() = default;

    // A new copy of `source` (null for null); the caller owns it.
    virtual CRepositoryItem* CreateRepositoryItem(const CRepositoryItem* source);
    // A new item for entities of `type`; with a system it takes the system's topology type.
    virtual CRepositoryItem* CreateRepositoryItem(enmEntityType type, System::CGisSystem* system);
    virtual CRepositoryItem* CreateRepositoryItemUI(const CRepositoryItem* source);
    virtual CRepositoryItem* CreateRepositoryItemUI(enmEntityType type, System::CGisSystem* system);
    // Non-zero when the user confirmed changes to the item.
    virtual int EditRepositoryItemUI(CRepositoryItem* item);
};

}  // namespace XimoGis
