#include "module/instances/CASInstanceStorage.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace XimoGis::AssemblySchemes;

TEST(CASInstanceStorage, KeepsInstancesUnderTheirGuids) {
    CASInstanceStorage storage;
    auto first = boost::make_shared<CASInstance>();
    auto second = boost::make_shared<CASInstance>();
    storage.AddASInstance(first);
    storage.AddASInstance(second);
    EXPECT_EQ(storage.GetASInstanceById(first->GetGuid().c_str()), first);
    EXPECT_FALSE(storage.GetASInstanceById(L"{NONE}"));
    // A sheet read from a drawing takes its stored GUID and replaces one stored under it.
    auto reread = boost::make_shared<CASInstance>();
    reread->SetGuid(first->GetGuid());
    storage.AddASInstance(reread);
    EXPECT_EQ(storage.GetASInstanceById(first->GetGuid().c_str()), reread);
    storage.DeleteASInstance(second);
    EXPECT_EQ(storage.GetASRegistry().size(), 1u);
}
