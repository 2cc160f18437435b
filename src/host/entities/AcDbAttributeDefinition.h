#pragma once
// A block definition's template for an attribute: tag, prompt and default text.

#include "host/entities/AcDbText.h"

class AcDbAttributeDefinition : public AcDbText {
public:
    AcDbAttributeDefinition() = default;
    AcDbAttributeDefinition(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag, const ACHAR* prompt,
                            AcDbObjectId style = AcDbObjectId());
    const ACHAR* isA() const override { return L"AcDbAttributeDefinition"; }
    AcDbObject* clone() const override { return new AcDbAttributeDefinition(*this); }

    const std::wstring& tag() const { return m_tag; }
    Acad::ErrorStatus setTag(const ACHAR* tag);
    const std::wstring& prompt() const { return m_prompt; }
    Acad::ErrorStatus setPrompt(const ACHAR* prompt) { m_prompt = prompt ? prompt : L""; return Acad::eOk; }
    bool isInvisible() const { return m_invisible; }
    Acad::ErrorStatus setInvisible(bool value) { m_invisible = value; return Acad::eOk; }
    bool isConstant() const { return m_constant; }
    Acad::ErrorStatus setConstant(bool value) { m_constant = value; return Acad::eOk; }
    bool isPreset() const { return m_preset; }
    Acad::ErrorStatus setPreset(bool value) { m_preset = value; return Acad::eOk; }

private:
    std::wstring m_tag;
    std::wstring m_prompt;
    bool m_invisible = false;
    bool m_constant = false;
    bool m_preset = false;
};
