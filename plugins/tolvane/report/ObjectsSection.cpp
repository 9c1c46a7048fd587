#include "report/ObjectsSection.hpp"

#include "report/Error.hpp"
#include "report/LoadTolvaneString.hpp"
#include "report/NumberFormatter.hpp"
#include "report/PathsLine.hpp"
#include "report/ReportBuffer.hpp"
#include "survey/SurveyRecord.hpp"

#include <cstdint>
#include <span>

namespace tolvane {

namespace {

// A label: a ResObject index, or a key of its own when the index is 0.
struct Label {
    int16_t index;
    const char* key;
};

constexpr Label Indexed(int16_t index) { return {index, nullptr}; }
constexpr Label Own(const char* key) { return {0, key}; }

constexpr Label kPathsLabel = Indexed(1);

using Counter = int32_t SurveyRecord::*;

// A line that is always written; breaks 2 closes its group with a blank line on screen.
struct FixedRow {
    Label label;
    Counter counter;
    int16_t breaks;
};

// A line written only when its counter is above 0.
struct OptionalRow {
    Label label;
    Counter counter;
};

constexpr FixedRow kGroupOne[] = {
    {Indexed(4), &SurveyRecord::compoundPathCount, 1},    // Compound Paths:
    {Indexed(17), &SurveyRecord::meshCount, 1},           // Gradient Meshes:
    {Indexed(21), &SurveyRecord::symbolInstanceCount, 2}  // Symbol Instances:
};

// Not the order of the record: blends come before compound shapes, live paint groups after
// flares.
constexpr OptionalRow kOptionalGroup[] = {
    {Indexed(20), &SurveyRecord::symbolSetCount},      // Symbol Instance Sets:
    {Indexed(23), &SurveyRecord::blendCount},          // Blends:
    {Indexed(22), &SurveyRecord::compoundShapeCount},  // Compound Shapes:
    {Own(keys::kObjectEnvelope), &SurveyRecord::envelopeCount},
    {Own(keys::kObjectFlare), &SurveyRecord::flareCount},
    {Indexed(28), &SurveyRecord::livePaintGroupCount},  // Live Paint Groups:
    {Own(keys::kObjectTracing), &SurveyRecord::tracingObjectCount},
    {Own(keys::kObjectChart), &SurveyRecord::chartCount},
    {Own(keys::kObjectGraph), &SurveyRecord::graphCount},
};

constexpr FixedRow kGroupsAfter[] = {
    // Type.
    {Own(keys::kObjectTypeAll), &SurveyRecord::typeObjectCount, 1},
    {Own(keys::kObjectPointType), &SurveyRecord::pointTypeCount, 1},
    {Own(keys::kObjectAreaType), &SurveyRecord::areaTypeCount, 1},
    {Own(keys::kObjectPathType), &SurveyRecord::pathTypeCount, 2},
    // Masks, transparency, colour.
    {Indexed(3), &SurveyRecord::clipMaskCount, 1},           // Clipping Masks:
    {Indexed(5), &SurveyRecord::opacityMaskCount, 1},        // Opacity Masks:
    {Indexed(6), &SurveyRecord::transparentGroupCount, 1},   // Transparent Groups:
    {Indexed(7), &SurveyRecord::transparentObjectCount, 1},  // Transparent Objects:
    {Indexed(8), &SurveyRecord::rgbObjectCount, 1},          // RGB Objects:
    {Indexed(9), &SurveyRecord::cmykObjectCount, 1},         // CMYK Objects:
    {Indexed(10), &SurveyRecord::grayObjectCount, 2},        // Grayscale Objects:
    // Paint kinds, brushes, styles.
    {Indexed(11), &SurveyRecord::spotObjectCount, 1},      // Spot Color Objects:
    {Indexed(12), &SurveyRecord::patternObjectCount, 1},   // Pattern Objects:
    {Indexed(13), &SurveyRecord::gradientObjectCount, 1},  // Gradient Objects:
    {Indexed(18), &SurveyRecord::brushedObjectCount, 1},   // Brushed Objects:
    {Indexed(19), &SurveyRecord::styledObjectCount, 2},    // Styled Objects:
    // Resources.
    {Indexed(14), &SurveyRecord::fontCount, 1},           // Fonts:
    {Indexed(15), &SurveyRecord::linkedImageCount, 1},    // Linked Images:
    {Indexed(16), &SurveyRecord::embeddedImageCount, 1},  // Embedded Images:
    {Indexed(24), &SurveyRecord::foreignObjectCount, 1},  // Non-Native Art Objects:
};

class LineWriter {
public:
    LineWriter(ReportText& text, const SurveyRecord& record)
        : text_(text),
          record_(record),
          none_(LoadTolvaneString(ResOther, kOtherNone)),
          blank_(MakeUnicodeFromBytes(" ", ZM_ENCODING_PLATFORM)) {}

    void Paths() { Write(kPathsLabel, PathsValue(record_, none_.Get()), 1); }

    void Fixed(std::span<const FixedRow> rows) {
        for (const FixedRow& row : rows) {
            Write(row.label, Count(record_.*row.counter), row.breaks);
        }
    }

    // What is left starts as the sum of all the rows' counters, each line written takes its
    // own count off, and the line that leaves nothing closes the group with a blank line on
    // screen.
    void Optional(std::span<const OptionalRow> rows) {
        int64_t remaining = 0;
        for (const OptionalRow& row : rows) {
            remaining += record_.*row.counter;
        }
        for (const OptionalRow& row : rows) {
            const int32_t count = record_.*row.counter;
            if (count > 0) {
                remaining -= count;
                Write(row.label, Count(count), remaining != 0 ? 1 : 2);
            }
        }
    }

private:
    HostString Count(int32_t count) const {
        return count < 1 ? HostString::Copy(none_.Get()) : numbers_.Integer(count);
    }

    // A line the buffer refuses is simply missing; the section goes on.
    void Write(Label label, const HostString& value, int16_t breaks) {
        HostString line = label.key != nullptr ? LoadTolvaneString(label.key)
                                               : LoadTolvaneString(ResObject, label.index);
        line.Append(blank_);
        line.Append(value);
        AppendReportLine(text_, line.Get(), breaks);
    }

    ReportText& text_;
    const SurveyRecord& record_;
    NumberFormatter numbers_;
    HostString none_;
    HostString blank_;
};

}  // namespace

ZMErr WriteObjectsSection(ReportText& text) {
    if (ZMErr error = AppendSectionTitle(text, kTitleObjects); error != ZM_ERR_NONE) {
        return error;
    }
    return zm::CodeOf([&]() -> ZMErr {
        if (gSurvey == nullptr) {
            throw zm::Error(ZM_ERR_PARAMETER);
        }
        LineWriter lines(text, gSurvey->record);
        lines.Paths();
        lines.Fixed(kGroupOne);
        lines.Optional(kOptionalGroup);
        lines.Fixed(kGroupsAfter);
        return ZM_ERR_NONE;
    });
}

}  // namespace tolvane
