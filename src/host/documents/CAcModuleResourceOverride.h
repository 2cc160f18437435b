#pragma once
// Makes a module's own resources (dialog templates, icons, strings) the ones that lookups use,
// for the lifetime of the object, and restores the previous ones at the end.
//
// It does nothing here: resources are looked up by name in the module's own files, never through
// a process-wide resource handle, so there is no handle to push or pop. The class exists so that
// module code reads as it does under a host that has such a handle.

class CAcModuleResourceOverride {
public:
    CAcModuleResourceOverride() = default;
    explicit CAcModuleResourceOverride(const void* /*resourceHandle*/) {}
    ~CAcModuleResourceOverride() = default;
    CAcModuleResourceOverride(const CAcModuleResourceOverride&) = delete;
    CAcModuleResourceOverride& operator=(const CAcModuleResourceOverride&) = delete;
};
