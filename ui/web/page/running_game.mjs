// Keeps the running game in the browser, so that a tab that the browser throws away can go on where it was. Every tab keeps its game under a
// name of its own, so that no tab writes over the game of another, and the last few games that were left stay. Like records.mjs this module
// knows no browser.
import { equalBytes } from "./bytes.mjs";
import { inTime } from "./deadline.mjs";

const MostGames = 5;

export class RunningGame {
    #store;
    #session;
    #id;
    #beginning = null;  // the first snapshot, which is not kept, because a game that is no further has nothing to lose
    #wanted = null;  // the snapshot to be kept; null when there is no game to go on with
    #kept = null;
    #outdated = new Set();  // names of games that the next writing deletes
    #isWriting = false;

    // The store is like that of records.mjs; each record has a time in milliseconds and the bytes of a snapshot. `session.last` is the name
    // of the game that this tab kept last, and outlives the page. `id` is the name under which this page keeps its game.
    constructor(store, session, id) {
        this.#store = store;
        this.#session = session;
        this.#id = id;
    }

    // Promises the game to go on with: the one that this tab left, or else the newest. Undefined when `canResume` takes none of them, or when
    // the browser does not answer.
    async find(canResume) {
        try {
            await inTime(this.#store.open());
            const games = [...await inTime(this.#store.load())].map(([id, game]) => ({ id, ...game })).sort((a, b) => b.time - a.time);
            for (const { id } of games.slice(MostGames)) this.#outdated.add(id);
            const sound = games.filter(({ bytes }) => bytes && canResume(bytes));
            return sound.find(({ id }) => id === this.#session.last) ?? sound[0];
        } catch (error) {
            console.warn(error);
            this.#store.drop();
            return undefined;
        }
    }

    // From now on the found game is this tab's own.
    take(game) {
        this.#outdated.add(game.id);
        this.#beginning = game.bytes;
        this.#wanted = game.bytes;
        this.#write();
    }

    // The snapshot is null when the game has ended.
    keep(snapshot) {
        this.#beginning ??= snapshot;
        if (this.#kept === null && this.#wanted === null && equalBytes(snapshot, this.#beginning)) return;
        this.#wanted = snapshot;
        this.#write();
    }

    // Nobody waits for this to end. A snapshot that comes during a writing is written after it.
    async #write() {
        if (this.#isWriting) return;
        this.#isWriting = true;
        try {
            while (this.#outdated.size > 0 || !equalBytes(this.#wanted, this.#kept)) await this.#writeWanted();
        } catch (error) {
            console.warn(error);
            this.#store.drop();
        } finally {
            this.#isWriting = false;
        }
    }

    async #writeWanted() {
        const bytes = this.#wanted;
        const outdated = [...this.#outdated];
        await inTime(this.#store.open());
        await inTime(this.#store.save(new Map([
            ...outdated.map((id) => [id, undefined]),
            [this.#id, bytes ? { time: Date.now(), bytes } : undefined],
        ])));
        for (const id of outdated) this.#outdated.delete(id);
        this.#kept = bytes;
        this.#session.last = this.#id;
    }
}
