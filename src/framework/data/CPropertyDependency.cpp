#include "framework/data/CPropertyDependency.h"

#include "framework/data/CNumberText.h"

namespace XimoGis::Data {

namespace {

std::vector<std::wstring_view> Split(std::wstring_view text, wchar_t separator) {
    std::vector<std::wstring_view> parts;
    for (;;) {
        const auto at = text.find(separator);
        parts.push_back(text.substr(0, at));
        if (at == std::wstring_view::npos) return parts;
        text.remove_prefix(at + 1);
    }
}

bool Fail(std::wstring* error, std::wstring_view clause, const wchar_t* why) {
    if (error) *error = L"dependency clause \"" + std::wstring(clause) + L"\": " + why;
    return false;
}

}  // namespace

bool CPropertyDependency::Parse(std::wstring_view text, CPropertyDependency& rule, std::wstring* error) {
    CPropertyDependency parsed;
    if (!text.empty()) {
        for (std::wstring_view clauseText : Split(text, L'$')) {
            const auto fields = Split(clauseText, L':');
            if (fields.size() != 3)
                return Fail(error, clauseText, L"expected three fields value:state:tags separated by ':'");
            Clause clause;
            if (!CNumberText::ParseLong(fields[0], clause.ownerValue))
                return Fail(error, clauseText, L"the owner's value is not an integer");
            if (fields[1] != L"0" && fields[1] != L"1")
                return Fail(error, clauseText, L"the state must be 0 (disable) or 1 (enable)");
            clause.enable = fields[1] == L"1";
            for (std::wstring_view tag : Split(fields[2], L'#')) {
                if (tag.empty()) return Fail(error, clauseText, L"empty tag in the list separated by '#'");
                clause.tags.emplace_back(tag);
            }
            parsed.m_clauses.push_back(std::move(clause));
        }
    }
    rule = std::move(parsed);
    return true;
}

std::map<std::wstring, bool> CPropertyDependency::Evaluate(long ownerValue) const {
    std::map<std::wstring, bool> states;
    for (const Clause& clause : m_clauses) {
        if (clause.ownerValue != ownerValue) continue;
        for (const std::wstring& tag : clause.tags) states[tag] = clause.enable;
    }
    return states;
}

}  // namespace XimoGis::Data
