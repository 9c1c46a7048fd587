#include "ostui/StaticText.hpp"

#include <ft2build.h>
#include FT_FREETYPE_H
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using ostui::StaticText;
using ostui::ThemeFont;
using ostui::ThemeFontSize;

// The theme font's file opened by the test itself with FreeType at the small theme size, so
// the expected figures come from the face, not from the toolkit's measuring code.
class FaceMetrics {
public:
    FaceMetrics() {
        const std::string file = ThemeFont::Get(ThemeFontSize::Small).Face().File();
        EXPECT_EQ(FT_Init_FreeType(&library_), 0);
        EXPECT_EQ(FT_New_Face(library_, file.c_str(), 0, &face_), 0);
        EXPECT_EQ(FT_Set_Pixel_Sizes(face_, 0, 11), 0);  // the small theme size, 11 px
    }
    ~FaceMetrics() {
        FT_Done_Face(face_);
        FT_Done_FreeType(library_);
    }
    float LineHeight() const { return static_cast<float>(face_->size->metrics.height) / 64.0f; }
    // ASCII text: the sum of the glyphs' hinted advances.
    float Advance(const std::string& text) const {
        float total = 0.0f;
        for (char c : text) {
            EXPECT_EQ(FT_Load_Char(face_, static_cast<FT_ULong>(c), FT_LOAD_DEFAULT), 0);
            total += static_cast<float>(face_->glyph->advance.x) / 64.0f;
        }
        return total;
    }

private:
    FT_Library library_ = nullptr;
    FT_Face face_ = nullptr;
};

StaticText Text(const std::string& text) {
    return StaticText("text", text, ThemeFont::Get(ThemeFontSize::Small));
}

TEST(StaticTextTest, TheThemeFontIsDejaVuSansAtElevenPixels) {
    ThemeFont font = ThemeFont::Get(ThemeFontSize::Small);
    EXPECT_EQ(font.Face().FamilyName(), "DejaVu Sans");
    EXPECT_EQ(font.PixelSize(), 11.0f);
}

TEST(StaticTextTest, ATextThatFitsIsOneLineHigh) {
    FaceMetrics metrics;
    ASSERT_GT(metrics.LineHeight(), 0.0f);
    EXPECT_EQ(Text("Document:").MeasureHeight(200.0f), metrics.LineHeight());
}

TEST(StaticTextTest, WordsWrapWhenTheNextWordNoLongerFits) {
    FaceMetrics metrics;
    // Three equal words, so any two of them measure the same.
    StaticText text = Text("aaa aaa aaa");
    // Exactly as wide as two words: the third goes to a second line.
    float twoWords = metrics.Advance("aaa aaa");
    EXPECT_EQ(text.Lines(twoWords), (std::vector<std::string>{"aaa aaa", "aaa"}));
    EXPECT_EQ(text.MeasureHeight(twoWords), 2.0f * metrics.LineHeight());
    // A point narrower: not even two words fit, so each word has its own line.
    EXPECT_EQ(text.MeasureHeight(twoWords - 1.0f), 3.0f * metrics.LineHeight());
    // Wide enough for everything: one line.
    EXPECT_EQ(text.MeasureHeight(metrics.Advance("aaa aaa aaa")), metrics.LineHeight());
}

TEST(StaticTextTest, LineBreaksEndLinesAndATrailingBreakAddsNone) {
    FaceMetrics metrics;
    StaticText text = Text("one\r\ntwo\nthree\r\n");
    EXPECT_EQ(text.Lines(500.0f), (std::vector<std::string>{"one", "two", "three"}));
    EXPECT_EQ(text.MeasureHeight(500.0f), 3.0f * metrics.LineHeight());
    // An empty line between two breaks is a line.
    EXPECT_EQ(Text("a\r\n\r\nb").MeasureHeight(500.0f), 3.0f * metrics.LineHeight());
}

TEST(StaticTextTest, AnEmptyTextHasNoHeight) {
    EXPECT_EQ(Text("").MeasureHeight(100.0f), 0.0f);
}

TEST(StaticTextTest, AWordWiderThanTheWidthKeepsALineOfItsOwn) {
    EXPECT_EQ(Text("short incomprehensibilities x").Lines(20.0f),
              (std::vector<std::string>{"short", "incomprehensibilities", "x"}));
}

}  // namespace
