#pragma once

#include "fonts/FontCatalogue.hpp"
#include "suites/CountedObjects.hpp"
#include "suites/EngineText.hpp"

#include <zelmora/KRXTypes.h>
#include <zelmora/ZMArtTypes.h>

#include <memory>

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

// Composition rules and tab stops. The engine hands none of these out yet, so an array of them
// takes only what a suite of theirs will make.
struct KinsokuObject {};
struct MojiKumiObject {};
struct MojiKumiSetObject {};
struct TabStopsObject {};

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

// The object a reference names; HostError(ZM_ERR_BAD_ARGUMENT) for null, for one the host
// never handed out and for one whose last reference is gone.
template <typename Ref>
typename ObjectOfRef<Ref>::type& RequireObject(Runtime& runtime, Ref ref) {
    return runtime.objects.Require<typename ObjectOfRef<Ref>::type>(ref);
}

}  // namespace zm::host
