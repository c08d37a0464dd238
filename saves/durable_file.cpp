#include "saves/durable_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace fs = std::filesystem;

namespace {

// A draft's name has the number of the process and a count between the prefix and this, so that two running games never write the same
// draft. A program that was interrupted leaves its draft behind.
constexpr std::string_view DraftSuffix = ".tmp";

[[noreturn]] void Fail() {
    throw std::system_error(errno, std::generic_category());
}

class OpenFile {
public:
    OpenFile(const fs::path& path, int flags) : descriptor(::open(path.c_str(), flags | O_CLOEXEC, 0666)) {
        if (descriptor < 0) Fail();
    }
    OpenFile(OpenFile&& other) noexcept : descriptor(std::exchange(other.descriptor, -1)) {}
    OpenFile& operator=(OpenFile&&) = delete;
    ~OpenFile() {
        if (descriptor >= 0) ::close(descriptor);
    }

    // False when another process holds the lock. The lock lasts until the file is closed, by the end of the process at the latest. On a
    // file system without locks this is true, because nobody can hold one.
    bool Lock() { return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK; }

    bool IsAt(const fs::path& path) const {
        struct stat mine, there;
        return ::fstat(descriptor, &mine) == 0 && ::lstat(path.c_str(), &there) == 0 && mine.st_dev == there.st_dev &&
               mine.st_ino == there.st_ino;
    }

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

// The lock on a draft tells other games that its writer is still alive. The draft is removed in the end unless it has taken the place of
// the real file.
class Draft {
public:
    explicit Draft(const fs::path& folder) : file(Make(folder)) {}
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
    OpenFile Make(const fs::path& folder) {
        constexpr int MostTries = 100;
        for (int count = 0;; ++count) {
            path = folder / (std::string(DraftPrefix) + std::to_string(::getpid()) + '-' + std::to_string(count).append(DraftSuffix));
            try {
                OpenFile made(path, O_WRONLY | O_CREAT | O_EXCL);
                // Another game may have swept the draft after it was made and before it was locked.
                if (made.Lock() && made.IsAt(path)) return made;
            } catch (const std::system_error& error) {
                // A draft of this name is there already when two games share the folder and, in containers of their own, a number.
                if (error.code() != std::errc::file_exists || count >= MostTries) throw;
            }
        }
    }

    fs::path path;
    OpenFile file;
};

void SweepDrafts(const fs::path& folder) {
    for (const std::string& name : FilesIn(folder)) {
        if (!name.starts_with(DraftPrefix) || !name.ends_with(DraftSuffix)) continue;
        const fs::path path = folder / name;
        try {
            OpenFile draft(path, O_RDONLY | O_NOFOLLOW);
            if (draft.Lock() && draft.IsAt(path)) ::unlink(path.c_str());
        } catch (const std::system_error&) {
            // The draft has gone meanwhile, or it belongs to another user and stays.
        }
    }
}

}  // namespace

void ReplaceFile(const fs::path& file, std::span<const std::uint8_t> bytes) {
    const fs::path path = file.parent_path();
    SweepDrafts(path);
    OpenFile folder(path, O_RDONLY | O_DIRECTORY);  // before the draft, because opening may fail, and the old file must then still be there
    Draft draft(path);
    draft.Write(bytes);
    draft.TakePlaceOf(file);
    folder.Flush();
}

void MakeFolder(const fs::path& folder) {
    if (fs::create_directories(folder)) OpenFile(folder.parent_path(), O_RDONLY | O_DIRECTORY).Flush();
}

std::vector<std::string> FilesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        std::error_code unreadable;
        if (entry.is_regular_file(unreadable)) names.push_back(entry.path().filename().string());
    }
    return names;
}
