#include "module/definitions/CASDefinition.h"

#include "module/manager/CASManagerTestAccess.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace XimoGis::AssemblySchemes;
using XimoGis::Data::CPropertyEx;
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

// A sheet property set holding only "LS_SCALE_X", written as an editor would store it.
const std::wstring kScalePps =
    L"<ppsEx version=\"1\"><category order=\"1\" nameMsg=\"4712\" descriptionMsg=\"4712\">"
    L"<property tag=\"LS_SCALE_X\" order=\"1\" type=\"double\"><value text=\"0.02\"/><hiddenValue text=\"0.02\"/>"
    L"</property></category></ppsEx>";

}  // namespace

TEST(CASDefinition, NewDefinitionsHaveTheSheetPropertiesAndScale) {
    CASDefinition definition;
    EXPECT_TRUE(definition.GetComponents().empty());
    EXPECT_EQ(definition.GetScale()->Serialize(), L"0.1;0.1;0");
    const auto& categories = definition.GetProperties()->GetCategories();
    ASSERT_EQ(categories.size(), 1u);
    EXPECT_EQ(categories[0]->GetOrder(), 1);
    EXPECT_EQ(categories[0]->GetNameMsg(), 4712);
    EXPECT_EQ(categories[0]->GetDescriptionMsg(), 4712);

    struct Expected {
        const wchar_t* tag;
        enmPropertyValueType type;
        const wchar_t* value;
        int editor, nameMsg, descriptionMsg;
        const wchar_t* picture;
    };
    const Expected expected[] = {
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
        const CPropertyEx& property = *properties[i];
        SCOPED_TRACE(expected[i].tag);
        EXPECT_EQ(property.GetTag(), expected[i].tag);
        EXPECT_EQ(property.GetOrder(), static_cast<int>(i) + 1);
        EXPECT_EQ(property.GetValueType(), expected[i].type);
        EXPECT_EQ(property.GetDefaultValue().GetText(), expected[i].value);
        EXPECT_EQ(property.GetDefaultHiddenValue().GetText(), expected[i].value);
        EXPECT_EQ(property.GetValue().GetText(), expected[i].value);
        EXPECT_EQ(property.GetHiddenValue().GetText(), expected[i].value);
        EXPECT_EQ(property.GetEditorType(), expected[i].editor);
        EXPECT_EQ(property.GetNameMsg(), expected[i].nameMsg);
        EXPECT_EQ(property.GetDescriptionMsg(), expected[i].descriptionMsg);
        EXPECT_EQ(property.GetPictureReference(), expected[i].picture);
        EXPECT_TRUE(property.IsRequired());
    }
    EXPECT_DOUBLE_EQ(definition.GetPaperWidth(), 210.0);
    EXPECT_DOUBLE_EQ(definition.GetPaperHeight(), 297.0);

    // The scale property starts from the definition's scale as it is at the time.
    definition.GetScale()->SetScaleX(0.05);
    EXPECT_DOUBLE_EQ(definition.CreateDefaultProperties()->GetDblProperty(L"LS_SCALE_X", 0.0, 1), 0.05);
}

TEST(CASDefinition, WritesItsExactTextWithComponentsInInternalIdOrder) {
    CASDefinition definition;
    Fill(definition);
    const std::wstring expected =
        L"<asDefinition id=\"{D1}\" name=\"A4 &lt;&amp;&gt;&apos;&quot; sheet\" entType=\"3\" topologyType=\"8\" "
        L"topologyFunction=\"50001\" readOnly=\"1\" hidden=\"0\" scale=\"0.1;0.1;0\">"
        L"<cmps>"
        L"<asComData type=\"8\" offx=\" 0.000\" offy=\" 0.000\" intId=\"A\" prntId=\"\" ></asComData>"
        L"<asComData type=\"64\" offx=\"100.000\" offy=\"250.250\" intId=\"B\" prntId=\"A\" ></asComData>"
        L"<asComData type=\"1\" offx=\"12.346\" offy=\"-0.500\" intId=\"C\" prntId=\"\" >"
        L"<drawInterface id=\"00FRAME\" nameMsg=\"1505\" descriptionMsg=\"1505\" mandatory=\"0\" "
        L"targetLocation=\"0\" header=\"0\"><ppsEx version=\"1\"/></drawInterface></asComData>"
        L"</cmps>" +
        definition.GetProperties()->GetXML() + L"</asDefinition>";
    EXPECT_EQ(definition.GetXML(), expected);
    EXPECT_EQ(definition.GetProperties()->GetXML().rfind(L"<ppsEx", 0), 0u);
    // The stream form writes the same text.
    std::wostringstream out;
    static_cast<const XimoGis::CRepositoryItem&>(definition).GetXML(out);
    EXPECT_EQ(out.str(), expected);
}

TEST(CASDefinition, ReadsBackWhatItWrote) {
    CASDefinition definition;
    Fill(definition);
    definition.GetProperties()->SetPropertyValue(L"ASPW", 420.0);
    const std::wstring xml = definition.GetXML();

    CASDefinition back;
    ASSERT_EQ(back.ParseXML(xml.c_str()), 1);
    EXPECT_EQ(back.GetId(), L"{D1}");
    EXPECT_EQ(back.GetName(), L"A4 <&>'\" sheet");
    EXPECT_EQ(back.GetEntType(), 3);
    EXPECT_EQ(back.GetTopologyType(), 8);
    EXPECT_EQ(back.GetTopologyFunction(), 50001);
    EXPECT_EQ(back.GetReadOnly(), 1);
    EXPECT_EQ(back.GetHidden(), 0);
    EXPECT_DOUBLE_EQ(back.GetPaperWidth(), 420.0);
    ASSERT_EQ(back.GetComponents().size(), 3u);
    // Offsets come back cut to three decimals.
    EXPECT_DOUBLE_EQ(back.GetComponentByInternalId(L"C")->GetXOffset(), 12.346);
    EXPECT_DOUBLE_EQ(back.GetComponentByInternalId(L"C")->GetYOffset(), -0.5);
    EXPECT_DOUBLE_EQ(back.GetComponentByInternalId(L"B")->GetYOffset(), 250.25);
    EXPECT_EQ(back.GetComponentByInternalId(L"B")->GetParentComponentId(), L"A");
    EXPECT_EQ(back.GetComponentByInternalId(L"C")->GetId(), L"00FRAME");
    // The scale follows "LS_SCALE_X", 0.1 here, as written.
    EXPECT_EQ(back.GetScale()->Serialize(), L"0.1;0.1;0");
    EXPECT_EQ(back.GetXML(), xml);
}

TEST(CASDefinition, ReadsHandWrittenTextLeniently) {
    // Missing and non-numeric numbers, a component without internal id, a repeated internal id,
    // a component whose draw data does not read, an element the reader does not know.
    const std::wstring xml =
        L"<asDefinition id=\"{H}\" name=\"Hand &amp; made\" topologyType=\"x8\" readOnly=\"1yes\" scale=\"0.5;0.5;2\">"
        L"<cmps>"
        L"<asComData type=\"1\" offx=\"10\" intId=\"F\"><drawInterface id=\"00FRAME\" nameMsg=\"1505\"/></asComData>"
        L"<asComData offy=\"abc\"/>"
        L"<asComData type=\"4\" intId=\"F\" offx=\"99\"/>"
        L"<asComData type=\"16\" intId=\"T\"><drawInterface id=\"05TEXT\"><ppsEx version=\"9\"/></drawInterface>"
        L"</asComData>"
        L"<note/>"
        L"</cmps>" +
        kScalePps + L"</asDefinition>";
    CASDefinition definition;
    ASSERT_EQ(definition.ParseXML(xml.c_str()), 1);
    EXPECT_EQ(definition.GetName(), L"Hand & made");
    EXPECT_EQ(definition.GetTopologyType(), 0);
    EXPECT_EQ(definition.GetTopologyFunction(), 0);
    EXPECT_EQ(definition.GetEntType(), 0);
    EXPECT_EQ(definition.GetReadOnly(), 1);
    ASSERT_EQ(definition.GetComponents().size(), 3u);

    const auto frame = definition.GetComponentByInternalId(L"F");
    EXPECT_EQ(frame->GetType(), eASComponentFrame);  // the first "F" stays
    EXPECT_DOUBLE_EQ(frame->GetXOffset(), 10.0);
    EXPECT_DOUBLE_EQ(frame->GetYOffset(), 0.0);
    EXPECT_EQ(frame->GetDrawData()->GetNameMsg(), 1505);
    EXPECT_EQ(frame->GetDrawData()->GetDescriptionMsg(), 0);

    // The draw data that did not read leaves an empty record; the component stays.
    const auto text = definition.GetComponentByInternalId(L"T");
    ASSERT_TRUE(text);
    EXPECT_TRUE(text->HasDrawData());
    EXPECT_EQ(text->GetId(), L"");

    // The component without an internal id got a GUID.
    for (const auto& [id, component] : definition.GetComponents()) {
        if (id == L"F" || id == L"T") continue;
        EXPECT_EQ(id.size(), 38u);
        EXPECT_EQ(component->GetInternalId(), id);
        EXPECT_EQ(component->GetType(), eASComponentNone);
        EXPECT_DOUBLE_EQ(component->GetYOffset(), 0.0);
        EXPECT_FALSE(component->HasDrawData());
    }
    // "LS_SCALE_X" overrides the stored scale in both directions; the unit stays.
    EXPECT_EQ(definition.GetScale()->Serialize(), L"0.02;0.02;2");
    // A set holding only the scale reads the paper size at its defaults.
    EXPECT_DOUBLE_EQ(definition.GetPaperWidth(), 210.0);
    EXPECT_DOUBLE_EQ(definition.GetPaperHeight(), 297.0);
}

TEST(CASDefinition, WithoutAPropertySetTheScaleBecomesOne) {
    CASDefinition definition;
    ASSERT_EQ(definition.ParseXML(L"<asDefinition id=\"X\" scale=\"0.25;0.5;1\"/>"), 1);
    EXPECT_TRUE(definition.GetComponents().empty());
    ASSERT_TRUE(definition.GetProperties());
    EXPECT_TRUE(definition.GetProperties()->IsEmpty());
    EXPECT_EQ(definition.GetScale()->Serialize(), L"1;1;1");
    EXPECT_EQ(definition.GetName(), L"");
    EXPECT_DOUBLE_EQ(definition.GetPaperWidth(), 210.0);
    EXPECT_EQ(definition.GetStrProperty(L"ASFLLT", L"dflt", 1), L"dflt");

    // A "ppsEx" placed before "cmps" is not looked for.
    CASDefinition early;
    ASSERT_EQ(early.ParseXML((L"<asDefinition>" + kScalePps + L"<cmps/></asDefinition>").c_str()), 1);
    EXPECT_TRUE(early.GetProperties()->IsEmpty());
    EXPECT_DOUBLE_EQ(early.GetScale()->x(), 1.0);
}

TEST(CASDefinition, TextWithoutADefinitionChangesNothing) {
    CASDefinition definition;
    Fill(definition);
    const std::wstring before = definition.GetXML();
    for (const wchar_t* bad : {L"<schemes/>", L"<asDefinition", L"", static_cast<const wchar_t*>(nullptr)}) {
        EXPECT_EQ(definition.ParseXML(bad), 0);
        EXPECT_EQ(definition.GetXML(), before);
    }
}

TEST(CASDefinition, ComponentsAreKeptUnderTheirInternalIds) {
    CASDefinition definition;
    auto first = Component(L"K", eASComponentBOM, 1.0, 1.0);
    definition.AddComponent(first);
    definition.AddComponent(Component(L"K", eASComponentText, 2.0, 2.0));
    EXPECT_EQ(definition.GetComponentByInternalId(L"K"), first);
    auto unnamed = Component(L"", eASComponentText, 0.0, 0.0);
    definition.AddComponent(unnamed);
    EXPECT_EQ(unnamed->GetInternalId().front(), L'{');
    EXPECT_EQ(definition.GetComponentByInternalId(unnamed->GetInternalId().c_str()), unnamed);
    definition.AddComponent(nullptr);
    EXPECT_EQ(definition.GetComponents().size(), 2u);

    definition.RemoveComponent(L"k");  // ids are case-sensitive
    definition.RemoveComponent(nullptr);
    EXPECT_EQ(definition.GetComponents().size(), 2u);
    definition.RemoveComponent(L"K");
    EXPECT_FALSE(definition.GetComponentByInternalId(L"K"));
    EXPECT_FALSE(definition.GetComponentByInternalId(nullptr));
    EXPECT_EQ(definition.GetComponents().size(), 1u);
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
    EXPECT_DOUBLE_EQ(copy.GetPaperHeight(), 420.0);
    EXPECT_DOUBLE_EQ(source.GetPaperHeight(), 297.0);
    copy.GetScale()->SetScaleX(2.0);
    EXPECT_DOUBLE_EQ(source.GetScale()->x(), 0.1);

    const CASDefinition constructed(&source);
    EXPECT_EQ(constructed.GetXML(), source.GetXML());
    EXPECT_EQ(constructed.GetComponentByInternalId(L"A"), source.GetComponentByInternalId(L"A"));
    EXPECT_NE(constructed.GetProperties(), source.GetProperties());
    EXPECT_EQ(CASDefinition(nullptr).GetXML(), CASDefinition().GetXML());
}

TEST(CASDefinition, PropertyReadsFallBackWithoutAPropertySet) {
    CASDefinition definition;
    definition.GetProperties()->SetPropertyValue(L"ASFLC", 3);
    EXPECT_EQ(definition.GetIntProperty(L"ASFLC", 9, 1), 3);
    EXPECT_EQ(definition.GetLngProperty(L"ASFLC", 9, 1), 3);
    EXPECT_EQ(definition.GetIntProperty(L"NONE", 9, 1), 9);
    ASSERT_EQ(definition.ParseXML(L"<asDefinition/>"), 1);
    EXPECT_EQ(definition.GetIntProperty(L"ASFLC", 9, 1), 9);
    EXPECT_EQ(definition.GetLngProperty(L"ASFLC", 9L, 1), 9L);
    EXPECT_DOUBLE_EQ(definition.GetDblProperty(L"ASPH", 1.5, 1), 1.5);
}

TEST(CASDefinition, DependsOnAsksTheTypesOfItsComponents) {
    CASDefinition definition;
    auto bom = Component(L"B", eASComponentBOM, 0.0, 0.0);
    bom->SetDrawData(boost::make_shared<CLSDrawInterfaceData>(L"04BOM", 9472, 9472));
    definition.AddComponent(bom);
    definition.AddComponent(Component(L"N", eASComponentText, 0.0, 0.0));  // no draw data: no type
    // The registered types refer to nothing.
    EXPECT_EQ(definition.DependsOn(L"Columns", nullptr), 0);
    Testing::ScopedRecorders recorders;
    for (const auto& recorder : recorders.recorders) recorder->dependsOnName = L"Columns";
    EXPECT_EQ(definition.DependsOn(L"Columns", nullptr), 7);
    EXPECT_EQ(definition.DependsOn(L"Other", nullptr), 0);
    EXPECT_FALSE(definition.GetComponentByInternalId(L"N")->HasDrawData());
}
