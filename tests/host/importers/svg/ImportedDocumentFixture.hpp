#pragma once

#include <gtest/gtest.h>
#include <zelmora/ZMArtSuite.h>
#include <zelmora/ZMLayerSuite.h>
#include <zelmora/ZMMatchingArtSuite.h>
#include <zelmora/ZMMdMemorySuite.h>

#include <filesystem>
#include <importers/svg/SvgImporter.hpp>
#include <string>
#include <string_view>
#include <suites/DictionaryObject.hpp>
#include <suites/TextResourcesObject.hpp>
#include <vector>

#include "SvgFixtures.hpp"
#include "host/suites/DocumentSuiteFixture.hpp"

namespace zm::test {

// A fresh host whose current document is an SVG file opened by the importer; the test then
// reads it only through the suites' C tables, as a plug-in sees it. The art, layer list,
// matching art and memory tables are taken for every test; a test takes the others it needs
// with Acquire. After the test no memory handle, mask reference, corners object, dictionary,
// text resources or file path may still be held.
class ImportedDocumentFixture : public DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_ART_SUITE_NAME, ZM_ART_SUITE_VERSION, art);
        Acquire(ZM_LAYER_LIST_SUITE_NAME, ZM_LAYER_LIST_SUITE_VERSION, layerLists);
        Acquire(ZM_MATCHING_ART_SUITE_NAME, ZM_MATCHING_ART_SUITE_VERSION, matching);
        Acquire(ZM_MD_MEMORY_SUITE_NAME, ZM_MD_MEMORY_SUITE_VERSION, memory);
    }

    void TearDown() override {
        EXPECT_EQ(runtime.memory.LiveHandles(), 0u) << "a memory handle was not disposed of";
        EXPECT_TRUE(runtime.masks.All().empty()) << "a mask reference was not released";
        EXPECT_TRUE(runtime.liveCorners.All().empty()) << "a corners object was not disposed of";
        EXPECT_EQ(runtime.objects.Count<host::DictionaryObject>(), 0u) << "a dictionary was kept";
        EXPECT_EQ(runtime.objects.Count<host::TextResourcesObject>(), 0u);
        EXPECT_EQ(runtime.objects.Count<std::filesystem::path>(), 0u) << "a file path was kept";
        DocumentSuiteFixture::TearDown();
    }

    // Opens a file of tests/fixtures/svg as the current document.
    void Import(const std::string& fixture) { runtime.documents.Add(OpenSvgFixture(fixture)); }

    // Opens SVG text as the current document, named by file ("" for an untitled one).
    void ImportText(std::string_view svg, const std::filesystem::path& file = {}) {
        runtime.documents.Add(host::ImportSvgText(svg, file));
    }

    // The art that fits the criteria, through the current document's layer list; the memory
    // handle is read the way a plug-in reads it and then disposed of.
    std::vector<ZMArtHandle> Match(const std::vector<ZMMatchCriterion>& criteria) {
        ZMLayerList list = nullptr;
        EXPECT_EQ(layerLists->GetCurrentLayerList(&list), ZM_ERR_NONE);
        ZMMdMemoryHandle matches = nullptr;
        int32_t count = -1;
        EXPECT_EQ(
            matching->GetMatchingArtOfLayerList(
                list, criteria.data(), static_cast<int32_t>(criteria.size()), &matches, &count),
            ZM_ERR_NONE);
        return Read(matches, count);
    }

    // The art handles a match handle holds; the handle is disposed of.
    std::vector<ZMArtHandle> Read(ZMMdMemoryHandle matches, int32_t count) {
        std::vector<ZMArtHandle> handles;
        if (count <= 0) {
            EXPECT_EQ(matches, nullptr);
            return handles;
        }
        size_t size = 0;
        EXPECT_EQ(memory->GetHandleSize(matches, &size), ZM_ERR_NONE);
        EXPECT_EQ(size, static_cast<size_t>(count) * sizeof(ZMArtHandle));
        void* block = nullptr;
        EXPECT_EQ(memory->MdMemoryHandleDeref(matches, &block), ZM_ERR_NONE);
        const auto* held = static_cast<const ZMArtHandle*>(block);
        handles.assign(held, held + count);
        EXPECT_EQ(memory->DisposeHandle(matches), ZM_ERR_NONE);
        return handles;
    }

    // The art's name through the art suite; the string is disposed of.
    std::string NameOf(ZMArtHandle handle) {
        ZMUnicodeString name = nullptr;
        EXPECT_EQ(art->GetArtName(handle, &name), ZM_ERR_NONE);
        std::string text = Text(name);
        EXPECT_EQ(strings->Dispose(name), ZM_ERR_NONE);
        return text;
    }

    std::vector<std::string> NamesOf(const std::vector<ZMArtHandle>& handles) {
        std::vector<std::string> names;
        for (ZMArtHandle handle : handles) {
            names.push_back(NameOf(handle));
        }
        return names;
    }

    // The one art object of the document's layers with that name, found by matching every
    // object and asking each its name. A missing or shared name fails the test.
    ZMArtHandle ArtNamed(std::string_view name) {
        ZMArtHandle found = nullptr;
        int hits = 0;
        for (ZMArtHandle handle : Match({{ZM_ART_ANY, 0, 0, 0}})) {
            if (NameOf(handle) == name) {
                found = handle;
                ++hits;
            }
        }
        EXPECT_EQ(hits, 1) << "art named " << name;
        return found;
    }

    ZMArtType TypeOf(ZMArtHandle handle) {
        ZMArtType type = -2;
        EXPECT_EQ(art->GetArtType(handle, &type), ZM_ERR_NONE);
        return type;
    }

    ZMArtHandle Parent(ZMArtHandle handle) { return Step(art->GetArtParent, handle); }
    ZMArtHandle FirstChild(ZMArtHandle handle) { return Step(art->GetArtFirstChild, handle); }
    ZMArtHandle Sibling(ZMArtHandle handle) { return Step(art->GetArtSibling, handle); }

    const ZMArtSuite* art = nullptr;
    const ZMLayerListSuite* layerLists = nullptr;
    const ZMMatchingArtSuite* matching = nullptr;
    const ZMMdMemorySuite* memory = nullptr;

private:
    ZMArtHandle Step(ZMErr(ZM_API* entry)(ZMArtHandle, ZMArtHandle*), ZMArtHandle from) {
        ZMArtHandle to = nullptr;
        EXPECT_EQ(entry(from, &to), ZM_ERR_NONE);
        return to;
    }
};

}  // namespace zm::test
