#include "tests/play.h"

namespace {

TEST(Terminal, LightsUpWhileTheLineIsTypedAndForgetsAfterTwoThousandLines) {
    const std::string refused = "Pro práci s terminálem se musíte nejprve přilogovat! Prosím, zadejte své logovací jméno:";
    Play play = Play::InCabin();
    ui::TerminalWindow& form = play.Windows().Form2;
    play.Desktop().NextEvent = [&] {
        play.Type(form.Window, form.Text2, "ž");
        EXPECT_EQ(form.Label1.TextColour(), ui::PaleCyan);
        EXPECT_EQ(form.Text2.Text(), "ž");
        form.Text1.SetText(std::string(2000, '\n'));
        EXPECT_EQ(play.Desktop().ClickLabel(form.Window, form.Label2), std::nullopt);
        EXPECT_EQ(form.Label1.TextColour(), ui::Teal);
        EXPECT_EQ(form.Text2.Text(), "");
        EXPECT_EQ(form.Text1.Text(), "\r\n\r\n" + refused);
        EXPECT_EQ(form.Text1.Caret(), form.Text1.Text().size());
        play.Type(form.Window, form.Text2, "exit\r");
        return true;
    };
    play.Use(Item::CabinTerminal, Item::Self);
}

}  // namespace
