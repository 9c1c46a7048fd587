#include <gtest/gtest.h>
#include <zelmora/ZMVectorizeSuite.h>

#include <memory>
#include <string>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

class VectorizeSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_VECTORIZE_SUITE_NAME, ZM_VECTORIZE_SUITE_VERSION, vectorize);
        auto built = std::make_unique<document::Document>();
        layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        runtime.documents.Add(std::move(built));
    }

    Art& PluginGroup(const std::string& pluginName) {
        Art& group = zm::test::AddArt(*layer, ArtType::PluginGroup);
        group.pluginName = pluginName;
        return group;
    }

    ZMBool IsTracing(const Art& art) {
        ZMBool tracing = -1;
        EXPECT_EQ(vectorize->IsTracingArt(H(art), &tracing), ZM_ERR_NONE);
        return tracing;
    }

    const ZMVectorizeSuite* vectorize = nullptr;
    Art* layer = nullptr;
};

TEST_F(VectorizeSuiteTest, APluginGroupOfTheImageTracingPluginIsATracingObject) {
    EXPECT_EQ(IsTracing(PluginGroup("Quorvel Image Trace")), 1);
}

TEST_F(VectorizeSuiteTest, OtherArtIsNoTracingObject) {
    EXPECT_EQ(IsTracing(PluginGroup("Quorvel Path Blends")), 0);
    EXPECT_EQ(IsTracing(PluginGroup("quorvel image trace")), 0);  // names compare exactly
    Art& group = zm::test::AddArt(*layer, ArtType::Group);
    group.pluginName = "Quorvel Image Trace";  // a plain group is never one, whatever it says
    EXPECT_EQ(IsTracing(group), 0);
}

TEST_F(VectorizeSuiteTest, BadArgumentsAndMissingDocumentsAreReported) {
    ZMBool tracing = 0;
    Art& group = PluginGroup("Quorvel Image Trace");
    EXPECT_EQ(vectorize->IsTracingArt(nullptr, &tracing), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(vectorize->IsTracingArt(H(group), nullptr), ZM_ERR_BAD_ARGUMENT);
    ZMArtHandle handle = H(group);
    runtime.documents.CloseCurrent();
    EXPECT_EQ(vectorize->IsTracingArt(handle, &tracing), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
