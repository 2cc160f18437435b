// Copying a drawing's model space into another database as a block definition.

#include <map>

#include "host/base/AcString.h"
#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbBlockReference.h"
#include "host/entities/AcDbText.h"
#include "host/entities/AcDbMText.h"

namespace {

class BlockCopier {
public:
    BlockCopier(AcDbDatabase& target, const AcDbDatabase& source) : m_target(target), m_source(source) {}

    // Copies the entities of a source block record into a new target record of this name.
    Acad::ErrorStatus copyBlock(AcDbObjectId sourceBlock, const std::wstring& name, AcDbObjectId& targetBlock) {
        const auto* source = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(sourceBlock));
        if (!source) return Acad::eInvalidInput;
        AcDbBlockTable* table = nullptr;
        Acad::ErrorStatus es = m_target.getBlockTable(table, AcDb::kForWrite);
        if (es != Acad::eOk) return es;
        auto* record = new AcDbBlockTableRecord;
        record->setName(name.c_str());
        if (!source->isLayout()) record->setOrigin(source->origin());
        es = table->add(targetBlock, record);
        table->close();
        if (es != Acad::eOk) {
            delete record;
            return es;
        }
        m_copied[sourceBlock] = targetBlock;
        for (const AcDbObjectId& id : source->entityIds()) {
            if (id.isErased()) continue;
            const auto* entity = dynamic_cast<const AcDbEntity*>(AcDbDatabase::peekObject(id));
            if (!entity) continue;
            auto* copy = static_cast<AcDbEntity*>(entity->clone());
            if (!copy) continue;
            bringOverProperties(*entity);
            if (auto* reference = dynamic_cast<AcDbBlockReference*>(copy)) {
                reference->setBlockTableRecord(nestedBlock(reference->blockTableRecord()));
                if (reference->blockTableRecord().isNull()) {
                    delete copy;
                    continue;
                }
            }
            if (record->appendAcDbEntity(copy) == Acad::eOk) copy->close(); else delete copy;
        }
        record->close();
        return Acad::eOk;
    }

private:
    // A nested block keeps its name; an existing block of that name in the target is used as is.
    AcDbObjectId nestedBlock(AcDbObjectId sourceBlock) {
        if (const auto found = m_copied.find(sourceBlock); found != m_copied.end()) return found->second;
        const auto* source = dynamic_cast<const AcDbBlockTableRecord*>(AcDbDatabase::peekObject(sourceBlock));
        if (!source) return {};
        AcDbObjectId target = m_target.blockId(source->name());
        if (target.isNull() && copyBlock(sourceBlock, source->name(), target) != Acad::eOk) return {};
        m_copied[sourceBlock] = target;
        return target;
    }

    void bringOverProperties(const AcDbEntity& entity) {
        if (m_target.layerId(entity.layer()).isNull()) {
            const auto* layer = dynamic_cast<const AcDbLayerTableRecord*>(
                AcDbDatabase::peekObject(m_source.layerId(entity.layer())));
            std::wstring linetype = L"Continuous";
            if (layer) {
                if (const auto* lt = dynamic_cast<const AcDbLinetypeTableRecord*>(
                        AcDbDatabase::peekObject(layer->linetypeObjectId())))
                    linetype = lt->name();
            }
            bringOverLinetype(linetype);
            AcDbObjectId id;
            m_target.addLayer(id, entity.layer(), layer ? layer->colorIndex() : 7, linetype);
        }
        bringOverLinetype(entity.linetype());
        for (const auto& app : entity.xDataList()) m_target.registerApplication(app.application);
        std::wstring style;
        if (const auto* text = dynamic_cast<const AcDbText*>(&entity)) style = text->textStyleName();
        if (const auto* mtext = dynamic_cast<const AcDbMText*>(&entity)) style = mtext->textStyleName();
        if (!style.empty()) bringOverTextStyle(style);
    }

    void bringOverLinetype(const std::wstring& name) {
        if (!m_target.linetypeId(name).isNull()) return;
        const auto* source = dynamic_cast<const AcDbLinetypeTableRecord*>(AcDbDatabase::peekObject(m_source.linetypeId(name)));
        if (!source) return;
        AcDbLinetypeTable* table = nullptr;
        if (m_target.getLinetypeTable(table, AcDb::kForWrite) != Acad::eOk) return;
        auto* copy = static_cast<AcDbLinetypeTableRecord*>(source->clone());
        if (table->add(copy) == Acad::eOk) copy->close(); else delete copy;
        table->close();
    }

    void bringOverTextStyle(const std::wstring& name) {
        if (!m_target.textStyleId(name).isNull()) return;
        const auto* source = dynamic_cast<const AcDbTextStyleTableRecord*>(AcDbDatabase::peekObject(m_source.textStyleId(name)));
        if (!source) return;
        AcDbTextStyleTable* table = nullptr;
        if (m_target.getTextStyleTable(table, AcDb::kForWrite) != Acad::eOk) return;
        auto* copy = static_cast<AcDbTextStyleTableRecord*>(source->clone());
        if (table->add(copy) == Acad::eOk) copy->close(); else delete copy;
        table->close();
    }

    AcDbDatabase& m_target;
    const AcDbDatabase& m_source;
    std::map<AcDbObjectId, AcDbObjectId> m_copied;
};

}  // namespace

Acad::ErrorStatus AcDbDatabase::insert(AcDbObjectId& blockId, const ACHAR* blockName, const AcDbDatabase* source) {
    blockId.setNull();
    if (!blockName || !*blockName || !source) return Acad::eInvalidInput;
    if (!this->blockId(blockName).isNull()) return Acad::eDuplicateRecordName;
    BlockCopier copier(*this, *source);
    return copier.copyBlock(source->modelSpaceId(), blockName, blockId);
}
