#pragma once
// The fittings element plug-in, XimoXAssemblyElementFittings.so: providers that draw flanged
// ductile-iron fittings from the data of their catalog items (blind flange, pipe piece, tee, 90°
// and 45° bends, reducer, gate valve, hydrant), so that they need no block files.

#include "module/manager/IAssemblyElementPlugin.h"
#include "module/manager/IAssemblyElementTypeProvider.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace XimoGis::AssemblySchemes::Fittings {

class CFittingsPlugin final : public IAssemblyElementPlugin {
public:
    // One of each provider, in the order they are registered.
    static std::vector<boost::shared_ptr<IAssemblyElementTypeProvider>> CreateProviders();
    // Registers every provider with the scheme manager; returns how many.
    int RegisterElementTypes() override;
};

}  // namespace XimoGis::AssemblySchemes::Fittings

// The plug-in's export: the one plug-in object of the library, kept by the library.
extern "C" __attribute__((visibility("default"))) XimoGis::AssemblySchemes::IAssemblyElementPlugin*
GetAssemblyElementPlugin();
