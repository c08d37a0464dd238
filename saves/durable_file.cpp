#include "saves/durable_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

namespace fs = std::filesystem;

namespace {

// The name of a file that is being written; a program that was interrupted leaves it behind. Between the two stands the number of the
// process, so that two running games never write the same one.
constexpr std::string_view DraftPrefix = ".saving-";
constexpr std::string_view DraftSuffix = ".tmp";

[[noreturn]] void Fail() {
    throw std::system_error(errno, std::generic_category());
}

class OpenFile {
public:
    OpenFile(const fs::path& path, int flags) : descriptor(::open(path.c_str(), flags | O_CLOEXEC, 0666)) {
        if (descriptor < 0) Fail();
    }
    ~OpenFile() { ::close(descriptor); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    void Write(std::span<const std::uint8_t> bytes) {
        while (!bytes.empty()) {
            const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
            if (written >= 0) {
                bytes = bytes.subspan(static_cast<std::size_t>(written));
            } else if (errno != EINTR) {
                Fail();
            }
        }
    }

    void Flush() {
        // EINVAL: this file system has nothing to flush.
        if (::fsync(descriptor) != 0 && errno != EINVAL) Fail();
    }

private:
    int descriptor;
};

// Vanishes unless it takes the place of the real file.
class Draft {
public:
    explicit Draft(const fs::path& folder)
        : path(folder / (std::string(DraftPrefix) + std::to_string(::getpid()).append(DraftSuffix))),
          file(path, O_WRONLY | O_CREAT | O_EXCL) {}
    ~Draft() {
        if (!path.empty()) ::unlink(path.c_str());
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    void Write(std::span<const std::uint8_t> bytes) {
        file.Write(bytes);
        file.Flush();
    }

    void TakePlaceOf(const fs::path& real) {
        if (::rename(path.c_str(), real.c_str()) != 0) Fail();
        path.clear();
    }

private:
    fs::path path;
    OpenFile file;
};

void FlushFolder(const fs::path& folder) {
    OpenFile(folder, O_RDONLY | O_DIRECTORY).Flush();
}

void SweepDrafts(const fs::path& folder) {
    for (const std::string& name : FilesIn(folder)) {
        if (name.starts_with(DraftPrefix) && name.ends_with(DraftSuffix)) ::unlink((folder / name).c_str());
    }
}

}  // namespace

void ReplaceFile(const fs::path& file, std::span<const std::uint8_t> bytes) {
    const fs::path folder = file.parent_path();
    SweepDrafts(folder);
    Draft draft(folder);
    draft.Write(bytes);
    draft.TakePlaceOf(file);
    FlushFolder(folder);
}

void MakeFolder(const fs::path& folder) {
    if (fs::create_directories(folder)) FlushFolder(folder.parent_path());
}

std::vector<std::string> FilesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        std::error_code unreadable;
        if (entry.is_regular_file(unreadable)) names.push_back(entry.path().filename().string());
    }
    return names;
}
