#include "fonts/CodePageScript.hpp"

#include <array>

namespace zm::host::fonts {

namespace {

struct CodePageBit {
    int bit;  // in ulCodePageRange1
    int32_t script;
};

// Most specific first.
constexpr std::array<CodePageBit, 9> kCodePages = {{
    {17, 1},   // 932 Japanese
    {20, 2},   // 950 Traditional Chinese
    {19, 3},   // 949 Korean Wansung
    {21, 3},   // 1361 Korean Johab
    {18, 25},  // 936 Simplified Chinese
    {0, 0},    // 1252 Latin 1
    {1, 29},   // 1250 Latin 2, Central European
    {2, 7},    // 1251 Cyrillic
    {31, 32},  // Symbol character set
}};

}  // namespace

int32_t ScriptFromCodePages(uint32_t codePageRange1) {
    for (const CodePageBit& codePage : kCodePages) {
        if ((codePageRange1 >> codePage.bit) & 1U) {
            return codePage.script;
        }
    }
    return -1;
}

}  // namespace zm::host::fonts
