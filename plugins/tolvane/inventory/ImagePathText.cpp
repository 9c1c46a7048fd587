#include "inventory/ImagePathText.hpp"

#include "report/LoadTolvaneString.hpp"
#include "shell/SuiteSet.hpp"

namespace tolvane {

ZMErr ImagePathText(ZMFilePath file, HostString& text) {
    HostString path = HostString::Empty();
    const bool shown = sFilePathSuite->GetDisplayString(file, ZM_FILE_PATH_DISPLAY_FULL,
                                                        path.Get()) == ZM_ERR_NONE;
    if (shown && path.Length() > 0) {
        text.Append(path);
    } else {
        text.Append(LoadTolvaneString(ResImage, kImageUnknown));
    }
    return ZM_ERR_NONE;
}

}  // namespace tolvane
