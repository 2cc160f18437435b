#pragma once

#include <vector>

#include "host/database/AcDbSymbolTable.h"

// A linetype's dash pattern: positive lengths draw, negative ones leave gaps, 0 is a dot.
class AcDbLinetypeTableRecord : public AcDbSymbolTableRecord {
public:
    AcDbLinetypeTableRecord() = default;
    const ACHAR* isA() const override { return L"AcDbLinetypeTableRecord"; }
    AcDbObject* clone() const override { return new AcDbLinetypeTableRecord(*this); }

    const std::wstring& comments() const { return m_comments; }
    void setComments(const ACHAR* text) { m_comments = text ? text : L""; }
    double patternLength() const { return m_patternLength; }
    void setPatternLength(double length) { m_patternLength = length; }
    int numDashes() const { return static_cast<int>(m_dashes.size()); }
    void setNumDashes(int count) { m_dashes.resize(static_cast<std::size_t>(count), 0.0); }
    double dashLengthAt(int index) const { return m_dashes.at(static_cast<std::size_t>(index)); }
    void setDashLengthAt(int index, double length) { m_dashes.at(static_cast<std::size_t>(index)) = length; }
    const std::vector<double>& dashes() const { return m_dashes; }
    // Sets the dashes and the pattern length (the sum of their absolute values).
    void setDashes(const std::vector<double>& dashes);

private:
    std::wstring m_comments;
    double m_patternLength = 0.0;
    std::vector<double> m_dashes;
};

class AcDbLinetypeTable : public AcDbSymbolTableOf<AcDbLinetypeTableRecord> {
public:
    const ACHAR* isA() const override { return L"AcDbLinetypeTable"; }
};

// The linetypes the host can load by name: comments and dash pattern in drawing units (mm).
struct AcDbStandardLinetype {
    const ACHAR* name;
    const ACHAR* comments;
    std::vector<double> dashes;
};
const std::vector<AcDbStandardLinetype>& acdbStandardLinetypes();
