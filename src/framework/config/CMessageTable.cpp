#include "framework/config/CMessageTable.h"

#include "framework/utility/CFilePath.h"
#include "host/base/AcString.h"

#include <climits>

namespace XimoGis {

using Utility::CFilePath;

namespace {

// Reads "NUMBER<TAB>" at the start of `line`; false when it is not there or out of range.
bool ReadNumber(const std::string& line, int& number, std::size_t& textStart) {
    std::size_t i = 0;
    long long value = 0;
    while (i < line.size() && line[i] >= '0' && line[i] <= '9') {
        value = value * 10 + (line[i] - '0');
        if (value > INT_MAX) return false;
        ++i;
    }
    if (i == 0 || i >= line.size() || line[i] != '\t') return false;
    number = static_cast<int>(value);
    textStart = i + 1;
    return true;
}

bool Unescape(const std::string& raw, std::string& text) {
    text.clear();
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] != '\\') {
            text += raw[i];
            continue;
        }
        if (++i == raw.size()) return false;
        switch (raw[i]) {
            case 'n': text += '\n'; break;
            case 't': text += '\t'; break;
            case '\\': text += '\\'; break;
            default: return false;
        }
    }
    return true;
}

std::wstring LineError(const std::wstring& source, int line, const std::wstring& what) {
    return source + L"(" + std::to_wstring(line) + L"): " + what;
}

}  // namespace

bool CMessageTable::Load(const std::wstring& file, std::wstring& error) {
    std::string bytes;
    if (!CFilePath::ReadFile(file, bytes)) {
        error = file + L": cannot read the message table";
        return false;
    }
    return Parse(bytes, file, error);
}

bool CMessageTable::Parse(const std::string& utf8, const std::wstring& source, std::wstring& error) {
    std::map<int, std::wstring> texts;
    std::size_t pos = utf8.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
    int lineNumber = 0;
    while (pos < utf8.size()) {
        std::size_t end = utf8.find('\n', pos);
        if (end == std::string::npos) end = utf8.size();
        std::string line = utf8.substr(pos, end - pos);
        pos = end + 1;
        ++lineNumber;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == '#') continue;

        int number = 0;
        std::size_t textStart = 0;
        if (!ReadNumber(line, number, textStart)) {
            error = LineError(source, lineNumber, L"expected a message number and a tab");
            return false;
        }
        std::string text;
        if (!Unescape(line.substr(textStart), text)) {
            error = LineError(source, lineNumber, L"a backslash must be followed by n, t or \\");
            return false;
        }
        if (!texts.emplace(number, acutUtf8ToWchar(text)).second) {
            error = LineError(source, lineNumber, L"message " + std::to_wstring(number) + L" appears twice");
            return false;
        }
    }
    m_texts.swap(texts);
    m_source = source;
    return true;
}

std::wstring CMessageTable::GetText(int number) const {
    const auto found = m_texts.find(number);
    return found != m_texts.end() ? found->second : L"#" + std::to_wstring(number);
}

bool CMessageTable::Has(int number) const {
    return m_texts.count(number) != 0;
}

}  // namespace XimoGis
