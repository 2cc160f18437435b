#pragma once
// Extended data held on an object: per registered application, an ordered list of typed values.

#include <string>
#include <variant>
#include <vector>

#include "host/base/AcadTypes.h"
#include "host/geometry/AcGePoint3d.h"

struct AcDbXDataValue {
    using Value = std::variant<std::wstring, double, Adesk::Int16, Adesk::Int32, AcGePoint3d, std::vector<unsigned char>>;

    short code = 1000;
    Value value;

    static AcDbXDataValue string(const std::wstring& s, short code = 1000) { return {code, s}; }
    static AcDbXDataValue real(double d, short code = 1040) { return {code, d}; }
    static AcDbXDataValue int16(Adesk::Int16 i) { return {1070, i}; }
    static AcDbXDataValue int32(Adesk::Int32 i) { return {1071, i}; }
    static AcDbXDataValue point(const AcGePoint3d& p, short code = 1010) { return {code, p}; }

    bool operator==(const AcDbXDataValue& o) const;
    bool operator!=(const AcDbXDataValue& o) const { return !(*this == o); }
};

struct AcDbXDataApp {
    std::wstring application;
    std::vector<AcDbXDataValue> values;
    bool operator==(const AcDbXDataApp& o) const { return application == o.application && values == o.values; }
};

using AcDbXDataList = std::vector<AcDbXDataApp>;

// Whether code is a group code extended data may hold (1000..1071, without 1001).
bool acdbIsXDataValueCode(int code);
