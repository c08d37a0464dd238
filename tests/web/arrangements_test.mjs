// The page in windows of every shape, by finger and by mouse: nothing too small, cut off without a sign or out of reach, and what a finger
// has in place of a keyboard.
//     arrangements_test.mjs SITE
import assert from "node:assert/strict";
import { test } from "node:test";
import { findBarriers, findSmall } from "./browser.mjs";
import { Player } from "./player.mjs";
import { browser, chromiumAlone, inFirefox, patience, server, stageScenes } from "./scenes.mjs";

const fingers = inFirefox ? [] : [[390, 664], [320, 568], [667, 375], [820, 1180]];
const mice = inFirefox ? [[640, 400]] : [[923, 692], [640, 400], [320, 256]];
const Line = 20;  // the least height of a line of text, in pixels
stageScenes(process.argv[2]);

async function openGame(options) {
    const tab = await browser.open(server.address, options);
    const player = new Player(tab);
    for (let page = 0; page < 2; ++page) await player.click("Form1.Label1");
    return { tab, player };
}

const sentence = async (player) => (await player.look()).forms.Form1.controls.Text2.text;
const middleOf = (tab, selector) => tab.$eval(selector, (element) => {
    const { left, top, width, height } = element.getBoundingClientRect();
    return [left + width / 2, top + height / 2];
});
const tapKeyOf = async (tab, line) => tab.touchscreen.tap(...await middleOf(tab, `[id="${line}"] > .touch-key`));
const nextFrame = (tab) => tab.evaluate(() => new Promise((shown) => { requestAnimationFrame(() => setTimeout(shown, 50)); }));

// What must always be in sight and is not, and what is cut off without a sign.
async function findHidden(tab, ids) {
    await nextFrame(tab);
    return tab.evaluate((expected, line) => {
        const found = [];
        for (const id of expected) {
            const { top, bottom, left, right } = document.getElementById(id).getBoundingClientRect();
            if (top < 0 || left < 0 || bottom > innerHeight + 1 || right > innerWidth + 1) found.push(`${id} lies beyond the edge`);
            if (bottom - top < line) found.push(`${id} is ${bottom - top} high`);
        }
        for (const box of document.querySelectorAll(".form:not([hidden]) :is(.rows, .output:not(.invisible))")) {
            const name = box.closest(".control").id;
            const hidden = box.scrollHeight - box.clientHeight - box.scrollTop > 1;
            const sign = getComputedStyle(box.matches(".output") ? box : box.parentNode, "::after");
            const hasSign = box.matches(".output") ? sign.content !== "none" : !sign.backgroundSize.endsWith(" 0px");
            const isCompact = getComputedStyle(box.closest(".form")).display === "grid";  // the other arrangement has broad scroll bars
            if (isCompact && hasSign !== hidden) found.push(`${name} hides ${hidden ? "something without a sign" : "nothing"}`);
            if (box.scrollWidth > box.clientWidth) found.push(`${name} is cut off on the right`);
        }
        const sentence = document.querySelector("[id='Form1.Text2'] > .ruler");
        if (sentence.scrollHeight > sentence.clientHeight) found.push("the sentence is cut off");
        return found;
    }, ids, Line);
}

for (const [width, height, touch] of [...fingers.map((size) => [...size, true]), ...mice.map((size) => [...size, false])]) {
    test(`${width} x ${height} by ${touch ? "finger" : "mouse"}`, patience, async () => {
        const { tab, player } = await openGame({ width, height, touch });
        const inSight = ["Form1.Text1", "Form1.Text2", "Form1.Label1"];
        const complain = async (ids) => [...await findHidden(tab, ids), ...await findSmall(tab)];
        // The reply to the last command, from its beginning, and all of a short one.
        await player.command("Prozkoumej", "okno");
        assert.deepEqual(await complain(inSight), []);
        const story = await tab.evaluate(() => {
            const box = document.getElementById("Form1.Text1");
            const reply = [...box.querySelectorAll("p")].findLast((line) => line.textContent !== "");
            const line = parseFloat(getComputedStyle(box).lineHeight);
            return { lines: box.clientHeight / line, offset: reply.getBoundingClientRect().top - box.getBoundingClientRect().top, line };
        });
        assert.ok(story.lines >= 4, `${story.lines} lines of the story`);
        assert.ok(story.offset > -story.line && story.offset < story.lines * story.line, `the reply begins at ${story.offset}`);

        // Every verb can be chosen, and the next sentence finds the list at its top.
        const verbs = (await player.look()).forms.Form1.controls["List2(0)"].entries;
        assert.equal(verbs.length, 13);
        for (const verb of verbs) {
            await player.click("Form1.List2(0)", verb);
            assert.equal(await sentence(player), verb);
        }
        if (touch) await tapKeyOf(tab, "Form1.Text2");
        else await player.keys("Backspace");
        assert.equal(await sentence(player), "");
        const compact = await tab.evaluate(() => getComputedStyle(document.getElementById("Form1")).display === "grid");
        assert.equal(compact, touch || width < 819 || height < 692);
        assert.equal(await tab.evaluate(() => document.querySelector("[id='Form1.List2(0)'] > .rows").scrollTop > 0), !compact);

        // The list of what to use a thing on is in sight. Where it appears under the finger, it ignores the second tap of a double tap.
        await player.click("Form1.List2(0)", "Použij");
        await player.click("Form1.List2(1)", "dveře do koupelny");
        if (touch) await tab.touchscreen.tap(...await middleOf(tab, "[id='Form1.List2(1)'] [role=option]:nth-child(3)"));
        assert.equal(await sentence(player), "Použij dveře do koupelny na ");
        await player.click("Form1.List2(2)", "dveře do koupelny");
        assert.equal(await sentence(player), "Použij dveře do koupelny na dveře do koupelny");
        assert.deepEqual([...await complain(inSight), ...await findBarriers(tab)], []);
        await player.keys("Backspace");

        // All five things that can be carried are in sight, except in the smallest window.
        const carried = await tab.evaluate(() => {
            const box = document.querySelector("[id='Form1.List1'] > .rows");
            for (let copies = 0; copies < 4; ++copies) box.append(box.firstChild.cloneNode(true));
            return { height: box.clientHeight, needed: box.scrollHeight };
        });
        if (width >= 390) assert.ok(carried.needed <= carried.height, JSON.stringify(carried));

        await player.command("Použij", "terminál", "sebe");
        assert.deepEqual(await complain(["Form2.Text1", "Form2.Text2", "Form2.Label2"]), []);
        if (touch) {
            await tapKeyOf(tab, "Form2.Text2");
        } else {
            await player.type("Form2.Text2", "exit");
            await player.click("Form2.Label2");
        }
        assert.equal((await player.look()).modal, null);
        await player.command("Ulož pozici");
        assert.deepEqual(await complain(["Form4.List1", "Form4.Text1", "Form4.Label2"]), []);
        await player.click("Form4.Text1");
        await player.type("Form4.Text1", "druhá pozice po koupelně");
        await player.key("Form4.Text1", "Enter");

        // In the page's own dialog names can be read, and a question and the way out are in sight however many saved games there are.
        await tab[touch ? "tap" : "click"]("#open-saved-games");
        const isInSight = (selector) => tab.$eval(selector, (button) => {
            const { left, top, width, height } = button.getBoundingClientRect();
            return document.elementFromPoint(left + width / 2, top + height / 2) === button;
        });
        for (let names = 1; names <= 8; ++names) {
            await tab.$eval("#saved-games button:last-child", (remove) => remove.click());
            assert.ok(await isInSight("#question > button"), `the question beside ${names} names`);
            await tab.evaluate(() => {
                document.querySelector("#question > button:last-child").click();
                const list = document.getElementById("saved-games");
                list.append(list.firstChild.cloneNode(true));
            });
        }
        const nameWidth = await tab.$eval("#saved-games span", (name) => name.offsetWidth);
        assert.ok(nameWidth > 110, `${nameWidth} for a name`);
        assert.equal(await isInSight(".tools > :last-child"), height >= 320);  // the lowest window scrolls
        assert.deepEqual([...await findSmall(tab), ...await findBarriers(tab)], []);
        await tab.close();
    });
}

test("what the keyboards of phones do: complete words, send without a key, and cover the page", chromiumAlone, async () => {
    const { tab, player } = await openGame({ width: 390, height: 664, touch: true });
    const keyboard = await tab.createCDPSession();
    const complete = (text) => keyboard.send("Input.insertText", { text });
    const send = async () => {
        await keyboard.send("Input.dispatchKeyEvent", { type: "rawKeyDown", windowsVirtualKeyCode: 229, key: "Unidentified" });
        await keyboard.send("Input.dispatchKeyEvent", { type: "char", text: "\r", key: "Unidentified" });
    };
    const inputModes = await tab.$$eval(".line > input", (lines) => lines.map(({ inputMode }) => inputMode));
    assert.deepEqual(inputModes, ["none", "text", "numeric", "text"]);

    await player.command("Použij", "terminál", "sebe");
    await complete("mj-perolax ");
    await send();
    await complete("read ");
    await player.type("Form2.Text2", "message");
    assert.equal((await player.look()).forms.Form2.controls.Text2.text, "read message");
    await send();
    assert.match((await player.look()).forms.Form2.controls.Text1.text, /Dobrý den.*žádné zprávy/s);
    await tab.evaluate(() => {
        Object.defineProperties(visualViewport, { height: { value: 300 }, pageTop: { value: 40 } });
        visualViewport.dispatchEvent(new Event("resize"));
    });
    await nextFrame(tab);
    const covered = await tab.evaluate(() => {
        const [line, story] = ["Form2.Text2", "Form2.Text1"].map((id) => document.getElementById(id).getBoundingClientRect());
        const last = [...document.querySelectorAll("[id='Form2.Text1'] p")].findLast((each) => each.textContent !== "").getBoundingClientRect();
        return { top: story.top, words: story.bottom - last.top, line: line.bottom };
    });
    assert.ok(covered.top >= 40 && covered.words > Line && covered.line <= 340, JSON.stringify(covered));
    await complete("exit ");
    await player.click("Form2.Label2");
    assert.equal((await player.look()).modal, null);
    await tab.close();
});

test("a page of a list is what is in sight, and the rounded corners of a phone hide nothing", chromiumAlone, async () => {
    const { tab, player } = await openGame({ width: 844, height: 360, touch: true });
    const insets = await tab.createCDPSession();
    await insets.send("Emulation.setSafeAreaInsetsOverride", { insets: { left: 47, right: 47, bottom: 21 } });
    await nextFrame(tab);
    const edges = await tab.evaluate(() => {
        const boxes = Array.from(document.querySelectorAll("#Form1 > .control, #open-saved-games"), (each) => each.getBoundingClientRect());
        return [Math.min(...boxes.map(({ left }) => left)), Math.max(...boxes.map(({ right }) => right)), Math.max(...boxes.map(({ bottom }) => bottom))];
    });
    assert.ok(edges[0] >= 47 && edges[1] <= 797 && edges[2] <= 339, edges.join());

    const inSight = await tab.evaluate(() => {
        const box = document.querySelector("[id='Form1.List2(0)'] > .rows");
        box.focus();
        return [...box.children].filter((row) => row.offsetTop + row.offsetHeight <= box.offsetTop + box.clientHeight + 1).length;
    });
    assert.ok(inSight > 5 && inSight < 13, `${inSight} verbs in sight`);
    await player.keys("PageDown");
    assert.equal(await tab.$eval("[id='Form1.List2(0)'] .marked", (row) => [...row.parentNode.children].indexOf(row)), inSight);
    await tab.close();
});

test("the caret blinks where the player is, and costs nothing elsewhere", chromiumAlone, async () => {
    const prepare = () => {
        window.running = new Set();
        const { setInterval, clearInterval } = window;
        window.setInterval = (...given) => {
            const timer = setInterval(...given);
            running.add(timer);
            return timer;
        };
        window.clearInterval = (timer) => {
            running.delete(timer);
            clearInterval(timer);
        };
    };
    const tab = await browser.open(server.address, { prepare });
    const timers = () => tab.evaluate(() => running.size);
    const opacity = () => tab.$eval("[id='Form1.Text2'] .caret", (caret) => getComputedStyle(caret).opacity);
    const hide = (hidden) => tab.evaluate((value) => {
        Object.defineProperty(document, "hidden", { value, configurable: true });
        document.dispatchEvent(new Event("visibilitychange"));
    }, hidden);
    await tab.waitForFunction(() => document.querySelector("[id='Form1.Text2'] .caret").style.opacity === "0");
    await tab.waitForFunction(() => document.querySelector("[id='Form1.Text2'] .caret").style.opacity === "1");
    assert.equal(await timers(), 1);
    await hide(true);
    assert.equal(await timers(), 0);
    await hide(false);
    assert.equal(await timers(), 1);
    const player = new Player(tab);
    await player.keys("Enter", "Enter");
    await player.command("Použij", "terminál", "sebe");
    assert.equal(await timers(), 1);
    await player.type("Form2.Text2", "exit");
    await player.keys("Enter");
    assert.equal(await timers(), 1);
    await player.keys("Tab");
    assert.equal(await timers(), 0);
    assert.equal(await tab.$eval("[id='Form1.Text2'] .caret", (caret) => getComputedStyle(caret).visibility), "hidden");
    await tab.emulateMediaFeatures([{ name: "prefers-reduced-motion", value: "reduce" }]);
    await tab.focus("[id='Form1.Text2'] > input");
    assert.equal(await timers(), 0);
    assert.equal(await opacity(), "1");
    await tab.close();
});
