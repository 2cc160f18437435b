#include "host/database/AcDbIdIterator.h"

void AcDbIdIterator::start(bool atBeginning, bool skipDeleted) {
    m_index = atBeginning ? 0 : static_cast<int>(m_ids.size()) - 1;
    skip(atBeginning ? 1 : -1, skipDeleted);
}

void AcDbIdIterator::step(bool forward, bool skipDeleted) {
    m_index += forward ? 1 : -1;
    skip(forward ? 1 : -1, skipDeleted);
}

void AcDbIdIterator::skip(int direction, bool skipDeleted) {
    while (skipDeleted && !done() && m_ids[static_cast<std::size_t>(m_index)].isErased()) m_index += direction;
}

Acad::ErrorStatus AcDbIdIterator::currentId(AcDbObjectId& id) const {
    if (done()) return Acad::eInvalidIndex;
    id = m_ids[static_cast<std::size_t>(m_index)];
    return Acad::eOk;
}
