#include "runtime/ToolkitRulerUnit.hpp"

#include <ostui/controls/UnitHandlerRegistry.hpp>

namespace zm::host {

namespace {

using ostui::controls::CustomUnit;
using ostui::controls::Unit;

Unit ToolkitUnitOf(document::RulerUnits units) {
    switch (units) {
        case document::RulerUnits::Points:
            return Unit::Points;
        case document::RulerUnits::Pixels:
            return Unit::Pixels;
        case document::RulerUnits::Inches:
            return Unit::Inches;
        case document::RulerUnits::Millimeters:
            return Unit::Millimeters;
        case document::RulerUnits::Centimeters:
            return Unit::Centimeters;
        case document::RulerUnits::Picas:
            return Unit::Picas;
    }
    return Unit::Points;
}

}  // namespace

ToolkitRulerUnit::ToolkitRulerUnit(const DocumentList& documents) {
    ostui::controls::UnitHandlerRegistry::Get().SetNativeUnitSource([&documents](CustomUnit unit) {
        const document::Document* current = documents.Current();
        if (unit != CustomUnit::Ruler || current == nullptr) {
            return Unit::Points;
        }
        return ToolkitUnitOf(current->rulerUnits);
    });
}

ToolkitRulerUnit::~ToolkitRulerUnit() {
    ostui::controls::UnitHandlerRegistry::Get().SetNativeUnitSource({});
}

}  // namespace zm::host
