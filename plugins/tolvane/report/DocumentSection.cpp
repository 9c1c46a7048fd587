#include "report/DocumentSection.hpp"

#include "report/DocumentQueries.hpp"
#include "report/Error.hpp"
#include "report/HostFilePath.hpp"
#include "report/LoadTolvaneString.hpp"
#include "report/ReportBuffer.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

namespace {

// ResDocument labels.
constexpr int16_t kName = 1;
constexpr int16_t kColorMode = 2;
constexpr int16_t kColorProfile = 3;
constexpr int16_t kRulerUnits = 4;
constexpr int16_t kArtboardDimensions = 5;
constexpr int16_t kOutlineMode = 6;  // ends in a blank of its own, like 8, 9 and 12
constexpr int16_t kHighlightFonts = 8;
constexpr int16_t kHighlightGlyphs = 9;
constexpr int16_t kPreserveEditability = 10;
constexpr int16_t kPreserveAppearance = 11;
constexpr int16_t kPaperSimulation = 12;

// ResColorModel names.
constexpr int16_t kUnknownColor = 1;
constexpr int16_t kNoProfile = 5;

constexpr const char* kPreserveTextEditabilityKey = "ZM11 Preserve Text Editability";
constexpr const char* kPaperSimulationKey = "ZM9 paper simulation";

// Labels that do not end in a blank get one before their value.
struct Parts {
    HostString blank = MakeUnicodeFromBytes(" ", ZM_ENCODING_PLATFORM);
    HostString times = MakeUnicodeFromBytes(" x ", ZM_ENCODING_PLATFORM);
};

// Label, an optional blank, the value; what AppendReportLine answers is not the section's
// concern (a line it cannot add is simply missing).
void AppendLabelled(ReportText& text, int16_t label, const HostString* blank,
                    ZMUnicodeString value, int16_t breaks) {
    HostString line = LoadTolvaneString(ResDocument, label);
    if (blank != nullptr) {
        line.Append(*blank);
    }
    line.Append(value);
    AppendReportLine(text, line.Get(), breaks);
}

HostString OnOff(bool on) { return LoadTolvaneString(ResOther, on ? kOtherOn : kOtherOff); }

// A units text the host cannot give is left empty.
template <typename Query>
HostString OrEmpty(Query&& query) {
    try {
        return query();
    } catch (const zm::Error&) {
        return HostString::Empty();
    }
}

class TextResources {
public:
    TextResources() { zm::Check(sDocumentSuite->GetDocumentTextResources(&resources_)); }
    ~TextResources() { sDocumentSuite->ReleaseTextResources(resources_); }
    TextResources(const TextResources&) = delete;
    TextResources& operator=(const TextResources&) = delete;
    ZMTextResourcesRef Get() const { return resources_; }

private:
    ZMTextResourcesRef resources_ = nullptr;
};

// The document's dictionary, or none when the host cannot give it.
class Dictionary {
public:
    Dictionary() {
        if (sDocumentSuite->GetDocumentDictionary(&dictionary_) != ZM_ERR_NONE) {
            dictionary_ = nullptr;
        }
    }
    ~Dictionary() {
        if (dictionary_ != nullptr) {
            sDictionarySuite->Release(dictionary_);
        }
    }
    Dictionary(const Dictionary&) = delete;
    Dictionary& operator=(const Dictionary&) = delete;

    // The entry under key, or fallback when there is no dictionary, no such entry or it
    // cannot be read.
    bool Flag(const char* key, bool fallback) const {
        ZMDictKey dictKey = nullptr;
        ZMBool known = 0;
        if (dictionary_ == nullptr || sDictionarySuite->Key(key, &dictKey) != ZM_ERR_NONE ||
            sDictionarySuite->IsKnown(dictionary_, dictKey, &known) != ZM_ERR_NONE || !known) {
            return fallback;
        }
        ZMBool value = fallback ? 1 : 0;
        if (sDictionarySuite->GetBooleanEntry(dictionary_, dictKey, &value) != ZM_ERR_NONE) {
            return fallback;
        }
        return value != 0;
    }

private:
    ZMDictionaryRef dictionary_ = nullptr;
};

// An untitled document has no file: then the Name line is left out.
void AppendName(ReportText& text, const Parts& parts) {
    HostFilePath path;
    if (sDocumentSuite->GetDocumentFilePath(path.Get()) != ZM_ERR_NONE) {
        return;
    }
    HostString display = HostString::Empty();
    zm::Check(
        sFilePathSuite->GetDisplayString(path.Get(), ZM_FILE_PATH_DISPLAY_FULL, display.Get()));
    AppendLabelled(text, kName, &parts.blank, display.Get(), 2);
}

int16_t ColorModelName(int16_t model) {
    switch (model) {
        case ZM_COLOR_MODEL_GRAY:
            return 2;
        case ZM_COLOR_MODEL_RGB:
            return 3;
        case ZM_COLOR_MODEL_CMYK:
            return 4;
        default:
            return kUnknownColor;
    }
}

void AppendColorProfile(ReportText& text, const Parts& parts, int16_t model) {
    ZMColorProfile rgb = nullptr;
    ZMColorProfile cmyk = nullptr;
    ZMColorProfile gray = nullptr;
    zm::Check(sDocumentSuite->GetDocumentColorProfiles(&rgb, &cmyk, &gray));
    ZMColorProfile picked = model == ZM_COLOR_MODEL_GRAY   ? gray
                            : model == ZM_COLOR_MODEL_RGB  ? rgb
                            : model == ZM_COLOR_MODEL_CMYK ? cmyk
                                                           : nullptr;
    HostString value = picked == nullptr ? LoadTolvaneString(ResColorModel, kNoProfile)
                                         : ColorProfileName(picked);
    AppendLabelled(text, kColorProfile, &parts.blank, value.Get(), 1);
}

void AppendSetup(ReportText& text, const Parts& parts) {
    ZMDocumentSetup setup{};
    zm::Check(sDocumentSuite->GetDocumentSetup(&setup));
    HostString dimensions = OrEmpty([&] { return FormatInRulerUnits(setup.width); });
    dimensions.Append(parts.times);
    dimensions.Append(OrEmpty([&] { return FormatInRulerUnits(setup.height); }));
    AppendLabelled(text, kArtboardDimensions, &parts.blank, dimensions.Get(), 1);
    AppendLabelled(text, kOutlineMode, nullptr, OnOff(setup.showPlacedImages != 0).Get(), 1);
}

void AppendSettings(ReportText& text) {
    TextResources resources;
    HighlightFlags flags = GetHighlightFlags(resources.Get());
    AppendLabelled(text, kHighlightFonts, nullptr, OnOff(flags.substitutedFonts != 0).Get(), 1);
    AppendLabelled(text, kHighlightGlyphs, nullptr, OnOff(flags.substitutedGlyphs != 0).Get(),
                   1);

    Dictionary dictionary;
    bool editable = dictionary.Flag(kPreserveTextEditabilityKey, true);
    HostString preserve =
        LoadTolvaneString(ResDocument, editable ? kPreserveEditability : kPreserveAppearance);
    AppendReportLine(text, preserve.Get(), 1);
    AppendLabelled(text, kPaperSimulation, nullptr,
                   OnOff(dictionary.Flag(kPaperSimulationKey, false)).Get(), 1);
}

}  // namespace

ZMErr AppendDocumentSection(ReportText& text) {
    if (ZMErr error = AppendSectionTitle(text, kTitleDocument); error != ZM_ERR_NONE) {
        return error;
    }
    try {
        Parts parts;
        AppendName(text, parts);

        int16_t model = 0;
        zm::Check(sDocumentSuite->GetDocumentColorModel(&model));
        HostString modelName = LoadTolvaneString(ResColorModel, ColorModelName(model));
        AppendLabelled(text, kColorMode, &parts.blank, modelName.Get(), 1);

        AppendColorProfile(text, parts, model);

        HostString units = OrEmpty([] { return RulerUnitsName(); });
        AppendLabelled(text, kRulerUnits, &parts.blank, units.Get(), 1);

        AppendSetup(text, parts);
        AppendSettings(text);
        return ZM_ERR_NONE;
    } catch (const zm::Error& error) {
        return error.Code();
    }
}

}  // namespace tolvane
