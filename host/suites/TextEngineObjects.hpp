#pragma once

#include "fonts/FontCatalogue.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/EngineText.hpp"
#include "suites/EngineValueObjects.hpp"

#include <zelmora/KRXTypes.h>
#include <zelmora/ZMArtTypes.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zm::host {

// What the text engine's references name, each counted in Runtime::objects. A frame, the
// ranges made from it and their inspectors share one copy of the text; none of them points
// into the document.
struct TextFrameObject {
    std::shared_ptr<const EngineText> text;
};

struct TextRangeObject {
    std::shared_ptr<const EngineText> text;
};

struct CharInspectorObject {
    std::shared_ptr<const EngineText> text;
};

// A font of the host's catalogue, which keeps its fonts for as long as the host runs.
struct FontObject {
    const fonts::CatalogueFont* font = nullptr;
};

struct ApplicationPaintObject {
    ZMFillStyle style{};
};

// A story: the text of one frame (frames are never linked here).
struct StoryObject {
    std::shared_ptr<const EngineText> text;
};

struct ParagraphObject {
    std::shared_ptr<const EngineText> text;
};

// The host does not wrap text, so a line is a paragraph of its frame.
struct TextLineObject {
    std::shared_ptr<const EngineText> text;
};

struct ParaInspectorObject {
    std::shared_ptr<const EngineText> text;
};

// A feature without a value is unassigned: it takes its value from elsewhere.
struct ParaFeaturesObject {
    std::optional<int32_t> justification;
};

struct CharFeaturesObject {
    const fonts::CatalogueFont* font = nullptr;  // null: unassigned
    std::optional<double> fontSize;              // points
    std::optional<ZMFillStyle> fill;
};

struct ParaStyleObject {
    std::string name;  // UTF-8
    ParaFeaturesObject features;
};

struct CharStyleObject {
    std::string name;  // UTF-8
    CharFeaturesObject features;
};

// Glyph 0 is the font's missing glyph, which a font that is not installed gives for all.
struct GlyphObject {
    const fonts::CatalogueFont* font = nullptr;
    KRXGlyphID glyph = 0;
};

// The glyphs of one run of a line, one per character: the host composes no ligatures.
struct GlyphRunObject {
    const fonts::CatalogueFont* font = nullptr;
    double fontSize = 12;  // points
    std::vector<KRXGlyphID> glyphs;
    std::shared_ptr<const EngineText> text;
};

struct TabStopObject {
    double position = 0;  // points from the paragraph's start edge
};

// The host has no dictionary: a spell checker knows no word to be wrong.
struct SpellObject {};

using StoriesObject = ValueListObject<KRXStoriesRef, StoryObject>;
using TextRangesObject = ValueListObject<KRXTextRangesRef, TextRangeObject>;
using ParaStylesObject = ValueListObject<KRXParaStylesRef, ParaStyleObject>;
using CharStylesObject = ValueListObject<KRXCharStylesRef, CharStyleObject>;
using GlyphsObject = ValueListObject<KRXGlyphsRef, GlyphObject>;
using TabStopsObject = ValueListObject<KRXTabStopsRef, TabStopObject>;

// Composition rules, known by name.
using KinsokuObject = NamedObject<KRXKinsokuRef>;
using MojiKumiObject = NamedObject<KRXMojiKumiRef>;
using CompFontObject = NamedObject<KRXCompFontRef>;
using CompFontClassObject = NamedObject<KRXCompFontClassRef>;
using CompFontComponentObject = NamedObject<KRXCompFontComponentRef>;
using KinsokuSetObject = ValueListObject<KRXKinsokuSetRef, KinsokuObject>;
using MojiKumiSetObject = ValueListObject<KRXMojiKumiSetRef, MojiKumiObject>;
using CompFontSetObject = ValueListObject<KRXCompFontSetRef, CompFontObject>;
using CompFontClassSetObject = ValueListObject<KRXCompFontClassSetRef, CompFontClassObject>;

template <>
struct ObjectOfRef<KRXTextFrameRef> {
    using type = TextFrameObject;
};
template <>
struct ObjectOfRef<KRXTextRangeRef> {
    using type = TextRangeObject;
};
template <>
struct ObjectOfRef<KRXCharInspectorRef> {
    using type = CharInspectorObject;
};
template <>
struct ObjectOfRef<KRXFontRef> {
    using type = FontObject;
};
template <>
struct ObjectOfRef<KRXApplicationPaintRef> {
    using type = ApplicationPaintObject;
};
template <>
struct ObjectOfRef<KRXKinsokuRef> {
    using type = KinsokuObject;
};
template <>
struct ObjectOfRef<KRXMojiKumiRef> {
    using type = MojiKumiObject;
};
template <>
struct ObjectOfRef<KRXMojiKumiSetRef> {
    using type = MojiKumiSetObject;
};
template <>
struct ObjectOfRef<KRXTabStopsRef> {
    using type = TabStopsObject;
};
template <>
struct ObjectOfRef<KRXStoryRef> {
    using type = StoryObject;
};
template <>
struct ObjectOfRef<KRXStoriesRef> {
    using type = StoriesObject;
};
template <>
struct ObjectOfRef<KRXTextRangesRef> {
    using type = TextRangesObject;
};
template <>
struct ObjectOfRef<KRXParagraphRef> {
    using type = ParagraphObject;
};
template <>
struct ObjectOfRef<KRXTextLineRef> {
    using type = TextLineObject;
};
template <>
struct ObjectOfRef<KRXParaInspectorRef> {
    using type = ParaInspectorObject;
};
template <>
struct ObjectOfRef<KRXParaFeaturesRef> {
    using type = ParaFeaturesObject;
};
template <>
struct ObjectOfRef<KRXCharFeaturesRef> {
    using type = CharFeaturesObject;
};
template <>
struct ObjectOfRef<KRXParaStyleRef> {
    using type = ParaStyleObject;
};
template <>
struct ObjectOfRef<KRXCharStyleRef> {
    using type = CharStyleObject;
};
template <>
struct ObjectOfRef<KRXParaStylesRef> {
    using type = ParaStylesObject;
};
template <>
struct ObjectOfRef<KRXCharStylesRef> {
    using type = CharStylesObject;
};
template <>
struct ObjectOfRef<KRXGlyphRef> {
    using type = GlyphObject;
};
template <>
struct ObjectOfRef<KRXGlyphsRef> {
    using type = GlyphsObject;
};
template <>
struct ObjectOfRef<KRXGlyphRunRef> {
    using type = GlyphRunObject;
};
template <>
struct ObjectOfRef<KRXTabStopRef> {
    using type = TabStopObject;
};
template <>
struct ObjectOfRef<KRXSpellRef> {
    using type = SpellObject;
};
template <>
struct ObjectOfRef<KRXCompFontRef> {
    using type = CompFontObject;
};
template <>
struct ObjectOfRef<KRXCompFontClassRef> {
    using type = CompFontClassObject;
};
template <>
struct ObjectOfRef<KRXCompFontComponentRef> {
    using type = CompFontComponentObject;
};
template <>
struct ObjectOfRef<KRXKinsokuSetRef> {
    using type = KinsokuSetObject;
};
template <>
struct ObjectOfRef<KRXCompFontSetRef> {
    using type = CompFontSetObject;
};
template <>
struct ObjectOfRef<KRXCompFontClassSetRef> {
    using type = CompFontClassSetObject;
};

// The object a reference names; HostError(ZM_ERR_BAD_ARGUMENT) for null, for one the host
// never handed out and for one whose last reference is gone.
template <typename Ref>
typename ObjectOfRef<Ref>::type& RequireObject(Runtime& runtime, Ref ref) {
    return runtime.objects.Require<typename ObjectOfRef<Ref>::type>(ref);
}

}  // namespace zm::host
