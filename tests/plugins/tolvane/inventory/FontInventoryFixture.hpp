#pragma once

#include "plugins/tolvane/inventory/InventoryFixture.hpp"

#include <inventory/FontInventory.hpp>
#include <shell/SuiteSet.hpp>

#include <zelmora/ZMFontSuite.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zm::test {

// The font collectors over the real host and the fonts the setup script installs: Liberation
// Sans (TrueType), and URW's Nimbus Sans, whose regular widths the system's fontconfig serves
// from the OpenType CFF files, and Nimbus Sans Narrow, which it serves from the Type 1 files.
// "Qwertyuiop Sans" is a family no font program has.
class FontInventoryFixture : public InventoryFixture {
protected:
    // The host's key of a font, as the text engine's conversion would give it.
    ZMFontKey Key(const char* family, int32_t weight = 400, const char* style = "normal") {
        ZMFontKey key = nullptr;
        EXPECT_EQ(tolvane::sFontSuite->FindFontKey(family, weight, style, &key), ZM_ERR_NONE)
            << family;
        return key;
    }

    ZMFontInfo Info(ZMFontKey key) {
        ZMFontInfo info{};
        EXPECT_EQ(tolvane::sFontSuite->GetFontInfo(key, &info), ZM_ERR_NONE);
        return info;
    }

    std::vector<std::string> FontList() { return Entries(Lists().fontList); }
    std::vector<std::string> DetailLines() { return Entries(Lists().fontDetailList); }

    void AlternateNames(const char* value) {
        runtime.preferences.Set(ZM_FONT_ALTERNATE_NAMES_PREFERENCE, value);
    }
};

// The eight lines of one details block, as the block's format lays them out: the first
// name, the PostScript name, the Windows name, a blank line, language, type, tsume and the
// blank line that parts it from the next block.
inline std::vector<std::string> DetailBlock(const std::string& first, const std::string& postScript,
                                            const std::string& windows, const std::string& language,
                                            const std::string& fontType,
                                            const std::string& tsume = "N/A") {
    return {first,
            "  PostScript Name: " + postScript,
            "  Windows Font Name: " + windows,
            "",
            "  Language:   " + language,
            "  Font Type:  " + fontType,
            "  Tsume Type: " + tsume,
            ""};
}

}  // namespace zm::test
