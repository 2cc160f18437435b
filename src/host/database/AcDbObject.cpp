#include "host/database/AcDbObject.h"

#include <algorithm>
#include <cwchar>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/database/AcDbStub.h"

AcDbObject::~AcDbObject() = default;

AcDbObjectId AcDbObject::objectId() const { return m_stub ? AcDbDatabase::idOf(m_stub) : AcDbObjectId(); }
AcDbObjectId AcDbObject::ownerId() const { return m_stub ? m_stub->owner : AcDbObjectId(); }
AcDbDatabase* AcDbObject::database() const { return m_stub ? m_stub->database : nullptr; }
bool AcDbObject::isErased() const { return m_stub && m_stub->erased; }
bool AcDbObject::isReadEnabled() const { return !m_stub || m_stub->readers > 0 || m_stub->writer; }
bool AcDbObject::isWriteEnabled() const { return !m_stub || m_stub->writer; }

Acad::ErrorStatus AcDbObject::erase(bool erasing) {
    if (!m_stub) return Acad::eNotInDatabase;
    if (!m_stub->writer) return Acad::eNotOpenForWrite;
    if (m_stub->erased == erasing) return erasing ? Acad::eWasErased : Acad::eOk;
    m_stub->erased = erasing;
    subErase(erasing);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::close() {
    if (!m_stub) return Acad::eNotInDatabase;
    if (m_stub->writer) m_stub->writer = false;
    else if (m_stub->readers > 0) --m_stub->readers;
    else return Acad::eNotOpenForRead;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::upgradeOpen() {
    if (!m_stub) return Acad::eOk;
    if (m_stub->writer) return Acad::eWasOpenForWrite;
    if (m_stub->readers != 1) return Acad::eWasOpenForRead;  // other readers hold it
    m_stub->readers = 0;
    m_stub->writer = true;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::downgradeOpen() {
    if (!m_stub) return Acad::eOk;
    if (!m_stub->writer) return Acad::eWasNotOpenForWrite;
    m_stub->writer = false;
    m_stub->readers = 1;
    return Acad::eOk;
}

const AcDbXDataApp* AcDbObject::xDataFor(const std::wstring& application) const {
    for (const auto& app : m_xdata)
        if (acutNamesEqual(app.application, application)) return &app;
    return nullptr;
}

namespace {
resbuf* toResbuf(const AcDbXDataValue& v) {
    resbuf* rb = acutNewRb(v.code);
    std::visit(
        [rb](const auto& value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, std::wstring>) {
                rb->resval.rstring = new ACHAR[value.size() + 1];
                std::wmemcpy(rb->resval.rstring, value.c_str(), value.size() + 1);
            } else if constexpr (std::is_same_v<T, double>) {
                rb->resval.rreal = value;
            } else if constexpr (std::is_same_v<T, Adesk::Int16>) {
                rb->resval.rint = value;
            } else if constexpr (std::is_same_v<T, Adesk::Int32>) {
                rb->resval.rlong = value;
            } else if constexpr (std::is_same_v<T, AcGePoint3d>) {
                rb->resval.rpoint[0] = value.x;
                rb->resval.rpoint[1] = value.y;
                rb->resval.rpoint[2] = value.z;
            } else {
                rb->resval.rbinary.clen = static_cast<short>(value.size());
                rb->resval.rbinary.buf = new char[value.size()];
                std::copy(value.begin(), value.end(), rb->resval.rbinary.buf);
            }
        },
        v.value);
    return rb;
}

bool fromResbuf(const resbuf* rb, AcDbXDataValue& out) {
    out.code = rb->restype;
    switch (acutResbufKind(rb->restype)) {
        case AcResbufKind::kString: out.value = std::wstring(rb->resval.rstring ? rb->resval.rstring : L""); return true;
        case AcResbufKind::kReal: out.value = rb->resval.rreal; return true;
        case AcResbufKind::kInt16: out.value = static_cast<Adesk::Int16>(rb->resval.rint); return true;
        case AcResbufKind::kInt32: out.value = static_cast<Adesk::Int32>(rb->resval.rlong); return true;
        case AcResbufKind::kPoint:
            out.value = AcGePoint3d(rb->resval.rpoint[0], rb->resval.rpoint[1], rb->resval.rpoint[2]);
            return true;
        case AcResbufKind::kBinary: {
            const auto* b = reinterpret_cast<const unsigned char*>(rb->resval.rbinary.buf);
            out.value = std::vector<unsigned char>(b, b + (b ? rb->resval.rbinary.clen : 0));
            return true;
        }
        default: return false;
    }
}
}  // namespace

resbuf* AcDbObject::xData(const ACHAR* regappName) const {
    resbuf* head = nullptr;
    resbuf* tail = nullptr;
    auto append = [&](resbuf* rb) {
        if (tail) tail->rbnext = rb; else head = rb;
        tail = rb;
    };
    for (const auto& app : m_xdata) {
        if (regappName && !acutNamesEqual(app.application, regappName)) continue;
        append(acutBuildList(AcDb::kDxfRegAppName, app.application.c_str(), 0));
        for (const auto& v : app.values) append(toResbuf(v));
    }
    return head;
}

Acad::ErrorStatus AcDbObject::setXData(const resbuf* xdata) {
    if (!xdata) return Acad::eOk;
    if (xdata->restype != AcDb::kDxfRegAppName) return Acad::eInvalidResBuf;
    std::vector<AcDbXDataApp> apps;
    for (const resbuf* rb = xdata; rb; rb = rb->rbnext) {
        if (rb->restype == AcDb::kDxfRegAppName) {
            if (!rb->resval.rstring || !*rb->resval.rstring) return Acad::eInvalidResBuf;
            apps.push_back({rb->resval.rstring, {}});
            continue;
        }
        AcDbXDataValue v;
        if (!acdbIsXDataValueCode(rb->restype) || !fromResbuf(rb, v)) return Acad::eInvalidDxfCode;
        apps.back().values.push_back(std::move(v));
    }
    for (const auto& app : apps) {
        const Acad::ErrorStatus es = setXData(app);
        if (es != Acad::eOk) return es;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::setXData(AcDbXDataApp&& data) {
    if (data.application.empty()) return Acad::eInvalidInput;
    for (const auto& v : data.values)
        if (!acdbIsXDataValueCode(v.code)) return Acad::eInvalidDxfCode;
    if (AcDbDatabase* db = database(); db && !db->isRegApp(data.application)) return Acad::eRegappIdNotFound;
    auto it = std::find_if(m_xdata.begin(), m_xdata.end(),
                           [&](const AcDbXDataApp& a) { return acutNamesEqual(a.application, data.application); });
    if (data.values.empty()) {
        if (it != m_xdata.end()) m_xdata.erase(it);
    } else if (it != m_xdata.end()) {
        it->values = std::move(data.values);
    } else {
        m_xdata.push_back(std::move(data));
    }
    return Acad::eOk;
}
