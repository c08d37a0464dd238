// A store as records.mjs describes it: a table of IndexedDB, which outlives the page and is shared by all its tabs.

function requested(request) {
    return new Promise((resolve, reject) => {
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error);
    });
}

function completed(transaction) {
    return new Promise((resolve, reject) => {
        transaction.oncomplete = () => resolve();
        transaction.onabort = () => reject(transaction.error);
    });
}

export class BrowserStore {
    #name;
    #table;
    #database = null;  // a promise
    #isNew = false;
    #otherTabs = null;
    onNews = () => {};

    constructor(name, table) {
        this.#name = name;
        this.#table = table;
        document.addEventListener("visibilitychange", () => {
            if (!document.hidden) this.onNews();
        });
    }

    async open() {
        this.#database ??= this.#connect();
        await this.#database;
        this.#listenToOtherTabs();
        const isNew = this.#isNew;
        this.#isNew = false;
        return isNew;
    }

    async #connect() {
        const request = indexedDB.open(this.#name, 1);
        request.onupgradeneeded = () => {
            request.result.createObjectStore(this.#table);
            this.#isNew = true;
        };
        const database = await requested(request);
        // The browser closes the database itself, for example when the player clears the page's data.
        database.onclose = () => {
            this.drop();
            this.onNews();
        };
        database.onversionchange = ({ newVersion }) => {
            this.drop();
            const isDeleted = newVersion === null;
            if (isDeleted) this.onNews();
        };
        return database;
    }

    // A browser that keeps nothing may refuse a channel to the other tabs. It does no harm, because then no tab has news for another.
    #listenToOtherTabs() {
        if (this.#otherTabs !== null) return;
        try {
            this.#otherTabs = new BroadcastChannel(this.#name);
            this.#otherTabs.onmessage = () => this.onNews();
        } catch (error) {
            console.warn(error);
        }
    }

    drop() {
        this.#database?.then((database) => database.close(), () => {});
        this.#database = null;
    }

    async load() {
        const transaction = (await this.#database).transaction(this.#table);
        const records = transaction.objectStore(this.#table);
        const [names, contents] = [records.getAllKeys(), records.getAll()];
        await completed(transaction);
        return new Map(names.result.map((name, index) => [name, contents.result[index]]));
    }

    async save(changes) {
        const transaction = (await this.#database).transaction(this.#table, "readwrite", { durability: "strict" });
        const records = transaction.objectStore(this.#table);
        for (const [name, bytes] of changes) {
            if (bytes) records.put(bytes, name);
            else records.delete(name);
        }
        await completed(transaction);
        this.#otherTabs?.postMessage("written");
    }
}

// Browsers give a private window no folder of its own. A page that is a file never gets one, so there the answer is not known.
export async function isPrivateWindow() {
    if (location.protocol === "file:" || !navigator.storage?.getDirectory) return false;
    return navigator.storage.getDirectory().then(() => false, () => true);
}

// Asks the browser to promise that it will not clear the page's data for want of room. It may ask the player, who may never answer.
export async function askToKeepForGood() {
    return await navigator.storage?.persist?.().catch(() => false) ?? false;
}
