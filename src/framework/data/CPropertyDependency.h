#pragma once
// A property's dependency rule: which other properties its value enables or disables.
//
// Text form: clauses separated by "$"; each clause is "<value>:<state>:<tags>", where <value> is a
// value of the owning property (an integer, e.g. 0/1 of a check box or the index of a list entry),
// <state> is 1 (enable) or 0 (disable), and <tags> are the tags of the affected properties separated
// by "#". "0:0:LT_LEFT#LC_LEFT$1:1:LT_LEFT#LC_LEFT" disables both tags when the owner is 0 and enables
// them when it is 1. A rule may switch two groups at once: "0:1:A#B$0:0:C$1:0:A#B$1:1:C" enables A, B
// and disables C for 0, and the reverse for 1. Every clause whose value matches applies, in the order
// written, so a later clause wins for a tag named twice.

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace XimoGis::Data {

class CPropertyDependency {
public:
    struct Clause {
        long ownerValue = 0;
        bool enable = false;
        std::vector<std::wstring> tags;
    };

    // Reads a rule; the empty text is the empty rule. On malformed text returns false, leaves `rule`
    // unchanged and, when `error` is given, says which clause is wrong and why.
    static bool Parse(std::wstring_view text, CPropertyDependency& rule, std::wstring* error = nullptr);

    const std::vector<Clause>& GetClauses() const { return m_clauses; }
    bool IsEmpty() const { return m_clauses.empty(); }

    // The state (true = enabled) that the owner's value gives to each tag it names; tags that no
    // clause for this value names are absent.
    std::map<std::wstring, bool> Evaluate(long ownerValue) const;

private:
    std::vector<Clause> m_clauses;
};

}  // namespace XimoGis::Data
