#pragma once
// An attribute value on a block reference, owned by the reference.

#include "host/entities/AcDbText.h"

class AcDbAttributeDefinition;

class AcDbAttribute : public AcDbText {
public:
    AcDbAttribute() = default;
    AcDbAttribute(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag, AcDbObjectId style = AcDbObjectId());
    const ACHAR* isA() const override { return L"AcDbAttribute"; }
    AcDbObject* clone() const override { return new AcDbAttribute(*this); }

    const std::wstring& tag() const { return m_tag; }
    Acad::ErrorStatus setTag(const ACHAR* tag);
    bool isInvisible() const { return m_invisible; }
    Acad::ErrorStatus setInvisible(bool value) { m_invisible = value; return Acad::eOk; }
    bool isConstant() const { return m_constant; }
    Acad::ErrorStatus setConstant(bool value) { m_constant = value; return Acad::eOk; }

    // Takes tag, text, style, flags and properties from the definition, placed by the block
    // reference's transform.
    Acad::ErrorStatus setAttributeFromBlock(const AcDbAttributeDefinition* definition, const AcGeMatrix3d& blockTransform);

private:
    std::wstring m_tag;
    bool m_invisible = false;
    bool m_constant = false;
};
