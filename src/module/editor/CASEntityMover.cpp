#include "module/editor/CASEntityMover.h"

#include "module/support/CASFormat.h"

#include "framework/cad/CXimoCEntityPtr.h"
#include "framework/logging/CLogEngine.h"

#include <string>

namespace XimoGis::AssemblySchemes {

namespace {

constexpr const wchar_t* kLogFile = L"AssemblySchemes_Editor";

}  // namespace

int CASEntityMover::Move(const AcDbObjectIdArray& ids, const AcGeVector3d& displacement) {
    m_ids = ids;
    m_lastMove = AcGeMatrix3d::translation(displacement);
    return Transform(m_lastMove, {L"CXimoCEdit::moveEntity", L"ELEMID: %s - MOVE OK!", L"ELEMID: %u - MOVE ERROR!",
                                  true, __LINE__});
}

int CASEntityMover::Scale(const AcDbObjectIdArray& ids, double factor, const AcGePoint3d& base) {
    m_ids = ids;
    m_lastScale = AcGeMatrix3d::scaling(factor, base);
    return Transform(m_lastScale,
                     {L"scaleEntity", L"ELEMID: %u - SCALE OK!", L"ELEMID: %u - SCALE ERROR!", false, __LINE__});
}

int CASEntityMover::ReMove() {
    if (m_ids.isEmpty()) return 0;
    return Transform(m_lastMove,
                     {L"ReMove", L"ELEMID: %u - RE-MOVE OK!", L"ELEMID: %u - RE-MOVE ERROR!", false, __LINE__});
}

int CASEntityMover::ReScale() {
    if (m_ids.isEmpty()) return 0;
    return Transform(m_lastScale,
                     {L"ReScale", L"ELEMID: %u - RESCALE OK!", L"ELEMID: %u - RESCALE ERROR!", false, __LINE__});
}

int CASEntityMover::Transform(const AcGeMatrix3d& matrix, const LogLines& log) const {
    Logging::CLogEngine* engine = Logging::CLogEngine::Instance();
    const bool logging = engine->IsLoggingOn();
    int changed = 0;
    for (const AcDbObjectId& id : m_ids) {
        CXimoCEntityPtr entity(id, AcDb::kForWrite);
        const bool ok = entity && entity->transformBy(matrix) == Acad::eOk;
        entity.close();
        changed += ok ? 1 : 0;
        if (!logging) continue;
        const unsigned int value = id.asOldId();
        // The move's success line names the id as text, every other line as a number.
        const std::wstring text = ok && log.okTakesText ? CASFormat::Format(log.ok, std::to_string(value).c_str())
                                                        : CASFormat::Format(ok ? log.ok : log.error, value);
        engine->Append(kLogFile, log.line, log.operation, text);
    }
    return changed;
}

}  // namespace XimoGis::AssemblySchemes
