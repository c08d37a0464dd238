// The things that are examined without consequence: one text each, whatever the story has come to.
#pragma once

#include <optional>

#include "core/items.h"
#include "core/text_store.h"

std::optional<TextNumber> PlainDescription(Item item);
