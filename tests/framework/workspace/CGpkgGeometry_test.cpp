#include "framework/workspace/CGpkgGeometry.h"

#include <gtest/gtest.h>

#include <cstring>

using XimoGis::Workspace::CGpkgGeometry;

namespace {

// A big-endian GeoPackage blob with no envelope holding an ISO "Point Z" (1001), as other
// writers may store it.
std::string BigEndianPointZ() {
    std::string blob = {'G', 'P', 0, 0, 0, 0, 0x0E, static_cast<char>(0xB5)};  // flags 0: big-endian, no envelope
    blob += std::string{0, 0, 0, 0x03, static_cast<char>(0xE9)};            // WKB big-endian, type 1001
    for (double v : {1.5, -2.0, 7.25}) {
        unsigned char bytes[8];
        std::memcpy(bytes, &v, 8);
        for (int i = 7; i >= 0; --i) blob += static_cast<char>(bytes[i]);
    }
    return blob;
}

}  // namespace

TEST(CGpkgGeometry, PointsAndLineStringsReadBackWithTheirReferenceSystem) {
    const std::string point = CGpkgGeometry::EncodePoint(AcGePoint3d(458120.5, 5073200.25, 9.0), 3765);
    ASSERT_EQ(point.size(), 8u + 21u);
    EXPECT_EQ(point.substr(0, 4), std::string("GP\0\x01", 4));  // little-endian, no envelope

    CGpkgGeometry::enmGeometryType type = CGpkgGeometry::gtUnknown;
    std::vector<AcGePoint3d> points;
    int srs = 0;
    std::string error;
    ASSERT_TRUE(CGpkgGeometry::Decode(point, type, points, srs, error)) << error;
    EXPECT_EQ(type, CGpkgGeometry::gtPoint);
    EXPECT_EQ(srs, 3765);
    ASSERT_EQ(points.size(), 1u);
    EXPECT_EQ(points[0].x, 458120.5);
    EXPECT_EQ(points[0].z, 0.0);  // written as XY

    const std::vector<AcGePoint3d> line = {{0, 0, 0}, {10, -5, 0}, {3, 8, 0}};
    const std::string blob = CGpkgGeometry::EncodeLineString(line, 3765);
    EXPECT_EQ(blob[3], '\x03');  // little-endian with an XY envelope
    double envelope[4];
    std::memcpy(envelope, blob.data() + 8, sizeof envelope);
    EXPECT_EQ(envelope[0], 0.0);
    EXPECT_EQ(envelope[1], 10.0);
    EXPECT_EQ(envelope[2], -5.0);
    EXPECT_EQ(envelope[3], 8.0);
    ASSERT_TRUE(CGpkgGeometry::Decode(blob, type, points, srs, error)) << error;
    EXPECT_EQ(type, CGpkgGeometry::gtLineString);
    ASSERT_EQ(points.size(), 3u);
    EXPECT_EQ(points[2].y, 8.0);
    EXPECT_TRUE(CGpkgGeometry::EncodeLineString({{1, 1, 0}}, 3765).empty());
}

TEST(CGpkgGeometry, ReadsOtherWritersBlobsAndRefusesWhatIsNotAPointOrLine) {
    CGpkgGeometry::enmGeometryType type = CGpkgGeometry::gtUnknown;
    std::vector<AcGePoint3d> points;
    int srs = 0;
    std::string error;
    ASSERT_TRUE(CGpkgGeometry::Decode(BigEndianPointZ(), type, points, srs, error)) << error;
    EXPECT_EQ(srs, 3765);
    EXPECT_EQ(points[0].x, 1.5);
    EXPECT_EQ(points[0].y, -2.0);
    EXPECT_EQ(points[0].z, 7.25);

    std::string polygon = CGpkgGeometry::EncodePoint(AcGePoint3d(), 0);
    polygon[9] = 3;
    EXPECT_FALSE(CGpkgGeometry::Decode(polygon, type, points, srs, error));
    EXPECT_NE(error.find("neither a point nor a line string"), std::string::npos) << error;

    std::string empty = CGpkgGeometry::EncodePoint(AcGePoint3d(), 0);
    empty[3] |= 0x10;
    EXPECT_FALSE(CGpkgGeometry::Decode(empty, type, points, srs, error));
    EXPECT_FALSE(CGpkgGeometry::Decode("POINT(1 2)", type, points, srs, error));
    const std::string line = CGpkgGeometry::EncodeLineString({{0, 0, 0}, {1, 1, 0}}, 0);
    EXPECT_FALSE(CGpkgGeometry::Decode(line.substr(0, line.size() - 4), type, points, srs, error));
    EXPECT_NE(error.find("too few coordinates"), std::string::npos) << error;
    EXPECT_EQ(points.size(), 1u);  // untouched by the failed reads
}
