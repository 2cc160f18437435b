#pragma once
// The five scheme events. Every registered component type is a listener (this is its first
// base); the scheme manager's Raise_* operations hand each event to them in ascending order of
// component id. Every event has an empty default, so a type overrides only what concerns it. The
// definition may be null: no active system carries schemes, or the id is unknown.

#include <vector>

namespace XimoGis::AssemblySchemes {

class CASDefinition;
class CASElementInstance;
class CASInstance;

class IASListener {
public:
    virtual ~IASListener() = default;

    // An element was drawn into the scheme (also each element copied into it).
    virtual void OnAfterASElementInserted(CASInstance* /*instance*/, CASDefinition* /*definition*/,
                                          CASElementInstance* /*element*/) {}
    // The element is about to be removed; it is still part of the scheme.
    virtual void OnBeforeASElementDeleted(CASInstance* /*instance*/, CASDefinition* /*definition*/,
                                          CASElementInstance* /*element*/) {}
    // Position numbers of the elements changed; the list may be empty.
    virtual void OnElementPositionChanged(CASInstance* /*instance*/, CASDefinition* /*definition*/,
                                          std::vector<CASElementInstance*>& /*elements*/) {}
    virtual void OnRequestUpdateBOM(CASInstance* /*instance*/, CASDefinition* /*definition*/) {}
    virtual void OnRequestUpdatePositionLabels(CASInstance* /*instance*/, CASDefinition* /*definition*/) {}
};

}  // namespace XimoGis::AssemblySchemes
