#pragma once
// Result buffers: the host's linked lists of typed values, used for extended data and input.
// A list made by acutNewRb or acutBuildList belongs to the caller and is freed with acutRelRb.

#include <cstdint>

#include "host/base/AcadTypes.h"

using ads_real = double;
using ads_point = ads_real[3];
using ads_name = std::int64_t[2];
using ads_matrix = ads_real[4][4];

// Status codes of the host's input functions and result-buffer value types.
constexpr int RTNONE = 5000;
constexpr int RTREAL = 5001;
constexpr int RTPOINT = 5002;
constexpr int RTSHORT = 5003;
constexpr int RTANG = 5004;
constexpr int RTSTR = 5005;
constexpr int RTENAME = 5006;
constexpr int RTPICKS = 5007;
constexpr int RTORINT = 5008;
constexpr int RT3DPOINT = 5009;
constexpr int RTLONG = 5010;
constexpr int RTVOID = 5014;
constexpr int RTLB = 5016;
constexpr int RTLE = 5017;
constexpr int RTNIL = 5019;
constexpr int RTT = 5021;
constexpr int RTNORM = 5100;
constexpr int RTERROR = -5001;
constexpr int RTCAN = -5002;
constexpr int RTREJ = -5003;
constexpr int RTFAIL = -5004;
constexpr int RTKWORD = -5005;

// Extended-data group codes.
namespace AcDb {
enum DxfCode : short {
    kDxfXdAsciiString = 1000,
    kDxfRegAppName = 1001,
    kDxfXdControlString = 1002,
    kDxfXdLayerName = 1003,
    kDxfXdBinaryChunk = 1004,
    kDxfXdHandle = 1005,
    kDxfXdXCoord = 1010,
    kDxfXdWorldXCoord = 1011,
    kDxfXdWorldXDisp = 1012,
    kDxfXdWorldXDir = 1013,
    kDxfXdReal = 1040,
    kDxfXdDist = 1041,
    kDxfXdScale = 1042,
    kDxfXdInteger16 = 1070,
    kDxfXdInteger32 = 1071,
};
}  // namespace AcDb

struct ads_binary {
    short clen;
    char* buf;
};

union ads_u_val {
    ads_real rreal;
    ads_real rpoint[3];
    short rint;
    ACHAR* rstring;
    std::int64_t rlname[2];
    std::int32_t rlong;
    ads_binary rbinary;
};

struct resbuf {
    resbuf* rbnext;
    short restype;
    ads_u_val resval;
};

// A new zeroed buffer of the given type; strings and binary chunks start null.
resbuf* acutNewRb(int type);
// Frees the whole list from rb on, with its strings and binary chunks.
int acutRelRb(resbuf* rb);
// Builds a list from (type, value) pairs ended by 0: strings as const ACHAR*, reals as double,
// 16-bit values as int, 32-bit values as long or int, points as const double*.
resbuf* acutBuildList(int type, ...);
// A deep copy of the list.
resbuf* acutDuplicateList(const resbuf* rb);

// Whether the type code carries a string, a real, a point, a 16- or a 32-bit integer.
enum class AcResbufKind { kNone, kString, kReal, kPoint, kInt16, kInt32, kBinary, kEntityName };
AcResbufKind acutResbufKind(int type);
