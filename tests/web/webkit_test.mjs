// The page in WebKit, once through all that a browser can do differently: commands, keys, the browser's keeping of saved games, a panel, and
// a window as narrow as a phone.
//     webkit_test.mjs SITE
import assert from "node:assert/strict";
import { test } from "node:test";
import { findSmall } from "./browser.mjs";
import { growEars } from "./listener.mjs";
import { Player } from "./player.mjs";
import { browser, patience, server, stageScenes } from "./scenes.mjs";
import { WebKit } from "./webkit.mjs";

const phone = { width: 447, height: 844 };  // this browser makes its windows no narrower
stageScenes(process.argv[2], () => WebKit.start());

test("a game is played, saved, found again by the next visit and played on", patience, async () => {
    const tab = await browser.open(server.address);
    const player = new Player(tab);
    const shown = async (form, control) => (await player.look()).forms[form].controls[control];
    await tab.evaluate(growEars);
    await player.keys("Enter", "Enter");
    await player.command("Vezmi", "nářadí");
    assert.deepEqual((await shown("Form1", "List1")).entries, ["nářadí"]);
    const heard = await tab.evaluate(() => window.heard.join());
    assert.match(heard, /Nemůžeš jít nikam.*Vezmi\..*Vezmi nářadí\..*Proceed zhaslo/);
    await player.keys("Tab", "Tab", "r", "Escape");
    assert.equal(await player.focus(), "Form1.Text2");
    await player.saveAs("žlutá");
    assert.equal((await player.look()).modal, null);

    await tab.reload();
    await tab.waitForSelector("#Form1:not([hidden])");
    await player.keys("Enter", "Enter");
    assert.deepEqual((await shown("Form1", "List1")).entries, ["---"]);
    await player.command("Nahraj pozici");
    await tab.waitForFunction(() => document.getElementById("Form4.List1").textContent === "žlutá");
    await player.click("Form4.List1", "žlutá");
    await player.key("Form4.List1", "Enter");
    assert.deepEqual((await shown("Form1", "List1")).entries, ["nářadí"]);

    await player.command("Použij", "terminál", "sebe");
    await player.type("Form2.Text2", "mj-peraxx");
    await player.keys("Backspace", "ArrowLeft", "ArrowLeft", "o", "l", "Enter");
    assert.match((await shown("Form2", "Text1")).text, /Dobrý den, pane Selagu Hemafo!/);
    await player.type("Form2.Text2", "exit");
    await player.click("Form2.Label2");
    assert.equal((await player.look()).modal, null);

    await tab.setViewport(phone);
    await player.click("Form1.List2(0)", "Otevři");
    await player.click("Form1.List2(1)", "skříň");
    assert.equal((await shown("Form1", "Text2")).text, "Otevři skříň");
    assert.deepEqual(await findSmall(tab), []);
    await player.click("Form1.Label1");
    assert.match((await shown("Form1", "Text1")).text, /skříň[^\r]*$/i);
    await player.keys("Escape");
    assert.deepEqual(await player.look(), { ended: true });
});
