#pragma once
// The Windows single-byte code pages DXF files name in $DWGCODEPAGE: tables of the characters
// for the bytes 0x80..0xFF. Bytes a code page leaves undefined map to the same code point.

// Null for a code page without a table.
const char16_t* dxfCodePageTable(int codePage);
