#include "core/output.h"

#include <cstdio>

namespace {

constexpr std::size_t MostLines = 2000;

}  // namespace

void WriteOutput(Game& game, std::string_view message) {
    ui::TextBox& box = game.windows.Form1.Text1;
    box.AppendText(ParagraphBreak);
    box.AppendText(message);
    box.MoveCaretToEnd();
}

void ShowStoryText(Game& game, TextNumber number, Output output) {
    const auto text = game.texts.Text(number);
    if (!text) {
        std::fprintf(stderr, "orvel-tavoren: no story text has the number %d\n", number);
        return;
    }
    ui::TextBox& box = game.windows.Form1.Text1;
    if (output == Output::Replace) box.SetText("");
    if (output == Output::Append) box.AppendText(ParagraphBreak);
    box.AppendText(*text);
    box.MoveCaretToEnd();
}

void LimitOutput(const Game& game, ui::TextBox& box) {
    if (game.desktop.CountLines(box) > MostLines) box.SetText("");
}
