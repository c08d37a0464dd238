// The game that a thrown-away tab goes on with, over stores that fail and are shared by tabs.
import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { RunningGame } from "../../ui/web/page/running_game.mjs";
import { FakeBrowser, FakeStore, failing, settled, stall } from "./fake_store.mjs";

const Bytes = (...bytes) => Uint8Array.from(bytes);
const Beginning = Bytes(0);
const isSound = (bytes) => bytes[0] !== 255;
let browser, now;

console.warn = () => {};
beforeEach(() => {
    browser = new FakeBrowser();
    now = 1000;
    Date.now = () => ++now;
});

// A page in a tab; its session is what the tab has back when the page is loaded again.
async function openPage(session = {}, trouble = {}) {
    const store = Object.assign(new FakeStore(browser), { trouble });
    const running = new RunningGame(store, session, `page ${++now}`);
    const found = await running.find(isSound);
    const play = async (...snapshots) => {
        for (const snapshot of [null, Beginning, ...snapshots]) running.keep(snapshot);
        await settled();
    };
    return { running, found, play, session, store };
}

test("a game that was left is found at the next visit, as it was last", async () => {
    const { play } = await openPage();
    await play(Bytes(1), Bytes(2));
    assert.deepEqual((await openPage()).found.bytes, Bytes(2));
});

test("a game without a step is not kept, so it hides no other", async () => {
    await (await openPage()).play(Bytes(1));
    await (await openPage()).play(Beginning);
    assert.deepEqual((await openPage()).found.bytes, Bytes(1));
    assert.equal(browser.records.size, 1);
});

for (const [ending, trouble] of [["at once", {}], ["in a store that failed before", { save: failing("AbortError") }]]) {
    test(`a game that has ended is never offered again, nor what it was gone on from: ${ending}`, async () => {
        await (await openPage()).play(Bytes(1));
        const { running, found, store } = await openPage();
        store.trouble = trouble;
        running.take(found);
        await settled();
        store.trouble = {};
        running.keep(null);
        await settled();
        assert.equal((await openPage()).found, undefined);
        assert.equal(browser.records.size, 0);
    });
}

test("going on and coming no further keeps the game", async () => {
    await (await openPage()).play(Bytes(1));
    const { running, found } = await openPage();
    running.take(found);
    running.keep(found.bytes);
    await settled();
    assert.deepEqual((await openPage()).found.bytes, Bytes(1));
    assert.equal(browser.records.size, 1);
});

test("two tabs keep their own games, and each has its own back", async () => {
    const [one, other] = [await openPage(), await openPage()];
    await one.play(Bytes(1));
    await other.play(Bytes(2));
    assert.deepEqual((await openPage(one.session)).found.bytes, Bytes(1));
    assert.deepEqual((await openPage(other.session)).found.bytes, Bytes(2));
    assert.deepEqual((await openPage()).found.bytes, Bytes(2));  // a new tab has the newest
});

test("a tab that goes on with the game of one that is still open leaves that one its own", async () => {
    const [one, other] = [await openPage(), await openPage()];
    await one.play(Bytes(1));
    const second = await openPage(other.session);
    second.running.take(second.found);
    second.running.keep(Bytes(2));
    one.running.keep(Bytes(3));
    await settled();
    assert.deepEqual((await openPage(one.session)).found.bytes, Bytes(3));
    assert.deepEqual((await openPage(second.session)).found.bytes, Bytes(2));
});

test("a damaged game is not offered, but the one before it", async () => {
    await (await openPage()).play(Bytes(1));
    const { play, session } = await openPage();
    await play(Bytes(255));
    browser.records.set("half a record", {});
    assert.deepEqual((await openPage(session)).found.bytes, Bytes(1));
});

test("the last few games are kept", async () => {
    for (let game = 1; game <= 7; ++game) await (await openPage()).play(Bytes(game));
    assert.equal(browser.records.size, 6);  // five, and the one that has just begun
    assert.deepEqual([...browser.records.values()].map(({ bytes }) => bytes[0]), [2, 3, 4, 5, 6, 7]);
});

test("a store that fails keeps the next snapshot, one that is slow the last", async () => {
    const { running, play, store } = await openPage();
    store.trouble.save = failing("QuotaExceededError");
    await play(Bytes(1));
    assert.equal(browser.records.size, 0);
    const { question, answer } = stall();
    store.trouble.save = question;
    running.keep(Bytes(2));
    running.keep(Bytes(3));
    store.trouble = {};
    running.keep(Bytes(4));
    answer();
    await settled();
    assert.deepEqual((await openPage()).found.bytes, Bytes(4));
    const refusing = await openPage({}, { open: failing("SecurityError") });
    assert.equal(refusing.found, undefined);
    await refusing.play(Bytes(5));
});
