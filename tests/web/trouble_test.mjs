// What the page says where it cannot start, and that it starts when the cause is gone.
//     trouble_test.mjs SITE
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { Browser, serve } from "./browser.mjs";
import { Player } from "./player.mjs";
import { patience } from "./scenes.mjs";

const site = process.argv[2];
const half = (bytes) => bytes.subarray(0, bytes.length / 2);
const nothing = () => null;
const trouble = { shows: "#trouble:not([hidden])" };
let browser;

before(async () => { browser = await Browser.start(); });
after(() => browser.stop());

const told = (tab) => tab.evaluate(() => document.body.innerText);

for (const [name, spoil, sentence] of [
    ["engine.wasm", half, /Soubor engine\.wasm dorazil poškozený/],
    ["engine.wasm", nothing, /chybí soubor engine\.wasm/],
    ["game.js", nothing, /chybí soubor game\.js/],
    ["game.js", half, /Soubor game\.js dorazil poškozený/],
    ["texs.dat", half, /Soubor texs\.dat dorazil poškozený/],
]) {
    test(`${name}, ${spoil === half ? "damaged" : "missing"} on the server, is named, until it is mended`, patience, async (scene) => {
        let mended = false;
        const server = await serve(site, (file, bytes) => file === name && !mended ? spoil(bytes) : bytes);
        scene.after(() => server.stop());
        const tab = await browser.open(server.address, { shows: "#trouble:not([hidden]), #message-box:not([hidden])" });
        // The program itself says first what is wrong with its story.
        if (await tab.$("#message-box:not([hidden])")) await tab.keyboard.press("Enter");
        await tab.waitForSelector(trouble.shows);
        assert.match(await told(tab), sentence);
        assert.equal(await tab.evaluate(() => document.activeElement.id), "try-again");
        mended = true;
        await tab.click("#try-again");
        await tab.waitForSelector("#Form1:not([hidden])");
        await tab.close();
    });
}

test("a game that has crashed says so, and begins anew without asking whether to leave", patience, async (scene) => {
    // It crashes when it draws a number, as it does to save.
    const crash = '(() => { throw new WebAssembly.RuntimeError("unreachable"); })()';
    const crashing = (name, bytes) => name === "game.js" ? String(bytes).replaceAll("Math.random()", crash) : bytes;
    const server = await serve(site, crashing);
    scene.after(() => server.stop());
    const tab = await browser.open(server.address);
    const player = new Player(tab);
    const questions = [];
    tab.on("dialog", (dialog) => {
        questions.push(dialog.type());
        dialog.accept();
    });
    await player.keys("Enter", "Enter");
    await player.command("Vezmi", "nářadí");
    await player.saveAs("pád");
    await tab.waitForSelector(trouble.shows);
    assert.match(await told(tab), /Ve hře nastala chyba/);
    await tab.click("#try-again");
    await tab.waitForSelector("#Form1:not([hidden])");
    assert.deepEqual(questions, []);
    await tab.close();
});

test("a browser without WebAssembly, and one without scripts, are told what the game needs", patience, async (scene) => {
    const server = await serve(site);
    scene.after(() => server.stop());
    const tab = await browser.open(server.address, { ...trouble, prepare: () => { delete window.WebAssembly; } });
    assert.match(await told(tab), /nemá WebAssembly/);
    await tab.setJavaScriptEnabled(false);
    await tab.reload();
    assert.match(await told(tab), /potřebuje JavaScript/);
    await tab.close();
});
