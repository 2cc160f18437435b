// asch: the command-line host of the assembly schemes engine.

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "CAddElementCommand.h"
#include "CAschCommandRegistry.h"
#include "CCatalogCommand.h"
#include "CCommentCommand.h"
#include "CDefinitionsCommand.h"
#include "CDeleteCommand.h"
#include "CDemoCommand.h"
#include "CDrawCommand.h"
#include "CGridCommand.h"
#include "CInfoCommand.h"
#include "CListCommand.h"
#include "CManholeCommand.h"
#include "CRenderCommand.h"
#include "CWorkspaceCommand.h"

int main(int argc, char** argv) {
    using namespace XimoGis::Asch;
    CAschCommandRegistry registry;
    registry.Register(std::make_unique<CAddElementCommand>());
    registry.Register(std::make_unique<CCatalogCommand>());
    registry.Register(std::make_unique<CCommentCommand>());
    registry.Register(std::make_unique<CDefinitionsCommand>());
    registry.Register(std::make_unique<CDeleteCommand>());
    registry.Register(std::make_unique<CDemoCommand>());
    registry.Register(std::make_unique<CDrawCommand>());
    registry.Register(std::make_unique<CGridCommand>());
    registry.Register(std::make_unique<CInfoCommand>());
    registry.Register(std::make_unique<CListCommand>());
    registry.Register(std::make_unique<CRenderCommand>());
    registry.Register(std::make_unique<CWorkspaceCommand>());
    registry.Register(std::make_unique<CManholeCommand>());
    return registry.Run(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
