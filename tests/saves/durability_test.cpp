// Whatever happens to the program, the disk or the folder while a game is saved: the old game or the new one is there, whole.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "tests/saves/saved_games.h"

namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

// Writing stops after so many bytes, as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{.rlim_cur = bytes, .rlim_max = before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }

private:
    rlimit before{};
    decltype(SIG_DFL) handler = std::signal(SIGXFSZ, SIG_IGN);
};

// Makes the folder read-only and, because permissions do not hold root back, the test another user.
class ReadOnly {
public:
    explicit ReadOnly(const fs::path& locked) : folder(locked) {
        fs::permissions(folder.parent_path().parent_path(), fs::perms{0755});
        fs::permissions(folder, fs::perms{0555});
        EXPECT_EQ(::seteuid(::getuid() == 0 ? 65534 : ::getuid()), 0);
    }
    ~ReadOnly() {
        EXPECT_EQ(::seteuid(::getuid()), 0);
        fs::permissions(folder, fs::perms{0755});
    }

private:
    fs::path folder;
};

// Saves two games of different lengths under one name, in turns and for ever.
[[noreturn]] void SaveWithoutEnd(SavedGames& play, int started) noexcept {
    for (;;) {
        for (const std::size_t items : {0u, 3000u}) {
            play.game.state.Sectors[4].Items.assign(items, 15);
            SaveGame(play.game, "hra");
            if (::write(started, "!", 1) != 1) ::_exit(1);
        }
    }
}

TEST(Durability, KeepsAWholeGameThroughAKillAtAnyMoment) {
    SavedGames play;
    std::vector<Bytes> games;
    for (const std::size_t items : {0u, 3000u}) {
        play.game.state.Sectors[4].Items.assign(items, 15);
        games.push_back(EncodeSave(play.game.state, "hra", {.Name = 50, .DoorCode = 50}));
    }
    std::mt19937 random(4);
    int drafts = 0;
    const char* const wish = std::getenv("ORVEL_KILLS");
    for (int kills = wish != nullptr ? std::atoi(wish) : 300; kills > 0; --kills) {
        int pipe[2];
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t child = ::fork();
        if (child == 0) SaveWithoutEnd(play, pipe[1]);
        char firstIsThere = 0;
        ASSERT_EQ(::read(pipe[0], &firstIsThere, 1), 1);
        const timespec moment{.tv_sec = 0, .tv_nsec = static_cast<long>(random() % 3'000'000)};
        ::ppoll(nullptr, 0, &moment, nullptr);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(pipe[0]);
        ::close(pipe[1]);
        const auto files = std::distance(fs::directory_iterator(play.Folder()), {});
        ASSERT_LE(files, 2);  // no save leaves behind more than it sweeps
        drafts += files == 2;
        ASSERT_THAT(play.FileBytes("hra.TVX"), testing::AnyOfArray(games));
        ASSERT_THAT(play.Listed(), ElementsAre("hra"));
    }
    std::cout << drafts << " kills came while a draft was on the disk\n";
    EXPECT_GT(drafts, 0);

    EXPECT_EQ(play.Save("hra"), "");
    EXPECT_EQ(std::distance(fs::directory_iterator(play.Folder()), {}), 1);
}

TEST(Durability, LetsTwoGamesSaveIntoOneFolder) {
    SavedGames play;
    // Drafts that games left behind: one with this test's process number, one with the number of another program that runs now.
    for (const pid_t number : {::getpid(), 1}) play.Put(".saving-" + std::to_string(number) + "-0.tmp", {1});
    const pid_t other = ::fork();
    if (other == 0) SaveWithoutEnd(play, ::open("/dev/null", O_WRONLY));
    int failed = 0;
    for (int save = 0; save < 300; ++save) failed += !play.Save("jiná").empty();
    ::kill(other, SIGKILL);
    int how = 0;
    ::waitpid(other, &how, 0);
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(WTERMSIG(how), SIGKILL) << "the other game could not save";
    EXPECT_EQ(play.Save("jiná"), "");
    EXPECT_EQ(std::distance(fs::directory_iterator(play.Folder()), {}), 2);
}

// Saves while the obstacle is there. Afterwards only the old game must be there, and a second try must succeed.
template <typename Obstacle, typename... Arguments>
void ExpectRefusal(const std::string& reason, const Arguments&... arguments) {
    SavedGames play;
    play.Save("hra");
    const Bytes old = play.FileBytes("hra.TVX");
    play.game.state.DoorCode = "4711305";
    {
        const Obstacle obstacle(arguments...);
        EXPECT_THAT(play.Save("hra"), HasSubstr(reason));
        EXPECT_THAT(play.Save("nová"), HasSubstr(reason));
    }
    EXPECT_EQ(play.FileBytes("hra.TVX"), old);
    EXPECT_EQ(std::distance(fs::directory_iterator(play.Folder()), {}), 1);
    EXPECT_TRUE(play.desktop.Running());
    EXPECT_EQ(play.Save("hra"), "");
    EXPECT_NE(play.FileBytes("hra.TVX"), old);
}

TEST(Durability, KeepsTheOldGameOnAFullDisk) {
    for (const rlim_t bytes : {0u, 1u, 200u, 405u}) ExpectRefusal<FullDisk>("není dost místa", bytes);
}

TEST(Durability, SaysThatTheFolderIsReadOnlyAndStillLoadsFromIt) {
    SavedGames play;
    play.Save("hra");
    const Bytes old = play.FileBytes("hra.TVX");
    play.game.state.DoorCode = "4711305";
    {
        const ReadOnly folder(play.Folder());
        EXPECT_THAT(play.Listed(), ElementsAre("hra"));
        EXPECT_THAT(play.Save("hra"), HasSubstr("jen pro čtení"));
        EXPECT_EQ(play.Load("hra"), "");
    }
    EXPECT_EQ(play.FileBytes("hra.TVX"), old);
    EXPECT_EQ(play.game.state.DoorCode, "");
}

TEST(Durability, SaysThatAFileLiesWhereTheFolderShouldBe) {
    SavedGames play;
    fs::remove(play.Folder());
    std::ofstream(play.Folder()) << "cizí soubor";
    EXPECT_THAT(play.Told([&] { SaveNames(play.game); }), HasSubstr("leží soubor"));
    EXPECT_THAT(play.Save("hra"), HasSubstr("leží soubor"));
    EXPECT_EQ(fs::file_size(play.Folder()), 12u);
    fs::remove(play.Folder());
    EXPECT_EQ(play.Save("hra"), "");
}

TEST(Durability, LeavesAFolderWithTheNameOfAGameAlone) {
    SavedGames play;
    fs::create_directory(play.Folder() / "hra.TVX");
    EXPECT_THAT(play.Save("hra"), HasSubstr("nemůže"));
    EXPECT_TRUE(fs::is_directory(play.Folder() / "hra.TVX"));
    EXPECT_EQ(std::distance(fs::directory_iterator(play.Folder()), {}), 1);
}

TEST(Durability, ReplacesALinkAndNotWhatItLeadsTo) {
    SavedGames play;
    const fs::path outside = play.game.state.AppPath / "outside";
    std::ofstream(outside) << "cizí soubor";
    fs::create_symlink(outside, play.Folder() / "hra.TVX");
    EXPECT_EQ(play.Save("hra"), "");
    EXPECT_EQ(fs::file_size(outside), 12u);
    EXPECT_EQ(play.Load("hra"), "");
}

}  // namespace
