#include "host/dxf/DxfBlockCycle.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "host/entities/AcDbBlockReference.h"

std::wstring dxfBlockInsertingItself(const AcDbDatabase& db) {
    // Depth-first over the blocks the references of each block insert, with a stack of its own:
    // a chain of many nested blocks must not exhaust the call stack.
    enum State { kNew, kOnPath, kDone };
    std::unordered_map<AcDbObjectId, State> state;
    const auto inserted = [](AcDbObjectId blockId) {
        std::vector<AcDbObjectId> out;
        if (const auto* block = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(blockId)))
            for (const AcDbObjectId& id : block->entityIds())
                if (const auto* reference = dynamic_cast<const AcDbBlockReference*>(AcDbDatabase::peekObject(id)))
                    out.push_back(reference->blockTableRecord());
        return out;
    };
    const auto* table = static_cast<const AcDbBlockTable*>(AcDbDatabase::peekObject(db.blockTableId()));
    for (const AcDbObjectId& root : table->recordIds()) {
        if (state[root] != kNew) continue;
        std::vector<std::pair<AcDbObjectId, std::vector<AcDbObjectId>>> path{{root, inserted(root)}};
        state[root] = kOnPath;
        while (!path.empty()) {
            auto& [block, next] = path.back();
            if (next.empty()) {
                state[block] = kDone;
                path.pop_back();
                continue;
            }
            const AcDbObjectId child = next.back();
            next.pop_back();
            if (state[child] == kOnPath) {
                const auto* record = static_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(child));
                return record->name();
            }
            if (state[child] == kNew) {
                state[child] = kOnPath;
                path.emplace_back(child, inserted(child));
            }
        }
    }
    return {};
}
