#pragma once
// A keyword list as acedInitGet takes it: "Local1 Local2 _ Global1 Global2". The words before
// the lone underscore are the local keywords, shown and typed in the user's language; the words
// after it are the global keywords, the same for every language, paired with the locals by
// position. Without an underscore every keyword is its own global.
//
// A typed word names a keyword, case-insensitively, by the whole keyword or by its abbreviation:
// the capital letters of a mixed-case keyword ("LType" -> "LT", "eXit" -> "X"), or the part
// after a comma ("LTYPE,LT" -> "LT"). When the abbreviation starts the keyword, any longer start
// of the keyword also names it ("LTy"). A keyword with no lower-case letter must be typed whole.
// A word typed with a leading underscore ("_Rot") names a global keyword only; any other word is
// looked up among the local keywords first and then among the global ones.

#include <string>
#include <string_view>
#include <vector>

#include "host/base/AcadTypes.h"

class AcEdKeywordList {
public:
    AcEdKeywordList() = default;
    explicit AcEdKeywordList(const ACHAR* list);

    bool isEmpty() const { return m_keywords.empty(); }
    int count() const { return static_cast<int>(m_keywords.size()); }
    const std::wstring& localKeyword(int i) const { return m_keywords[static_cast<std::size_t>(i)].local.word; }
    const std::wstring& globalKeyword(int i) const { return m_keywords[static_cast<std::size_t>(i)].global.word; }

    // The global keyword that the typed word names; empty when it names none.
    std::wstring match(std::wstring_view typed) const;

private:
    struct Keyword {
        std::wstring word;          // as it is returned and shown
        std::wstring upper;         // upper case, for comparing
        std::wstring abbreviation;  // upper case
        bool names(const std::wstring& typedUpper) const;
    };
    struct Pair {
        Keyword local;
        Keyword global;
    };
    static Keyword makeKeyword(std::wstring_view token);

    std::vector<Pair> m_keywords;
};
