#pragma once
// The dependency rules by which a component property switches others on and off.
//
// A rule is a list of clauses separated by "$"; a clause is "<owner value>:<state>:<tags>", where
// the owner value is 0 or 1, the state 1 enables and 0 disables, and the tags are separated by
// "#". So "0:0:A#B$1:1:A#B" disables A and B while the owner is 0 and enables them when it is 1.

#include <string>
#include <vector>

namespace XimoGis::AssemblySchemes {

class CASDependencyRules {
public:
    // One clause of a rule.
    struct Clause {
        int ownerValue;
        int state;
        std::vector<std::wstring> tags;
    };
    static std::wstring Build(const std::vector<Clause>& clauses);

    // The same tags switched off by 0 and on by 1.
    static std::wstring Toggle(const std::vector<std::wstring>& tags);

    // The frame's side switches ("DF_LEFT"...), `side` being "LEFT", "RIGHT", "TOP" or "BOTTOM":
    // the side's linetype and colour follow the switch.
    static std::wstring FrameSide(const std::wstring& side);
    // The bill of materials' "INNER_LINES" and "FRAME" switches reuse the frame's left-side rule
    // as it stands, naming tags the table does not have; so they grey out nothing.
    static std::wstring BOMLines() { return FrameSide(L"LEFT"); }
    // The scheme component's "AS_ELEM_DRAW_SYMM": the symmetry line's colour, linetype, extension.
    static std::wstring SchemeSymmetry();
    // The text component's "LAD_SOURCE": node data (0) or manual entry (1), each enabling its own
    // settings and disabling the other's.
    static std::wstring TextSource();
    // "LD_MODIFYDATA" of the text and info-table components: the scale factor follows the switch.
    static std::wstring ModifyData();
};

}  // namespace XimoGis::AssemblySchemes
