// Writing to the main window's output box. Every reply is a paragraph of its own, after one blank line.
#pragma once

#include <string_view>

#include "core/game.h"

constexpr std::string_view LineBreak = "\r\n";
constexpr std::string_view ParagraphBreak = "\r\n\r\n";

enum class Output { Replace, Append };

void WriteOutput(Game& game, std::string_view message);

// A number that no text has shows nothing and is reported on standard error.
void ShowStoryText(Game& game, TextNumber number, Output output = Output::Append);

// Empties a box that displays more than 2000 lines.
void LimitOutput(const Game& game, ui::TextBox& box);
