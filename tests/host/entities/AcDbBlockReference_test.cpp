#include "host/entities/AcDbBlockReference.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/database/AcDbDatabase.h"
#include "host/entities/AcDbAttributeDefinition.h"
#include "host/entities/AcDbLine.h"
#include "host/geometry/AcGeLine3d.h"

namespace {
struct Fixture {
    AcDbDatabase db;
    AcDbObjectId block;
    AcDbObjectId reference;
    AcDbObjectId attribute;

    Fixture() {
        AcDbBlockTable* blocks = nullptr;
        db.getBlockTable(blocks, AcDb::kForWrite);
        auto* record = new AcDbBlockTableRecord;
        record->setName(L"VALVE");
        blocks->add(block, record);
        blocks->close();
        record->appendAcDbEntity(new AcDbLine({0, 0, 0}, {10, 0, 0}));
        auto* definition = new AcDbAttributeDefinition({0, 2, 0}, L"?", L"pos", L"Position");
        record->appendAcDbEntity(definition);
        definition->close();

        auto* insert = new AcDbBlockReference({100, 50, 0}, block);
        AcDbBlockTableRecord* ms = nullptr;
        acdbOpenObject(ms, db.modelSpaceId(), AcDb::kForWrite);
        ms->appendAcDbEntity(reference, insert);
        ms->close();
        auto* value = new AcDbAttribute;
        value->setAttributeFromBlock(definition, insert->blockTransform());
        value->setTextString(L"7");
        insert->appendAttribute(attribute, value);
        value->close();
        insert->close();
        record->close();
    }
};
}  // namespace

TEST(AcDbBlockReference, AttributesFollowTheReference) {
    Fixture f;
    EXPECT_EQ(f.attribute.isNull(), false);
    AcDbAttribute* attribute = nullptr;
    ASSERT_EQ(acdbOpenObject(attribute, f.attribute, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(attribute->tag(), L"POS");  // tags are upper case
    EXPECT_EQ(attribute->ownerId(), f.reference);
    EXPECT_TRUE(attribute->position().isEqualTo({100, 52, 0}));
    attribute->close();

    // Rotating the reference by 90 degrees about its position carries the attribute along.
    AcDbBlockReference* insert = nullptr;
    ASSERT_EQ(acdbOpenObject(insert, f.reference, AcDb::kForWrite), Acad::eOk);
    ASSERT_EQ(insert->transformBy(AcGeMatrix3d::rotation(M_PI / 2, AcGeVector3d::kZAxis, {100, 50, 0})), Acad::eOk);
    EXPECT_NEAR(insert->rotation(), M_PI / 2, 1e-12);
    AcDbExtents extents;
    insert->getGeomExtents(extents);
    EXPECT_NEAR(extents.maxPoint().y, 60.0, 1e-9);  // the 10-long line now points up

    // Erasing the reference erases its attributes.
    insert->erase();
    insert->close();
    EXPECT_TRUE(f.attribute.isErased());
}

TEST(AcDbBlockReference, MirroringShowsAsANegativeScale) {
    Fixture f;
    AcDbBlockReference* insert = nullptr;
    ASSERT_EQ(acdbOpenObject(insert, f.reference, AcDb::kForWrite), Acad::eOk);
    // Mirror about the vertical line x = 100: the line now runs from 100 to 90.
    insert->transformBy(AcGeMatrix3d::mirroring(AcGeLine3d(AcGePoint3d(100, 0, 0), AcGeVector3d::kYAxis)));
    EXPECT_LT(insert->blockTransform().det(), 0.0);
    AcDbVoidPtrArray parts;
    ASSERT_EQ(insert->explode(parts), Acad::eOk);
    ASSERT_EQ(parts.length(), 2);  // the line and the attribute as text; the definition is left out
    auto* line = static_cast<AcDbLine*>(parts[0]);
    EXPECT_TRUE(line->startPoint().isEqualTo({100, 50, 0}, AcGeTol(1e-9, 1e-9)));
    EXPECT_TRUE(line->endPoint().isEqualTo({90, 50, 0}, AcGeTol(1e-9, 1e-9)));
    auto* text = static_cast<AcDbText*>(parts[1]);
    EXPECT_EQ(text->textString(), L"7");
    for (void* p : parts) delete static_cast<AcDbEntity*>(p);
    insert->close();
}

TEST(AcDbBlockReference, ClonesCarryTheirAttributesIntoADatabase) {
    Fixture f;
    AcDbBlockReference* insert = nullptr;
    ASSERT_EQ(acdbOpenObject(insert, f.reference, AcDb::kForRead), Acad::eOk);
    AcDbEntity* copy = nullptr;
    ASSERT_EQ(insert->getTransformedCopy(AcGeMatrix3d::translation({0, -50, 0}), copy), Acad::eOk);
    insert->close();
    auto* moved = static_cast<AcDbBlockReference*>(copy);
    ASSERT_EQ(moved->pendingAttributes().size(), 1u);
    EXPECT_TRUE(moved->pendingAttributes()[0]->position().isEqualTo({100, 2, 0}));

    AcDbBlockTableRecord* ms = nullptr;
    acdbOpenObject(ms, f.db.modelSpaceId(), AcDb::kForWrite);
    ASSERT_EQ(ms->appendAcDbEntity(moved), Acad::eOk);
    ms->close();
    EXPECT_TRUE(moved->pendingAttributes().empty());
    ASSERT_EQ(moved->attributeIds().size(), 1u);
    EXPECT_EQ(moved->attributeIds()[0].database(), &f.db);
    moved->close();
}
