// The page's own menu: the saved games that are listed, carried away, deleted and dropped, and the hint that they may not last.
//     menu_test.mjs SITE
import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import path from "node:path";
import { test } from "node:test";
import { press } from "./browser.mjs";
import { Player } from "./player.mjs";
import { browser, patience, server, stageScenes } from "./scenes.mjs";

stageScenes(process.argv[2]);

const textOf = (tab, selector) => tab.$eval(selector, (element) => element.textContent);
const waitForText = (tab, selector, text) => tab.waitForFunction((where, wanted) =>
    document.querySelector(where).textContent.includes(wanted), { timeout: 5000 }, selector, text);

async function openGame() {
    const tab = await browser.open(server.address, { prepare: () => { StorageManager.prototype.persist = async () => false; } });
    const player = new Player(tab);
    await player.keys("Enter", "Enter");
    return { tab, player };
}

const listed = (tab) => tab.$$eval("#saved-games span", (names) => names.map((name) => name.textContent));

test("saved games are listed, carried away together and deleted after a question", patience, async () => {
    const { tab, player } = await openGame();
    await press(tab, "Uložené pozice");
    assert.deepEqual(await tab.$$eval("#saved-games li", (rows) => rows.map((row) => row.textContent)), ["Zatím tu žádná není."]);
    assert.equal(await tab.$$eval("#saved-games-dialog button", (buttons) => buttons.find((each) => each.disabled).textContent), "Stáhnout všechny");
    await press(tab, "Zavřít");
    for (const name of ["žlutá", "čistá"]) await player.saveAs(name);
    await press(tab, "Uložené pozice");
    assert.deepEqual(await listed(tab), ["čistá", "žlutá"]);
    await press(tab, "Stáhnout všechny");
    const file = path.join(browser.downloads, "orvel-tavoren-pozice.zip");
    let bytes = "";
    for (let tries = 0; tries < 100 && bytes === ""; ++tries) {
        bytes = await readFile(file, "utf8").catch(() => "");
        await new Promise((later) => { setTimeout(later, 20); });
    }
    assert.ok(bytes.includes("čistá.TVX") && bytes.includes("žlutá.TVX"));

    const ask = async () => {
        await press(tab, "Smazat žlutá");
        assert.match(await textOf(tab, "#question"), /Opravdu smazat pozici „žlutá“/);
    };
    const isAsking = () => tab.$eval("#question", (question) => !question.hidden);
    await ask();
    await press(tab, "Ponechat");
    assert.equal(await isAsking(), false);
    await ask();
    await tab.keyboard.press("Escape");  // the dialog is shut with its question
    await press(tab, "Uložené pozice");
    assert.equal(await isAsking(), false);
    assert.deepEqual(await listed(tab), ["čistá", "žlutá"]);
    await ask();
    await tab.click("#question button");
    await waitForText(tab, "#answers", "Pozice „žlutá“ je smazaná.");
    assert.deepEqual(await listed(tab), ["čistá"]);
    await press(tab, "Zavřít");
    await player.command("Nahraj pozici");
    assert.deepEqual((await player.look()).forms.Form4.controls.List1.entries, ["čistá"]);
    await tab.close();
});

test("a file that is dropped anywhere is taken in, and does not take the page's place", patience, async () => {
    const { tab } = await openGame();
    const dropped = await tab.evaluate(() => {
        const drag = (type, ...files) => {
            const dataTransfer = new DataTransfer();
            for (const file of files) dataTransfer.items.add(file);
            return !document.getElementById("stage").dispatchEvent(new DragEvent(type, { dataTransfer, bubbles: true, cancelable: true }));
        };
        return [drag("dragover", new File(["?"], "a.TVX")), drag("dragover"), drag("drop", new File(["?"], "a.TVX"), new File(["?"], "b.TVX")), drag("drop")];
    });
    assert.deepEqual(dropped, [true, false, true, false]);
    await waitForText(tab, "#answers", "„b.TVX“ není uložená pozice");
    assert.match(await textOf(tab, "#answers"), /„a.TVX“ není/);
    await press(tab, "Zavřít");
    await press(tab, "Uložené pozice");
    assert.equal(await textOf(tab, "#answers"), "");
    await tab.close();
});

test("a browser that promises nothing is told of until the player has read it", patience, async () => {
    const { tab, player } = await openGame();
    const hint = () => textOf(tab, "#storage-notice").catch(() => "");
    assert.equal(await hint(), "");
    await player.saveAs("hra");
    await waitForText(tab, "#storage-notice", "neslíbil");
    await press(tab, "Rozumím");
    assert.equal(await hint(), "");
    await tab.reload();
    await tab.waitForSelector("#Form1:not([hidden])");
    await player.keys("Enter", "Enter");
    await player.saveAs("hra");
    await tab.evaluate(() => new Promise((later) => { setTimeout(later, 50); }));
    assert.equal(await hint(), "");
    await tab.close();
});
