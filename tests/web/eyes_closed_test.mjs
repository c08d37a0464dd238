// The page for those who do not see it, or see it in colours of their own: a part of the game by keyboard alone, knowing only what has the
// focus and what a screen reader says.
//     eyes_closed_test.mjs SITE
import assert from "node:assert/strict";
import { test } from "node:test";
import { findBarriers } from "./browser.mjs";
import { Listener, growEars } from "./listener.mjs";
import { browser, patience, server, stageScenes } from "./scenes.mjs";

stageScenes(process.argv[2]);

// What a screen reader would read as Czech, or would take for a message.
const findMisread = () => {
    const walk = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    const found = [...document.querySelectorAll(":is([role=status], [role=alert], [aria-live]) button")].map(({ id }) => `a button in a message: ${id}`);
    while (walk.nextNode()) {
        const { data, parentElement } = walk.currentNode;
        const isEnglish = /^(Proceed|Cancel|Exit|(Terminal|Security|System) (Active|Panel)|--- .* ---)$/.test(data);
        if (isEnglish && parentElement.closest("[lang]").lang !== "en") found.push(`not told to be English: ${data}`);
    }
    const headings = [...document.querySelectorAll("h1, h2")];
    return headings[0].tagName === "H1" ? found : [...found, "the first heading is not the highest"];
};

test("from the title through commands, the terminal and the keypad, and a game saved, loaded and deleted", patience, async () => {
    const tab = await browser.open(server.address, { prepare: growEars });
    const player = new Listener(tab);
    const focus = async () => (await player.focus()).name;
    assert.match((await player.hear()).join(), /Orvel Tavoren.*klávesou Enter/);
    await player.press("Enter");
    assert.match((await player.hear()).join(), /Selag Hemafo.*klávesou Enter/);
    await player.press("Enter");
    assert.match((await player.hear()).join(), /Vidíš terminál.*Nemůžeš jít nikam/);

    // Empty lists say so, and Escape leads from them to the command line.
    await player.tabTo("První předmět: prázdný seznam");
    await player.press("Escape");
    assert.equal(await focus(), "Sestavený příkaz");
    await player.press("Backspace");
    assert.deepEqual(await player.hear(), ["Příkaz je prázdný."]);

    // A list is searched by typing; a word with which nothing begins chooses nothing.
    await player.choose("Slovesa", "prox");
    assert.deepEqual(await player.hear(), ["„prox“ tu není."]);
    await player.press("Escape");

    // What the game does not take is not heard as taken, and nothing is run in silence.
    await player.choose("Slovesa", "jd");
    await player.choose("První předmět", "");
    assert.equal(await focus(), "nic");
    assert.deepEqual(await player.hear(), ["Jdi.", "Proceed svítí.", "Beze změny: Jdi."]);
    await player.tabTo("Proceed: Provést příkaz");
    assert.equal((await player.focus()).description, "svítí");
    await player.press("Space");
    assert.deepEqual(await player.hear(), ["Jdi: nic se nestalo.", "Proceed zhaslo."]);
    assert.equal((await player.focus()).description, "zhaslo");

    await player.command("pou", ["První předmět", "term"], ["Druhý předmět", "sebe"]);
    assert.deepEqual(await player.focus().then(({ name, dialog }) => [dialog, name]), ["Terminal Active: Použij terminál na sebe", "Příkaz terminálu"]);
    await player.type("mj-perolax");
    await player.press("Enter");
    assert.match((await player.hear()).join(), /Dobrý den, pane Selagu Hemafo!/);
    const reached = [];
    for (let presses = 0; presses < 6; ++presses) reached.push(await player.press("Tab").then(focus));
    assert.ok(reached.includes("Výpis terminálu") && !reached.includes("Uložené pozice"), reached.join());
    await player.press("Escape");
    assert.equal(await focus(), "Příkaz terminálu");
    await player.type("exit");
    await player.press("Enter");
    assert.equal(await focus(), "Sestavený příkaz");

    // A refused name is explained, a saved game told and found again, and the panel says what it is open for.
    await player.command("ul");
    assert.equal((await player.focus()).dialog, "System Panel: Ulož pozici");
    await player.type("hra?");
    await player.press("Enter");
    assert.match((await player.hear()).join(), /hra nepřijme: je v něm otazník/);
    await player.press("Backspace", "Enter");
    await tab.waitForFunction(() => document.getElementById("storage-notice")?.textContent !== "");
    assert.match((await player.hear()).join(), /Pozice „hra“ je uložená.*Proceed zhaslo.*neslíbil/);
    await player.tabTo("Rozumím");
    await player.press("Enter");
    assert.equal(await focus(), "Proceed: Provést příkaz");
    await player.command("nah");
    assert.equal((await player.focus()).dialog, "System Panel: Nahraj pozici");
    await player.type("hr");
    await player.press("Enter");
    assert.deepEqual(await player.hear(), ["Pozice „hr“ tu není."]);
    await player.tabTo("Uložené pozice");
    await player.press("ArrowDown", "Enter");
    assert.match((await player.hear()).join(), /Pozice „hra“ je načtená.*Vidíš terminál/);
    assert.deepEqual(await tab.evaluate(findMisread), []);

    // Deleting is asked for aloud, and a second Enter is no answer.
    await player.tabTo("Uložené pozice");
    await player.press("Enter");
    await player.tabTo("Smazat hra");
    await player.press("Enter");
    assert.equal((await player.focus()).dialog, "Opravdu smazat pozici „hra“?");
    assert.deepEqual(await findBarriers(tab), []);
    await player.press("Enter");
    assert.equal(await focus(), "Smazat hra");
    await player.press("Enter");
    await player.tabTo("Smazat");
    await player.press("Enter");
    await tab.waitForFunction(() => document.getElementById("answers").textContent !== "");
    assert.deepEqual(await player.hear(), ["Pozice „hra“ je smazaná."]);
    await player.press("Escape", "Escape");
    assert.equal(await focus(), "Sestavený příkaz");

    // The keypad answers each time, also with the same word.
    const go = (way) => player.command("jdi", ["První předmět", `na ${way}`]);
    await player.command("otev", ["První předmět", "dvere do"]);
    await go("jih");
    await player.command("vez", ["První předmět", "kl"]);
    await go("sever");
    await player.command("pou", ["Neseš", "kl"], ["Druhý předmět", "dvere"]);
    await player.command("otev", ["První předmět", "dvere"]);
    for (const way of ["sever", "zapad", "sever"]) await go(way);
    assert.match(await player.command("pou", ["První předmět", "cis"], ["Druhý předmět", "sebe"]), /Aktivoval jsi číselník/);
    for (const code of ["123", "456"]) {
        await player.type(code);
        await player.press("Enter");
        assert.deepEqual(await player.hear(), ["--- ERROR ---"]);
    }
    assert.deepEqual(await tab.evaluate(findMisread), []);
    await player.tabTo("Cancel: Odejít od číselníku");
    await player.press("Enter");
    assert.equal(await focus(), "Sestavený příkaz");

    // What was spoken is not read again on the way.
    await tab.waitForFunction(() => document.getElementById("spoken").textContent === "");
    await player.press("Escape");
    assert.match((await player.hear()).join(), /Hra skončila/);
    assert.equal(await focus(), "Hrát znovu");
    assert.deepEqual(await tab.evaluate(findMisread), []);
    await tab.close();
});

test("selection, lamp, focus and caret can be seen, and in the player's own colours too", patience, async () => {
    const tab = await browser.open(server.address);
    const look = (selector) => tab.$eval(selector, (element) => {
        const { color, backgroundColor, outlineStyle, outlineWidth, outlineColor } = getComputedStyle(element);
        return { color, background: backgroundColor, outline: `${outlineStyle} ${outlineColor}`, width: parseFloat(outlineWidth) };
    });
    const contrast = (colours) => {
        const [light, dark] = colours.map((colour) => {
            const [red, green, blue] = colour.match(/\d+/g).map((each) => (each / 255 <= 0.04045 ? each / 255 / 12.92 : ((each / 255 + 0.055) / 1.055) ** 2.4));
            return 0.2126 * red + 0.7152 * green + 0.0722 * blue + 0.05;
        }).sort((one, other) => other - one);
        return light / dark;
    };
    const player = new Listener(tab);
    const media = await tab.createCDPSession();
    await player.press("Enter", "Enter");
    for (const forced of ["none", "active"]) {
        await media.send("Emulation.setEmulatedMedia", { features: [{ name: "forced-colors", value: forced }] });
        const unlit = await look("[id='Form1.Label3']");
        assert.ok(contrast([unlit.color, unlit.background]) >= 4.5, JSON.stringify(unlit));
        await player.choose("Slovesa", "vez");
        const lit = await look("[id='Form1.Label3']");
        assert.ok(contrast([lit.color, unlit.color]) > 2 || contrast([lit.background, unlit.background]) > 2, JSON.stringify({ lit, unlit }));
        const [selected, other] = [await look("[aria-selected=true]"), await look("[aria-selected=false]")];
        assert.ok(contrast([selected.background, other.background]) > 2, JSON.stringify({ selected, other }));
        const { background } = await look("body");
        const visible = ({ outline, width }) => outline.startsWith("solid") && width >= 2 && contrast([outline.slice(6), background]) > 4.5;
        for (const name of ["Slovesa", "Proceed: Provést příkaz", "Vyprávění"]) {
            await player.tabTo(name);
            const focused = await look(":focus");
            assert.ok(visible(focused), `${forced} ${name} ${JSON.stringify(focused)}`);
        }
        await player.press("Escape");
        const caret = await look("[id='Form1.Text2'] .caret");
        assert.ok(contrast([caret.background, (await look("[id='Form1.Text2']")).background]) > 4.5, JSON.stringify(caret));
        await player.press("Enter");
    }
    await tab.close();
});
