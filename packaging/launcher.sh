#!/bin/sh
# The game keeps its saves in its program folder. The installed program folder cannot be written to, so this script makes one for each player,
# with links to the installed parts that are only read.

installed=/usr/lib/games/orvel-tavoren
own=${XDG_DATA_HOME:-$HOME/.local/share}/orvel-tavoren

if ! { mkdir -p "$own/data/saves" &&
    ln -sfn "$installed/orvel-tavoren" "$own/orvel-tavoren" &&
    ln -sfn "$installed/data/texs.dat" "$own/data/texs.dat" &&
    ln -sfn "$installed/data/pics" "$own/data/pics"; }; then
    echo "Nepodařilo se připravit složku hry: $own" >&2
    exit 1
fi
exec "$own/orvel-tavoren"
