#include "inventory/ImageWord.hpp"

#include "report/LoadTolvaneString.hpp"

namespace tolvane {

HostString LoadImageWord(const ImageWord& word) {
    return word.key != nullptr ? LoadTolvaneString(word.key)
                               : LoadTolvaneString(ResImage, word.index);
}

}  // namespace tolvane
