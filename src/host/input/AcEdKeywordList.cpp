#include "host/input/AcEdKeywordList.h"

#include <algorithm>
#include <cwctype>

#include "host/base/AcString.h"
#include "host/input/AcEdTypedInput.h"

namespace {
std::vector<std::wstring_view> splitWords(std::wstring_view text) {
    std::vector<std::wstring_view> words;
    std::size_t start = 0;
    while ((start = text.find_first_not_of(L" \t", start)) != std::wstring_view::npos) {
        const std::size_t end = text.find_first_of(L" \t", start);
        words.push_back(text.substr(start, end - start));
        start = end;
    }
    return words;
}
}  // namespace

AcEdKeywordList::Keyword AcEdKeywordList::makeKeyword(std::wstring_view token) {
    Keyword keyword;
    const std::size_t comma = token.find(L',');
    keyword.word = token.substr(0, comma);
    keyword.upper = acutUpperName(keyword.word);
    if (comma != std::wstring_view::npos) {
        keyword.abbreviation = acutUpperName(token.substr(comma + 1));
        return keyword;
    }
    const bool hasLower = std::any_of(keyword.word.begin(), keyword.word.end(),
                                      [](wchar_t c) { return std::iswlower(static_cast<wint_t>(c)) != 0; });
    for (wchar_t c : keyword.word)
        if (hasLower && std::iswupper(static_cast<wint_t>(c))) keyword.abbreviation += c;
    if (keyword.abbreviation.empty()) keyword.abbreviation = keyword.upper;
    return keyword;
}

AcEdKeywordList::AcEdKeywordList(const ACHAR* list) {
    if (!list) return;
    std::vector<std::wstring_view> locals, globals;
    bool afterUnderscore = false;
    for (std::wstring_view word : splitWords(list)) {
        if (word == L"_") afterUnderscore = true;
        else (afterUnderscore ? globals : locals).push_back(word);
    }
    if (!afterUnderscore) globals = locals;
    const std::size_t n = std::max(locals.size(), globals.size());
    for (std::size_t i = 0; i < n; ++i) {
        // An unpaired keyword stands for itself on the other side.
        const std::wstring_view local = i < locals.size() ? locals[i] : globals[i];
        const std::wstring_view global = i < globals.size() ? globals[i] : locals[i];
        m_keywords.push_back({makeKeyword(local), makeKeyword(global)});
    }
}

bool AcEdKeywordList::Keyword::names(const std::wstring& typedUpper) const {
    if (typedUpper == upper || typedUpper == abbreviation) return true;
    return upper.starts_with(abbreviation) && typedUpper.size() > abbreviation.size() &&
           upper.starts_with(typedUpper);
}

std::wstring AcEdKeywordList::match(std::wstring_view typed) const {
    typed = AcEdTypedInput::trim(typed);
    const bool globalOnly = !typed.empty() && typed.front() == L'_';
    const std::wstring upper = acutUpperName(globalOnly ? typed.substr(1) : typed);
    if (upper.empty()) return {};
    if (!globalOnly)
        for (const Pair& pair : m_keywords)
            if (pair.local.names(upper)) return pair.global.word;
    for (const Pair& pair : m_keywords)
        if (pair.global.names(upper)) return pair.global.word;
    return {};
}
