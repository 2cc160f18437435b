#include "module/components/CASDependencyRules.h"

namespace XimoGis::AssemblySchemes {

std::wstring CASDependencyRules::Build(const std::vector<Clause>& clauses) {
    std::wstring rule;
    for (const Clause& clause : clauses) {
        if (!rule.empty()) rule += L'$';
        rule += std::to_wstring(clause.ownerValue) + L':' + std::to_wstring(clause.state) + L':';
        for (std::size_t i = 0; i < clause.tags.size(); ++i) {
            if (i) rule += L'#';
            rule += clause.tags[i];
        }
    }
    return rule;
}

std::wstring CASDependencyRules::Toggle(const std::vector<std::wstring>& tags) {
    return Build({{0, 0, tags}, {1, 1, tags}});
}

std::wstring CASDependencyRules::FrameSide(const std::wstring& side) {
    return Toggle({L"LT_" + side, L"LC_" + side});
}

std::wstring CASDependencyRules::SchemeSymmetry() {
    return Toggle({L"AS_ELEM_SYMM_COLOR", L"AS_ELEM_SYMM_LINETYPE", L"AS_ELEM_SYMM_EXTEND"});
}

std::wstring CASDependencyRules::TextSource() {
    const std::vector<std::wstring> nodeData = {L"LD_SCALEFACTOR", L"LD_MODIFYDATA", L"LAD_DATAID"};
    const std::vector<std::wstring> manual = {L"LD_MANUALENTRY"};
    return Build({{0, 1, nodeData}, {0, 0, manual}, {1, 0, nodeData}, {1, 1, manual}});
}

std::wstring CASDependencyRules::ModifyData() {
    const std::vector<std::wstring> scale = {L"LD_SCALEFACTOR"};
    return Build({{1, 1, scale}, {0, 0, scale}});
}

}  // namespace XimoGis::AssemblySchemes
