// Gives each key to the control that has the keyboard's focus. A key that this control does not use goes to the control that has the focus in
// the program. The browser must be told at once whether it may act on a key, before the program has heard of it. Escape ends the game in the
// command line, so everywhere else it only leads back there.

// The character that the key types (Backspace, Enter and Escape are characters too); 0 for keys that only move about.
function characterOf(event) {
    switch (event.key) {
        case "Enter": return 13;
        case "Backspace": return 8;
        case "Escape": return 27;
        default: break;
    }
    const characters = [...event.key];
    return characters.length === 1 ? characters[0].codePointAt(0) : 0;
}

function isShortcut(event) {
    return (event.ctrlKey || event.metaKey || event.altKey) && !event.getModifierState("AltGraph");
}

// Notes whether the player moves by Tab. Only then does the style frame a line that has the focus, because otherwise its caret shows it.
function noteTabbing() {
    const { classList } = document.documentElement;
    document.addEventListener("keydown", ({ key }) => { if (key === "Tab") classList.add("by-keyboard"); });
    document.addEventListener("pointerdown", () => classList.remove("by-keyboard"));
}

export function listenToKeys(desktop, messageBox) {
    noteTabbing();
    document.addEventListener("keydown", (event) => {
        // Browsers report a key again and again while it is held. A held Enter or Escape is one wish, because the player has not read yet
        // what it brought.
        if (event.repeat && ["Enter", "Escape"].includes(event.key)) return event.preventDefault();
        if (event.isComposing || isShortcut(event) || document.querySelector("dialog[open]")) return;
        if (messageBox.isOpen) return messageBox.keyDown(event);
        const here = desktop.controlAround(document.activeElement);
        const isAway = here !== desktop.focused || document.activeElement.matches("button");
        if (event.key === "Escape" && isAway) return desktop.focused?.focus();
        if (here === null && document.activeElement !== document.body) return;  // outside of the windows
        const character = characterOf(event);
        if (here?.keyDown(event, character) || here === desktop.focused) return;
        desktop.focused?.keyDown(event, character);
    });
}
