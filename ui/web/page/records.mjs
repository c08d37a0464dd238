// Keeps the files of a folder as records of a store that other tabs of the page use too. A tab writes only what it has changed itself, so
// that it does not undo the changes of another tab. This module knows no browser: the store is given.
//
// A store has these, each of which may reject or never answer:
//     open()         promises whether the store was made anew, empty; called before every load and save
//     load()         promises a Map of names and bytes
//     save(changes)  takes such a Map, where undefined stands for a record to be deleted; all of it or nothing
//     drop()         gives up the connection; the next open() makes another one
// and calls its `onNews` when records may have changed without this tab.
import { equalBytes } from "./bytes.mjs";
import { Patience, inTime } from "./deadline.mjs";

export class Records {
    #store;
    #folder;
    #patience;
    #kept = new Map();  // the records as this tab has last read or written them
    #last = Promise.resolve();  // all work on the records is done one after the other
    #everOpened = false;
    refused = false;  // the store has never opened, so the folder lives as long as the page does
    isSilent = false;  // the store did not answer in time when it was last asked
    hasFailed = false;  // writing has failed once, as on a full disk; the browser may then drop all records when it is started again
    onNews = () => {};  // the facts above, or what is kept, may have changed
    onChange = () => {};  // the folder has changed without the program's doing

    // The folder has names(), read(name), write(name, bytes) and remove(name).
    constructor(store, folder, patience = Patience) {
        this.#store = store;
        this.#folder = folder;
        this.#patience = patience;
        store.onNews = () => this.read();
    }

    // Brings the folder up to date. A failure is only logged, because the next write meets it again.
    async read() {
        await this.#inTurn(() => this.#takeRecords()).catch((error) => console.warn(error));
    }

    // Promises true when the store has all of the folder, false when it refuses to keep anything; rejects when writing failed.
    async write() {
        // The patience is for the earlier work too, which this one waits for and which may hang as well.
        const written = this.#answer(this.#inTurn(() => this.#putRecords()));
        return written.then(() => true, (error) => {
            this.hasFailed ||= !this.refused;
            this.onNews();
            if (this.refused) return false;
            throw error;
        });
    }

    isUnwritten(name) {
        return !equalBytes(this.#folder.read(name), this.#kept.get(name));
    }

    #inTurn(work) {
        const done = this.#last.then(() => this.#attempt(work));
        this.#last = done.catch(() => {});
        return done;
    }

    async #attempt(work) {
        try {
            // A store is made anew after the player or the browser has cleared it, so this tab writes all its files again.
            const cleared = await this.#answer(this.#store.open());
            this.#everOpened = true;
            if (cleared) this.#kept.clear();
            await work();
            if (cleared) await this.#putRecords();
            this.refused = this.isSilent = false;
        } catch (error) {
            // The next attempt opens another connection, because a phone may have cut this one while the page slept.
            this.#store.drop();
            this.isSilent = error?.name === "TimeoutError";
            this.refused = !this.#everOpened && !this.isSilent;
            throw error;
        } finally {
            this.onNews();
        }
    }

    // When an answer comes after all, the store is asked again, and what the player is told of it changes.
    #answer(promise) {
        return inTime(promise, this.#patience).catch((error) => {
            if (error?.name === "TimeoutError") promise.then(() => this.read(), () => {});
            throw error;
        });
    }

    // Leaves alone what this tab has changed and not written yet.
    async #takeRecords() {
        const records = await this.#answer(this.#store.load());
        let changed = false;
        for (const name of new Set([...records.keys(), ...this.#kept.keys()])) {
            const bytes = records.get(name);
            if (this.isUnwritten(name) || equalBytes(bytes, this.#kept.get(name))) continue;
            if (bytes) this.#folder.write(name, bytes);
            else this.#folder.remove(name);
            changed = true;
        }
        this.#kept = records;
        if (changed) this.onChange();
    }

    async #putRecords() {
        const names = new Set([...this.#folder.names(), ...this.#kept.keys()]);
        const changes = new Map([...names].filter((name) => this.isUnwritten(name)).map((name) => [name, this.#folder.read(name)]));
        if (changes.size === 0) return;
        await this.#answer(this.#store.save(changes));
        for (const [name, bytes] of changes) {
            if (bytes) this.#kept.set(name, bytes);
            else this.#kept.delete(name);
        }
    }
}
