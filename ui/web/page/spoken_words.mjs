// The inscriptions of the ship's machines are English, in a page that is Czech otherwise. A screen reader is told so, because it would
// pronounce them as Czech words.

export class EnglishWords {
    #words = new Set();

    add(word) {
        if (/\p{L}/u.test(word)) this.#words.add(word);
    }

    has(text) {
        return this.#words.has(text);
    }

    // The text in pieces, of which those at odd places are English. An English word within a longer one is not meant.
    split(text) {
        const words = [...this.#words].sort((a, b) => b.length - a.length).map((word) => word.replace(/[.*+?^${}()|[\]\\/]/g, "\\$&"));
        return words.length > 0 ? text.split(new RegExp(`(?<!\\p{L})(${words.join("|")})(?!\\p{L})`, "u")) : [text];
    }

    // The text as nodes.
    mark(text) {
        const pieces = this.split(text).map((piece, place) => place % 2 === 1 ? newEnglish(piece) : piece);
        return pieces.filter((piece) => piece !== "");
    }
}

export function newEnglish(textContent) {
    return Object.assign(document.createElement("span"), { lang: "en", textContent });
}

// For a screen reader alone.
export function newUnseen(textContent) {
    return Object.assign(document.createElement("span"), { className: "unseen", textContent });
}
