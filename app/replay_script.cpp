#include "app/replay_script.h"

#include <algorithm>
#include <charconv>
#include <iostream>
#include <optional>

#include "app/replay_report.h"
#include "text/characters.h"
#include "ui/input.h"

namespace {

constexpr const char* UnknownControl = "there is no such control";
constexpr const char* UnknownForm = "there is no such form";

// Cuts off the first word and the one blank behind it.
std::string_view TakeWord(std::string_view& line) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

template <typename Number>
std::optional<Number> ParseNumber(std::string_view word) {
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
    return number;
}

ui::Form* FindForm(const ui::Windows& windows, std::string_view name) {
    const auto form = std::ranges::find_if(windows.All, [&](const ui::Form* each) { return each->Layout.Name == name; });
    return form == windows.All.end() ? nullptr : *form;
}

struct FoundControl {
    ui::Form* Form;
    ui::Control Control;
};

std::optional<FoundControl> FindControl(const ui::Windows& windows, std::string_view name) {
    const std::size_t dot = std::min(name.find('.'), name.size());
    ui::Form* form = FindForm(windows, name.substr(0, dot));
    if (form == nullptr || dot == name.size()) return std::nullopt;
    const auto control =
        std::ranges::find_if(form->Controls, [&](const ui::Control& each) { return ui::LayoutOf(each).Name == name.substr(dot + 1); });
    if (control == form->Controls.end()) return std::nullopt;
    return FoundControl{form, *control};
}

struct FoundBox {
    ui::Form* Form;
    ui::TextBox* Box;
};

std::optional<FoundBox> FindTextBox(const ui::Windows& windows, std::string_view name) {
    const auto found = FindControl(windows, name);
    if (!found || !std::holds_alternative<ui::TextBox*>(found->Control)) return std::nullopt;
    return FoundBox{found->Form, std::get<ui::TextBox*>(found->Control)};
}

std::optional<char32_t> ParseKey(std::string_view name) {
    if (name == "Enter") return ui::key::Enter;
    if (name == "Escape") return ui::key::Escape;
    if (name == "Backspace") return ui::key::Backspace;
    if (text::CharCount(name) != 1) return std::nullopt;
    return text::TakeCharacter(name);
}

}  // namespace

double ScriptedRandom::Draw() {
    if (queued.empty()) return after();
    const double number = queued.front();
    queued.pop_front();
    return number;
}

ReplayScript::Refusal ReplayScript::Click(std::string_view arguments) {
    const auto found = FindControl(game.windows, TakeWord(arguments));
    if (!found) return UnknownControl;
    if (auto* const* label = std::get_if<ui::Label*>(&found->Control)) return desktop.ClickLabel(*found->Form, **label);
    auto* const* list = std::get_if<ui::ListBox*>(&found->Control);
    if (list == nullptr) return "a text box has no click event";
    const auto& entries = (*list)->Entries();
    const auto index = ParseNumber<int>(arguments).value_or(static_cast<int>(std::ranges::find(entries, arguments) - entries.begin()));
    return desktop.ClickEntry(*found->Form, **list, index);
}

ReplayScript::Refusal ReplayScript::PressKey(std::string_view arguments) {
    const auto found = FindTextBox(game.windows, TakeWord(arguments));
    if (!found) return UnknownControl;
    const auto key = ParseKey(arguments);
    if (!key) return "there is no such key";
    return desktop.PressKey(*found->Form, *found->Box, *key);
}

ReplayScript::Refusal ReplayScript::Type(std::string_view arguments) {
    const auto found = FindTextBox(game.windows, TakeWord(arguments));
    if (!found) return UnknownControl;
    while (!arguments.empty()) {
        if (auto refusal = desktop.PressKey(*found->Form, *found->Box, text::TakeCharacter(arguments))) return refusal;
    }
    return std::nullopt;
}

ReplayScript::Refusal ReplayScript::Focus(std::string_view arguments) {
    if (ui::Form* form = FindForm(game.windows, arguments)) return desktop.Focus(*form);
    const auto found = FindControl(game.windows, arguments);
    if (!found) return UnknownControl;
    return desktop.Focus(*found->Form, found->Control);
}

ReplayScript::Refusal ReplayScript::Close(std::string_view arguments) {
    ui::Form* form = FindForm(game.windows, arguments);
    if (form == nullptr) return UnknownForm;
    return desktop.Close(*form);
}

ReplayScript::Refusal ReplayScript::QueueRandom(std::string_view arguments) {
    std::vector<double> numbers;
    while (!arguments.empty()) {
        const std::string_view word = TakeWord(arguments);
        if (word.empty()) continue;
        const auto number = ParseNumber<double>(word);
        if (!number || !(*number >= 0 && *number < 1)) return "a random number lies in [0, 1)";
        numbers.push_back(*number);
    }
    for (const double number : numbers) random.Queue(number);
    return std::nullopt;
}

ReplayScript::Refusal ReplayScript::Play(std::string_view line) {
    const std::string_view event = TakeWord(line);
    if (event == "click") return Click(line);
    if (event == "key") return PressKey(line);
    if (event == "type") return Type(line);
    if (event == "focus") return Focus(line);
    if (event == "close") return Close(line);
    if (event == "random") return QueueRandom(line);
    return "there is no such event";
}

void ReplayScript::Print(const std::string& report) {
    output << report << '\n' << std::flush;
}

bool ReplayScript::PlayNextLine() {
    std::string line;
    if (!std::getline(input, line)) return false;
    if (line.ends_with('\r')) line.pop_back();
    if (line.empty() || line.starts_with('#')) return true;
    if (line == "show") {
        Print(ShowReport(game, desktop));
    } else if (line == "state") {
        Print(StateReport(game.state));
    } else if (const Refusal refusal = Play(line)) {
        Print(RefusalReport(*refusal));
    }
    return true;
}
