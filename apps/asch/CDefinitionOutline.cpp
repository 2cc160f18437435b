#include "CDefinitionOutline.h"

#include "framework/config/CModuleConfiguration.h"
#include "host/base/AcString.h"
#include "module/definitions/CASDefinition.h"
#include "module/support/CASFormat.h"

#include <set>
#include <string>

namespace XimoGis::Asch {

using AssemblySchemes::CASComponentData;
using AssemblySchemes::CASDefinition;

namespace {

std::string Text(const std::wstring& text) { return acutWcharToUtf8(text); }

void PrintProperties(const Data::CPropertiesEx& properties, const std::string& indent, std::ostream& out) {
    for (const auto& category : properties.GetCategories()) {
        out << indent << "[" << Text(CModuleConfiguration::GetMsg(category->GetNameMsg())) << "]\n";
        for (const auto& property : category->GetProperties()) {
            out << indent << "  " << Text(property->GetTag()) << " = " << Text(property->GetValue().GetText())
                << "  (" << Text(CModuleConfiguration::GetMsg(property->GetNameMsg())) << ")\n";
        }
    }
}

// The component and, below it, the components that name it as their parent.
void PrintComponent(const CASDefinition& definition, CASComponentData& component, int depth,
                    std::set<std::wstring>& printed, std::ostream& out) {
    printed.insert(component.GetInternalId());
    const std::string indent(2 * depth + 4, ' ');
    const std::wstring type = component.HasDrawData() ? component.GetId() : L"(no type)";
    out << indent << Text(type) << "  " << Text(component.GetName()) << "  " << Text(component.GetInternalId())
        << "  offset "
        << Text(AssemblySchemes::CASFormat::Format(L"%.3f, %.3f", component.GetXOffset(), component.GetYOffset()))
        << '\n';
    if (component.HasDrawData()) PrintProperties(*component.GetDrawData()->GetProperties(), indent + "  ", out);
    for (const auto& [id, child] : definition.GetComponents()) {
        if (child->GetParentComponentId() == component.GetInternalId() && !printed.count(id))
            PrintComponent(definition, *child, depth + 1, printed, out);
    }
}

}  // namespace

void CDefinitionOutline::Print(CASDefinition& definition, std::ostream& out) {
    out << "definition \"" << Text(definition.GetName()) << "\" " << Text(definition.GetId()) << '\n'
        << "  entity type " << definition.GetEntType() << ", topology type " << definition.GetTopologyType()
        << ", topology function " << definition.GetTopologyFunction() << ", read-only " << definition.GetReadOnly()
        << ", hidden " << definition.GetHidden() << '\n'
        << "  scale " << Text(definition.GetScale()->Serialize()) << '\n'
        << "  components: " << definition.GetComponents().size() << '\n';
    std::set<std::wstring> printed;
    // Top-level components first; then any whose parent the definition does not hold.
    for (const auto& [id, component] : definition.GetComponents()) {
        if (component->GetParentComponentId().empty()) PrintComponent(definition, *component, 0, printed, out);
    }
    for (const auto& [id, component] : definition.GetComponents()) {
        if (printed.count(id)) continue;
        out << "    (parent " << Text(component->GetParentComponentId()) << " missing)\n";
        PrintComponent(definition, *component, 1, printed, out);
    }
    out << "  properties:\n";
    PrintProperties(*definition.GetProperties(), "    ", out);
}

}  // namespace XimoGis::Asch
