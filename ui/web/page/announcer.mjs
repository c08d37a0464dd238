// The one place from which a screen reader speaks of its own accord: what was written since the player's last move, once.

export class Announcer {
    element = document.createElement("div");

    constructor() {
        this.element.className = "unseen";
        this.element.setAttribute("aria-live", "polite");
    }

    // Always new elements: an answer that is given twice is spoken twice.
    say(texts) {
        const lines = texts.flatMap((text) => text.split("\r\n")).filter((line) => line !== "");
        if (lines.length === 0) return;
        this.element.replaceChildren(...lines.map((line) => Object.assign(document.createElement("p"), { textContent: line })));
    }
}
