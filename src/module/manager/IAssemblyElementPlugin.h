#pragma once
// An element plug-in: a shared library in the install folder named "XimoXAssemblyElement*.so"
// that exports the C function
//
//   extern "C" XimoGis::AssemblySchemes::IAssemblyElementPlugin* GetAssemblyElementPlugin();
//
// The scheme manager calls it once, when it loads the library, and at once calls
// RegisterElementTypes() on the object, which registers the plug-in's element type providers with
// CASManager::Instance()->RegisterAssemblyElement. The function must not return null. The library
// keeps the object (the manager never deletes it) and is never unloaded.
//
// A plug-in links the module, framework and host shared libraries of the program that loads it,
// so that it reaches the program's scheme manager and working database, not copies of its own.

namespace XimoGis::AssemblySchemes {

class IAssemblyElementPlugin {
public:
    // Registers the providers; the result (how many were registered) is not used by the loader.
    virtual int RegisterElementTypes() = 0;

protected:
    // Not deleted through this interface: the plug-in library owns its object.
    ~IAssemblyElementPlugin() = default;
};

using GetAssemblyElementPluginFunction = IAssemblyElementPlugin* (*)();

}  // namespace XimoGis::AssemblySchemes
