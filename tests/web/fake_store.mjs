// Stores without a browser: what the tabs of one browser share, and how it may fail them.

export class FakeBrowser {
    records = new Map();
    isNew = true;
    tabs = [];

    // Clears the store, as the player does, or a browser that lacks room. Browsers tell the tabs of it, or do not.
    clear({ told = true } = {}) {
        this.records.clear();
        this.isNew = true;
        if (told) this.tabs.forEach((tab) => tab.onNews());
    }
}

export class FakeStore {
    // By the name of a question, a function that answers it in the store's place: it throws, or promises an answer that may never come.
    trouble = {};
    #browser;
    onNews = () => {};
    drops = 0;

    constructor(browser = new FakeBrowser()) {
        this.#browser = browser;
        browser.tabs.push(this);
    }

    async open() {
        await this.trouble.open?.();
        const { isNew } = this.#browser;
        this.#browser.isNew = false;
        return isNew;
    }

    async load() {
        await this.trouble.load?.();
        return new Map(this.#browser.records);
    }

    async save(changes) {
        await this.trouble.save?.(changes);
        for (const [name, bytes] of changes) {
            if (bytes) this.#browser.records.set(name, bytes);
            else this.#browser.records.delete(name);
        }
        for (const tab of this.#browser.tabs) if (tab !== this) tab.onNews();
    }

    drop() {
        ++this.drops;
    }
}

export class FakeFolder {
    extension = ".TVX";
    files = new Map();
    names() { return [...this.files.keys()]; }
    read(name) { return this.files.get(name); }
    write(name, bytes) { this.files.set(name, bytes); }
    remove(name) { this.files.delete(name); }
    keepBy(keep) { this.fsync = keep; }
}

export const failing = (name) => () => { throw new DOMException("as the test wants", name); };

// A question that is answered when the test says so.
export function stall() {
    let answer;
    const pending = new Promise((resolve) => { answer = resolve; });
    return { answer, question: () => pending };
}

// Waits until everything has happened that needs no waiting.
export const settled = () => new Promise((done) => { setImmediate(done); });
