#pragma once
// Reads one integer from a SQLite file through SQLite itself, independent of the store's helpers,
// the way another GeoPackage reader would see the file.

#include <sqlite3.h>

#include <filesystem>

namespace XimoGis::Testing {

inline int QueryInt(const std::filesystem::path& file, const char* sql) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(file.string().c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* stmt = nullptr;
    int value = -999;
    if (sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr) == SQLITE_OK && sqlite3_step(stmt) == SQLITE_ROW)
        value = sqlite3_column_int(stmt, 0);
    sqlite3_finalize(stmt);
    sqlite3_close(db);
    return value;
}

}  // namespace XimoGis::Testing
