// Keeps the running game beside the saved ones, so that a tab which was thrown away goes on where it was. Every tab keeps its own game, and
// keeps the last few that were left: none writes over another's. Like records.mjs this module knows no browser.
import { equalBytes } from "./bytes.mjs";
import { inTime } from "./deadline.mjs";

const MostGames = 5;

export class RunningGame {
    #store;
    #session;
    #id;
    #beginning = null;  // the first snapshot: as long as the game is no further, there is nothing to lose
    #wanted = null;  // the snapshot to be kept; null when there is no game to go on with
    #kept = null;
    #outdated = new Set();  // the games that the next writing does away with
    #isWriting = false;

    // The store is one as in records.mjs, of records with a time in milliseconds and bytes. `session` holds in `last` the name of the game
    // that this tab kept last, also when the browser has thrown its page away meanwhile; `id` is the name of the new one.
    constructor(store, session, id) {
        this.#store = store;
        this.#session = session;
        this.#id = id;
    }

    // The game to go on with: the one that this tab left, or else the newest. Undefined when there is none that `canResume` takes, or the
    // browser does not tell.
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

    // Null when the game has ended.
    keep(snapshot) {
        this.#beginning ??= snapshot;
        if (this.#kept === null && this.#wanted === null && equalBytes(snapshot, this.#beginning)) return;
        this.#wanted = snapshot;
        this.#write();
    }

    // Nobody waits for it. What is wanted by the time that one writing ends is written next.
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
        await this.#store.open();
        await this.#store.save(new Map([
            ...outdated.map((id) => [id, undefined]),
            [this.#id, bytes ? { time: Date.now(), bytes } : undefined],
        ]));
        for (const id of outdated) this.#outdated.delete(id);
        this.#kept = bytes;
        this.#session.last = this.#id;
    }
}
