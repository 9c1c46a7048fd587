#include "SvgFixtures.hpp"

#include <importers/svg/SvgImageConverter.hpp>
#include <support/ScratchFolder.hpp>

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace zm::test {
namespace {

using host::document::Art;
using host::document::Document;
using host::document::PlacedType;
using host::document::Rect;

void WriteFile(const std::filesystem::path& file, const std::string& bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

const std::string kPngHead("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16);

class SvgImageTest : public ::testing::Test {
protected:
    void SetUp() override {
        WriteFile(scratch.Path() / "pictures" / "photo.png", kPngHead);
        WriteFile(scratch.Path() / "art.EPS", "%!PS-Adobe-3.0 EPSF-3.0\n");
        WriteFile(scratch.Path() / "fake.png", "not really a picture");
        WriteFile(scratch.Path() / "far away" / "shot.jpg", "\xFF\xD8\xFF\xE0 JFIF");
        std::string absolute = (scratch.Path() / "far%20away" / "shot.jpg").string();
        std::string svg =
            R"svg(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink"
                    xmlns:zm="https://zelmora.example/ns/1.0" width="200" height="100">
              <image id="embedded" x="10" y="10" width="40" height="20"
                     href="data:image/png;base64,iVBORw0K GgoAAA=="/>
              <image id="percent" href="data:text/plain,a%20b"/>
              <image id="png" xlink:href="pictures/photo.png" zm:asset-url="https://assets.example/p"/>
              <image id="uri" href="file://)svg" +
            absolute + R"svg("/>
              <image id="eps" href="art.EPS"/>
              <image id="missing" href="gone.png"/>
              <image id="fake" href="fake.png"/>
              <image id="turned" width="40" height="20" transform="rotate(90)"
                     href="pictures/photo.png"/>
            </svg>)svg";
        WriteFile(scratch.Path() / "images.svg", svg);
        document = host::ImportSvgFile(scratch.Path() / "images.svg");
    }

    ScratchFolder scratch;
    std::unique_ptr<Document> document;
};

TEST_F(SvgImageTest, ADataUriIsEmbeddedRasterArt) {
    const Art& art = ArtById(*document, "embedded");
    EXPECT_EQ(TypeCode(art), 9);
    ASSERT_TRUE(art.image);
    EXPECT_TRUE(art.image->embedded);
    EXPECT_EQ(art.image->mediaType, "image/png");
    // "iVBORw0KGgoAAA==" is the PNG signature's eight bytes and two zero bytes.
    EXPECT_EQ(art.image->data,
              (std::vector<uint8_t>{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A, 0, 0}));
    // x 10..50 px, y 10..30 px from the top of 75 pt.
    EXPECT_EQ(art.bounds, (Rect{7.5, 67.5, 37.5, 52.5}));
}

TEST_F(SvgImageTest, APercentEncodedDataUriIsDecoded) {
    const Art& art = ArtById(*document, "percent");
    EXPECT_EQ(art.image->mediaType, "text/plain");
    EXPECT_EQ(std::string(art.image->data.begin(), art.image->data.end()), "a b");
}

TEST_F(SvgImageTest, ALinkedRasterFileIsPlacedRasterArt) {
    const Art& art = ArtById(*document, "png");
    EXPECT_EQ(TypeCode(art), 7);
    EXPECT_FALSE(art.image->embedded);
    EXPECT_EQ(art.image->file, scratch.Path() / "pictures" / "photo.png");
    EXPECT_TRUE(art.image->fileExists);
    EXPECT_TRUE(art.image->fileIsRaster);
    EXPECT_EQ(art.image->placedType, PlacedType::Other);
    EXPECT_EQ(art.image->assetUrl, "https://assets.example/p");
}

TEST_F(SvgImageTest, AFileUriNamesALocalFile) {
    const Art& art = ArtById(*document, "uri");
    EXPECT_EQ(art.image->file, scratch.Path() / "far away" / "shot.jpg");  // %20 decoded
    EXPECT_TRUE(art.image->fileIsRaster);
}

TEST_F(SvgImageTest, EpsAndOtherFilesAreNotRaster) {
    const Art& eps = ArtById(*document, "eps");
    EXPECT_TRUE(eps.image->fileExists);
    EXPECT_FALSE(eps.image->fileIsRaster);
    EXPECT_EQ(eps.image->placedType, PlacedType::Eps);  // ".EPS" in any case
    const Art& fake = ArtById(*document, "fake");
    EXPECT_TRUE(fake.image->fileExists);
    EXPECT_FALSE(fake.image->fileIsRaster);  // its name says PNG, its bytes do not
}

TEST_F(SvgImageTest, AMissingFileIsPlacedArtWithoutAFile) {
    const Art& art = ArtById(*document, "missing");
    EXPECT_EQ(TypeCode(art), 7);
    EXPECT_FALSE(art.image->fileExists);
    EXPECT_FALSE(art.image->fileIsRaster);
    EXPECT_EQ(art.image->placedType, PlacedType::Other);
}

TEST_F(SvgImageTest, BoundsFollowTheTransform) {
    // 40 x 20 px turned a quarter: x -20..0 px, y 0..40 px; in points -15..0 and 75..45.
    const auto& bounds = *ArtById(*document, "turned").bounds;
    EXPECT_NEAR(bounds.left, -15, 1e-9);
    EXPECT_NEAR(bounds.right, 0, 1e-9);
    EXPECT_NEAR(bounds.top, 75, 1e-9);
    EXPECT_NEAR(bounds.bottom, 45, 1e-9);
}

TEST(SvgRasterFileTest, MagicBytesOfEachFormat) {
    ScratchFolder scratch;
    struct Sample {
        const char* name;
        std::string bytes;
        bool raster;
    };
    for (const Sample& sample : {Sample{"a.tif", std::string("II*\0", 4), true},
                                 Sample{"b.tif", std::string("MM\0*", 4), true},
                                 Sample{"c.gif", "GIF89a", true}, Sample{"d.bmp", "BM\x10\0", true},
                                 Sample{"e.webp", std::string("RIFF\0\0\0\0WEBP", 12), true},
                                 Sample{"f.wav", std::string("RIFF\0\0\0\0WAVE", 12), false},
                                 Sample{"g.txt", "hello", false}}) {
        WriteFile(scratch.Path() / sample.name, sample.bytes);
        EXPECT_EQ(host::svg::IsRasterFile(scratch.Path() / sample.name), sample.raster)
            << sample.name;
    }
    EXPECT_FALSE(host::svg::IsRasterFile(scratch.Path() / "none.png"));
}

}  // namespace
}  // namespace zm::test
