#pragma once

#include <gtest/gtest.h>
#include <lcms2.h>

#include <filesystem>

namespace zm::test {

// Writes a profile with that description to file; Little CMS owns and frees it.
inline void SaveProfile(cmsHPROFILE profile, const char* description,
                        const std::filesystem::path& file) {
    ASSERT_NE(profile, nullptr);
    cmsMLU* text = cmsMLUalloc(nullptr, 1);
    cmsMLUsetASCII(text, "en", "US", description);
    cmsWriteTag(profile, cmsSigProfileDescriptionTag, text);
    cmsMLUfree(text);
    EXPECT_TRUE(cmsSaveProfileToFile(profile, file.string().c_str()));
    cmsCloseProfile(profile);
}

}  // namespace zm::test
