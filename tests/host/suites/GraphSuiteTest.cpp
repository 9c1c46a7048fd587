#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMGraphSuite.h>

#include <memory>

#include "host/suites/SuiteFixture.hpp"
#include "support/DocumentBuilder.hpp"

namespace zm::host {
namespace {

using document::Art;
using document::ArtType;

ZMArtHandle H(const Art& art) { return reinterpret_cast<ZMArtHandle>(const_cast<Art*>(&art)); }

class GraphSuiteTest : public zm::test::SuiteFixture {
protected:
    void SetUp() override {
        Acquire(ZM_GRAPH_SUITE_NAME, ZM_GRAPH_SUITE_VERSION, graphs);
        auto built = std::make_unique<document::Document>();
        Art* layer = zm::test::AddLayer(*built, "Layer 1").root.get();
        graph = &zm::test::AddArt(*layer, ArtType::Unknown, "graph");
        graph->graph = true;
        unknown = &zm::test::AddArt(*layer, ArtType::Unknown, "unknown");
        runtime.documents.Add(std::move(built));
    }

    ZMBool IsGraph(const Art& art) {
        ZMBool isGraph = -1;
        EXPECT_EQ(graphs->IsGraph(H(art), &isGraph), ZM_ERR_NONE);
        return isGraph;
    }

    const ZMGraphSuite* graphs = nullptr;
    Art* graph = nullptr;
    Art* unknown = nullptr;
};

TEST_F(GraphSuiteTest, UnknownArtThatDrawsAGraphIsAGraph) {
    EXPECT_EQ(IsGraph(*graph), 1);
    EXPECT_EQ(IsGraph(*unknown), 0);
}

TEST_F(GraphSuiteTest, BadArgumentsAndMissingDocumentsAreReported) {
    ZMBool isGraph = 0;
    EXPECT_EQ(graphs->IsGraph(nullptr, &isGraph), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(graphs->IsGraph(H(*graph), nullptr), ZM_ERR_BAD_ARGUMENT);
    ZMArtHandle handle = H(*graph);
    runtime.documents.CloseCurrent();
    EXPECT_EQ(graphs->IsGraph(handle, &isGraph), ZM_ERR_NO_DOCUMENT);
}

}  // namespace
}  // namespace zm::host
