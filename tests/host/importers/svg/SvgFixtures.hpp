#pragma once

#include <document/ArtLookup.hpp>
#include <importers/svg/SvgImporter.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace zm::test {

inline std::filesystem::path SvgFixture(const std::string& name) {
    return std::filesystem::path(ZELMORA_TEST_FIXTURES) / "svg" / name;
}

inline std::unique_ptr<host::document::Document> OpenSvgFixture(const std::string& name) {
    return host::ImportSvgFile(SvgFixture(name));
}

// The art with that id; a missing id fails the test through the exception.
inline host::document::Art& ArtById(host::document::Document& document, const std::string& id) {
    host::document::Art* art = host::document::FindArtById(document, id);
    if (!art) {
        throw std::runtime_error("no art with id " + id);
    }
    return *art;
}

// Bounds reached through an inverted map carry rounding noise in the last digits.
inline void ExpectBoundsNear(const std::optional<host::document::Rect>& actual,
                             const host::document::Rect& expected) {
    ASSERT_TRUE(actual);
    EXPECT_NEAR(actual->left, expected.left, 1e-9);
    EXPECT_NEAR(actual->top, expected.top, 1e-9);
    EXPECT_NEAR(actual->right, expected.right, 1e-9);
    EXPECT_NEAR(actual->bottom, expected.bottom, 1e-9);
}

inline int TypeCode(const host::document::Art& art) { return static_cast<int>(art.Type()); }

}  // namespace zm::test
