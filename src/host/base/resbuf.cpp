#include "host/base/resbuf.h"

#include <cstdarg>
#include <cstring>
#include <cwchar>

AcResbufKind acutResbufKind(int type) {
    if (type == RTSTR || (type >= 0 && type <= 9) || (type >= 1000 && type <= 1003) ||
        type == 1005)
        return AcResbufKind::kString;
    if (type == RTENAME || type == RTPICKS) return AcResbufKind::kEntityName;
    if (type == 1004) return AcResbufKind::kBinary;
    if (type == RTPOINT || type == RT3DPOINT || (type >= 10 && type <= 39) || (type >= 1010 && type <= 1013))
        return AcResbufKind::kPoint;
    if (type == RTREAL || type == RTANG || (type >= 40 && type <= 59) || (type >= 1040 && type <= 1042))
        return AcResbufKind::kReal;
    if (type == RTSHORT || (type >= 60 && type <= 79) || type == 1070) return AcResbufKind::kInt16;
    if (type == RTLONG || (type >= 90 && type <= 99) || type == 1071) return AcResbufKind::kInt32;
    return AcResbufKind::kNone;
}

resbuf* acutNewRb(int type) {
    auto* rb = new resbuf;
    std::memset(rb, 0, sizeof(resbuf));
    rb->restype = static_cast<short>(type);
    return rb;
}

int acutRelRb(resbuf* rb) {
    while (rb) {
        resbuf* next = rb->rbnext;
        const AcResbufKind kind = acutResbufKind(rb->restype);
        if (kind == AcResbufKind::kString) delete[] rb->resval.rstring;
        if (kind == AcResbufKind::kBinary) delete[] rb->resval.rbinary.buf;
        delete rb;
        rb = next;
    }
    return RTNORM;
}

static ACHAR* copyString(const ACHAR* s) {
    if (!s) s = L"";
    const std::size_t n = std::wcslen(s);
    auto* out = new ACHAR[n + 1];
    std::wmemcpy(out, s, n + 1);
    return out;
}

resbuf* acutBuildList(int type, ...) {
    va_list args;
    va_start(args, type);
    resbuf* head = nullptr;
    resbuf* tail = nullptr;
    for (int t = type; t != 0; t = va_arg(args, int)) {
        resbuf* rb = acutNewRb(t);
        switch (acutResbufKind(t)) {
            case AcResbufKind::kString: rb->resval.rstring = copyString(va_arg(args, const ACHAR*)); break;
            case AcResbufKind::kReal: rb->resval.rreal = va_arg(args, double); break;
            case AcResbufKind::kPoint: {
                const double* p = va_arg(args, const double*);
                for (int i = 0; i < 3; ++i) rb->resval.rpoint[i] = p ? p[i] : 0.0;
                break;
            }
            case AcResbufKind::kInt16: rb->resval.rint = static_cast<short>(va_arg(args, int)); break;
            case AcResbufKind::kInt32: rb->resval.rlong = static_cast<std::int32_t>(va_arg(args, int)); break;
            case AcResbufKind::kEntityName: {
                const std::int64_t* n = va_arg(args, const std::int64_t*);
                rb->resval.rlname[0] = n ? n[0] : 0;
                rb->resval.rlname[1] = n ? n[1] : 0;
                break;
            }
            case AcResbufKind::kBinary:
            case AcResbufKind::kNone: break;
        }
        if (tail) tail->rbnext = rb; else head = rb;
        tail = rb;
    }
    va_end(args);
    return head;
}

resbuf* acutDuplicateList(const resbuf* rb) {
    resbuf* head = nullptr;
    resbuf* tail = nullptr;
    for (; rb; rb = rb->rbnext) {
        resbuf* copy = acutNewRb(rb->restype);
        copy->resval = rb->resval;
        const AcResbufKind kind = acutResbufKind(rb->restype);
        if (kind == AcResbufKind::kString) copy->resval.rstring = copyString(rb->resval.rstring);
        if (kind == AcResbufKind::kBinary && rb->resval.rbinary.buf) {
            copy->resval.rbinary.buf = new char[static_cast<std::size_t>(rb->resval.rbinary.clen)];
            std::memcpy(copy->resval.rbinary.buf, rb->resval.rbinary.buf, static_cast<std::size_t>(rb->resval.rbinary.clen));
        }
        if (tail) tail->rbnext = copy; else head = copy;
        tail = copy;
    }
    return head;
}
