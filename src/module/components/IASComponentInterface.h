#pragma once
// Base of every component type that a scheme definition can hold. A type knows its identity (id
// string, type bit, name and description messages, icon, whether a definition may hold several,
// the type it is placed under), makes the component record added to a definition, draws its part
// of a sheet and hears the scheme events (IASListener, the first base).
//
// The base versions of the record factory, the drawing and the size give what every type shares:
// a record carrying the type's identity and an empty property set, nothing drawn (result 0) and
// no fixed size. Types override them with their own property sets, drawing and sizes.

#include "module/components/enmASComponentType.h"
#include "module/manager/IASListener.h"

#include "framework/repository/CRepositoryItem.h"
#include "host/base/AcArray.h"
#include "host/database/AcDbObjectId.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace XimoGis::AssemblySchemes {

class CASComponentData;
class CASDimensions;

class IASComponentInterface : public IASListener {
public:
    IASComponentInterface(const wchar_t* id, enmASComponentType type, int nameMsg, int descriptionMsg,
                          const wchar_t* iconId, int allowMultipleInstances, const wchar_t* parentId);
    IASComponentInterface(const IASComponentInterface&) = delete;
    IASComponentInterface& operator=(const IASComponentInterface&) = delete;
    ~IASComponentInterface() override = default;

    // A new component record of this type for a definition: type bit, draw data with the id
    // string and the name and description messages, and the type's default property set.
    virtual boost::shared_ptr<CASComponentData> CreateComponentData();
    // Draws the component on the sheet of `instance`, appending the ids of the new entities;
    // non-zero when something was drawn.
    virtual int DrawComponent(CASComponentData* component, CASInstance* instance, AcDbObjectIdArray& createdEntities);
    // Whether entities drawn by this type are stamped with the sheet's entity type.
    virtual int WriteEntityType() const { return 1; }
    virtual int IsUpdatable() const { return 0; }
    // Interactive types are placed by the user on a drawn scheme rather than drawn with the sheet.
    virtual int IsInteractive() const { return 0; }
    virtual int StartInteractiveMode(AcDbObjectIdArray& /*entities*/, CASInstance* /*instance*/,
                                     CASDefinition* /*definition*/) {
        return 0;
    }
    // The room the component needs on the sheet; empty when the type has no fixed size.
    virtual boost::shared_ptr<CASDimensions> GetComponentDimensions(CASComponentData* component);
    // Non-zero when `component` refers to the repository item `item` called `name`.
    virtual int DependsOn(CASDefinition* /*definition*/, CASComponentData* /*component*/, const wchar_t* /*name*/,
                          CRepositoryItem* /*item*/) {
        return 0;
    }
    // Text of the name message.
    virtual std::wstring GetName() const;

    const std::wstring& GetId() const { return m_id; }
    const std::wstring& GetParentId() const { return m_parentId; }
    enmASComponentType GetType() const { return m_type; }
    int GetNameMsg() const { return m_nameMsg; }
    int GetDescriptionMsg() const { return m_descriptionMsg; }
    int GetAllowMultipleInstances() const { return m_allowMultipleInstances; }
    // Text of the description message.
    std::wstring GetDescription() const;
    const std::wstring& GetIconId() const { return m_iconId; }
    void SetIconId(const wchar_t* iconId) { m_iconId = iconId ? iconId : L""; }

private:
    enmASComponentType m_type;
    int m_nameMsg;
    int m_descriptionMsg;
    std::wstring m_id;
    std::wstring m_parentId;
    int m_allowMultipleInstances;
    std::wstring m_iconId;
};

}  // namespace XimoGis::AssemblySchemes
