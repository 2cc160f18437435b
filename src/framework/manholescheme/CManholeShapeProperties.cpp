#include "framework/manholescheme/CManholeShapeProperties.h"

#include "framework/config/CModuleConfiguration.h"

#include <boost/make_shared.hpp>

namespace XimoGis::ManholeScheme {

using Data::CPropertiesEx;
using Data::CPropertyEx;
using Data::enmPropertyValueType;

namespace {

enum { kShapeCategory = 1, kColourCategory = 2, kScaleCategory = 3 };

void AddNumber(CPropertiesEx& set, int category, const wchar_t* tag, double value, int nameMsg) {
    auto property = boost::make_shared<CPropertyEx>(tag, enmPropertyValueType::Double, Data::eEditorNumber, nameMsg,
                                                    nameMsg);
    property->SetDefaultAndValue(value);
    property->SetRequired(true);
    set.AddProperty(category, property);
}

void AddColour(CPropertiesEx& set, const wchar_t* tag, int colour, int nameMsg) {
    auto property =
        boost::make_shared<CPropertyEx>(tag, enmPropertyValueType::Integer, Data::eEditorColor, nameMsg, nameMsg);
    property->SetDefaultAndValue(colour);
    property->SetRequired(true);
    set.AddProperty(kColourCategory, property);
}

}  // namespace

boost::shared_ptr<CPropertiesEx> CManholeShapeProperties::Create(bool frontView) {
    auto set = boost::make_shared<CPropertiesEx>();
    set->AddCategory(kShapeCategory, 24100, 24100);
    AddNumber(*set, kShapeCategory, L"MSMS_SHAFT_DIAMETER", 1.0, 24101);
    AddNumber(*set, kShapeCategory, L"MSMS_DEPTH", 2.0, 24102);
    AddNumber(*set, kShapeCategory, L"MSMS_WALL_THICKNESS", 0.15, 24103);
    if (frontView) {
        AddNumber(*set, kShapeCategory, L"MSMS_BOTTOM_THICKNESS", 0.2, 24104);
        AddNumber(*set, kShapeCategory, L"MSMS_TOP_THICKNESS", 0.2, 24105);
    }
    AddNumber(*set, kShapeCategory, L"MSMS_COVER_DIAMETER", 0.6, 24106);
    AddNumber(*set, kShapeCategory, L"MSMS_PIPE_LENGTH", 0.6, 24107);
    AddNumber(*set, kShapeCategory, L"MSMS_PIPE_DIAMETER", 0.2, 24108);
    if (frontView) AddNumber(*set, kShapeCategory, L"MSMS_PIPE_HEIGHT", 0.0, 24109);

    set->AddCategory(kColourCategory, 24110, 24110);
    AddColour(*set, L"MSMS_WALL_COLOR", 7, 24111);
    AddColour(*set, L"MSMS_PIPE_COLOR", 5, 24112);
    AddColour(*set, L"MSMS_COVER_COLOR", 1, 24113);
    AddColour(*set, L"MSMS_TEXT_COLOR", 7, 1284);
    AddNumber(*set, kColourCategory, L"MSMS_TEXT_HEIGHT", 2.5, 228);
    auto style = boost::make_shared<CPropertyEx>(L"MSMS_TEXT_STYLE", enmPropertyValueType::Text,
                                                 Data::eEditorTextStyle, 230, 230);
    style->SetDefaultAndValue(L"Standard");
    set->AddProperty(kColourCategory, style);

    set->AddCategory(kScaleCategory, 8324, 8324);
    AddNumber(*set, kScaleCategory, L"MSMS_SCALE", 0.1, 8324);
    auto unit = boost::make_shared<CPropertyEx>(L"MSMS_UNIT", enmPropertyValueType::ListIndex, Data::eEditorList,
                                                24120, 24120);
    for (int choice = 0; choice < 3; ++choice) unit->AddListChoice(CModuleConfiguration::GetMsg(24121 + choice), choice);
    unit->SetDefaultAndValue(CModuleConfiguration::GetMsg(24121), 0);
    unit->SetRequired(true);
    set->AddProperty(kScaleCategory, unit);
    return set;
}

double CManholeShapeProperties::GetDrawingFactor(const CPropertiesEx& properties) {
    static const double metresPerUnit[] = {0.001, 0.01, 1.0};
    const int unit = properties.GetIntProperty(L"MSMS_UNIT", 0, 1);
    const double scale = properties.GetDblProperty(L"MSMS_SCALE", 0.1, 1);
    return unit >= 0 && unit <= 2 ? scale / metresPerUnit[unit] : 0.0;
}

}  // namespace XimoGis::ManholeScheme
