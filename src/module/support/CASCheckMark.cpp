#include "module/support/CASCheckMark.h"

#include "framework/utility/CTransform.h"
#include "framework/utility/CUtility.h"
#include "host/geometry/AcGeMatrix3d.h"

namespace XimoGis::AssemblySchemes {

const wchar_t* const CASCheckMark::kOutlineWKT =
    L"POLYGON ((-0.4546471596397339 -0.0247950648330857, -0.3827761133679530 -0.1006304475271946, "
    L"-0.3308691425153825 -0.1644919265549589, -0.2849513474432399 -0.2483099941275384, "
    L"-0.2470195104561128 -0.3660544106079300, -0.2111303641995619 -0.4672803647718098, "
    L"-0.1749699834668945 -0.3836330597355158, -0.1132592213955093 -0.2283532819313621, "
    L"-0.0274130412582849 -0.0387648251960968, 0.1143329716606445 0.1308670429943675, "
    L"0.2500895745725131 0.2406287745962885, 0.3938319013427076 0.3204554997296327, "
    L"0.4936529811186858 0.3543818486374448, 0.3459177924193000 0.3364208694865738, "
    L"0.2460967126433218 0.3104770818058569, 0.0764009004468562 0.2206720624001122, "
    L"-0.0094452796903681 0.1568107070237090, -0.1132592213955093 0.0670056876179643, "
    L"-0.1931159915256160 -0.0447517770292620, -0.2350409246685956 -0.1106088654509705, "
    L"-0.3168942428766286 -0.0527344619077326, -0.3727940756583621 -0.0208037223938504, "
    L"-0.4247008122842715 -0.0028427432429794, -0.4865900550730942 0.0031442085902000, "
    L"-0.4546471596397339 -0.0247950648330857))";

int CASCheckMark::Draw(const AcGePoint3d& point, double size, int color) {
    AcArray<AcGePoint3d> outline;
    if (!Utility::CTransform::GetPointsFromWKT(kOutlineWKT, outline)) return 0;
    const AcGeMatrix3d place = AcGeMatrix3d::translation(point - AcGePoint3d::kOrigin) *
                               AcGeMatrix3d::scaling(size * 0.5, AcGePoint3d::kOrigin);
    for (AcGePoint3d& vertex : outline) vertex.transformBy(place);
    const auto line = Utility::CTransform::GetGeosLineString(outline);
    return Utility::CUtility::drawGeometry(line.get(), static_cast<Adesk::UInt16>(color & 0xFFFF));
}

}  // namespace XimoGis::AssemblySchemes
