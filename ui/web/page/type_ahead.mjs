// Finds the entry of a list that begins with what the player types. Case and accents do not count, because not every keyboard is Czech.

const Pause = 1000;  // milliseconds after which another word begins

function plain(text) {
    return text.normalize("NFD").replace(/\p{M}/gu, "").toLowerCase();
}

export class TypeAhead {
    typed = "";
    #time = -Infinity;
    isLost = false;  // nothing begins with what is typed

    // Whether what is typed at this time still belongs to the word before it.
    isTyping(time) {
        return time - this.#time < Pause;
    }

    // What is typed next begins another word.
    stop() {
        this.#time = -Infinity;
    }

    // The place of the entry, looked for from the place `from` on and round; -1 if there is none. The same letter again and again goes from
    // entry to entry.
    find(entries, from, character, time) {
        this.typed = (this.isTyping(time) ? this.typed : "") + plain(character);
        this.#time = time;
        const repeats = [...this.typed].every((each) => each === this.typed[0]);
        const sought = repeats ? this.typed[0] : this.typed;
        const first = from + (repeats ? 1 : 0);
        const order = entries.map((_, step) => (first + step) % entries.length);
        const found = order.find((place) => plain(entries[place]).startsWith(sought)) ?? -1;
        this.isLost = found < 0;
        return found;
    }
}
