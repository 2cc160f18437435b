#pragma once
// Walks a snapshot of ids in database order, optionally passing over erased ones.
// The common part of the symbol table and block iterators.

#include <vector>

#include "host/database/AcDbObjectId.h"

class AcDbIdIterator {
public:
    void start(bool atBeginning = true, bool skipDeleted = true);
    bool done() const { return m_index < 0 || m_index >= static_cast<int>(m_ids.size()); }
    void step(bool forward = true, bool skipDeleted = true);

protected:
    explicit AcDbIdIterator(std::vector<AcDbObjectId> ids) : m_ids(std::move(ids)) {}
    Acad::ErrorStatus currentId(AcDbObjectId& id) const;

private:
    void skip(int direction, bool skipDeleted);
    std::vector<AcDbObjectId> m_ids;
    int m_index = 0;
};
