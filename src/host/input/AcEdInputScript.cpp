#include "host/input/AcEdInputScript.h"

#include "host/base/AcString.h"
#include "host/input/AcEdTypedInput.h"

namespace {
// One script line as an item; false with the reason when the line is not understood.
bool parseLine(std::wstring_view line, AcEdInputScript::Item& item, std::wstring& why) {
    const std::size_t space = line.find_first_of(L" \t");
    const std::wstring word = acutUpperName(line.substr(0, space));
    const std::wstring_view rest =
        space == std::wstring_view::npos ? std::wstring_view() : AcEdTypedInput::trim(line.substr(space));
    using Kind = AcEdInputScript::Kind;
    if (word == L"PICK" || word == L"MOVE") {
        item.kind = word == L"PICK" ? Kind::kPick : Kind::kMove;
        if (AcEdTypedInput::parsePoint(rest, item.point)) return true;
        why = L"expected coordinates X,Y or X,Y,Z after \"" + std::wstring(line.substr(0, space)) + L"\"";
        return false;
    }
    if (word == L"TEXT") {
        item.kind = Kind::kText;
        item.text = rest;
        if (!rest.empty()) return true;
        why = L"\"text\" needs the words to type (an empty line is \"enter\")";
        return false;
    }
    if (word == L"ENTER" || word == L"ESCAPE" || word == L"ESC") {
        item.kind = word == L"ENTER" ? Kind::kEnter : Kind::kEscape;
        if (rest.empty()) return true;
        why = L"\"" + std::wstring(line.substr(0, space)) + L"\" takes nothing after it";
        return false;
    }
    why = L"unknown input \"" + std::wstring(line.substr(0, space)) + L"\" (use pick, move, text, enter or escape)";
    return false;
}
}  // namespace

bool AcEdInputScript::addScript(const std::wstring& script, std::wstring* error) {
    std::vector<Item> items;
    int lineNumber = 1;
    for (std::size_t start = 0; start <= script.size();) {
        const std::size_t end = script.find_first_of(L"\n;", start);
        const std::size_t stop = end == std::wstring::npos ? script.size() : end;
        const std::wstring_view line = AcEdTypedInput::trim(std::wstring_view(script).substr(start, stop - start));
        if (!line.empty()) {
            Item item;
            std::wstring why;
            if (!parseLine(line, item, why)) {
                if (error) *error = L"input script, line " + std::to_wstring(lineNumber) + L": " + why;
                return false;
            }
            items.push_back(std::move(item));
        }
        if (end != std::wstring::npos && script[end] == L'\n') ++lineNumber;
        start = stop + 1;
    }
    m_items.insert(m_items.end(), items.begin(), items.end());
    return true;
}

bool AcEdInputScript::next(Item& item) {
    if (m_items.empty()) return false;
    item = std::move(m_items.front());
    m_items.pop_front();
    return true;
}

void AcEdInputScript::showPrompt(const ACHAR* prompt) {
    if (prompt) m_prompts.emplace_back(prompt);
}

void AcEdInputScript::clear() {
    m_items.clear();
    m_prompts.clear();
}

AcEdInputScript* acedInputScript() {
    static AcEdInputScript script;
    return &script;
}
