#include "host/input/acedDragGen.h"

#include "host/input/AcEdInputRequest.h"
#include "host/input/acedSelectionSet.h"

namespace {
// Shows the drag image at a cursor position: false when the callback reports an error.
bool sample(int (*callback)(ads_point, ads_matrix), const AcGePoint3d& cursor) {
    if (!callback) return true;
    ads_point point = {cursor.x, cursor.y, cursor.z};
    ads_matrix matrix = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};
    const int status = callback(point, matrix);
    return status == RTNORM || status == RTNONE;
}
}  // namespace

int acedDragGen(const ads_name ss, const ACHAR* prompt, int, int (*callback)(ads_point, ads_matrix),
                ads_point result) {
    AcEdInputRequest request(prompt);
    Adesk::Int32 length = 0;
    if (!result || acedSSLength(ss, &length) != RTNORM || length == 0) return RTERROR;
    AcGePoint3d picked;
    const int status = request.run([&](const AcEdInputScript::Item& item) {
        using Kind = AcEdInputScript::Kind;
        AcGePoint3d point = item.point;
        if (item.kind == Kind::kText && !AcEdInputRequest::typedPoint(item.text, point))
            return AcEdInputRequest::kRejected;
        if (!sample(callback, point)) return RTERROR;
        if (item.kind == Kind::kMove) return AcEdInputRequest::kIgnored;
        picked = point;
        return RTNORM;
    });
    if (status == RTNORM) AcEdInputRequest::returnPoint(picked, result);
    return status;
}
