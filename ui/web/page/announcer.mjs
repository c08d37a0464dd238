// The one place from which a screen reader speaks of its own accord: what the player's last move brought, once.

const Spoken = 5000;  // milliseconds after which the words are gone, because a player who reads the page on would come across them again

export class Announcer {
    #element;
    #english;
    #isCovered;
    #waiting = [];

    // `isCovered` tells whether something lies over the page that alone is read out; the words wait until it is gone.
    constructor(element, english, isCovered) {
        this.#element = element;
        this.#english = english;
        this.#isCovered = isCovered;
    }

    // Always new elements: an answer that is given twice is spoken twice.
    say(texts) {
        this.#waiting.push(...texts.flatMap((text) => text.split("\r\n")).filter((line) => line !== ""));
        if (this.#waiting.length === 0 || this.#isCovered()) return;
        const lines = this.#waiting.splice(0).map((line) => this.#newLine(line));
        this.#element.append(...lines);
        setTimeout(() => lines.forEach((line) => line.remove()), Spoken);
    }

    #newLine(line) {
        const element = document.createElement("p");
        element.append(...this.#english.mark(line));
        return element;
    }
}
