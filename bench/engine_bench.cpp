// The engine without a screen: turns, views, replies, texts, saved games and a whole game from a script.
// Turns that leave the game as it was are measured over and over on one game; the output box fills and is emptied as in real play.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/replay_script.h"
#include "app/start_up.h"
#include "core/room_view.h"
#include "core/stages.h"
#include "core/verbs.h"
#include "saves/save_files.h"
#include "ui/input.h"

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;

struct ProgramFolder {
    ProgramFolder() {
        std::string name = fs::temp_directory_path() / "orvel-XXXXXX";
        Path = ::mkdtemp(name.data());
        fs::create_directories(Path / "data" / "saves");
        fs::create_symlink(ORVEL_TEXTS_FILE, Path / "data" / "texs.dat");
    }
    ~ProgramFolder() { fs::remove_all(Path); }
    fs::path Path;
};

struct RunningGame {
    RunningGame() {
        Main(game, folder.Path);
        Run();
        Run();
    }

    void Run() { desktop.PressKey(form.Window, form.Text2, ui::key::Enter); }

    void Choose(ui::ListBox& list, std::string_view entry) {
        const auto found = std::ranges::find(list.Entries(), entry);
        if (found == list.Entries().end()) std::abort();
        desktop.ClickEntry(form.Window, list, static_cast<int>(found - list.Entries().begin()));
    }

    void Turn(std::string_view verb) {
        Choose(form.List2[0], verb);
        Run();
    }

    void Turn(std::string_view verb, std::string_view object) {
        Choose(form.List2[0], verb);
        Choose(verb == "Polož" ? form.List1 : form.List2[1], object);
        Run();
    }

    void Turn(std::string_view verb, std::string_view object, std::string_view target) {
        Choose(form.List2[0], verb);
        Choose(form.List2[1], object);
        Choose(form.List2[2], target);
        Run();
    }

    void FillOutput(int lines) {
        std::string text = "Jsi ve své kajutě.";
        while (lines-- > 1) text += "\r\nMůžeš jít na sever, jih.";
        form.Text1.SetText(text);
        form.Text1.MoveCaretToEnd();
    }

    ProgramFolder folder;
    ui::Windows windows;
    ui::MemoryDesktop desktop{windows};
    Game game{windows, desktop, [] { return 0.5; }};
    ui::MainWindow& form = windows.Form1;
};

// Two turns that undo each other, or one that changes nothing.
template <typename Turns>
void MeasureTurns(benchmark::State& measured, int count, Turns turns) {
    RunningGame game;
    for (auto _ : measured) turns(game);
    measured.SetItemsProcessed(measured.iterations() * count);
}

void GoThereAndBack(benchmark::State& measured) {
    RunningGame game;
    StandIn(game.game.state, sector::Crossing);
    for (auto _ : measured) {
        game.Turn("Jdi", "na západ");
        game.Turn("Jdi", "na východ");
    }
    measured.SetItemsProcessed(measured.iterations() * 2);
}

void ViewRedrawn(benchmark::State& measured) {
    RunningGame game;
    StandIn(game.game.state, sector::Laboratory);
    for (auto _ : measured) DescribeSector(game.game, sector::Laboratory, Output::Replace);
}

// A whole turn whose answer is short, so that what the box holds already is what counts.
void ReplyIntoLines(benchmark::State& measured) {
    RunningGame game;
    for (auto _ : measured) {
        game.FillOutput(static_cast<int>(measured.range(0)));
        const auto start = Clock::now();
        game.Turn("Verze");
        measured.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
}

void DecodeTexts(benchmark::State& measured) {
    const ProgramFolder folder;
    for (auto _ : measured) benchmark::DoNotOptimize(PrepareTextStore(folder.Path));
}

void SaveToDisk(benchmark::State& measured) {
    RunningGame game;
    for (auto _ : measured) SaveGame(game.game, "Hra 1");
}

void LoadFromDisk(benchmark::State& measured) {
    RunningGame game;
    SaveGame(game.game, "Hra 1");
    for (auto _ : measured) LoadGame(game.game, "Hra 1");
}

// A program that finds nothing to read, beside one that does nothing at all.
void StartToExit(benchmark::State& measured, std::string program, std::string folder) {
    std::array<char*, 3> arguments{program.data(), folder.data(), nullptr};
    posix_spawn_file_actions_t nothingToRead{};
    posix_spawn_file_actions_init(&nothingToRead);
    posix_spawn_file_actions_addopen(&nothingToRead, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    for (auto _ : measured) {
        pid_t child = 0;
        int status = -1;
        if (posix_spawn(&child, program.c_str(), &nothingToRead, nullptr, arguments.data(), environ) == 0) waitpid(child, &status, 0);
        if (status != 0) measured.SkipWithError("did not run to its end");
    }
    posix_spawn_file_actions_destroy(&nothingToRead);
}

struct Line {
    std::string Text;
    double Microseconds;  // the fastest of all rounds
};

bool RunsACommand(std::string_view line) {
    return line == "key Form1.Text2 Enter" || line == "key Form2.Text2 Enter" || line == "key Form3.Text1 Enter";
}

double Microseconds(Clock::duration time) {
    return std::chrono::duration<double, std::micro>(time).count();
}

// Plays the script once and notes how long each line took, panels included, from reading it to reading the next. Returns their sum.
double PlayScript(const std::string& script, std::vector<Line>& lines) {
    const ProgramFolder folder;
    ui::Windows windows;
    ui::MemoryDesktop desktop(windows);
    ScriptedRandom random([] { return 0.5; });
    Game game(windows, desktop, [&] { return random.Draw(); });
    Main(game, folder.Path);
    std::istringstream input(script);
    std::ostringstream output;
    ReplayScript player(game, desktop, random, input, output);
    std::vector<Clock::time_point> read;
    read.reserve(lines.size() + 2);
    const auto playNext = [&] {
        read.push_back(Clock::now());
        return player.PlayNextLine();
    };
    desktop.NextEvent = playNext;
    while (desktop.Running() && playNext()) continue;
    read.push_back(Clock::now());
    if (desktop.Running() || !output.str().empty()) std::abort();
    for (std::size_t i = 0; i < lines.size() && i + 1 < read.size(); ++i) {
        lines[i].Microseconds = std::min(lines[i].Microseconds, Microseconds(read[i + 1] - read[i]));
    }
    return Microseconds(read.back() - read.front());
}

// The winning game. A command's time is that of all events since the one before, parsing of the script included: on average in the median
// round, and for the slowest command in its own fastest round, since every round has one that the machine interrupts.
void WinningGame(benchmark::State& measured) {
    std::vector<Line> lines;
    std::string script;
    std::ifstream file(ORVEL_SOURCE_FOLDER "/tests/walkthroughs/winning_game.replay");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.starts_with('#') || line == "show" || line == "state") continue;
        lines.push_back({.Text = line, .Microseconds = 1e9});
        script.append(line).append("\n");
    }
    std::vector<double> rounds;
    for (auto _ : measured) rounds.push_back(PlayScript(script, lines));
    std::ranges::sort(rounds);

    double slowest = 0, current = 0;
    int commands = 0;
    for (const Line& line : lines) {
        current += line.Microseconds;
        if (!RunsACommand(line.Text)) continue;
        slowest = std::max(slowest, current);
        current = 0;
        ++commands;
    }
    measured.counters["commands"] = commands;
    measured.counters["us_a_command"] = rounds[rounds.size() / 2] / commands;
    measured.counters["us_slowest"] = slowest;
}

}  // namespace

BENCHMARK(GoThereAndBack)->Name("turn/Jdi");
BENCHMARK_CAPTURE(MeasureTurns, examine, 1, [](RunningGame& game) { game.Turn("Prozkoumej", "okno"); })->Name("turn/Prozkoumej");
BENCHMARK_CAPTURE(MeasureTurns, use, 1, [](RunningGame& game) { game.Turn("Použij", "nářadí", "sebe"); })->Name("turn/Použij");
BENCHMARK_CAPTURE(MeasureTurns, carry, 2, [](RunningGame& game) {
    game.Turn("Vezmi", "nářadí");
    game.Turn("Polož", "nářadí");
})->Name("turn/Vezmi+Polož");
BENCHMARK_CAPTURE(MeasureTurns, doors, 2, [](RunningGame& game) {
    game.Turn("Otevři", "dveře do koupelny");
    game.Turn("Zavři", "dveře do koupelny");
})->Name("turn/Otevři+Zavři");
BENCHMARK_CAPTURE(MeasureTurns, talk, 1, [](RunningGame& game) { game.Turn("Oslov", "okno"); })->Name("turn/Oslov");
BENCHMARK_CAPTURE(MeasureTurns, clear, 1, [](RunningGame& game) { game.Turn("Vymaž"); })->Name("turn/Vymaž");
BENCHMARK_CAPTURE(MeasureTurns, version, 1, [](RunningGame& game) { game.Turn("Verze"); })->Name("turn/Verze");
BENCHMARK(ViewRedrawn);
BENCHMARK(ReplyIntoLines)->Arg(10)->Arg(1990)->UseManualTime();
BENCHMARK(DecodeTexts)->Unit(benchmark::kMicrosecond);
BENCHMARK(SaveToDisk)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadFromDisk)->Unit(benchmark::kMicrosecond);
BENCHMARK(WinningGame)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(StartToExit, replay, ORVEL_REPLAY, ORVEL_PROGRAM_FOLDER)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StartToExit, true, "/bin/true", "")->UseRealTime()->Unit(benchmark::kMillisecond);
