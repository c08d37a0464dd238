// A game over the desktop without a screen, with the real texts and a program folder of its own, and what its player can do there.
// Each of the player's functions clicks the real lists and presses Enter; what no player could do fails the test.
#pragma once

#include <gmock/gmock.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/game.h"
#include "ui/memory_desktop.h"

class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path Path;
};

// Fails the test when a message box has told an exception that nobody foresaw. The desktop itself tells it and plays on.
void ExpectNoFaults(ui::MemoryDesktop& desktop);

class Play {
public:
    Play();  // at the title
    ~Play() { ExpectNoFaults(desktop); }
    Play(const Play&) = delete;
    Play& operator=(const Play&) = delete;

    // In the middle of the story; the carried things are taken from where they lie.
    static Play In(std::int16_t sector, std::initializer_list<Item> carried = {}) { return {sector, carried}; }
    static Play InCabin(std::initializer_list<Item> carried = {}) { return In(sector::Cabin, carried); }

    // What the player does.
    Play& Proceed();  // Enter in the command line
    Play& Go(std::string_view direction);
    Play& Use(Item item, Item target);
    Play& Take(Item item);
    Play& Put(Item item);
    Play& Open(Item item);
    void Clear();
    void Choose(std::int16_t verb);  // without Enter
    void ChooseObject(Item item);    // one that the player sees or carries
    void ChooseTarget(Item target);

    // What the player will type into the next panel, a line and Enter each; "Cancel" leaves the keypad.
    void InPanel(const std::vector<std::string>& typed) { lines.assign(typed.begin(), typed.end()); }
    void Draws(std::initializer_list<double> numbers) { drawn.assign(numbers); }

    // What the last command appended to the output box, or all that it holds when the command replaced it: its paragraphs, the last of
    // them, and the numbers of its story texts; a view has the number of its sector, any other message counts as 0.
    std::vector<std::string> Said() const;
    std::string LastSaid() const;
    std::vector<int> Told() const;

    bool Sees(Item item) const;
    bool Carries(Item item) const;
    const std::string& Output() const { return Form1().Text1.Text(); }
    std::string View();  // of the current sector, which clears the output box
    std::string Text(TextNumber number) const { return std::string(game.texts.Text(number).value()); }
    bool Ended() const { return !desktop.Running(); }

    void Place(Item item, std::int16_t sector);  // moves it there from wherever it is
    GameState& State() { return game.state; }
    Game& TheGame() { return game; }
    ui::MainWindow& Form1() { return windows.Form1; }
    const ui::MainWindow& Form1() const { return windows.Form1; }
    ui::Windows& Windows() { return windows; }
    ui::MemoryDesktop& Desktop() { return desktop; }
    const std::filesystem::path& Folder() const { return folder.Path; }

    // Single events, which fail the test when the desktop refuses them.
    void Click(const ui::Form& form, ui::ListBox& list, int index);
    void Type(const ui::Form& form, ui::TextBox& box, std::string_view characters);
    void Press(const ui::Form& form, ui::TextBox& box, char32_t key);

private:
    Play(std::int16_t sector, std::initializer_list<Item> carried);

    Play& Run(std::int16_t verb, Item item);
    bool PlayNextLine();

    TemporaryFolder folder;
    ui::Windows windows;
    ui::MemoryDesktop desktop{windows};
    std::deque<double> drawn;
    std::deque<std::string> lines;
    Game game;
    std::size_t said = 0;            // how much the output box held before the last command
    std::uint64_t replacements = 0;  // and how often it had been replaced
};
