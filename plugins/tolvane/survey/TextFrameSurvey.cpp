#include "survey/TextFrameSurvey.hpp"

#include "inventory/ColorInventory.hpp"
#include "inventory/FontInventory.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/ArtWalk.hpp"
#include "survey/SurveyRecord.hpp"
#include "survey/TextEngineReference.hpp"

#include <initializer_list>

namespace tolvane {

namespace {

// Every font of the text, in the engine's order; the font list leaves out repeats. A font
// the catalogue cannot name or list is no reason to stop surveying the frame.
ZMErr OfferFonts(KRXCharInspectorRef inspector) {
    TextEngineReference<KRXArrayFontRefRef> fonts(sKrxArrayFontRefSuite->Release);
    if (ZMErr error = sKrxCharInspectorSuite->GetFont(inspector, fonts.Out());
        error != ZM_ERR_NONE) {
        return error;
    }
    int32_t count = 0;
    if (ZMErr error = sKrxArrayFontRefSuite->GetSize(fonts.Get(), &count); error != ZM_ERR_NONE) {
        return error;
    }
    for (int32_t index = 0; index < count; ++index) {
        KRXFontRef font = nullptr;  // lent by the array
        if (ZMErr error = sKrxArrayFontRefSuite->Item(fonts.Get(), index, &font);
            error != ZM_ERR_NONE) {
            return error;
        }
        ZMFontKey key = nullptr;
        if (sFontSuite->FontKeyFromKRXFont(font, &key) == ZM_ERR_NONE) {
            AddFont(key);
        }
    }
    return ZM_ERR_NONE;
}

using PaintArrayEntry = ZMErr(ZM_API*)(KRXCharInspectorRef, KRXArrayApplicationPaintRefRef*);

// Each paint of the array marks its colour model in a set of its own, joined into the
// object's.
ZMErr ClassifyPaints(PaintArrayEntry entry, KRXCharInspectorRef inspector, PaintKind& paintKinds,
                     int32_t inMask) {
    TextEngineReference<KRXArrayApplicationPaintRefRef> paints(
        sKrxArrayApplicationPaintRefSuite->Release);
    if (ZMErr error = entry(inspector, paints.Out()); error != ZM_ERR_NONE) {
        return error;
    }
    int32_t count = 0;
    if (ZMErr error = sKrxArrayApplicationPaintRefSuite->GetSize(paints.Get(), &count);
        error != ZM_ERR_NONE) {
        return error;
    }
    for (int32_t index = 0; index < count; ++index) {
        KRXApplicationPaintRef paint = nullptr;  // lent by the array
        if (ZMErr error = sKrxArrayApplicationPaintRefSuite->Item(paints.Get(), index, &paint);
            error != ZM_ERR_NONE) {
            return error;
        }
        ZMFillStyle style{};
        if (ZMErr error = sZmkrxPaintSuite->GetZMFillStyle(paint, &style); error != ZM_ERR_NONE) {
            return error;
        }
        PaintKind marks = 0;
        ZMErr error = AddCustomColor(style.color, marks, inMask);
        paintKinds |= marks;
        if (error != ZM_ERR_NONE) {
            return error;
        }
    }
    return ZM_ERR_NONE;
}

// The frame's character inspector, for its fonts and paints.
ZMErr GetInspector(ZMArtHandle art, TextEngineReference<KRXCharInspectorRef>& inspector) {
    TextEngineReference<KRXTextRangeRef> range(sKrxTextRangeSuite->Release);
    if (ZMErr error = sTextFrameSuite->GetKRXTextRange(art, range.Out()); error != ZM_ERR_NONE) {
        return error;
    }
    return sKrxTextRangeSuite->GetCharInspector(range.Get(), inspector.Out());
}

}  // namespace

ZMErr CountFrameKind(ZMArtHandle art) {
    TextEngineReference<KRXTextFrameRef> frame(sKrxTextFrameSuite->Release);
    if (ZMErr error = sTextFrameSuite->GetKRXTextFrame(art, frame.Out()); error != ZM_ERR_NONE) {
        return error;
    }
    KRXFrameType kind = KRX_FRAME_TYPE_POINT;
    if (ZMErr error = sKrxTextFrameSuite->GetType(frame.Get(), &kind); error != ZM_ERR_NONE) {
        return error;
    }
    SurveyRecord& record = CollectingSurvey().record;
    switch (kind) {
        case KRX_FRAME_TYPE_POINT:
            ++record.pointTypeCount;
            break;
        case KRX_FRAME_TYPE_IN_PATH:
            ++record.areaTypeCount;
            break;
        case KRX_FRAME_TYPE_ON_PATH:
            ++record.pathTypeCount;
            break;
        default:
            break;
    }
    return ZM_ERR_NONE;
}

ZMErr OfferFrameFonts(ZMArtHandle art) {
    TextEngineReference<KRXCharInspectorRef> inspector(sKrxCharInspectorSuite->Release);
    if (ZMErr error = GetInspector(art, inspector); error != ZM_ERR_NONE) {
        return error;
    }
    return OfferFonts(inspector.Get());
}

ZMErr VisitTextFrame(ZMArtHandle art, PaintKind& paintKinds, int32_t inMask) {
    TextEngineReference<KRXTextRangeRef> range(sKrxTextRangeSuite->Release);
    if (ZMErr error = sTextFrameSuite->GetKRXTextRange(art, range.Out()); error != ZM_ERR_NONE) {
        return error;
    }
    ++CollectingSurvey().record.typeObjectCount;
    if (ZMErr error = CountFrameKind(art); error != ZM_ERR_NONE) {
        return error;
    }
    TextEngineReference<KRXCharInspectorRef> inspector(sKrxCharInspectorSuite->Release);
    if (ZMErr error = sKrxTextRangeSuite->GetCharInspector(range.Get(), inspector.Out());
        error != ZM_ERR_NONE) {
        return error;
    }
    if (ZMErr error = OfferFonts(inspector.Get()); error != ZM_ERR_NONE) {
        return error;
    }
    // Fills first, then strokes.
    for (PaintArrayEntry entry :
         {sKrxCharInspectorSuite->GetFillColor, sKrxCharInspectorSuite->GetStrokeColor}) {
        if (ZMErr error = ClassifyPaints(entry, inspector.Get(), paintKinds, inMask);
            error != ZM_ERR_NONE) {
            return error;
        }
    }
    // Each model marked for the object so far counts once here.
    AddMarksToCounters(paintKinds);
    // The path area text flows in or path text runs along is surveyed like any path, in the
    // categories where paths are.
    ZMArtHandle path = nullptr;
    if (ZMErr error = sTextFrameSuite->GetTextPathObject(art, &path); error != ZM_ERR_NONE) {
        return error;
    }
    return path != nullptr ? VisitArt(path, paintKinds, inMask) : ZM_ERR_NONE;
}

}  // namespace tolvane
