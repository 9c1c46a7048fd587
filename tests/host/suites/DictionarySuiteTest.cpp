#include "host/suites/DocumentSuiteFixture.hpp"

#include <suites/DictionaryObject.hpp>

#include <zelmora/ZMDictionarySuite.h>
#include <zelmora/ZMDocumentSuite.h>

#include <gtest/gtest.h>

#include <string>

namespace zm::host {
namespace {

class DictionarySuiteTest : public zm::test::DocumentSuiteFixture {
protected:
    void SetUp() override {
        DocumentSuiteFixture::SetUp();
        Acquire(ZM_DICTIONARY_SUITE_NAME, ZM_DICTIONARY_SUITE_VERSION, dictionaries);
        Acquire(ZM_DOCUMENT_SUITE_NAME, ZM_DOCUMENT_SUITE_VERSION, documents);
    }

    void TearDown() override {
        // Every reference handed out was given back.
        EXPECT_EQ(runtime.objects.Count<DictionaryObject>(), 0u);
        DocumentSuiteFixture::TearDown();
    }

    ZMDictKey Key(const char* text) {
        ZMDictKey key = nullptr;
        EXPECT_EQ(dictionaries->Key(text, &key), ZM_ERR_NONE);
        return key;
    }

    ZMDictionaryRef NewDictionary() {
        ZMDictionaryRef dictionary = nullptr;
        EXPECT_EQ(dictionaries->NewDictionary(&dictionary), ZM_ERR_NONE);
        return dictionary;
    }

    const ZMDictionarySuite* dictionaries = nullptr;
    const ZMDocumentSuite* documents = nullptr;
};

TEST_F(DictionarySuiteTest, TheSameTextAlwaysGivesTheSameKey) {
    ZMDictKey first = Key("ZM9 paper simulation");
    EXPECT_EQ(Key("ZM9 paper simulation"), first);
    EXPECT_NE(Key("ZM9 Paper simulation"), first);  // keys are case-sensitive
    const char* text = nullptr;
    EXPECT_EQ(dictionaries->GetKeyText(first, &text), ZM_ERR_NONE);
    EXPECT_STREQ(text, "ZM9 paper simulation");
    EXPECT_EQ(dictionaries->Key(nullptr, &first), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->Key("x", nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->GetKeyText(zm::test::ForeignHandle<ZMDictKey>(), &text),
              ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->GetKeyText(first, nullptr), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DictionarySuiteTest, TheDocumentDictionaryReadsTheDocumentsSettings) {
    document::Document& document = Open();
    document.dictionary[document::kPreserveTextEditabilityKey] = false;
    document.dictionary[document::kPaperSimulationKey] = true;
    ZMDictionaryRef dictionary = nullptr;
    ASSERT_EQ(documents->GetDocumentDictionary(&dictionary), ZM_ERR_NONE);
    ZMBool known = 0;
    EXPECT_EQ(dictionaries->IsKnown(dictionary, Key("ZM11 Preserve Text Editability"), &known),
              ZM_ERR_NONE);
    EXPECT_EQ(known, 1);
    ZMBool value = -1;
    EXPECT_EQ(
        dictionaries->GetBooleanEntry(dictionary, Key("ZM11 Preserve Text Editability"), &value),
        ZM_ERR_NONE);
    EXPECT_EQ(value, 0);
    EXPECT_EQ(dictionaries->GetBooleanEntry(dictionary, Key("ZM9 paper simulation"), &value),
              ZM_ERR_NONE);
    EXPECT_EQ(value, 1);
    int32_t count = -1;
    EXPECT_EQ(dictionaries->CountEntries(dictionary, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
}

TEST_F(DictionarySuiteTest, WhatIsSetInTheDocumentDictionaryStaysWithTheDocument) {
    document::Document& document = Open();
    ZMDictionaryRef dictionary = nullptr;
    ASSERT_EQ(documents->GetDocumentDictionary(&dictionary), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->SetIntegerEntry(dictionary, Key("Count"), 12), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
    ASSERT_EQ(document.dictionary.count("Count"), 1u);
    EXPECT_EQ(std::get<int32_t>(document.dictionary.at("Count")), 12);
}

TEST_F(DictionarySuiteTest, AnAbsentKeyIsUnknownAndNotFoundAndKeepsTheValue) {
    Open();
    ZMDictionaryRef dictionary = nullptr;
    ASSERT_EQ(documents->GetDocumentDictionary(&dictionary), ZM_ERR_NONE);
    ZMDictKey key = Key("ZM9 paper simulation");
    ZMBool known = -1;
    EXPECT_EQ(dictionaries->IsKnown(dictionary, key, &known), ZM_ERR_NONE);
    EXPECT_EQ(known, 0);
    ZMBool value = 7;
    EXPECT_EQ(dictionaries->GetBooleanEntry(dictionary, key, &value), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(value, 7);
    EXPECT_EQ(dictionaries->DeleteEntry(dictionary, key), ZM_ERR_NOT_FOUND);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
}

TEST_F(DictionarySuiteTest, EachTypeReadsBackWhatWasSet) {
    ZMDictionaryRef dictionary = NewDictionary();
    EXPECT_EQ(dictionaries->SetBooleanEntry(dictionary, Key("b"), 9), ZM_ERR_NONE);  // true
    EXPECT_EQ(dictionaries->SetIntegerEntry(dictionary, Key("i"), -5), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->SetRealEntry(dictionary, Key("r"), 0.75), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->SetStringEntry(dictionary, Key("s"),
                                           String("Stra\xC3\x9F"
                                                  "e")),
              ZM_ERR_NONE);
    ZMBool b = 0;
    int32_t i = 0;
    double r = 0;
    ZMUnicodeString s = String();
    EXPECT_EQ(dictionaries->GetBooleanEntry(dictionary, Key("b"), &b), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->GetIntegerEntry(dictionary, Key("i"), &i), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->GetRealEntry(dictionary, Key("r"), &r), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->GetStringEntry(dictionary, Key("s"), s), ZM_ERR_NONE);
    EXPECT_EQ(b, 1);
    EXPECT_EQ(i, -5);
    EXPECT_EQ(r, 0.75);
    EXPECT_EQ(Text(s),
              "Stra\xC3\x9F"
              "e");
    int32_t count = 0;
    EXPECT_EQ(dictionaries->CountEntries(dictionary, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(dictionaries->DeleteEntry(dictionary, Key("i")), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->CountEntries(dictionary, &count), ZM_ERR_NONE);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
}

TEST_F(DictionarySuiteTest, AnEntryOfAnotherTypeIsAWrongType) {
    ZMDictionaryRef dictionary = NewDictionary();
    ZMDictKey key = Key("Mode");
    EXPECT_EQ(dictionaries->SetIntegerEntry(dictionary, key, 3), ZM_ERR_NONE);
    ZMBool b = 5;
    double r = 2.5;
    ZMUnicodeString s = String("kept");
    EXPECT_EQ(dictionaries->GetBooleanEntry(dictionary, key, &b), ZM_ERR_WRONG_TYPE);
    EXPECT_EQ(dictionaries->GetRealEntry(dictionary, key, &r), ZM_ERR_WRONG_TYPE);
    EXPECT_EQ(dictionaries->GetStringEntry(dictionary, key, s), ZM_ERR_WRONG_TYPE);
    EXPECT_EQ(b, 5);
    EXPECT_EQ(r, 2.5);
    EXPECT_EQ(Text(s), "kept");
    int32_t i = 0;
    EXPECT_EQ(dictionaries->SetRealEntry(dictionary, key, 1.0), ZM_ERR_NONE);  // replaces
    EXPECT_EQ(dictionaries->GetIntegerEntry(dictionary, key, &i), ZM_ERR_WRONG_TYPE);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
}

TEST_F(DictionarySuiteTest, ADictionaryOfItsOwnGoesWithItsLastReference) {
    ZMDictionaryRef dictionary = NewDictionary();
    EXPECT_EQ(runtime.objects.References(dictionary), 1);
    EXPECT_EQ(dictionaries->AddRef(dictionary), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(dictionary), 2);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(dictionary), 1);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
    EXPECT_EQ(runtime.objects.References(dictionary), 0);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->AddRef(dictionary), ZM_ERR_BAD_ARGUMENT);
}

TEST_F(DictionarySuiteTest, HandlesTheHostDidNotMakeAndMissingArgumentsAreRefused) {
    ZMDictionaryRef dictionary = NewDictionary();
    auto foreignDictionary = zm::test::ForeignHandle<ZMDictionaryRef>();
    auto foreignKey = zm::test::ForeignHandle<ZMDictKey>();
    ZMDictKey key = Key("k");
    ZMBool b = 0;
    int32_t i = 0;
    EXPECT_EQ(dictionaries->NewDictionary(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->AddRef(nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->Release(foreignDictionary), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->IsKnown(foreignDictionary, key, &b), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->IsKnown(dictionary, foreignKey, &b), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->IsKnown(dictionary, key, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->CountEntries(dictionary, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->SetIntegerEntry(dictionary, nullptr, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->SetBooleanEntry(foreignDictionary, key, 1), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->SetIntegerEntry(dictionary, key, 1), ZM_ERR_NONE);
    EXPECT_EQ(dictionaries->GetIntegerEntry(dictionary, key, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->GetIntegerEntry(dictionary, foreignKey, &i), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->GetStringEntry(dictionary, key, nullptr), ZM_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dictionaries->Release(dictionary), ZM_ERR_NONE);
}

}  // namespace
}  // namespace zm::host
