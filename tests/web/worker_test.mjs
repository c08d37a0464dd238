// The service worker through three versions of the site, over caches and a network without a browser.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { beforeEach, test } from "node:test";
import vm from "node:vm";

const Script = readFileSync(new URL("../../ui/web/page/worker.js", import.meta.url), "utf8");
const Scope = "https://hry.example/orvel/";
const Other = "https://hry.example/jiné/";
let stored, network;
let scope;  // of the site that is at work

const addressOf = (request) => new URL(request.url ?? request, scope).href;

class FakeCache {
    files = new Map();
    async put(name, response) { this.files.set(addressOf(name), await response.text()); }
    async match(request) {
        const text = this.files.get(addressOf(request));
        return text === undefined ? undefined : new Response(text);
    }
}

const caches = {
    async open(name) {
        if (!stored.has(name)) stored.set(name, new FakeCache());
        return stored.get(name);
    },
    keys: async () => [...stored.keys()],
    delete: async (name) => stored.delete(name),
    async match(request) {
        for (const cache of stored.values()) {
            const found = await cache.match(request);
            if (found) return found;
        }
        return undefined;
    },
};

// The network has each file's text, or a function of how the browser's own cache is to be used.
async function fetch(request, { integrity = "", cache = "default" } = {}) {
    const file = network.get(addressOf(request));
    if (network.isCut) throw new TypeError("no network");
    const text = typeof file === "function" ? file(cache) : file;
    if (text !== undefined && integrity !== "" && integrity !== `hash of ${text}`) throw new TypeError("integrity");
    return new Response(text, { status: text === undefined ? 404 : 200 });
}

class Worker {
    #listeners = {};
    claims = 0;
    skips = 0;

    constructor(version, files) {
        const constants = `const Version = ${JSON.stringify(version)}; const Files = ${JSON.stringify(files)};`;
        vm.runInNewContext(constants + Script, {
            registration: { scope }, caches, fetch, Response, URL, Error,
            skipWaiting: () => { ++this.skips; },
            clients: { claim: async () => { ++this.claims; } },
            addEventListener: (type, listener) => { this.#listeners[type] = listener; },
        });
    }

    async raise(type) {
        let done;
        this.#listeners[type]({ waitUntil: (promise) => { done = promise; } });
        await done;
    }

    async start() {
        await this.raise("install");
        await this.raise("activate");
        return this;
    }

    // What the page gets; null when the browser is left to fetch it itself.
    async answer(url, { mode = "cors", method = "GET" } = {}) {
        let answered = null;
        this.#listeners.fetch({ request: { url: addressOf(url), mode, method }, respondWith: (response) => { answered = response; } });
        return answered && (await answered).text();
    }

    visit = (url = "") => this.answer(url, { mode: "navigate" });
}

// Puts a version of a site on the server, where the files of the one before it are gone, and gives the list of its worker.
function deploy(version, site = Scope) {
    scope = site;
    for (const address of [...network.keys()].filter((each) => each.startsWith(scope))) network.delete(address);
    const files = { "./": `page ${version}`, [`${version}/game.js`]: `game ${version}`, [`${version}/pics/gui2.webp`]: `picture ${version}` };
    for (const [name, text] of Object.entries(files)) network.set(new URL(name, scope).href, text);
    return Object.fromEntries(Object.entries(files).map(([name, text]) => [name, `hash of ${text}`]));
}

beforeEach(() => {
    stored = new Map();
    network = new Map();
});

test("what is kept is the whole version, and is played without a network", async () => {
    const worker = await new Worker("1", deploy("1")).start();
    assert.deepEqual([worker.skips, worker.claims], [1, 1]);
    network.isCut = true;
    assert.equal(await worker.visit(), "page 1");
    for (const address of ["?from=elsewhere", "index.html"]) assert.equal(await worker.visit(address), "page 1");
    assert.equal(await worker.answer("1/game.js"), "game 1");
    assert.equal(await worker.answer("1/pics/gui2.webp"), "picture 1");
    await assert.rejects(worker.answer("LICENSES/list"), /no network/);
    assert.equal(await worker.answer("1/game.js", { method: "POST" }), null);
    assert.equal(await worker.answer("https://hry.example/orvel.html"), null);
});

test("a page that stays open through one deployment has its pictures, the next visit the new page", async () => {
    await new Worker("1", deploy("1")).start();
    const second = await new Worker("2", deploy("2")).start();
    assert.equal(await second.answer("1/pics/gui2.webp"), "picture 1");
    assert.equal(await second.visit(), "page 2");
    assert.equal(await second.answer("2/game.js"), "game 2");
    const third = await new Worker("3", deploy("3")).start();
    assert.equal(await third.answer("2/pics/gui2.webp"), "picture 2");
    assert.equal(await third.answer("1/pics/gui2.webp"), "");  // the server's word
    assert.equal(stored.size, 2);
});

test("another site on the same server keeps what it has", async () => {
    await new Worker("1", deploy("1", Other)).start();
    for (const version of ["1", "2", "3"]) await new Worker(version, deploy(version)).start();
    assert.equal(stored.size, 3);
});

test("half a version is none: what was there before goes on answering", async () => {
    const first = await new Worker("1", deploy("1")).start();
    for (const spoil of [undefined, "damaged"]) {
        const files = deploy("2");
        network.set(new URL("2/game.js", Scope).href, spoil);
        await assert.rejects(new Worker("2", files).raise("install"));
        assert.equal(stored.size, 1);
        assert.equal(await first.visit(), "page 1");
    }
});

test("a damaged file in the browser's own cache is fetched anew", async () => {
    const files = deploy("1");
    network.set(new URL("1/game.js", Scope).href, (cache) => cache === "reload" ? "game 1" : "damaged");
    const worker = await new Worker("1", files).start();
    assert.equal(await worker.answer("1/game.js"), "game 1");
});
