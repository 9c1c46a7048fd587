#include "suites/ColorProfileHandle.hpp"
#include "suites/CurrentDocument.hpp"
#include "suites/DictionaryObject.hpp"
#include "suites/FilePathObject.hpp"
#include "suites/SuiteGuard.hpp"
#include "suites/SuiteRegistrations.hpp"
#include "suites/TextResourcesObject.hpp"

#include <zelmora/ZMDocumentSuite.h>

#include <cstddef>
#include <limits>
#include <memory>

namespace zm::host {

namespace {

constexpr const char* kSuite = ZM_DOCUMENT_SUITE_NAME;

constexpr int16_t kLastRulerUnits = static_cast<int16_t>(document::RulerUnits::Picas);

ZMDocumentHandle HandleOf(document::Document& document) {
    return reinterpret_cast<ZMDocumentHandle>(&document);
}

int32_t CheckedCount(std::size_t count) {
    if (count > static_cast<std::size_t>(std::numeric_limits<int32_t>::max())) {
        throw HostError(ZM_ERR_INTERNAL, "too many to count");
    }
    return static_cast<int32_t>(count);
}

ZMErr ZM_API CountDocuments(int32_t* count) {
    return GuardSuiteCall(kSuite, 0, [&](Runtime& runtime) {
        RequireArguments(count);
        *count = CheckedCount(runtime.documents.Count());
    });
}

ZMErr ZM_API GetNthDocument(int32_t index, ZMDocumentHandle* document) {
    return GuardSuiteCall(kSuite, 1, [&](Runtime& runtime) {
        RequireArguments(document);
        if (index < 0 || static_cast<std::size_t>(index) >= runtime.documents.Count()) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "document index out of range");
        }
        *document = HandleOf(runtime.documents.At(static_cast<std::size_t>(index)));
    });
}

ZMErr ZM_API GetDocumentFilePath(ZMFilePath file) {
    return GuardSuiteCall(kSuite, 2, [&](Runtime& runtime) {
        const document::Document& document = RequireCurrentDocument();
        std::filesystem::path& path = RequireFilePath(runtime, file);
        if (document.filePath.empty()) {
            throw HostError(ZM_ERR_NOT_FOUND, "the document is untitled");
        }
        path = document.filePath;
    });
}

ZMErr ZM_API GetDocumentColorModel(int16_t* model) {
    return GuardSuiteCall(kSuite, 3, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(model);
        *model = document.colorModel;
    });
}

ZMErr ZM_API GetDocumentColorProfiles(ZMColorProfile* rgb, ZMColorProfile* cmyk,
                                      ZMColorProfile* gray) {
    return GuardSuiteCall(kSuite, 4, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(rgb, cmyk, gray);
        *rgb = ToProfileHandle(document.rgbProfile);
        *cmyk = ToProfileHandle(document.cmykProfile);
        *gray = ToProfileHandle(document.grayProfile);
    });
}

ZMErr ZM_API GetDocumentSetup(ZMDocumentSetup* setup) {
    return GuardSuiteCall(kSuite, 5, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(setup);
        *setup = ZMDocumentSetup{};
        setup->width = document.setup.width;
        setup->height = document.setup.height;
        setup->showPlacedImages = document.setup.showPlacedImages ? 1 : 0;
    });
}

ZMErr ZM_API GetDocumentRulerUnits(int16_t* units) {
    return GuardSuiteCall(kSuite, 6, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(units);
        *units = static_cast<int16_t>(document.rulerUnits);
    });
}

ZMErr ZM_API GetDocumentTextResources(ZMTextResourcesRef* resources) {
    return GuardSuiteCall(kSuite, 7, [&](Runtime& runtime) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(resources);
        auto object = std::make_unique<TextResourcesObject>();
        object->highlightSubstitutedFonts = document.highlightSubstitutedFonts;
        object->highlightSubstitutedGlyphs = document.highlightSubstitutedGlyphs;
        *resources = reinterpret_cast<ZMTextResourcesRef>(&runtime.objects.Add(std::move(object)));
    });
}

ZMErr ZM_API AddRefTextResources(ZMTextResourcesRef resources) {
    return GuardSuiteCall(kSuite, 8, [&](Runtime& runtime) {
        runtime.objects.Retain<TextResourcesObject>(resources);
    });
}

ZMErr ZM_API ReleaseTextResources(ZMTextResourcesRef resources) {
    return GuardSuiteCall(kSuite, 9, [&](Runtime& runtime) {
        runtime.objects.Release<TextResourcesObject>(resources);
    });
}

ZMErr ZM_API GetDocumentDictionary(ZMDictionaryRef* dictionary) {
    return GuardSuiteCall(kSuite, 10, [&](Runtime& runtime) {
        document::Document& document = RequireCurrentDocument();
        RequireArguments(dictionary);
        *dictionary =
            AddDictionary(runtime, std::make_unique<DictionaryObject>(document.dictionary));
    });
}

ZMErr ZM_API IsDocumentUntitled(ZMBool* untitled) {
    return GuardSuiteCall(kSuite, 11, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(untitled);
        *untitled = document.filePath.empty() ? 1 : 0;
    });
}

ZMErr ZM_API GetDocumentPageBounds(ZMRealRect* bounds) {
    return GuardSuiteCall(kSuite, 12, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(bounds);
        // The origin is the page's bottom-left corner.
        *bounds = ZMRealRect{0, document.setup.height, document.setup.width, 0};
    });
}

ZMErr ZM_API SetDocumentColorModel(int16_t model) {
    return GuardSuiteCall(kSuite, 13,
                          [&](Runtime&) { RequireCurrentDocument().colorModel = model; });
}

ZMErr ZM_API SetDocumentRulerUnits(int16_t units) {
    return GuardSuiteCall(kSuite, 14, [&](Runtime&) {
        document::Document& document = RequireCurrentDocument();
        if (units < 0 || units > kLastRulerUnits) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no such ruler units");
        }
        document.rulerUnits = static_cast<document::RulerUnits>(units);
    });
}

ZMErr ZM_API SetDocumentSetup(const ZMDocumentSetup* setup) {
    return GuardSuiteCall(kSuite, 15, [&](Runtime&) {
        document::Document& document = RequireCurrentDocument();
        RequireArguments(setup);
        // Written so that NaN fails too.
        if (!(setup->width > 0) || !(setup->height > 0)) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "a page must have a size");
        }
        document.setup.width = setup->width;
        document.setup.height = setup->height;
        document.setup.showPlacedImages = setup->showPlacedImages != 0;
    });
}

ZMErr ZM_API SetCurrentDocument(ZMDocumentHandle document) {
    return GuardSuiteCall(kSuite, 16, [&](Runtime& runtime) {
        if (!runtime.documents.MakeCurrent(reinterpret_cast<document::Document*>(document))) {
            throw HostError(ZM_ERR_BAD_ARGUMENT, "no such open document");
        }
    });
}

ZMErr ZM_API SetDocumentFilePath(ZMFilePath file) {
    return GuardSuiteCall(kSuite, 17, [&](Runtime& runtime) {
        document::Document& document = RequireCurrentDocument();
        document.filePath = RequireFilePath(runtime, file);
    });
}

ZMErr ZM_API CountDocumentArtboards(int32_t* count) {
    return GuardSuiteCall(kSuite, 18, [&](Runtime&) {
        const document::Document& document = RequireCurrentDocument();
        RequireArguments(count);
        *count = CheckedCount(document.artboards.size());
    });
}

ZMErr ZM_API GetDocument(ZMDocumentHandle* document) {
    return GuardSuiteCall(kSuite, 19, [&](Runtime&) {
        document::Document& current = RequireCurrentDocument();
        RequireArguments(document);
        *document = HandleOf(current);
    });
}

ZMDocumentSuite MakeTable() {
    ZMDocumentSuite table{};
    table.CountDocuments = CountDocuments;
    table.GetNthDocument = GetNthDocument;
    table.GetDocumentFilePath = GetDocumentFilePath;
    table.GetDocumentColorModel = GetDocumentColorModel;
    table.GetDocumentColorProfiles = GetDocumentColorProfiles;
    table.GetDocumentSetup = GetDocumentSetup;
    table.GetDocumentRulerUnits = GetDocumentRulerUnits;
    table.GetDocumentTextResources = GetDocumentTextResources;
    table.AddRefTextResources = AddRefTextResources;
    table.ReleaseTextResources = ReleaseTextResources;
    table.GetDocumentDictionary = GetDocumentDictionary;
    table.IsDocumentUntitled = IsDocumentUntitled;
    table.GetDocumentPageBounds = GetDocumentPageBounds;
    table.SetDocumentColorModel = SetDocumentColorModel;
    table.SetDocumentRulerUnits = SetDocumentRulerUnits;
    table.SetDocumentSetup = SetDocumentSetup;
    table.SetCurrentDocument = SetCurrentDocument;
    table.SetDocumentFilePath = SetDocumentFilePath;
    table.CountDocumentArtboards = CountDocumentArtboards;
    table.GetDocument = GetDocument;
    return table;
}

const ZMDocumentSuite kTable = MakeTable();

}  // namespace

void RegisterDocumentSuite(SuiteRegistry& registry) {
    registry.Add(ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION, &kTable);
}

}  // namespace zm::host
