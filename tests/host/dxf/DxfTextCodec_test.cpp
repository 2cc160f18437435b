#include "host/dxf/DxfTextCodec.h"

#include <gtest/gtest.h>

TEST(DxfTextCodec, EncodesEverythingOutsidePrintableAsciiAsEscapes) {
    EXPECT_EQ(DxfTextCodec::encode(L"Pipe DN100 \\P"), "Pipe DN100 \\P");
    EXPECT_EQ(DxfTextCodec::encode(L"Čvor š-ž ĐĆ €"), "\\U+010Cvor \\U+0161-\\U+017E \\U+0110\\U+0106 \\U+20AC");
    // Line breaks and tabs would break the file's lines.
    EXPECT_EQ(DxfTextCodec::encode(L"a\nb\tc"), "a\\U+000Ab\\U+0009c");
    // Beyond 16 bits: a surrogate pair.
    EXPECT_EQ(DxfTextCodec::encode(L"𝄞"), "\\U+D834\\U+DD1E");
}

TEST(DxfTextCodec, DecodesEscapesUtf8AndTheCodePage) {
    const DxfTextCodec cp1252;
    EXPECT_EQ(cp1252.decode("\\U+010Cvor \\U+010cvor"), L"Čvor Čvor");
    EXPECT_EQ(cp1252.decode("\\U+D834\\U+DD1E"), L"𝄞");
    EXPECT_EQ(cp1252.decode("\\U+D834 alone"), L"\uFFFD alone");
    // Not escapes: kept as they stand.
    EXPECT_EQ(cp1252.decode("\\U+12G4 \\U+12 \\P"), L"\\U+12G4 \\U+12 \\P");
    // Valid UTF-8 is taken as such, other bytes in the code page.
    EXPECT_EQ(cp1252.decode("\xC5\xA0" "aht"), L"Šaht");
    EXPECT_EQ(cp1252.decode("\x8A" "aht \x80"), L"Šaht €");
    const DxfTextCodec cp1250(DxfTextCodec::codePageFromName("ANSI_1250"));
    EXPECT_EQ(cp1250.codePage(), 1250);
    EXPECT_EQ(cp1250.decode("\xC8vor \xD0\xC6 \x9A\x9E"), L"Čvor ĐĆ šž");
    const DxfTextCodec cp1251(1251);
    EXPECT_EQ(cp1251.decode("\xC6\xE8\xE2"), L"Жив");
    // A code page without a table reads as 1252.
    EXPECT_EQ(DxfTextCodec(932).codePage(), 1252);
    EXPECT_EQ(DxfTextCodec::codePageFromName("UTF8"), 8);
    EXPECT_EQ(DxfTextCodec::codePageFromName("ANSI"), 0);
}

TEST(DxfTextCodec, RoundTripsAnyText) {
    const DxfTextCodec codec;
    const std::wstring text = L"Šifra Č-100 \\P {} ĐŽ € Ж 𝄞 \r\n end";
    EXPECT_EQ(codec.decode(DxfTextCodec::encode(text)), text);
}
