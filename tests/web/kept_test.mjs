// What the browser keeps: saved games, which the headless player takes and gives, and the page itself for when there is no network.
//     kept_test.mjs SITE NATIVE_REPLAY PROGRAM_FOLDER
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { copyFile, cp, mkdir, mkdtemp, readFile, rm, writeFile } from "node:fs/promises";
import { tmpdir } from "node:os";
import path from "node:path";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import { Browser, findBarriers, press, serve } from "./browser.mjs";
import { Listener, growEars } from "./listener.mjs";
import { Player } from "./player.mjs";
import { browser, chromiumAlone, inFirefox, patience, server, stageScenes } from "./scenes.mjs";

const [site, replay, programFolder] = process.argv.slice(2);
const WinningGame = new URL("../walkthroughs/winning_game.replay", import.meta.url);
const Beginning = ["key Form1.Text2 Enter", "key Form1.Text2 Enter"];
const save = (name) => ["click Form1.List2(0) Ulož pozici", "key Form1.Text2 Enter", `type Form4.Text1 ${name}`, "key Form4.Text1 Enter"];
const load = (name) => ["click Form1.List2(0) Nahraj pozici", ...save(name).slice(1)];
let folder;

stageScenes(site);
before(async () => {
    folder = await mkdtemp(path.join(tmpdir(), "orvel-native-"));
    await mkdir(path.join(folder, "data", "saves"), { recursive: true });
    await cp(path.join(programFolder, "data", "texs.dat"), path.join(folder, "data", "texs.dat"));
});
after(() => rm(folder, { recursive: true }));

// The last of what the headless player shows.
function playNatively(events) {
    const { stdout } = spawnSync(replay, [folder], { input: [...events, "show", ""].join("\n"), encoding: "utf8" });
    return JSON.parse(stdout.trim().split("\n").at(-1));
}

const nativeSave = (name) => path.join(folder, "data", "saves", `${name}.TVX`);

// The browser reads what it keeps while the game already runs; a panel that is open by then is listed anew.
async function waitForListed(player, ...names) {
    let entries;
    for (let tries = 0; tries < 100; ++tries) {
        ({ entries } = (await player.look()).forms.Form4.controls.List1);
        if (names.every((name) => entries.includes(name))) return;
        await new Promise((later) => setTimeout(later, 50));
    }
    assert.fail(`the panel lists only ${entries.join()}`);
}

async function loadNamed(player, name) {
    await player.command("Nahraj pozici");
    await waitForListed(player, name);
    await player.click("Form4.List1", name);
    await player.key("Form4.List1", "Enter");
}

// The room that a loaded game is told to be in, and what is carried.
function situation({ forms: { Form1: { controls } } }) {
    return { room: controls.Text1.text.split("\r\n").slice(-3), carried: controls.List1.entries };
}

async function downloaded(tab, name, by = browser) {
    await press(tab, "Uložené pozice");
    await press(tab, `Stáhnout ${name}`);
    await tab.keyboard.press("Escape");
    const file = path.join(by.downloads, `${name}.TVX`);
    for (let tries = 0; tries < 100; ++tries) {
        const bytes = await readFile(file).catch(() => Buffer.of());
        if (bytes.length > 0) return bytes;
        await new Promise((later) => setTimeout(later, 50));
    }
    throw new Error(`${file} never came`);
}

test("a game is saved, found again by the next visit, and told on by the headless player", patience, async () => {
    const tab = await browser.open(server.address, { prepare: growEars });
    const player = new Player(tab);
    const listener = new Listener(tab);
    await player.keys("Enter", "Enter");
    await player.command("Vezmi", "nářadí");
    assert.match((await listener.hear()).join(), /Vezmi\..*Vezmi nářadí\..*Proceed zhaslo/);
    await player.click("Form1.List2(0)", "Použij");
    await player.click("Form1.List2(1)", "terminál");
    await player.click("Form1.List2(2)", "sebe");
    await player.click("Form1.Label1");
    await player.type("Form2.Text2", "mj-perolax");
    await player.key("Form2.Text2", "Enter");
    assert.match((await player.look()).forms.Form2.controls.Text1.text, /Dobrý den, pane Selagu Hemafo!/);
    await player.type("Form2.Text2", "exit");
    await player.click("Form2.Label2");
    await player.saveAs("žlutá");
    assert.match((await listener.hear()).join(), /Pozice „žlutá“ je uložená/);
    await writeFile(nativeSave("žlutá"), await downloaded(tab, "žlutá"));
    const loaded = playNatively([...Beginning, ...load("žlutá")]);
    assert.deepEqual(loaded.forms.Form1.controls.List1.entries, ["nářadí"]);

    await tab.reload();
    await tab.waitForSelector("#Form1:not([hidden])");
    await player.keys("Enter", "Enter");
    await loadNamed(player, "žlutá");
    assert.deepEqual(situation(await player.look()), situation(loaded));
    await tab.close();
});

test("a game that the headless player saved is taken in, a damaged one is not", patience, async () => {
    const events = (await readFile(WinningGame, "utf8")).split("\n");
    const atKeypad = events.findIndex((event) => event.startsWith("type Form3."));
    const before = events.lastIndexOf("key Form1.Text2 Enter", events.lastIndexOf("key Form1.Text2 Enter", atKeypad) - 1) + 1;
    playNatively([...events.slice(0, before), ...save("u číselníku")]);
    const loaded = playNatively([...Beginning, ...load("u číselníku")]);
    const bytes = await readFile(nativeSave("u číselníku"));
    await writeFile(nativeSave("půlka"), bytes.subarray(0, bytes.length / 2));

    const tab = await browser.open(server.address);
    const player = new Player(tab);
    await player.keys("Enter", "Enter");
    await press(tab, "Uložené pozice");
    const input = await tab.$("#incoming-files");
    const answers = async (file) => {
        await input.uploadFile(nativeSave(file));
        await tab.waitForFunction((name) => document.getElementById("answers").textContent.includes(name), {}, file);
        return tab.$eval("#answers", (element) => element.textContent);
    };
    assert.match(await answers("půlka"), /poškozený/);
    assert.match(await answers("u číselníku"), /„u číselníku“ je přidaná/);
    if (!inFirefox) assert.deepEqual(await findBarriers(tab), []);
    await player.keys("Escape");
    await loadNamed(player, "u číselníku");
    assert.deepEqual(situation(await player.look()), situation(loaded));

    await player.command("Použij", "číselník", "sebe");
    assert.equal((await player.look()).modal, "Form3");
    if (!inFirefox) assert.deepEqual(await findBarriers(tab), []);
    await tab.close();
});

test("the one file plays by itself, from an odd folder, and finds its saved game again", patience, async (scene) => {
    const odd = await mkdtemp(path.join(tmpdir(), "Můj kód & #1 100% "));
    scene.after(() => rm(odd, { recursive: true }));
    const file = path.join(odd, "hra.html");
    await copyFile(path.join(site, "../orvel-tavoren.html"), file);
    const tab = await browser.open(pathToFileURL(file).href);
    const player = new Player(tab);
    await player.keys("Enter", "Enter");
    await player.saveAs("žlutá");
    await tab.reload();
    await tab.waitForSelector("#Form1:not([hidden])");
    await player.keys("Enter", "Enter");
    await loadNamed(player, "žlutá");
    assert.equal((await player.look()).modal, null);
    await tab.close();
});

test("two pages do not lose each other's games, and leaving with unsaved steps asks", chromiumAlone, async () => {
    const tabs = [await browser.open(server.address), await browser.open(server.address)];
    for (const [number, tab] of tabs.entries()) {
        const player = new Player(tab);
        await tab.bringToFront();
        await player.keys("Enter", "Enter");
        await player.saveAs(`stránka ${number}`);
    }
    const [tab, other] = tabs;
    await other.close();
    await tab.bringToFront();
    const player = new Player(tab);
    await player.command("Nahraj pozici");
    await waitForListed(player, "stránka 0", "stránka 1");
    await player.click("Form4.List1", "stránka 1");
    await player.key("Form4.List1", "Enter");
    await player.command("Otevři", "skříň");
    const answered = new Promise((answer) => {
        tab.once("dialog", (dialog) => {
            answer(dialog.type());
            dialog.accept().catch(() => {});  // the tab may be gone before it says so
        });
        tab.once("close", () => answer("closed at once"));
    });
    await tab.close({ runBeforeUnload: true });
    assert.equal(await answered, "beforeunload");
});

test("where nothing can be kept the player hears of it first, and can still carry his games away", patience, async (scene) => {
    const forgetful = await Browser.start({ keepsNothing: true });
    scene.after(() => forgetful.stop());
    const tab = await forgetful.open(server.address);
    const player = new Player(tab);
    assert.match(await tab.$eval("#storage-notice", (notice) => notice.textContent), /neuchová/);
    await player.keys("Enter", "Enter");
    await player.saveAs("jen tady");
    assert.ok((await downloaded(tab, "jen tady", forgetful)).length > 0);
    // Firefox says on its own that it keeps no page either.
    assert.deepEqual(forgetful.complaints.filter((complaint) => !complaint.includes("ServiceWorker")), []);
});

test("a store that never answers holds a save up for a while, and the game goes on", chromiumAlone, async () => {
    const tab = await browser.open(server.address, { prepare: () => { IDBFactory.prototype.open = () => ({}); } });
    const player = new Player(tab);
    await player.keys("Enter", "Enter");
    await player.saveAs("nikam");
    await tab.waitForSelector("#message-box:not([hidden])", { timeout: 10_000 });
    const { messageBoxes } = await player.look();
    assert.match(messageBoxes[0].text, /[Uu]lož/);
    assert.match(await tab.$eval("#storage-notice", (notice) => notice.textContent), /nedokázal uložit: „nikam“/);
    for (let letter = 0; letter < "nikam".length; ++letter) await player.keys("Backspace");
    await player.type("Form4.Text1", "exit");
    await player.keys("Enter");
    await player.command("Vezmi", "nářadí");
    assert.deepEqual((await player.look()).forms.Form1.controls.List1.entries, ["nářadí"]);
    await player.command("Nahraj pozici");
    assert.deepEqual((await player.look()).forms.Form4.controls.List1.entries, ["nikam"]);
    await tab.close();
});

test("the second visit needs no network", patience, async (scene) => {
    const visited = await serve(site);
    scene.after(() => visited.stop());
    const first = await browser.open(visited.address);
    await first.evaluate(() => navigator.serviceWorker.ready.then(() => {}));
    await first.close();
    await visited.stop();
    const tab = await browser.open(visited.address);
    const player = new Player(tab);
    await player.keys("Enter", "Enter");
    assert.match((await player.look()).forms.Form1.controls.Text1.text, /kajuta/);
    await tab.close();
});
