#include "core/stages.h"
#include "terminal/terminal_directory.h"
#include "terminal/terminal_texts.h"
#include "tests/play.h"
#include "text/characters.h"

namespace {

using enum Item;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* Name = "mj-perolax";
constexpr std::string_view Refused = "Pro práci s terminálem se musíte nejprve přilogovat! Prosím, zadejte své logovací jméno:";
constexpr std::string_view Hello = "Dobrý den, pane Selagu Hemafo!";
constexpr std::string_view Error = "! ERROR !";

std::string NotFound(const std::string& serialNumber) {
    return "Sériové číslo " + serialNumber + " nemohu nalézt v databázi sériových čísel terminálů této lodi!";
}

struct Terminal : testing::Test {
    // What it replies to the lines, typed after the login.
    std::vector<std::string> Answers(std::initializer_list<std::string> lines) {
        std::vector<std::string> typed{Name};
        typed.insert(typed.end(), lines);
        typed.emplace_back("exit");
        play.InPanel(typed);
        play.Use(terminal, Self);
        auto replies = play.Replies();
        replies.erase(replies.begin());
        return replies;
    }

    void StandAt(Item item, std::int16_t sector) {
        terminal = item;
        play.MoveTo(sector);
    }

    Play play = Play::InCabin();
    GameState& state = play.State();
    Item terminal = CabinTerminal;
};

TEST_F(Terminal, GreetsWithItsOwnNumberAndAsksForTheName) {
    for (std::size_t index = 0; index < 5; ++index) {
        const TerminalEntry& entry = TerminalAt(index);
        const std::string banner = Banner(entry.SerialNumber);
        EXPECT_EQ(text::CharCount(banner), 402);
        EXPECT_THAT(banner, StartsWith("Vítejte v palubním terminálu lodě Alcaster."));
        EXPECT_THAT(banner, HasSubstr("[Exit]"));
        EXPECT_THAT(banner, EndsWith("Tento terminál má sériové číslo " + std::string(entry.SerialNumber) + ". Přeji hezký den."));
        state.HangarTerminalState = HangarTerminalStage::Repaired;
        play.Place(entry.Terminal, sector::Cabin);
        play.InPanel({"exit"});
        play.Use(entry.Terminal, Self);
        EXPECT_THAT(play.Said(), ElementsAre("Spustil jsi terminál..."));
        EXPECT_EQ(play.Windows().Form2.Text1.Text(), banner + "\r\n\r\nZadejte prosím vaše logovací jméno:");
    }
}

TEST_F(Terminal, AsksForTheLoginEveryTimeAndForgivesNothingButCase) {
    for (int start = 0; start < 2; ++start) {
        play.InPanel({"", "mj-perolax ", " mj-perolax", "read message", "exit ", "MJ-Perolax", "mj-perolax", "Exit ", "eXIT"});
        play.Use(CabinTerminal, Self);
        EXPECT_THAT(play.Replies(),
                    ElementsAre(Refused, Refused, Refused, Refused, Refused, Hello, Error, "Neznámý příkaz!", Error, "Neznámý příkaz!"));
        EXPECT_FALSE(play.Ended());
    }
}

TEST_F(Terminal, TellsOfMailAtTheLoginTheStoryFirst) {
    const std::string story = "Máte zde zprávu! Prosím zadejte příkaz pro čtení [READ MESSAGE].";
    const std::string anonymous = "Máte zde anonymní zprávu! Prosím zadejte příkaz pro čtení [READ MESSAGE].";
    EXPECT_THAT(Answers({}), IsEmpty());
    state.TerminalMailbox = {0, 1, 1, 1, 1};
    EXPECT_THAT(Answers({}), IsEmpty());
    state.TerminalMailbox[0] = 2;
    EXPECT_THAT(Answers({}), ElementsAre(anonymous));
    state.StoreMessageState = MessageState::Waiting;
    EXPECT_THAT(Answers({}), ElementsAre(story));
    state.StoreMessageState = MessageState::Read;
    state.LabMessageState = MessageState::Waiting;
    EXPECT_THAT(Answers({}), ElementsAre(story));
}

TEST_F(Terminal, ReadsOneMessageAtATime) {
    state.LabMessageState = state.StoreMessageState = MessageState::Waiting;
    state.TerminalMailbox[0] = 4;
    const std::string header = "Zahajuji výpis zprávy..............completed.";
    EXPECT_THAT(Answers({"read message", "READ Message", "read message", "read message", "read message "}),
                ElementsAre(testing::_, header, HasSubstr("replikátor"), header, HasSubstr("dveře"), header, HasSubstr("ve skladě"),
                            "V paměti se nenacházejí žádné zprávy.", Error, "Neznámý příkaz!"));
    EXPECT_EQ(state.LabMessageState, MessageState::Read);
    EXPECT_EQ(state.StoreMessageState, MessageState::Read);
    state.TerminalMailbox[0] = 5;  // no kind of message: only a loaded game can hold it
    EXPECT_THAT(Answers({"read message"}), ElementsAre(testing::_));
    EXPECT_EQ(state.TerminalMailbox[0], 0);
}

TEST_F(Terminal, SendsTheLastTwelveCharacters) {
    EXPECT_THAT(
        Answers({"send alert 102-x07-1001", "Send Captain Importance, prosím: 102-X12-1478", "send store importance102-X12-1478",
                 "read message"}),
        ElementsAre("Zpráva pro nouzový příchod na můstek odeslána na terminál číslo 102-X07-1001...",
                    "Zpráva pro nouzový příchod do kajuty kapitána odeslána na terminál číslo 102-X12-1478...",
                    "Zpráva pro nouzový příchod do skladu odeslána na terminál číslo 102-X12-1478...", testing::_, HasSubstr("ve skladě")));
    EXPECT_THAT(state.TerminalMailbox, ElementsAre(0, 0, 1, 0, 0));
    EXPECT_THAT(Answers({"send alert", "send starport importance 102-X12-1478 ", "send alert na ťuhýka žž", "send aler"}),
                ElementsAre(Error, NotFound("send alert"), Error, NotFound("02-X12-1478 "), Error, NotFound("na ťuhýka žž"), Error,
                            "Neznámý příkaz!"));
    EXPECT_THAT(state.TerminalMailbox, ElementsAre(0, 0, 1, 0, 0));
}

TEST_F(Terminal, CallsTheCaptainToTheBridgeOnce) {
    const auto alert = [&] { return Answers({"send alert 102-x89-3156"}); };
    state.BridgeAlertReady = 7;  // not True, as a loaded game may hold it
    EXPECT_EQ(alert().size(), 1);
    EXPECT_EQ(state.CaptainAlertState, CaptainAlertStage::Calm);
    EXPECT_EQ(state.TerminalMailbox[3], 1);
    state.TerminalMailbox[3] = 0;
    state.BridgeAlertReady = True;
    EXPECT_EQ(alert().size(), 1);
    EXPECT_EQ(state.CaptainAlertState, CaptainAlertStage::Alerted);
    EXPECT_EQ(state.TerminalMailbox[3], 0);
    EXPECT_FALSE(play.Lies(Captain, sector::CaptainsCabin));
    alert();
    EXPECT_EQ(state.CaptainAlertState, CaptainAlertStage::Alerted);
    EXPECT_EQ(state.TerminalMailbox[3], 1);
}

TEST_F(Terminal, CallsTheOccupantAwayByTheMessageThatWasDrawn) {
    state.CalledAwayDestination = 2;
    Answers({"send captain importance 102-X94-5487", "send starport importance 102-X89-3156", "send alert 102-X94-5487"});
    EXPECT_EQ(state.CalledAwayState, CalledAwayStage::Inside);
    Answers({"send starport importance 102-x94-5487"});
    EXPECT_EQ(state.CalledAwayState, CalledAwayStage::Called);
    EXPECT_EQ(state.TerminalMailbox[4], 3);
    state.CalledAwayState = CalledAwayStage::Gone;
    Answers({"send starport importance 102-X94-5487"});
    EXPECT_EQ(state.CalledAwayState, CalledAwayStage::Gone);
}

TEST_F(Terminal, TracesWhateverFollowsTheFifthCharacter) {
    const std::string route = "102-X34-2597...102-X12-1478", asked = "Hledám cestu...";
    EXPECT_THAT(Answers({"ping 102-x12-1478", "PING#102-X12-1478", "pingž102-X12-1478", "ping", "ping  102-X12-1478", "ping ťuk"}),
                ElementsAre(asked, route, asked, route, asked, route, asked, Error, NotFound(""), asked, Error, NotFound(" 102-X12-1478"),
                            asked, Error, NotFound("ťuk")));
}

TEST(TerminalDirectory, EndsEveryRouteAtItsTargetThroughKnownTerminals) {
    for (std::size_t index = 0; index < 5; ++index) {
        const TerminalEntry& entry = TerminalAt(index);
        EXPECT_EQ(TerminalIndexOf(entry.Terminal), index);
        EXPECT_EQ(FindTerminal(text::LowerAscii(entry.SerialNumber)), index);
        std::string_view route = entry.Route;
        for (; route.size() > 12; route.remove_prefix(15)) EXPECT_TRUE(FindTerminal(route.substr(0, 12))) << entry.Route;
        EXPECT_EQ(route, entry.SerialNumber);
    }
    EXPECT_EQ(TerminalIndexOf(Captain), 0);
}

TEST_F(Terminal, ListsTheArchive) {
    const std::array<std::pair<std::size_t, std::string_view>, 5> folders{
        {{947, "SLOŽKA 1: Ve vesmíru bylo objeveno mnoho materiálů, které se nevyskytují ve Sluneční soustavě."},
         {894, "SLOŽKA 2: Tato složka byla vybrána ze záznamů knihy"},
         {950, "SLOŽKA 3: Člověk se dostal za hranice Sluneční soustavy."},
         {707, "SLOŽKA 4: Vesmírné lodě dnešní doby využívají kvůli bezpečnosti ty nejdokonalejší technologie."},
         {954, "SLOŽKA 5: Programovatelné obvody se dělí na mnoho typů."}}};
    for (std::size_t i = 0; i < folders.size(); ++i) {
        EXPECT_EQ(state.ArchiveFolder5Read, False);
        const std::string key = std::to_string(i + 1);
        const auto answers = Answers({"Archive #" + key});
        ASSERT_THAT(answers, ElementsAre("Zahajuji výpis archivu... SLOŽKA #" + key + "...", StartsWith(std::string(folders[i].second)),
                                         "END OF FILE"));
        EXPECT_EQ(text::CharCount(answers[1]), folders[i].first);
    }
    EXPECT_EQ(state.ArchiveFolder5Read, True);
    state.ArchiveFolder5Read = False;
    EXPECT_THAT(Answers({"archive #", "archive #05", "archive #5 ", "archive #6", "archive 5"}),
                ElementsAre("Zahajuji výpis archivu... SLOŽKA #...", Error, "Složka nenalezena!", "Zahajuji výpis archivu... SLOŽKA #05...",
                            Error, "Složka nenalezena!", "Zahajuji výpis archivu... SLOŽKA #5 ...", Error, "Složka nenalezena!",
                            "Zahajuji výpis archivu... SLOŽKA #6...", Error, "Složka nenalezena!", Error, "Neznámý příkaz!"));
    EXPECT_EQ(state.ArchiveFolder5Read, False);
}

TEST_F(Terminal, KeepsTwoSecrets) {
    EXPECT_THAT(Answers({"secret in the cave", "length of program"}),
                ElementsAre("Vypisuji tajné informace................complete.", HasSubstr("klávesa \"S\" na"), "END OF FILE",
                            "Vypisuji tajné informace................complete.", HasSubstr("3171 řádek"), "END OF FILE"));
}

TEST_F(Terminal, TestsDnaInTheLaboratoryOnly) {
    const std::string missing = "Vložte prosím do terminálových nádob dva vzorky k testování!";
    EXPECT_THAT(Answers({"test dna processing"}), ElementsAre(Error, "Tento terminál neposkytuje potřebné vybavení pro testování DNA!"));
    StandAt(LabTerminal, sector::Laboratory);
    state.DnaSampleItem = NumberOf(SampleJunett);
    state.DnaReferenceLoaded = 7;
    EXPECT_THAT(Answers({"test dna processing"}), ElementsAre(Error, missing));
    EXPECT_EQ(state.DnaSampleItem, NumberOf(SampleJunett));
    state.DnaReferenceLoaded = state.DnaSampleLoaded = True;
    EXPECT_THAT(Answers({"test dna processing", "test dna processing"}),
                ElementsAre("Test DNA negativí! DNA není stejné.", Error, missing));
    EXPECT_EQ(state.DnaSampleLoaded, False);
    state.DnaSampleItem = NumberOf(SampleVega);
    EXPECT_THAT(Answers({"test dna processing"}), ElementsAre("Test DNA pozitivní! DNA je stejné."));
    EXPECT_THAT(play.Told(), ElementsAre(0, sector::CaptainsCabin, 244));
    EXPECT_TRUE(play.Lies(ManInDarkGlasses, sector::CaptainsCabin));
    EXPECT_EQ(state.DnaSampleItem, 0);
    EXPECT_EQ(state.DnaReferenceLoaded, True);
}

TEST_F(Terminal, LightsUpWhileTheLineIsTyped) {
    ui::TerminalWindow& form = play.Windows().Form2;
    play.Desktop().NextEvent = [&] {
        play.Type(form.Window, form.Text2, "ž");
        EXPECT_EQ(form.Label1.TextColour(), ui::PaleCyan);
        EXPECT_EQ(form.Text2.Text(), "ž");
        EXPECT_EQ(play.Desktop().ClickLabel(form.Window, form.Label2), std::nullopt);
        EXPECT_EQ(form.Label1.TextColour(), ui::Teal);
        EXPECT_EQ(form.Text2.Text(), "");
        EXPECT_EQ(form.Text1.Caret(), form.Text1.Text().size());
        EXPECT_THAT(play.Replies(), ElementsAre(Refused));
        play.Type(form.Window, form.Text2, "exit\r");
        return true;
    };
    play.Use(CabinTerminal, Self);
}

}  // namespace
