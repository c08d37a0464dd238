// The event language of the headless player: one event a line, carried out on the desktop without a screen.
// `click FORM.LIST` names an entry by its index from 0 or by its text, of which the first entry counts; a number is always an index.
#pragma once

#include <deque>
#include <iosfwd>
#include <string_view>

#include "core/game.h"
#include "ui/memory_desktop.h"

// Random numbers that a script has asked for, then those of another source.
class ScriptedRandom {
public:
    explicit ScriptedRandom(RandomSource source) : after(std::move(source)) {}
    double Draw();
    void Queue(double number) { queued.push_back(number); }

private:
    std::deque<double> queued;
    RandomSource after;
};

class ReplayScript {
public:
    ReplayScript(Game& playedGame, ui::MemoryDesktop& playedOn, ScriptedRandom& numbers, std::istream& events, std::ostream& answers)
        : game(playedGame), desktop(playedOn), random(numbers), input(events), output(answers) {}

    // Carries out the next line, which may be a comment; false at the end of the input. What it prints is flushed.
    bool PlayNextLine();

private:
    using Refusal = ui::MemoryDesktop::Refusal;

    Refusal Play(std::string_view line);
    Refusal Click(std::string_view arguments);
    Refusal PressKey(std::string_view arguments);
    Refusal Type(std::string_view arguments);
    Refusal Focus(std::string_view arguments);
    Refusal Close(std::string_view arguments);
    Refusal QueueRandom(std::string_view arguments);
    void Print(const std::string& report);

    Game& game;
    ui::MemoryDesktop& desktop;
    ScriptedRandom& random;
    std::istream& input;
    std::ostream& output;
};
