#pragma once

#include <zelmora/ZMTypes.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>

namespace zm::host {

enum class DataFilterMode { Read, Write };

// One file data filter. A reading filter reads its file as it is. A writing filter never
// shows a partial file under its target's name: its bytes go to a new file in the target's
// folder, which replaces the target only when the filter is unlinked with error 0 after
// every write succeeded; otherwise, and when the filter goes while still linked, the new
// file is removed and the target is left as it was. Bytes pass as they are, untranslated.
class DataFilter {
public:
    // creator and type are the file's four-character codes; files here carry no such codes,
    // so they are only kept. Nothing touches the disk before Link.
    DataFilter(std::filesystem::path target, DataFilterMode mode, uint32_t creator, uint32_t type);
    ~DataFilter();
    DataFilter(const DataFilter&) = delete;
    DataFilter& operator=(const DataFilter&) = delete;

    const std::filesystem::path& Target() const { return target_; }
    DataFilterMode Mode() const { return mode_; }
    uint32_t Creator() const { return creator_; }
    uint32_t Type() const { return type_; }
    bool Linked() const { return descriptor_ >= 0; }
    // Where a linked writing filter's bytes go until they replace the target; else empty.
    const std::filesystem::path& NewFile() const { return newFile_; }

    // Opens the file to read, or creates the new file beside the target. Throws HostError:
    // ZM_ERR_BAD_ARGUMENT when already linked; reading, ZM_ERR_NOT_FOUND when there is no
    // file and ZM_ERR_FILE_OPEN when it cannot be read; writing, ZM_ERR_FILE_OPEN when the
    // new file cannot be made. A filter whose linking failed stays unlinked.
    void Link();
    // Up to count bytes; fewer only at the end of the file, 0 there. Throws HostError:
    // ZM_ERR_BAD_ARGUMENT unless a linked reading filter, ZM_ERR_FILE_READ when reading fails.
    std::size_t Read(void* buffer, std::size_t count);
    // Throws HostError: ZM_ERR_BAD_ARGUMENT unless a linked writing filter, ZM_ERR_FILE_WRITE
    // when the bytes cannot be written, and again for every write after a failed one: what
    // follows a lost piece is no use.
    void Write(const void* buffer, std::size_t count);
    // Closes the filter; a writing filter replaces its target when error is 0 and every write
    // succeeded. Returns the first failure of the writes, else that of replacing the target
    // (ZM_ERR_FILE_WRITE), else 0. Throws HostError(ZM_ERR_BAD_ARGUMENT) when not linked.
    ZMErr Unlink(ZMErr error);

private:
    ZMErr Commit();
    void Discard() noexcept;

    std::filesystem::path target_;
    DataFilterMode mode_;
    uint32_t creator_;
    uint32_t type_;
    int descriptor_ = -1;
    std::filesystem::path newFile_;
    ZMErr writeFailure_ = ZM_ERR_NONE;
};

}  // namespace zm::host
