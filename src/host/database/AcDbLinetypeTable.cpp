#include "host/database/AcDbLinetypeTable.h"

#include <cmath>

void AcDbLinetypeTableRecord::setDashes(const std::vector<double>& dashes) {
    m_dashes = dashes;
    m_patternLength = 0.0;
    for (double d : dashes) m_patternLength += std::fabs(d);
}

const std::vector<AcDbStandardLinetype>& acdbStandardLinetypes() {
    // Metric patterns, as in the host's ISO linetype file.
    static const std::vector<AcDbStandardLinetype> linetypes = {
        {L"DASHED", L"Dashed __ __ __ __ __ __ __ __ __ __ __ __ __ _", {12.7, -6.35}},
        {L"HIDDEN", L"Hidden __ __ __ __ __ __ __ __ __ __ __ __ __ __", {6.35, -3.175}},
        {L"CENTER", L"Center ____ _ ____ _ ____ _ ____ _ ____ _ ____", {31.75, -6.35, 6.35, -6.35}},
        {L"DASHDOT", L"Dash dot __ . __ . __ . __ . __ . __ . __ . __", {12.7, -6.35, 0.0, -6.35}},
        {L"PHANTOM", L"Phantom ______  __  __  ______  __  __  ______", {31.75, -6.35, 6.35, -6.35, 6.35, -6.35}},
        {L"DOT", L"Dot . . . . . . . . . . . . . . . . . . . . . . . .", {0.0, -6.35}},
        {L"DIVIDE", L"Divide ____ . . ____ . . ____ . . ____ . . ____", {12.7, -6.35, 0.0, -6.35, 0.0, -6.35}},
        {L"BORDER", L"Border __ __ . __ __ . __ __ . __ __ . __ __ .", {12.7, -6.35, 12.7, -6.35, 0.0, -6.35}},
    };
    return linetypes;
}
