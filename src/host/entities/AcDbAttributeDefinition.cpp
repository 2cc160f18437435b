#include "host/entities/AcDbAttributeDefinition.h"

#include "host/base/AcString.h"

AcDbAttributeDefinition::AcDbAttributeDefinition(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag,
                                                 const ACHAR* prompt, AcDbObjectId style)
    : AcDbText(position, text, style) {
    setTag(tag);
    setPrompt(prompt);
}

Acad::ErrorStatus AcDbAttributeDefinition::setTag(const ACHAR* tag) {
    if (!tag || !*tag) return Acad::eInvalidInput;
    m_tag = acutUpperName(tag);  // tags are upper case, as the host keeps them
    return Acad::eOk;
}
