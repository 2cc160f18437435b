#include "fittings/CFittingsPlugin.h"

#include "fittings/CElbowProvider.h"
#include "fittings/CFlangeProvider.h"
#include "fittings/CGateValveProvider.h"
#include "fittings/CHydrantProvider.h"
#include "fittings/CPipeProvider.h"
#include "fittings/CReducerProvider.h"
#include "fittings/CTeeProvider.h"

#include "module/manager/CASManager.h"

#include <boost/make_shared.hpp>

namespace XimoGis::AssemblySchemes::Fittings {

std::vector<boost::shared_ptr<IAssemblyElementTypeProvider>> CFittingsPlugin::CreateProviders() {
    return {boost::make_shared<CFlangeProvider>(),    boost::make_shared<CPipeProvider>(),
            boost::make_shared<CTeeProvider>(),       boost::make_shared<CElbowProvider>(90),
            boost::make_shared<CElbowProvider>(45),   boost::make_shared<CReducerProvider>(),
            boost::make_shared<CGateValveProvider>(), boost::make_shared<CHydrantProvider>()};
}

int CFittingsPlugin::RegisterElementTypes() {
    const auto providers = CreateProviders();
    for (const auto& provider : providers) CASManager::Instance()->RegisterAssemblyElement(provider);
    return static_cast<int>(providers.size());
}

}  // namespace XimoGis::AssemblySchemes::Fittings

XimoGis::AssemblySchemes::IAssemblyElementPlugin* GetAssemblyElementPlugin() {
    static XimoGis::AssemblySchemes::Fittings::CFittingsPlugin plugin;
    return &plugin;
}
