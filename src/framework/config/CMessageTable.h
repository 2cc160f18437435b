#pragma once
// The texts of one language, keyed by message number.
//
// File format (UTF-8, optional byte-order mark, LF or CRLF line ends):
//   # a comment line            - ignored, as are blank lines
//   22021<TAB>Rotate            - message number, one tab, the text up to the line end
// In a text, "\n", "\t" and "\\" stand for a line break, a tab and a backslash. A number may
// appear only once in a file.

#include <map>
#include <string>

namespace XimoGis {

class CMessageTable {
public:
    // Replaces the table with the file's messages; on failure the table is unchanged and `error`
    // names the file and the line that is wrong.
    bool Load(const std::wstring& file, std::wstring& error);
    // As Load, from text already read; `source` names it in errors.
    bool Parse(const std::string& utf8, const std::wstring& source, std::wstring& error);

    // The text of `number`, or the visible placeholder "#<number>" when the table lacks it.
    std::wstring GetText(int number) const;
    bool Has(int number) const;
    std::size_t GetCount() const { return m_texts.size(); }
    // The file the table was loaded from; empty before a successful Load.
    const std::wstring& GetSource() const { return m_source; }

private:
    std::map<int, std::wstring> m_texts;
    std::wstring m_source;
};

}  // namespace XimoGis
