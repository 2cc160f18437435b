#include "module/definitions/CASDefinition.h"

#include "module/manager/CASManagerTestAccess.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Data::enmPropertyValueType;
using XimoGis::Longitudinal::CLSDrawInterfaceData;

namespace {

boost::shared_ptr<CASComponentData> Component(const wchar_t* intId, enmASComponentType type, double x, double y,
                                              const wchar_t* parent = L"") {
    auto component = boost::make_shared<CASComponentData>();
    component->SetInternalId(intId);
    component->SetType(type);
    component->SetXOffset(x);
    component->SetYOffset(y);
    component->SetParentComponentId(parent);
    return component;
}

// A definition whose components are added out of their stored order.
void Fill(CASDefinition& definition) {
    definition.SetId(L"{D1}");
    definition.SetName(L"A4 <&>'\" sheet");
    definition.SetEntType(3);
    definition.SetTopologyType(8);
    definition.SetTopologyFunction(50001);
    definition.SetReadOnly(1);
    auto frame = Component(L"C", eASComponentFrame, 12.3456, -0.5);
    frame->SetDrawData(boost::make_shared<CLSDrawInterfaceData>(L"00FRAME", 1505, 1505));
    definition.AddComponent(frame);
    definition.AddComponent(Component(L"A", eASComponentScheme, 0.0, 0.0));
    definition.AddComponent(Component(L"B", eASComponentPositionLabel, 100.0, 250.2504, L"A"));
}

// A sheet property set holding only "LS_SCALE_X", as an editor would store it.
const std::wstring kScalePps =
    L"<ppsEx version=\"1\"><category order=\"1\"><property tag=\"LS_SCALE_X\" order=\"1\" type=\"double\">"
    L"<value text=\"0.02\"/></property></category></ppsEx>";

}  // namespace

TEST(CASDefinition, NewDefinitionsHaveTheSheetPropertiesAndScale) {
    CASDefinition definition;
    EXPECT_EQ(definition.GetScale()->Serialize(), L"0.1;0.1;0");
    const auto& categories = definition.GetProperties()->GetCategories();
    ASSERT_EQ(categories.size(), 1u);
    EXPECT_EQ(categories[0]->GetOrder(), 1);
    EXPECT_EQ(categories[0]->GetNameMsg(), 4712);
    EXPECT_EQ(categories[0]->GetDescriptionMsg(), 4712);
    const struct {
        const wchar_t* tag;
        enmPropertyValueType type;
        const wchar_t* value;
        int editor, nameMsg, descriptionMsg;
        const wchar_t* picture;
    } expected[] = {
        {L"LS_SCALE_X", enmPropertyValueType::Double, L"0.1", 0, 8324, 8324, L"AS_SCALE_X"},
        {L"ASPW", enmPropertyValueType::Double, L"210", 0, 8122, 8123, L""},
        {L"ASPH", enmPropertyValueType::Double, L"297", 0, 8125, 8124, L""},
        {L"ASDPF", enmPropertyValueType::Integer, L"1", 7, 8126, 8126, L""},
        {L"ASFLC", enmPropertyValueType::Integer, L"0", 6, 8127, 8127, L""},
        {L"ASFLLT", enmPropertyValueType::Text, L"Continuous", 10, 8131, 8131, L"ASFLLT"},
    };
    const auto& properties = categories[0]->GetProperties();
    ASSERT_EQ(properties.size(), 6u);
    for (std::size_t i = 0; i < 6; ++i) {
        const auto& property = *properties[i];
        SCOPED_TRACE(expected[i].tag);
        EXPECT_EQ(property.GetTag(), expected[i].tag);
        EXPECT_EQ(property.GetOrder(), static_cast<int>(i) + 1);
        EXPECT_EQ(property.GetValueType(), expected[i].type);
        for (const auto* value : {&property.GetDefaultValue(), &property.GetDefaultHiddenValue(), &property.GetValue(),
                                  &property.GetHiddenValue()})
            EXPECT_EQ(value->GetText(), expected[i].value);
        EXPECT_EQ(property.GetEditorType(), expected[i].editor);
        EXPECT_EQ(property.GetNameMsg(), expected[i].nameMsg);
        EXPECT_EQ(property.GetDescriptionMsg(), expected[i].descriptionMsg);
        EXPECT_EQ(property.GetPictureReference(), expected[i].picture);
        EXPECT_TRUE(property.IsRequired());
    }
    // The scale property starts from the definition's scale as it is at the time.
    definition.GetScale()->SetScaleX(0.05);
    EXPECT_DOUBLE_EQ(definition.CreateDefaultProperties()->GetDblProperty(L"LS_SCALE_X", 0.0, 1), 0.05);
}

TEST(CASDefinition, WritesItsExactTextWithComponentsInInternalIdOrder) {
    CASDefinition definition;
    Fill(definition);
    const std::wstring expected =
        L"<asDefinition id=\"{D1}\" name=\"A4 &lt;&amp;&gt;&apos;&quot; sheet\" entType=\"3\" topologyType=\"8\" "
        L"topologyFunction=\"50001\" readOnly=\"1\" hidden=\"0\" scale=\"0.1;0.1;0\"><cmps>"
        L"<asComData type=\"8\" offx=\" 0.000\" offy=\" 0.000\" intId=\"A\" prntId=\"\" ></asComData>"
        L"<asComData type=\"64\" offx=\"100.000\" offy=\"250.250\" intId=\"B\" prntId=\"A\" ></asComData>"
        L"<asComData type=\"1\" offx=\"12.346\" offy=\"-0.500\" intId=\"C\" prntId=\"\" >"
        L"<drawInterface id=\"00FRAME\" nameMsg=\"1505\" descriptionMsg=\"1505\" mandatory=\"0\" "
        L"targetLocation=\"0\" header=\"0\"><ppsEx version=\"1\"/></drawInterface></asComData></cmps>" +
        definition.GetProperties()->GetXML() + L"</asDefinition>";
    EXPECT_EQ(definition.GetXML(), expected);
    EXPECT_EQ(definition.GetProperties()->GetXML().rfind(L"<ppsEx version=\"1\"><category order=\"1\"", 0), 0u);

    CASDefinition back;
    ASSERT_EQ(back.ParseXML(expected.c_str()), 1);
    EXPECT_EQ(back.GetName(), L"A4 <&>'\" sheet");
    EXPECT_DOUBLE_EQ(back.GetComponentByInternalId(L"C")->GetXOffset(), 12.346);  // cut on saving
    EXPECT_EQ(back.GetXML(), expected);
}

TEST(CASDefinition, ReadsHandWrittenTextLeniently) {
    // Missing and non-numeric numbers, a component without internal id, a repeated internal id,
    // a component whose draw data does not read, an element the reader does not know.
    const std::wstring xml =
        L"<asDefinition id=\"{H}\" name=\"Hand &amp; made\" topologyType=\"x8\" readOnly=\"1yes\" "
        L"scale=\"0.5;0.5;2\"><cmps>"
        L"<asComData type=\"1\" offx=\"10\" intId=\"F\"><drawInterface id=\"00FRAME\" nameMsg=\"1505\"/></asComData>"
        L"<asComData offy=\"abc\"/>"
        L"<asComData type=\"4\" intId=\"F\" offx=\"99\"/>"
        L"<asComData intId=\"T\"><drawInterface id=\"05TEXT\"><ppsEx version=\"9\"/></drawInterface></asComData>"
        L"<note/></cmps>" +
        kScalePps + L"</asDefinition>";
    CASDefinition definition;
    ASSERT_EQ(definition.ParseXML(xml.c_str()), 1);
    EXPECT_EQ(definition.GetName(), L"Hand & made");
    EXPECT_EQ(definition.GetTopologyType(), 0);
    EXPECT_EQ(definition.GetEntType(), 0);
    EXPECT_EQ(definition.GetReadOnly(), 1);
    ASSERT_EQ(definition.GetComponents().size(), 3u);
    const auto frame = definition.GetComponentByInternalId(L"F");
    EXPECT_EQ(frame->GetType(), eASComponentFrame);  // the first "F" stays
    EXPECT_DOUBLE_EQ(frame->GetYOffset(), 0.0);
    EXPECT_EQ(frame->GetDrawData()->GetDescriptionMsg(), 0);
    EXPECT_EQ(definition.GetComponentByInternalId(L"T")->GetId(), L"");  // its draw data failed: empty
    EXPECT_EQ(definition.GetComponents().rbegin()->first.size(), 38u);  // the one without an id got a GUID
    // "LS_SCALE_X" overrides the stored scale in both directions; the paper keeps its defaults.
    EXPECT_EQ(definition.GetScale()->Serialize(), L"0.02;0.02;2");
    EXPECT_DOUBLE_EQ(definition.GetPaperWidth(), 210.0);
    EXPECT_DOUBLE_EQ(definition.GetPaperHeight(), 297.0);
}

TEST(CASDefinition, WithoutAPropertySetTheScaleBecomesOneAndReadsFallBack) {
    CASDefinition definition;
    ASSERT_EQ(definition.ParseXML(L"<asDefinition id=\"X\" scale=\"0.25;0.5;1\"/>"), 1);
    EXPECT_TRUE(definition.GetProperties()->IsEmpty());
    EXPECT_EQ(definition.GetScale()->Serialize(), L"1;1;1");
    EXPECT_EQ(definition.GetIntProperty(L"ASFLC", 9, 1), 9);
    EXPECT_EQ(definition.GetStrProperty(L"ASFLLT", L"dflt", 1), L"dflt");
    // A "ppsEx" before "cmps" is not looked for.
    ASSERT_EQ(definition.ParseXML((L"<asDefinition>" + kScalePps + L"<cmps/></asDefinition>").c_str()), 1);
    EXPECT_DOUBLE_EQ(definition.GetScale()->x(), 1.0);

    const std::wstring before = definition.GetXML();
    for (const wchar_t* bad : {L"<schemes/>", L"<asDefinition", static_cast<const wchar_t*>(nullptr)})
        EXPECT_EQ(definition.ParseXML(bad), 0);
    EXPECT_EQ(definition.GetXML(), before);
}

TEST(CASDefinition, ComponentsAreKeptUnderTheirInternalIds) {
    CASDefinition definition;
    auto first = Component(L"K", eASComponentBOM, 1.0, 1.0);
    definition.AddComponent(first);
    definition.AddComponent(Component(L"K", eASComponentText, 2.0, 2.0));
    EXPECT_EQ(definition.GetComponentByInternalId(L"K"), first);
    auto unnamed = Component(L"", eASComponentText, 0.0, 0.0);
    definition.AddComponent(unnamed);
    EXPECT_EQ(definition.GetComponentByInternalId(unnamed->GetInternalId().c_str()), unnamed);
    definition.RemoveComponent(L"k");  // ids are case-sensitive
    EXPECT_EQ(definition.GetComponents().size(), 2u);
    definition.RemoveComponent(L"K");
    EXPECT_FALSE(definition.GetComponentByInternalId(L"K"));
}

TEST(CASDefinition, CopiesShareComponentsButNotPropertiesOrScale) {
    CASDefinition source;
    Fill(source);
    CASDefinition copy;
    copy.AddComponent(Component(L"OLD", eASComponentText, 0.0, 0.0));
    source.MakeDeepCopy(copy);
    EXPECT_EQ(copy.GetXML(), source.GetXML());
    EXPECT_FALSE(copy.GetComponentByInternalId(L"OLD"));
    source.GetComponentByInternalId(L"C")->SetXOffset(77.0);
    EXPECT_DOUBLE_EQ(copy.GetComponentByInternalId(L"C")->GetXOffset(), 77.0);
    copy.GetProperties()->SetPropertyValue(L"ASPH", 420.0);
    EXPECT_DOUBLE_EQ(source.GetPaperHeight(), 297.0);
    copy.GetScale()->SetScaleX(2.0);
    EXPECT_DOUBLE_EQ(source.GetScale()->x(), 0.1);
    const CASDefinition constructed(&source);
    EXPECT_EQ(constructed.GetXML(), source.GetXML());
    EXPECT_EQ(constructed.GetComponentByInternalId(L"A"), source.GetComponentByInternalId(L"A"));
}

TEST(CASDefinition, DependsOnAsksTheTypesOfItsComponents) {
    CASDefinition definition;
    auto bom = Component(L"B", eASComponentBOM, 0.0, 0.0);
    bom->SetDrawData(boost::make_shared<CLSDrawInterfaceData>(L"04BOM", 9472, 9472));
    definition.AddComponent(bom);
    definition.AddComponent(Component(L"N", eASComponentText, 0.0, 0.0));  // no draw data: no type
    EXPECT_EQ(definition.DependsOn(L"Columns", nullptr), 0);  // the registered types refer to nothing
    Testing::ScopedRecorders recorders;
    for (const auto& recorder : recorders.recorders) recorder->dependsOnName = L"Columns";
    EXPECT_EQ(definition.DependsOn(L"Columns", nullptr), 7);
    EXPECT_EQ(definition.DependsOn(L"Other", nullptr), 0);
    EXPECT_FALSE(definition.GetComponentByInternalId(L"N")->HasDrawData());
}
