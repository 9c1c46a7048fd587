#include <runtime/Runtime.hpp>
#include <runtime/ToolkitRulerUnit.hpp>

#include <ostui/controls/UnitHandlerRegistry.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace zm::host {
namespace {

using ostui::controls::CustomUnit;
using ostui::controls::Unit;
using ostui::controls::UnitHandlerRegistry;

Unit RulerUnit() { return UnitHandlerRegistry::Get().GetNativeUnit(CustomUnit::Ruler); }

std::unique_ptr<document::Document> DocumentIn(document::RulerUnits units) {
    auto made = std::make_unique<document::Document>();
    made->rulerUnits = units;
    return made;
}

TEST(ToolkitRulerUnitTest, TheRulerIsTheCurrentDocumentsUnitAsItIsNow) {
    DocumentList documents;
    ToolkitRulerUnit link(documents);
    document::Document& first = documents.Add(DocumentIn(document::RulerUnits::Millimeters));
    EXPECT_EQ(RulerUnit(), Unit::Millimeters);
    first.rulerUnits = document::RulerUnits::Inches;
    EXPECT_EQ(RulerUnit(), Unit::Inches);
    documents.Add(DocumentIn(document::RulerUnits::Picas));  // the new one is current
    EXPECT_EQ(RulerUnit(), Unit::Picas);
    documents.CloseCurrent();
    EXPECT_EQ(RulerUnit(), Unit::Inches);
}

TEST(ToolkitRulerUnitTest, EachRulerUnitHasItsToolkitUnit) {
    DocumentList documents;
    ToolkitRulerUnit link(documents);
    document::Document& current = documents.Add(DocumentIn(document::RulerUnits::Points));
    const std::pair<document::RulerUnits, Unit> pairs[] = {
        {document::RulerUnits::Points, Unit::Points},
        {document::RulerUnits::Pixels, Unit::Pixels},
        {document::RulerUnits::Inches, Unit::Inches},
        {document::RulerUnits::Millimeters, Unit::Millimeters},
        {document::RulerUnits::Centimeters, Unit::Centimeters},
        {document::RulerUnits::Picas, Unit::Picas}};
    for (const auto& [units, toolkitUnit] : pairs) {
        current.rulerUnits = units;
        EXPECT_EQ(RulerUnit(), toolkitUnit) << static_cast<int>(units);
    }
}

TEST(ToolkitRulerUnitTest, WithNoDocumentOpenTheRulerIsPoints) {
    DocumentList documents;
    ToolkitRulerUnit link(documents);
    EXPECT_EQ(RulerUnit(), Unit::Points);
}

TEST(ToolkitRulerUnitTest, TheRuntimeLinksTheToolkitToItsDocumentsWhileItLives) {
    {
        Runtime runtime;
        runtime.documents.Add(DocumentIn(document::RulerUnits::Centimeters));
        EXPECT_EQ(RulerUnit(), Unit::Centimeters);
    }
    EXPECT_EQ(RulerUnit(), Unit::Points);  // the link went with the runtime
}

}  // namespace
}  // namespace zm::host
