#include "suites/SuiteRegistrations.hpp"

#include "document/ArtMatching.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/EngineListSuite.hpp"
#include "suites/LayerHandles.hpp"
#include "suites/TextEngineObjects.hpp"

#include <zelmora/KRXStorySuites.h>

namespace zm::host {

namespace {

using Stories = EngineListSuite<ZM_KRX_STORIES_SUITE_NAME, KRXStoriesRef, KRXStoryRef>;

ZMErr ZM_API GetDocumentStories(KRXStoriesRef* stories) {
    return GuardSuiteCall(ZM_KRX_STORIES_SUITE_NAME, 0, [&](Runtime& runtime) {
        const document::Document& document = CurrentDocument(runtime);
        RequireArguments(stories);
        const document::MatchCriterion textFrames[] = {
            {static_cast<int16_t>(document::ArtType::TextFrame), 0, 0}};
        StoriesObject list;
        for (const document::Art* art : document::MatchArt(LayersOf(document), textFrames)) {
            list.values.push_back(StoryObject{CopyEngineText(art->text.get())});
        }
        *stories = AddCounted<KRXStoriesRef>(runtime, std::move(list));
    });
}

const KRXStoriesSuite kTable = {
    GetDocumentStories,  // 0
    Stories::AddRef,     // 1
    Stories::Release,    // 2
    Stories::GetSize,    // 3
    Stories::Item,       // 4
};

}  // namespace

void RegisterKRXStoriesSuite(SuiteRegistry& registry) {
    registry.Add(ZM_KRX_STORIES_SUITE_NAME, ZM_KRX_STORIES_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
