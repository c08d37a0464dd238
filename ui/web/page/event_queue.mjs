// What the player did, in order, until the program asks for it. It gets the next event in the same task that the browser reported it in,
// so the answer is in the page before that task ends.

// As in page_bridge.h.
export const EventKind = { Focus: 0, Key: 1, Edit: 2, ClickEntry: 3, ClickLabel: 4, Acknowledge: 5, FilesChanged: 6, Resume: 7 };

export class EventQueue {
    #events = [];
    #wake = null;
    current = null;

    post(kind, place, { number = 0, before = "", after = "" } = {}) {
        this.#events.push({ kind, form: place?.form ?? 0, control: place?.control ?? 0, number, before, after });
        this.#wake?.();
        this.#wake = null;
    }

    // Makes the next event the current one.
    async take() {
        if (this.#events.length === 0) await new Promise((wake) => { this.#wake = wake; });
        this.current = this.#events.shift();
    }
}
