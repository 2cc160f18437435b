// asch: the command-line host of the assembly schemes engine.

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "CAschCommandRegistry.h"
#include "CDemoCommand.h"

int main(int argc, char** argv) {
    using namespace XimoGis::Asch;
    CAschCommandRegistry registry;
    registry.Register(std::make_unique<CDemoCommand>());
    return registry.Run(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
