#include "host/entities/AcDbAttribute.h"

#include "host/base/AcString.h"
#include "host/entities/AcDbAttributeDefinition.h"

AcDbAttribute::AcDbAttribute(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag, AcDbObjectId style)
    : AcDbText(position, text, style) {
    setTag(tag);
}

Acad::ErrorStatus AcDbAttribute::setTag(const ACHAR* tag) {
    if (!tag || !*tag) return Acad::eInvalidInput;
    m_tag = acutUpperName(tag);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbAttribute::setAttributeFromBlock(const AcDbAttributeDefinition* definition,
                                                       const AcGeMatrix3d& blockTransform) {
    if (!definition) return Acad::eNullObjectPointer;
    copyTextFrom(*definition);
    m_tag = definition->tag();
    m_invisible = definition->isInvisible();
    m_constant = definition->isConstant();
    return transformBy(blockTransform);
}
