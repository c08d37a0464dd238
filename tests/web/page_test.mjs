// The page by keyboard alone, and what it offers to those who do not see it.
//     page_test.mjs SITE
import assert from "node:assert/strict";
import { test } from "node:test";
import { findBarriers, serve } from "./browser.mjs";
import { Listener, growEars } from "./listener.mjs";
import { Player } from "./player.mjs";
import { browser, patience, server, stageScenes } from "./scenes.mjs";

stageScenes(process.argv[2]);

const shown = async (player, form, control) => (await player.look()).forms[form].controls[control];
const told = async (player) => (await shown(player, "Form1", "Text1")).text.split("\r\n").filter((line) => line !== "");

test("by keyboard alone, from the title into the terminal and out", patience, async () => {
    const tab = await browser.open(server.address, { prepare: growEars });
    const player = new Player(tab);
    const listener = new Listener(tab);
    const marked = () => tab.evaluate(() => {
        const mark = document.activeElement.getAttribute("aria-activedescendant");
        return document.getElementById(mark)?.textContent;
    });
    const tabTo = async (control) => {
        for (let presses = 0; await player.focus() !== control; ++presses) {
            assert.ok(presses < 10, `Tab never comes to ${control}`);
            await player.keys("Tab");
        }
    };
    const choose = async (list, entry) => {
        await tabTo(list);
        await player.keys("Home");
        for (let presses = 0; await marked() !== entry; ++presses) {
            assert.ok(presses < 20, `the arrows never come to ${entry} in ${list}`);
            await player.keys("ArrowDown");
        }
        await player.keys("Enter");
    };
    const proceed = async () => {
        await tabTo("Form1.Label1");
        await player.keys("Space");
    };

    for (let held = 0; held < 3; ++held) await tab.keyboard.down("Enter");
    assert.doesNotMatch((await told(player)).at(-1), /jít/);  // still the introduction
    await tab.keyboard.up("Enter");
    await player.keys("Enter");
    const order = new Set();
    for (let presses = 0; presses < 12; ++presses) order.add(await player.keys("Tab").then(() => player.focus()));
    order.delete("");  // outside of the windows
    assert.deepEqual([...order], ["List1", "List2(0)", "List2(1)", "List2(2)", "Label1", "Text1", "Text2"].map((name) => `Form1.${name}`));
    // A screen reader speaks the new reply, all of it and nothing else but the lamp.
    for (const thing of ["okno", "skříň"]) {
        const before = await told(player);
        await listener.hear();
        await choose("Form1.List2(0)", "Prozkoumej");
        await choose("Form1.List2(1)", thing);
        await proceed();
        const reply = (await told(player)).slice(before.length);
        assert.notEqual(reply.length, 0);
        assert.deepEqual(await listener.hear(), ["Prozkoumej.", "Proceed svítí.", `Prozkoumej ${thing}.`, ...reply, "Proceed zhaslo."]);
    }
    await choose("Form1.List2(0)", "Použij");
    await choose("Form1.List2(1)", "terminál");
    await choose("Form1.List2(2)", "sebe");
    assert.equal((await shown(player, "Form1", "Text2")).text, "Použij terminál na sebe");
    await proceed();
    assert.equal((await player.look()).modal, "Form2");

    // Nothing behind the terminal can be reached.
    const reached = new Set();
    for (let presses = 0; presses < 8; ++presses) reached.add(await player.keys("Tab").then(() => player.focus()));
    assert.ok([...reached].every((control) => control === "" || control.startsWith("Form2.")), [...reached].join());
    await tabTo("Form2.Text2");
    await player.type("Form2.Text2", "exiit");
    await player.keys("ArrowLeft", "Backspace", "Enter");
    assert.equal((await player.look()).modal, null);
    assert.equal(await player.focus(), "Form1.Text2");
    await player.keys("Escape");
    assert.deepEqual(await player.look(), { ended: true });
    await player.keys("Enter");  // to play again
    await tab.waitForSelector("#Form1:not([hidden])");
    await tab.close();
});

test("Enter is heard that was pressed on the title before the game had come", patience, async (scene) => {
    let send;
    const sent = new Promise((resolve) => { send = resolve; });
    const slow = await serve(process.argv[2], (name, bytes) => name === "game.js" ? sent.then(() => bytes) : bytes);
    scene.after(() => slow.stop());
    const tab = await browser.open(slow.address, { shows: "#title" });
    await tab.keyboard.press("Enter");
    send();
    await tab.waitForSelector("#Form1:not([hidden])");
    await tab.waitForFunction(() => !document.getElementById("Form1.Text1").matches(".invisible"));
    await tab.close();
});

test("Enter that was held in the address bar does not go on from the title", patience, async () => {
    const tab = await browser.open(server.address, { shows: "#stage" });
    const keyboard = await tab.createCDPSession();
    const hold = () => keyboard.send("Input.dispatchKeyEvent",
        { type: "keyDown", key: "Enter", code: "Enter", text: "\r", windowsVirtualKeyCode: 13, autoRepeat: true });
    await hold();
    await tab.waitForSelector("#Form1:not([hidden])");
    await hold();
    assert.equal((await shown(new Player(tab), "Form1", "Text1")).visible, false);  // until the title is left
    await tab.close();
});

test("the title's picture stands in for the main window's until that has come, and in nobody's way", patience, async (scene) => {
    let send;
    const sent = new Promise((resolve) => { send = resolve; });
    const slow = await serve(process.argv[2], (name, bytes) => name === "gui1.webp" ? sent.then(() => bytes) : bytes);
    scene.after(() => slow.stop());
    const tab = await browser.open(slow.address);
    const isBehind = () => tab.$eval("#title", (title) => title.classList.contains("behind"));
    assert.equal(await isBehind(), false);
    await tab.keyboard.press("Enter");
    assert.equal(await isBehind(), true);
    assert.match((await told(new Player(tab))).at(-1), /Proceed/);
    send();
    await tab.waitForFunction(() => !document.getElementById("title"));
    assert.match(await tab.$eval("#Form1", (form) => getComputedStyle(form).backgroundImage), /^url/);
    await tab.close();
});

test("what an input method composes is taken once", patience, async () => {
    const tab = await browser.open(server.address);
    const player = new Player(tab);
    await player.keys("Enter", "Enter");
    await player.command("Použij", "terminál", "sebe");
    const keyboard = await tab.createCDPSession();
    await keyboard.send("Input.imeSetComposition", { text: "žluť", selectionStart: 4, selectionEnd: 4 });
    assert.equal((await shown(player, "Form2", "Text2")).text, "žluť");
    await player.click("Form2.Label2");
    assert.equal((await shown(player, "Form2", "Text2")).text, "");
    await player.type("Form2.Text2", "exit");
    await player.keys("Enter");
    assert.equal((await player.look()).modal, null);
    await tab.close();
});

test("axe finds nothing in the windows of a game", patience, async () => {
    const tab = await browser.open(server.address);
    const player = new Player(tab);
    const hear = async (where) => assert.deepEqual([where, ...await findBarriers(tab)], [where]);
    await hear("the title");
    await player.keys("Enter", "Enter");
    await hear("the main window");
    await player.command("Ulož pozici");
    await hear("the System Panel");
    await player.click("Form4.Text1");
    await player.type("Form4.Text1", "a/b");
    await player.keys("Enter");
    await tab.waitForSelector("#message-box:not([hidden])");
    await hear("a message");
    await player.look();
    await player.keys("Backspace", "Backspace", "Backspace");
    await player.type("Form4.Text1", "exit");
    await player.keys("Enter");
    await player.command("Použij", "terminál", "sebe");
    await hear("the terminal");
    await player.type("Form2.Text2", "exit");
    await player.keys("Enter", "Escape");
    await hear("the end");
    await tab.close();
});
