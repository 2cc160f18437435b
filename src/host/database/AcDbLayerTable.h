#pragma once

#include "host/database/AcDbSymbolTable.h"

class AcDbLayerTableRecord : public AcDbSymbolTableRecord {
public:
    AcDbLayerTableRecord() = default;
    const ACHAR* isA() const override { return L"AcDbLayerTableRecord"; }
    AcDbObject* clone() const override { return new AcDbLayerTableRecord(*this); }

    // Colour index 1..255 (7 = white/black).
    Adesk::UInt16 colorIndex() const { return m_color; }
    void setColorIndex(Adesk::UInt16 color) { m_color = color; }
    AcDbObjectId linetypeObjectId() const { return m_linetype; }
    void setLinetypeObjectId(AcDbObjectId id) { m_linetype = id; }
    bool isOff() const { return m_off; }
    void setIsOff(bool off) { m_off = off; }
    bool isFrozen() const { return m_frozen; }
    void setIsFrozen(bool frozen) { m_frozen = frozen; }
    bool isLocked() const { return m_locked; }
    void setIsLocked(bool locked) { m_locked = locked; }

private:
    Adesk::UInt16 m_color = 7;
    AcDbObjectId m_linetype;
    bool m_off = false;
    bool m_frozen = false;
    bool m_locked = false;
};

class AcDbLayerTable : public AcDbSymbolTableOf<AcDbLayerTableRecord> {
public:
    const ACHAR* isA() const override { return L"AcDbLayerTable"; }
};
