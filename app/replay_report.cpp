#include "app/replay_report.h"

#include <nlohmann/json.hpp>

#include "text/characters.h"

namespace {

using Json = nlohmann::ordered_json;

std::string Compact(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json Describe(const ui::TextBox* box) {
    return {{"text", box->Text()},
            {"caret", text::CharCount(std::string_view(box->Text()).substr(0, box->Caret()))},
            {"visible", box->Visible()}};
}

Json Describe(const ui::ListBox* list) {
    return {{"entries", list->Entries()}, {"selected", list->Selected()}};
}

Json Describe(const ui::Label* label) {
    const ui::Colour colour = label->TextColour();
    return {{"caption", label->Caption()}, {"colour", {colour.Red, colour.Green, colour.Blue}}};
}

Json Describe(const ui::Form& form) {
    Json controls = Json::object();
    for (const ui::Control& control : form.Controls) {
        const std::string name(ui::LayoutOf(control).Name);
        controls[name] = std::visit([](const auto* each) { return Describe(each); }, control);
    }
    return {{"visible", form.Visible}, {"controls", controls}};
}

Json NameOrNull(const ui::Form* form) {
    return form == nullptr ? Json() : Json(form->Layout.Name);
}

Json FocusName(const ui::Form* form) {
    if (form == nullptr || !form->Focused) return NameOrNull(form);
    return std::string(form->Layout.Name).append(".").append(ui::LayoutOf(*form->Focused).Name);
}

Json Describe(const SectorRecord& record) {
    return {{"X", record.X},         {"Y", record.Y},         {"Items", record.Items}, {"TextNo", record.TextNo},
            {"North", record.North}, {"South", record.South}, {"West", record.West},   {"East", record.East}};
}

}  // namespace

std::string ShowReport(const Game& game, ui::MemoryDesktop& desktop) {
    Json boxes = Json::array();
    for (const auto& box : desktop.TakeMessageBoxes()) boxes.push_back({{"title", box.Title}, {"text", box.Text}});
    Json forms = Json::object();
    for (const ui::Form* form : game.windows.All) forms[std::string(form->Layout.Name)] = Describe(*form);
    return Compact({{"running", desktop.Running()},
                    {"modal", NameOrNull(desktop.Modal())},
                    {"focus", FocusName(game.windows.Active)},
                    {"messageBoxes", boxes},
                    {"forms", forms}});
}

std::string StateReport(const GameState& state) {
    Json sectors = Json::array();
    for (const SectorRecord& record : state.Sectors.All()) sectors.push_back(Describe(record));
    Json report = {{"PlayerX", state.PlayerX},
                   {"PlayerY", state.PlayerY},
                   {"Inventory", state.Inventory},
                   {"Sectors", sectors},
                   {"CurrentSector", state.CurrentSector},
                   {"TerminalLoggedIn", state.TerminalLoggedIn},
                   {"CommandVerb", state.CommandVerb},
                   {"CommandObject", state.CommandObject},
                   {"CommandTarget", state.CommandTarget},
                   {"GameStage", state.GameStage},
                   {"TerminalMailbox", state.TerminalMailbox},
                   {"GameOver", state.GameOver},
                   {"DoorCode", state.DoorCode}};
    for (const StoryFlag& flag : StoryFlags) report[std::string(flag.Name)] = state.*flag.Value;
    return Compact(report);
}

std::string RefusalReport(const std::string& why) {
    return Compact({{"refused", why}});
}
