#include "inventory/StyleTransparency.hpp"

#include "shell/SuiteSet.hpp"
#include "survey/SurveyRecord.hpp"

namespace tolvane {

namespace {

constexpr const char* kBlendModeKey = "Mode";        // integer, a ZM_BLEND_... mode
constexpr const char* kBlendOpacityKey = "Opacity";  // real, 0..1

// Owns one reference to a dictionary.
class ScopedDictionary {
public:
    ScopedDictionary() = default;
    ~ScopedDictionary() {
        if (dictionary_ != nullptr) {
            sDictionarySuite->Release(dictionary_);
        }
    }
    ScopedDictionary(const ScopedDictionary&) = delete;
    ScopedDictionary& operator=(const ScopedDictionary&) = delete;

    ZMDictionaryRef* Out() { return &dictionary_; }
    ZMDictionaryRef Get() const { return dictionary_; }

private:
    ZMDictionaryRef dictionary_ = nullptr;
};

void CountTransparency(int16_t artType, ZMBlendingMode mode, double opacity) {
    if (mode == ZM_BLEND_NORMAL && opacity == 1.0) {
        return;
    }
    SurveyRecord& record = CollectingSurvey().record;
    if (artType == ZM_ART_GROUP) {
        ++record.transparentGroupCount;
    } else {
        ++record.transparentObjectCount;
    }
}

}  // namespace

ZMErr CheckStyleTransparency(ZMArtStyleHandle style, int16_t artType) {
    ZMBlendingMode mode = ZM_BLEND_NORMAL;
    double opacity = 1.0;
    if (ZMErr error = sBlendStyleSuite->GetStyleBlendingMode(style, &mode); error != ZM_ERR_NONE) {
        return error;
    }
    if (ZMErr error = sBlendStyleSuite->GetStyleOpacity(style, &opacity); error != ZM_ERR_NONE) {
        return error;
    }
    CountTransparency(artType, mode, opacity);
    return ZM_ERR_NONE;
}

ZMErr CheckParsedTransparency(ZMStyleParser parser, int16_t artType) {
    ScopedDictionary blend;
    if (ZMErr error = sArtStyleParserSuite->GetBlendDictionary(parser, blend.Out());
        error != ZM_ERR_NONE) {
        return error;
    }
    ZMDictKey modeKey = nullptr;
    if (ZMErr error = sDictionarySuite->Key(kBlendModeKey, &modeKey); error != ZM_ERR_NONE) {
        return error;
    }
    ZMDictKey opacityKey = nullptr;
    if (ZMErr error = sDictionarySuite->Key(kBlendOpacityKey, &opacityKey); error != ZM_ERR_NONE) {
        return error;
    }
    ZMBlendingMode mode = ZM_BLEND_NORMAL;
    if (ZMErr error = sDictionarySuite->GetIntegerEntry(blend.Get(), modeKey, &mode);
        error != ZM_ERR_NONE) {
        return error;
    }
    double opacity = 1.0;
    if (ZMErr error = sDictionarySuite->GetRealEntry(blend.Get(), opacityKey, &opacity);
        error != ZM_ERR_NONE) {
        return error;
    }
    CountTransparency(artType, mode, opacity);
    return ZM_ERR_NONE;
}

}  // namespace tolvane
