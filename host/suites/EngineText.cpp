#include "suites/EngineText.hpp"

#include "suites/ColorRecords.hpp"

namespace zm::host {

namespace {

using document::TextFrameKind;

static_assert(static_cast<KRXFrameType>(TextFrameKind::Point) == KRX_FRAME_TYPE_POINT);
static_assert(static_cast<KRXFrameType>(TextFrameKind::Area) == KRX_FRAME_TYPE_IN_PATH);
static_assert(static_cast<KRXFrameType>(TextFrameKind::OnPath) == KRX_FRAME_TYPE_ON_PATH);

// A paint that is switched on but names no colour paints nothing either.
std::optional<ZMFillStyle> PaintOf(bool painted, const document::Color& color) {
    if (!painted || color.kind == document::ColorKind::None) {
        return std::nullopt;
    }
    return ToFillStyleRecord(color);
}

EngineRun CopyRun(const document::TextRun& run) {
    EngineRun copy;
    copy.text = run.text;
    copy.fontFamily = run.fontFamily.empty() ? kDefaultFontFamily : run.fontFamily;
    copy.weight = run.weight;
    copy.fontStyle = run.fontStyle;
    copy.fontSize = run.fontSize;
    copy.fill = PaintOf(run.paint.fillPaint, run.paint.fill);
    copy.stroke = PaintOf(run.paint.strokePaint, run.paint.stroke);
    return copy;
}

}  // namespace

std::shared_ptr<const EngineText> CopyEngineText(const document::TextFrame* frame) {
    auto text = std::make_shared<EngineText>();
    if (frame != nullptr) {
        text->frameType = static_cast<KRXFrameType>(frame->kind);
        text->runs.reserve(frame->runs.size());
        for (const document::TextRun& run : frame->runs) {
            text->runs.push_back(CopyRun(run));
        }
    }
    return text;
}

}  // namespace zm::host
