#include "tests/play.h"

#include <stdlib.h>

#include <algorithm>

#include "app/start_up.h"
#include "core/carrying.h"
#include "core/sector_items.h"
#include "core/stages.h"
#include "core/verbs.h"
#include "text/characters.h"
#include "ui/errors.h"
#include "ui/input.h"

namespace {

namespace fs = std::filesystem;

fs::path MakeFolder() {
    std::string pattern = fs::temp_directory_path() / "orvel-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return pattern;
}

void MustWork(const ui::MemoryDesktop::Refusal& refusal) {
    EXPECT_EQ(refusal, std::nullopt);
}

std::vector<std::string> Paragraphs(std::string_view output) {
    constexpr std::string_view Break = "\r\n\r\n";
    std::vector<std::string> paragraphs;
    while (true) {
        const std::size_t end = output.find(Break);
        paragraphs.emplace_back(output.substr(0, end));
        if (end == output.npos) return paragraphs;
        output.remove_prefix(end + Break.size());
    }
}

int IndexOf(std::span<const std::int16_t> items, Item item) {
    const auto found = std::ranges::find(items, NumberOf(item));
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

}  // namespace

TemporaryFolder::TemporaryFolder() : Path(MakeFolder()) {}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(Path, ignored);
}

void ExpectNoFaults(ui::MemoryDesktop& desktop) {
    for (const auto& box : desktop.TakeMessageBoxes()) EXPECT_FALSE(box.Text.starts_with(ui::ProgramFault)) << box.Text;
}

Play::Play()
    : game(windows, desktop, [this] {
          if (drawn.empty()) return 0.5;
          const double number = drawn.front();
          drawn.pop_front();
          return number;
      }) {
    fs::create_directories(folder.Path / "data" / "saves");
    fs::copy_file(ORVEL_TEXTS_FILE, folder.Path / "data" / "texs.dat");
    desktop.NextEvent = [this] { return PlayNextLine(); };
    Main(game, folder.Path);
}

Play::Play(std::int16_t sector, std::initializer_list<Item> carried) : Play() {
    Proceed();
    Proceed();
    StandIn(game.state, sector);
    for (const Item item : carried) {
        Place(item, sector::None);
        *std::ranges::find(game.state.Inventory, 0) = NumberOf(item);
    }
    RefreshInventoryList(game);
}

void Play::Place(Item item, std::int16_t sector) {
    for (std::int16_t each = sector::Cabin; each <= LastSector; ++each) RemoveItem(game.state.Sectors[each], item);
    RemoveFromInventory(game, item);
    if (sector != sector::None) AddItemToSector(game, sector, item, Redraw::No);
}

void Play::Click(const ui::Form& form, ui::ListBox& list, int index) {
    MustWork(desktop.ClickEntry(form, list, index));
}

void Play::Press(const ui::Form& form, ui::TextBox& box, char32_t key) {
    MustWork(desktop.PressKey(form, box, key));
}

void Play::Type(const ui::Form& form, ui::TextBox& box, std::string_view characters) {
    while (!characters.empty()) Press(form, box, text::TakeCharacter(characters));
}

Play& Play::Proceed() {
    said = Output().size();
    replacements = Form1().Text1.Replacements();
    Press(Form1().Window, Form1().Text2, ui::key::Enter);
    return *this;
}

void Play::Choose(std::int16_t verb) {
    Click(Form1().Window, Form1().List2[0], verb);
}

void Play::ChooseObject(Item item) {
    const int carried = IndexOf(game.state.Inventory, item);
    if (carried >= 0) return Click(Form1().Window, Form1().List1, carried);
    Click(Form1().Window, Form1().List2[1], IndexOf(game.state.Sectors[game.state.CurrentSector].Items, item));
}

void Play::ChooseTarget(Item target) {
    const int carried = IndexOf(game.state.Inventory, target);
    if (carried >= 0) return Click(Form1().Window, Form1().List1, carried);
    ui::ListBox& targets = Form1().List2[2];
    const int last = static_cast<int>(targets.Entries().size()) - 1;
    Click(Form1().Window, targets, target == Item::Self ? last : IndexOf(game.state.Sectors[game.state.CurrentSector].Items, target));
}

Play& Play::Run(std::int16_t verb, Item item) {
    Choose(verb);
    ChooseObject(item);
    return Proceed();
}

Play& Play::Go(std::string_view direction) {
    Choose(verb::Go);
    ui::ListBox& offered = Form1().List2[1];
    const auto entry = std::ranges::find(offered.Entries(), direction);
    if (entry == offered.Entries().end()) ADD_FAILURE() << "no way " << direction;
    Click(Form1().Window, offered, static_cast<int>(entry - offered.Entries().begin()));
    return Proceed();
}

Play& Play::Use(Item item, Item target) {
    Choose(verb::Use);
    ChooseObject(item);
    ChooseTarget(target);
    return Proceed();
}

Play& Play::Take(Item item) {
    return Run(verb::Take, item);
}

Play& Play::Put(Item item) {
    return Run(verb::Put, item);
}

Play& Play::Open(Item item) {
    return Run(verb::Open, item);
}

void Play::Clear() {
    Choose(verb::Clear);
    Proceed();
}

bool Play::PlayNextLine() {
    if (lines.empty()) return false;
    const std::string line = lines.front();
    lines.pop_front();
    const ui::Form& form = *desktop.Modal();
    if (line == "Cancel") {
        MustWork(desktop.ClickLabel(form, windows.Form3.Label3));
        return true;
    }
    const auto boxes = std::array<std::pair<const ui::Form*, ui::TextBox*>, 3>{{{&windows.Form2.Window, &windows.Form2.Text2},
                                                                                {&windows.Form3.Window, &windows.Form3.Text1},
                                                                                {&windows.Form4.Window, &windows.Form4.Text1}}};
    ui::TextBox& box = *std::ranges::find(boxes, &form, &decltype(boxes)::value_type::first)->second;
    Type(form, box, line);
    Press(form, box, ui::key::Enter);
    return true;
}

std::vector<std::string> Play::Said() const {
    if (Form1().Text1.Replacements() != replacements) return Paragraphs(Output());
    auto paragraphs = Paragraphs(std::string_view(Output()).substr(said));
    paragraphs.erase(paragraphs.begin());  // what stands before the break
    return paragraphs;
}

std::string Play::LastSaid() const {
    const auto paragraphs = Said();
    return paragraphs.empty() ? "" : paragraphs.back();
}

std::vector<int> Play::Told() const {
    std::vector<int> numbers;
    for (const std::string& paragraph : Said()) {
        const std::string_view firstLine = std::string_view(paragraph).substr(0, paragraph.find('\r'));
        int number = LastText;
        while (number > 0 && game.texts.Text(static_cast<TextNumber>(number)) != firstLine) --number;
        numbers.push_back(number);
    }
    return numbers;
}

bool Play::Sees(Item item) const {
    return IsInCurrentSector(game.state, item);
}

bool Play::Carries(Item item) const {
    return IsCarried(game.state, item);
}

std::string Play::View() {
    Clear();
    return Output();
}
