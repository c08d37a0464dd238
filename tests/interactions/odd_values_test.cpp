// Plays each row of odd_values.txt in a game in which every flag has a value that is neither True nor False nor a stage.
#include <algorithm>
#include <fstream>

#include "core/carrying.h"
#include "core/verbs.h"
#include "tests/play.h"

namespace {

constexpr std::int16_t Odd = 7;

std::vector<std::string> Split(std::string_view line, std::string_view by) {
    std::vector<std::string> parts;
    for (std::size_t end = 0; end != line.npos; line.remove_prefix(std::min(line.size(), end + by.size()))) {
        end = line.find(by);
        parts.emplace_back(line.substr(0, end));
    }
    return parts;
}

Item ItemOf(const std::string& cell) {
    const Item item{static_cast<std::int16_t>(std::stoi(cell))};
    EXPECT_EQ(cell, std::to_string(NumberOf(item)).append(" ").append(ItemName(item)));
    return item;
}

class Row {
public:
    explicit Row(const std::string& row) : cells(Split(row, " | ")) {
        for (const std::string& condition : Split(cells[3], ", ")) {
            const auto flag = std::ranges::find(StoryFlags, condition.substr(0, condition.find(' ')), &StoryFlag::Name);
            if (flag != StoryFlags.end()) conditions.emplace_back(flag->Value, std::stoi(condition.substr(flag->Name.size())));
        }
    }

    std::size_t Conditions() const { return conditions.size(); }

    // Whether the reply comes when all conditions hold but the one of that index. With the number of conditions as index, all hold.
    bool Replies(Play& play, std::size_t odd) const {
        for (const StoryFlag& flag : StoryFlags) play.State().*flag.Value = Odd;
        for (std::size_t i = 0; i < conditions.size(); ++i) {
            if (i != odd) play.State().*conditions[i].first = static_cast<std::int16_t>(conditions[i].second);
        }
        cells[0] == "Jdi" ? Walk(play) : Act(play);
        if (cells[4] == "-") return play.Said().empty();
        if (std::isdigit(cells[4].front()) != 0) return std::ranges::count(play.Told(), std::stoi(cells[4])) > 0;
        return std::ranges::count(play.Said(), cells[4]) > 0;
    }

private:
    static void Carry(Play& play, Item item) {
        play.Place(item, sector::None);
        play.State().Inventory[0] = NumberOf(item);
        RefreshInventoryList(play.TheGame());
    }

    void Walk(Play& play) const {
        Carry(play, Item::Diskette);
        StandIn(play.State(), static_cast<std::int16_t>(std::stoi(cells[1])));
        play.Go(cells[1].substr(cells[1].find(' ') + 1));
    }

    void Act(Play& play) const {
        const auto verbs = play.Form1().List2[0].Entries();
        const auto verb = static_cast<std::int16_t>(std::ranges::find(verbs, cells[0]) - verbs.begin());
        const Item object = ItemOf(cells[1]);
        if (verb == verb::Use)
            Carry(play, object);
        else
            play.Place(object, sector::Cabin);
        if (!cells[2].empty() && ItemOf(cells[2]) != Item::Self) play.Place(ItemOf(cells[2]), sector::Cabin);
        play.Choose(verb);
        play.ChooseObject(object);
        if (!cells[2].empty()) play.ChooseTarget(ItemOf(cells[2]));
        play.Proceed();
    }

    std::vector<std::string> cells;
    std::vector<std::pair<std::int16_t GameState::*, int>> conditions;
};

TEST(OddValues, AreNeitherTrueNorFalseNorAStage) {
    Play play = Play::InCabin();
    const GameState start = play.State();
    std::ifstream file(ORVEL_SOURCE_FOLDER "/tests/interactions/odd_values.txt");
    int tried = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.starts_with('#')) continue;
        const Row row(line);
        for (std::size_t odd = 0; odd <= row.Conditions(); ++odd, ++tried) {
            play.State() = start;
            EXPECT_EQ(row.Replies(play, odd), odd == row.Conditions()) << line << ", condition " << odd << ": " << play.LastSaid();
        }
    }
    EXPECT_GT(tried, 250);
}

}  // namespace
