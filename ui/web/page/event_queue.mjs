// The player's events in their order, each of which waits here until the program asks for it. A program that already waits gets an event in
// the same task in which the browser reports it, so that the answer is in the page before that task ends.

// The number of each kind of event by its name, which the program hands over when it builds the page: see ui/web/event_kinds.def.
export const EventKind = {};

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
