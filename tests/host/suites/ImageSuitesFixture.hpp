#pragma once

#include "host/importers/svg/ImportedDocumentFixture.hpp"

#include <zelmora/ZMFilePathSuite.h>
#include <zelmora/ZMRasterSuite.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

// Raster records compare field by field; found by argument lookup, so they live beside the
// record's own global name.
inline bool operator==(const ZMRasterRecord& a, const ZMRasterRecord& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom &&
           a.colorSpace == b.colorSpace && a.bitsPerPixel == b.bitsPerPixel;
}

inline std::ostream& operator<<(std::ostream& out, const ZMRasterRecord& r) {
    return out << "{" << r.left << ", " << r.top << ", " << r.right << ", " << r.bottom
               << ", space " << r.colorSpace << ", bits " << r.bitsPerPixel << "}";
}

namespace zm::test {

// tests/fixtures/svg/images/images.svg opened as the current document; its images link the
// files of tests/fixtures/images (see make-images.py there for what each holds).
class ImageSuitesFixture : public ImportedDocumentFixture {
protected:
    void SetUp() override {
        ImportedDocumentFixture::SetUp();
        Acquire(ZM_FILE_PATH_SUITE_NAME, ZM_FILE_PATH_SUITE_VERSION, paths);
        Import("images/images.svg");
    }

    void TearDown() override {
        for (ZMFilePath path : made_) {
            EXPECT_EQ(paths->DisposeFilePath(path), ZM_ERR_NONE);
        }
        made_.clear();
        ImportedDocumentFixture::TearDown();
    }

    // A file path disposed of before the fixture checks that none is left.
    ZMFilePath MadePath() {
        ZMFilePath path = nullptr;
        EXPECT_EQ(paths->NewFilePath(&path), ZM_ERR_NONE);
        made_.push_back(path);
        return path;
    }

    static std::filesystem::path ImageFile(const std::string& name) {
        return (std::filesystem::path(ZELMORA_TEST_FIXTURES) / "images" / name).lexically_normal();
    }

    // A record as the caller sets it before asking: colour space 255, no bits.
    static ZMRasterRecord Unset() {
        ZMRasterRecord record{};
        record.left = -7;
        record.top = -7;
        record.right = -7;
        record.bottom = -7;
        record.colorSpace = 255;
        record.bitsPerPixel = 0;
        return record;
    }

private:
    std::vector<ZMFilePath> made_;
};

// A record of an image of that size from 0, 0.
inline ZMRasterRecord Record(int32_t width, int32_t height, int16_t colorSpace, int16_t bits) {
    return ZMRasterRecord{0, 0, width, height, colorSpace, bits};
}

}  // namespace zm::test
