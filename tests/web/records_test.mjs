// The records of the saved games and what the player is told of them, over stores that fail, stall, are cleared and are full.
import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { Records } from "../../ui/web/page/records.mjs";
import { SavedGames } from "../../ui/web/page/saved_games.mjs";
import { FakeBrowser, FakeFolder, FakeStore, failing, settled, stall } from "./fake_store.mjs";

const Patience = 20;  // milliseconds
const Bytes = (...bytes) => Uint8Array.from(bytes);
const patienceEnds = () => new Promise((ended) => { setTimeout(ended, 2 * Patience); });
let browser;

console.warn = () => {};
beforeEach(() => { browser = new FakeBrowser(); });

// One tab of the page, which has read its records unless the store is in trouble.
async function openTab(trouble = {}, answers = {}) {
    const store = Object.assign(new FakeStore(browser), { trouble });
    const folder = new FakeFolder();
    const games = new SavedGames(folder, new Records(store, folder, Patience), {
        isPrivateWindow: async () => answers.isPrivate ?? false,
        askToKeepForGood: async () => answers.promised ?? true,
    });
    let changes = 0;
    games.onChange = () => { ++changes; };
    await settled();
    const save = (name, ...bytes) => {
        folder.write(`${name}.TVX`, Bytes(...bytes));
        return folder.fsync();
    };
    return { store, folder, games, save, changes: () => changes };
}

test("a saved game is there for the next visit and for the other tabs, and so is its deletion", async () => {
    const [tab, other] = [await openTab(), await openTab()];
    assert.equal(await tab.save("žlutá", 1), true);
    await settled();
    assert.deepEqual(other.games.bytes("žlutá"), Bytes(1));
    assert.equal(other.changes(), 1);
    assert.equal(tab.changes(), 0);  // it was the program that changed its folder
    await other.save("modrá", 2);
    const third = await openTab();
    assert.deepEqual(third.games.names(), ["modrá", "žlutá"]);
    await third.games.remove("žlutá");
    await settled();
    assert.deepEqual([tab, other].map(({ games }) => games.names()), [["modrá"], ["modrá"]]);
    assert.equal(tab.games.warning(), "");
    assert.equal(tab.games.wouldBeLost(), false);
});

test("a tab writes what it has changed and nothing else", async () => {
    const [tab, other] = [await openTab(), await openTab()];
    await tab.save("a", 1);
    await settled();
    browser.tabs = [];  // from now on neither hears of the other
    await other.save("a", 2);
    const written = [];
    tab.store.trouble.save = (changes) => { written.push(...changes.keys()); };
    await tab.save("b", 3);
    assert.deepEqual(written, ["b.TVX"]);
    assert.deepEqual(browser.records.get("a.TVX"), Bytes(2));
});

test("a full store is told to the program, its game can be carried away, and the next attempt starts anew", async () => {
    const tab = await openTab();
    await tab.save("stará", 1);
    tab.store.trouble.save = failing("QuotaExceededError");
    await assert.rejects(tab.save("nová", 2), { name: "QuotaExceededError" });
    assert.match(tab.games.warning(), /nedokázal uložit: „nová“\./);
    assert.equal(tab.games.wouldBeLost(), true);
    tab.games.noteDownload("nová");
    assert.equal(tab.games.wouldBeLost(), true);  // all that such a browser keeps is in danger
    tab.games.noteDownload("stará");
    assert.equal(tab.games.wouldBeLost(), false);
    assert.equal(tab.store.drops, 1);
    tab.store.trouble = {};
    assert.equal(await tab.save("další", 3), true);
    assert.deepEqual([...browser.records.keys()], ["stará.TVX", "nová.TVX", "další.TVX"]);
    assert.match(tab.games.warning(), /selhalo/);
});

for (const question of ["open", "save"]) {
    test(`a store that does not answer to ${question} lets the player go on, and an answer that comes late still counts`, async () => {
        browser.records.set("dřívější.TVX", Bytes(9));
        browser.isNew = false;
        const { question: pending, answer } = stall();
        const tab = await openTab({ [question]: pending });
        const begun = performance.now();
        await assert.rejects(tab.save("nová", 1), { name: "TimeoutError" });
        assert.ok(performance.now() - begun < 3 * Patience, "one save waits no longer than one wait may take");
        assert.match(tab.games.warning(), /nedokázal uložit: „nová“\./);
        await patienceEnds();
        tab.store.trouble = {};
        answer();
        await settled();
        assert.deepEqual(tab.games.names(), ["dřívější", "nová"]);
        assert.equal(await tab.save("další", 2), true);
        assert.deepEqual([...browser.records.keys()].sort(), ["další.TVX", "dřívější.TVX", "nová.TVX"]);
        assert.match(tab.games.warning(), /selhalo/);
    });
}

test("a store that does not give its records keeps new ones, and gives the others late", async () => {
    browser.records.set("dřívější.TVX", Bytes(9));
    const { question, answer } = stall();
    const tab = await openTab({ load: question });
    await patienceEnds();
    assert.match(tab.games.warning(), /neodpovídá/);
    assert.equal(await tab.save("nová", 1), true);
    answer();
    await settled();
    assert.deepEqual(tab.games.names(), ["dřívější", "nová"]);
    assert.equal(tab.games.warning(), "");
});

test("a browser that keeps nothing fails no save, and is asked again by the next one", async () => {
    const tab = await openTab({ open: failing("SecurityError") });
    assert.match(tab.games.warning(), /neuchová/);
    assert.equal(await tab.save("jen tady", 1), false);
    assert.equal(tab.games.wouldBeLost(), true);
    assert.equal(tab.games.promised, null);  // nothing to ask a promise for
    tab.store.trouble = {};
    assert.equal(await tab.save("i tam", 2), true);
    assert.equal(browser.records.size, 2);
    assert.equal(tab.games.warning(), "");
});

for (const told of [true, false]) {
    test(`what the browser cleared is written again by the tabs that have it, ${told ? "at once" : "when they look next"}`, async () => {
        const [tab, other] = [await openTab(), await openTab()];
        await tab.save("a", 1);
        await other.save("b", 2);
        await settled();
        browser.clear({ told });
        if (!told) tab.store.onNews();
        await settled();
        assert.deepEqual([...browser.records.keys()].sort(), ["a.TVX", "b.TVX"]);
        assert.deepEqual(tab.games.names(), ["a", "b"]);
        assert.equal(tab.games.warning(), "");
        await tab.games.remove("a");
        await settled();
        assert.deepEqual(other.games.names(), ["b"]);
    });
}

test("a save into a store that was cleared meanwhile writes all of the folder", async () => {
    const tab = await openTab();
    await tab.save("a", 1);
    browser.clear({ told: false });
    await tab.save("b", 2);
    assert.deepEqual([...browser.records.keys()].sort(), ["a.TVX", "b.TVX"]);
});

test("the browser is asked once for its promise, after the first game is kept, and nothing waits for its answer", async () => {
    const tab = await openTab({}, { promised: new Promise(() => {}) });
    assert.equal(await tab.save("a", 1), true);
    assert.equal(await tab.save("a", 2), true);
    assert.equal(tab.games.promised, null);
    const refusing = await openTab({}, { promised: false });
    await refusing.save("b", 1);
    await settled();
    assert.equal(refusing.games.promised, false);
});

test("in a private window all is in danger that was not carried away", async () => {
    const tab = await openTab({}, { isPrivate: true });
    assert.match(tab.games.warning(), /anonymní/);
    await tab.save("a", 1);
    assert.equal(tab.games.wouldBeLost(), true);
    tab.games.noteDownload("a");
    assert.equal(tab.games.wouldBeLost(), false);
    await tab.save("a", 2);
    assert.equal(tab.games.wouldBeLost(), true);
});

test("a name is refused when its file could not be listed", async () => {
    const { games } = await openTab();
    assert.equal(games.canName("ž".repeat(125)), true);
    assert.equal(games.canName("ž".repeat(126)), false);
});
