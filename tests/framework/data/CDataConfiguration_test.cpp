#include "framework/data/CDataConfiguration.h"

#include "framework/topology/NetworkFixture.h"

using XimoGis::Data::CDataBox;
using XimoGis::Data::CDataConfiguration;
using XimoGis::Data::CDataDefinition;
using XimoGis::Data::enmDataTarget;
using XimoGis::System::CSystemManager;

using CDataConfigurationTest = XimoGis::Testing::NetworkFixture;

TEST_F(CDataConfigurationTest, DefinitionsOfTheActiveSystemAreFoundById) {
    EXPECT_EQ(CDataConfiguration::GetDataDefinitionByID(L"nodes.pressure"), nullptr);  // no active system yet
    ASSERT_TRUE(CSystemManager::Instance()->SetActiveSystem(system, error)) << error;
    const CDataDefinition* pressure = CDataConfiguration::GetDataDefinitionByID(L"nodes.pressure");
    ASSERT_NE(pressure, nullptr);
    EXPECT_EQ(pressure->GetName(), L"Operating pressure");
    EXPECT_NE(CDataConfiguration::GetDataDefinitionByID(L"sections.diameter"), nullptr);
    EXPECT_EQ(CDataConfiguration::GetDataDefinitionByID(L"nodes.diameter"), nullptr);
    EXPECT_EQ(CDataConfiguration::GetDataDefinitionByID(L"Nodes.pressure"), nullptr);
}

TEST(CDataConfiguration, KeepsOneDefinitionPerIdInColumnOrder) {
    CDataConfiguration configuration;
    EXPECT_TRUE(configuration.Add({enmDataTarget::Node, L"b", CDataBox::Type::Double}));
    EXPECT_TRUE(configuration.Add({enmDataTarget::Section, L"b", CDataBox::Type::Integer}));
    EXPECT_TRUE(configuration.Add({enmDataTarget::Node, L"a", CDataBox::Type::Text}));
    EXPECT_FALSE(configuration.Add({enmDataTarget::Node, L"b", CDataBox::Type::Text}));
    const auto nodes = configuration.GetDefinitions(enmDataTarget::Node);
    ASSERT_EQ(nodes.size(), 2u);
    EXPECT_EQ(nodes[0]->GetColumn(), L"b");
    EXPECT_EQ(nodes[0]->GetValueType(), CDataBox::Type::Double);
    EXPECT_EQ(configuration.GetDefinition(enmDataTarget::Section, L"b")->GetValueType(), CDataBox::Type::Integer);
}
