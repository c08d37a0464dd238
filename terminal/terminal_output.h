// The terminal's replies.
#pragma once

#include <string_view>

#include "core/game.h"

// Despite its name this gets nothing: it appends a reply as a paragraph of its own. The caret stays where it is.
void GetText(Game& game, std::string_view reply);

// Appends the error line and what is wrong.
void ReplyError(Game& game, std::string_view reason);
