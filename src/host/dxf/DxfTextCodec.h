#pragma once
// Text in DXF files. Files up to R2004 are in the code page named by $DWGCODEPAGE; characters
// outside it are written as "\U+XXXX" escapes. Newer files are UTF-8.
//
// Writing produces pure ASCII: every character outside printable ASCII becomes an escape, so the
// file reads the same whatever code page a reader assumes, and a line break in a value cannot
// break the file's line structure. Reading takes a value as UTF-8 when it is valid UTF-8 and in
// the file's code page otherwise, then resolves the escapes.

#include <string>
#include <string_view>

class DxfTextCodec {
public:
    // Windows code pages with a built-in table; any other falls back to 1252.
    explicit DxfTextCodec(int codePage = 1252);

    // "ANSI_1250" -> 1250; 0 for names that do not carry a number.
    static int codePageFromName(std::string_view name);
    int codePage() const { return m_codePage; }

    static std::string encode(std::wstring_view text);
    // Appends to out; for callers reusing a buffer.
    static void encode(std::wstring_view text, std::string& out);
    std::wstring decode(std::string_view bytes) const;

private:
    void decodeSingleByte(std::string_view bytes, std::wstring& out) const;
    static void resolveEscapes(std::wstring& text);

    int m_codePage;
    const char16_t* m_table;  // characters for the bytes 0x80..0xFF
};
