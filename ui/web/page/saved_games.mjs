// The saved games: a folder of the program, kept by the browser as one record a file, and shared with the page's other tabs. A tab writes
// what it has changed and nothing else, so that none undoes what another one did.

const Database = "orvel-tavoren";
const Records = "saves";
const Extension = ".TVX";
const DraftPrefix = ".saving-";  // such files are the program's own
const MostNameBytes = 255;  // as on other systems, and what the program can list

// The system's numbers, as the program knows them.
const Errno = { EINVAL: 28, EIO: 29, ENAMETOOLONG: 37, ENOSPC: 51 };

function equal(some, others) {
    return some?.length === others?.length && (some ?? []).every((byte, index) => byte === others[index]);
}

function completed(transaction) {
    return new Promise((resolve, reject) => {
        transaction.oncomplete = () => resolve();
        transaction.onabort = () => reject(transaction.error);
    });
}

function openDatabase() {
    return new Promise((resolve, reject) => {
        const request = indexedDB.open(Database, 1);
        request.onupgradeneeded = () => request.result.createObjectStore(Records);
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error);
    });
}

// Browsers that forget all of a private window lend it no folder of its own. A page that is a file never gets one.
async function isPrivateWindow() {
    if (location.protocol === "file:" || !navigator.storage?.getDirectory) return false;
    return navigator.storage.getDirectory().then(() => false, () => true);
}

export class SavedGames {
    #files;
    #folder;
    #kept = new Map();  // the records, as far as this tab has heard
    #downloaded = new Map();
    #database = null;
    #last;  // all work on the records is done one after the other
    #others = null;  // the other tabs; a browser that keeps nothing may not let them be called
    refused = false;  // nothing can be kept; all lives in memory as long as the page does
    isPrivate = false;  // all is forgotten with the window
    hasFailed = false;  // a browser whose storage failed once, as on a full disk, may drop all of it when it starts anew
    promised = null;  // whether the browser will not clear the records when it lacks room; null until it has been asked
    onNews = () => {};  // what there is to say about the saved games has changed
    onChange = () => {};  // the folder has changed without the program's doing

    constructor(files, folder) {
        this.#files = files;
        this.#folder = folder;
        this.#watchFolder(files.lookupPath(folder).node);
        this.#last = this.#start();
        document.addEventListener("visibilitychange", () => {
            if (!document.hidden) this.#read();
        });
    }

    async #start() {
        this.isPrivate = await isPrivateWindow();
        try {
            await this.#open();
            this.#others = new BroadcastChannel(Database);
            this.#others.onmessage = () => this.#read();
            if (await this.#takeRecords()) this.onChange();
        } catch (error) {
            console.warn(error);
            this.refused = true;
        }
        this.onNews();
    }

    async #open() {
        if (this.#database) return;
        const database = await openDatabase();
        // Cleared by the player or the browser: what this tab still has is written again.
        database.onclose = () => {
            this.#kept.clear();
            this.#noteFailure();
            this.onNews();
        };
        database.onversionchange = () => {
            database.close();
            this.#database = null;
        };
        this.#database = database;
    }

    // The next attempt starts anew: a phone may have cut the connection while the page slept.
    #noteFailure() {
        this.#database?.close();
        this.#database = null;
        this.hasFailed = true;
    }

    // The program's own file system replaces a file without forgetting it, and takes names of any length.
    #watchFolder(node) {
        const files = this.#files;
        const { rename } = node.node_ops;
        node.node_ops = {
            ...node.node_ops,
            rename(file, folder, name) {
                if (new TextEncoder().encode(name).length > MostNameBytes) throw new files.ErrnoError(Errno.ENAMETOOLONG);
                const replaced = folder.contents[name];
                if (replaced) files.hashRemoveNode(replaced);
                rename(file, folder, name);
            },
        };
        node.stream_ops = { ...node.stream_ops, fsync: () => this.#flush() };
    }

    // The answer to the program's fsync on the folder.
    async #flush() {
        try {
            await this.#write();
            return this.refused ? Errno.EINVAL : 0;
        } catch (error) {
            return error?.name === "QuotaExceededError" ? Errno.ENOSPC : Errno.EIO;
        }
    }

    #inTurn(work) {
        const done = this.#last.then(work);
        this.#last = done.catch(() => {});
        return done;
    }

    #read() {
        return this.#inTurn(async () => {
            if (this.refused) return;
            await this.#open();
            if (!await this.#takeRecords()) return;
            this.onChange();
            this.onNews();
        }).catch((error) => console.warn(error));
    }

    // True when the folder is not as it was. What this tab has yet to write stays.
    async #takeRecords() {
        const transaction = this.#database.transaction(Records);
        const records = transaction.objectStore(Records);
        const [names, contents] = [records.getAllKeys(), records.getAll()];
        await completed(transaction);
        const held = new Map(names.result.map((name, index) => [name, contents.result[index]]));
        let changed = false;
        for (const name of new Set([...held.keys(), ...this.#kept.keys()])) {
            const bytes = held.get(name);
            if (!this.#isUnwritten(name) && !equal(bytes, this.#kept.get(name))) {
                if (bytes) this.#files.writeFile(this.#path(name), bytes);
                else this.#files.unlink(this.#path(name));
                changed = true;
            }
        }
        this.#kept = held;
        return changed;
    }

    async #write() {
        await this.#inTurn(async () => {
            if (this.refused) return;
            try {
                await this.#open();
                await this.#putRecords();
            } catch (error) {
                this.#noteFailure();
                throw error;
            } finally {
                this.onNews();
            }
        });
        if (!this.refused && this.promised === null) this.#askForPromise();
    }

    async #putRecords() {
        const unwritten = this.#unwritten();
        if (unwritten.length === 0) return;
        const transaction = this.#database.transaction(Records, "readwrite", { durability: "strict" });
        const records = transaction.objectStore(Records);
        const contents = new Map(unwritten.map((name) => [name, this.#bytesOf(name)]));
        for (const [name, bytes] of contents) {
            if (bytes) records.put(bytes, name);
            else records.delete(name);
        }
        await completed(transaction);
        for (const [name, bytes] of contents) {
            if (bytes) this.#kept.set(name, bytes);
            else this.#kept.delete(name);
        }
        this.#others.postMessage("written");
    }

    // Browsers may put the question to the player; nothing waits for the answer.
    async #askForPromise() {
        this.promised = await navigator.storage?.persist?.().catch(() => false) ?? false;
        this.onNews();
    }

    #path(name) {
        return `${this.#folder}/${name}`;
    }

    #fileNames() {
        return this.#files.readdir(this.#folder).filter((name) => name !== "." && name !== ".." && !name.startsWith(DraftPrefix));
    }

    #bytesOf(fileName) {
        return this.#fileNames().includes(fileName) ? this.#files.readFile(this.#path(fileName)) : undefined;
    }

    #isUnwritten(fileName) {
        return !equal(this.#bytesOf(fileName), this.#kept.get(fileName));
    }

    #unwritten() {
        return [...new Set([...this.#fileNames(), ...this.#kept.keys()])].filter((name) => this.#isUnwritten(name));
    }

    names() {
        return this.#fileNames().map((file) => file.slice(0, -Extension.length)).sort((a, b) => a.localeCompare(b, "cs"));
    }

    // Undefined when there is no such saved game.
    bytes(name) {
        return this.#bytesOf(name + Extension);
    }

    isOnlyHere(name) {
        return this.#isUnwritten(name + Extension);
    }

    noteDownload(name) {
        this.#downloaded.set(name, this.bytes(name));
    }

    #isInDanger(name) {
        return this.isOnlyHere(name) || this.isPrivate || this.hasFailed;
    }

    // Whether something would be lost with the page that the player has in no file.
    wouldBeLost() {
        return this.names().some((name) => this.#isInDanger(name) && !equal(this.bytes(name), this.#downloaded.get(name)));
    }

    canName(name) {
        return new TextEncoder().encode(name + Extension).length <= MostNameBytes;
    }

    // Rejects when the browser does not keep it; it is in the folder all the same.
    put(name, bytes) {
        this.#files.writeFile(this.#path(name + Extension), bytes);
        this.onChange();
        return this.#write();
    }

    remove(name) {
        this.#files.unlink(this.#path(name + Extension));
        this.onChange();
        return this.#write();
    }
}
