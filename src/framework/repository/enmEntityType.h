#pragma once
// Kinds of framework entities, as stamped into the EntityType attribute of drawing entities and
// given to repository item factories. Modules add their kinds here as they come.

namespace XimoGis {

enum enmEntityType : int {
    etUndefined = 0,
    etNode = 1,                // a node of a network's topology
    etSection = 2,             // a section (pipe) of a network's topology
    etSchemeElement = 8,       // an element placed on an assembly scheme, as a framework entity
    etAssemblyScheme = 256,   // an entity of a drawn assembly scheme sheet
    etAssemblyElement = 512,  // an entity of an element drawn into a scheme
};

}  // namespace XimoGis
