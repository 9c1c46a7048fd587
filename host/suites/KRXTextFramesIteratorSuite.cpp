#include "suites/SuiteRegistrations.hpp"

#include "suites/EngineIteratorSuite.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXStorySuites.h>
#include <zelmora/KRXTextFrameSuites.h>

#include <vector>

namespace zm::host {

namespace {

// A story flows through its one frame.
std::vector<TextFrameObject> Frames(Runtime&, const StoryObject& story) {
    return {TextFrameObject{story.text}};
}

using FramesIterator =
    EngineIteratorSuite<ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_NAME, KRXTextFramesIteratorSuite,
                        KRXTextFramesIteratorRef, KRXStoryRef, KRXTextFrameRef, Frames>;

}  // namespace

void RegisterKRXTextFramesIteratorSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_NAME,
                 ZM_KRX_TEXT_FRAMES_ITERATOR_SUITE_VERSION, &FramesIterator::kTable);
}

}  // namespace zm::host
