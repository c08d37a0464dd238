// Measures the page in Chromium beside one that shows one line of text, in one run.
//
//     npm ci --prefix tests/web && node bench/web/page.mjs [SITE]
//
// Cold starts of both in turns, the answer to a click and to Enter with few lines in the box and with many, what a first visit fetches, the
// memory after the whole winning game, and what goes on at idle. The figures are medians.
import { readFileSync, statSync } from "node:fs";
import { mkdtemp, rm } from "node:fs/promises";
import http from "node:http";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";
import { launch } from "../../tests/web/browser.mjs";
import { Player } from "../../tests/web/player.mjs";

const Root = fileURLToPath(new URL("../../", import.meta.url));
const Site = path.resolve(process.argv[2] ?? `${Root}build/web/site`);
const SingleFile = path.join(Site, "../orvel-tavoren.html");
const Bare = `${Root}bench/web/bare`;
const Starts = 15;
const Clicks = 20;
const Idle = 15;  // seconds
const Lines = [10, 1930];  // in the box when its answers begin to be timed; past 2,000 the game empties it
const MiB = 1024 * 1024;
const Types = { ".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".wasm": "application/wasm" };

const pause = (milliseconds) => new Promise((over) => { setTimeout(over, milliseconds); });
const median = (figures) => figures.toSorted((a, b) => a - b)[figures.length >> 1];
const row = (...cells) => console.log(`| ${cells.join(" | ")} |`);

// Serves the folder; `fetched` takes the files that were asked for.
async function serve(folder) {
    const fetched = new Set();
    const server = http.createServer((request, response) => {
        const file = path.join(folder, request.url.endsWith("/") ? `${request.url}index.html` : request.url);
        const found = statSync(file, { throwIfNoEntry: false })?.isFile();
        if (found) fetched.add(file);
        response.writeHead(found ? 200 : 404, { "content-type": Types[path.extname(file)] ?? "application/octet-stream" });
        response.end(found ? readFileSync(file) : "");
    });
    await new Promise((listening) => { server.listen(0, "127.0.0.1", listening); });
    return { server, fetched, address: `http://127.0.0.1:${server.address().port}/` };
}

// Runs in the page before its scripts.
function notePaints() {
    window.paints = [];
    const note = (list) => paints.push(...list.getEntries().map(({ startTime, url }) => ({ time: startTime, url: url ?? "" })));
    for (const type of ["paint", "largest-contentful-paint"]) new PerformanceObserver(note).observe({ type, buffered: true });
}

function noteReadiness() {
    addEventListener("DOMContentLoaded", () => {
        const form = () => document.querySelector("#Form1:not([hidden])");
        const observer = new MutationObserver(() => {
            if (!form()) return;
            window.readyTime = performance.now();
            observer.disconnect();
        });
        observer.observe(document.body, { subtree: true, childList: true, attributes: true });
    });
}

function noteMemory() {
    const { instantiate } = WebAssembly;
    WebAssembly.instantiate = async (...given) => {
        const instance = await instantiate(...given);
        window.programMemory = Object.values(instance.exports).find((each) => each instanceof WebAssembly.Memory);
        return instance;
    };
}

// A tab of a browser that has nothing of an earlier one.
async function openCold(browser, address, isGame) {
    const context = await browser.createBrowserContext();
    const page = await context.newPage();
    await page.setViewport({ width: 1280, height: 800 });
    for (const note of [notePaints, noteReadiness, noteMemory]) await page.evaluateOnNewDocument(note);
    await page.goto(address);
    await pause(1000);  // what looks into the page while it starts would be measured too
    if (isGame) await page.waitForSelector("#Form1:not([hidden])");
    return { page, context };
}

async function measureStart(browser, address, picture) {
    const { page, context } = await openCold(browser, address, picture !== "");
    const { paints, readyTime } = await page.evaluate(() => ({ paints: window.paints, readyTime: window.readyTime }));
    await context.close();
    return { painted: Math.min(...paints.filter(({ url }) => url.endsWith(picture)).map(({ time }) => time)), ready: readyTime };
}

async function measureStarts(browser, game, bare) {
    const painted = { game: [], bare: [] };
    const ready = [];
    for (let start = 0; start < Starts; ++start) {
        const ours = await measureStart(browser, game, "title.webp");
        painted.game.push(ours.painted);
        ready.push(ours.ready);
        painted.bare.push((await measureStart(browser, bare, "")).painted);
    }
    const line = median(painted.bare);
    const cells = (figures) => [`${median(figures).toFixed(0)} ms`, `${line.toFixed(0)} ms`, (median(figures) / line).toFixed(2)];
    row("navigation to the title painted", ...cells(painted.game));
    row("navigation to a game that hears keys", ...cells(ready));
}

// Runs in the page: how long it takes from an event until what it brings stands in the page and is laid out.
function timeEvents() {
    window.times = [];
    const shown = () => document.querySelectorAll('[id="Form1.Text1"] p').length + document.querySelector('[id="Form1.Text2"] input').value;
    let before;
    let began;
    const begin = () => {
        before = shown();
        began = performance.now();
    };
    for (const type of ["click", "keydown"]) addEventListener(type, begin, true);
    new MutationObserver(() => {
        if (shown() === before) return;
        document.body.getBoundingClientRect();
        times.push(performance.now() - began);
    }).observe(document.getElementById("Form1"), { subtree: true, childList: true, characterData: true, attributes: true });
}

async function timed(page, act) {
    await page.evaluate(() => { window.times = []; });
    await act();
    await page.waitForFunction(() => times.length > 0);
    return page.evaluate(() => times[0]);
}

// Runs in the page, which fills its box faster than a hand does: until so many lines stand there, as they are broken.
async function fillBox(lines) {
    const nextTask = () => new Promise((next) => { setTimeout(next); });
    const options = (list) => [...document.getElementById(list).querySelectorAll("[role=option]")];
    const height = (part) => document.querySelector(`[id="Form1.Text1"] > ${part}`).getBoundingClientRect().height;
    while (height(".text") / height(".probe") < lines) {
        options("Form1.List2(0)").find((option) => option.textContent === "Prozkoumej").click();
        await nextTask();
        options("Form1.List2(1)")[0].click();
        await nextTask();
        document.activeElement.dispatchEvent(new KeyboardEvent("keydown", { key: "Enter", bubbles: true, cancelable: true }));
        await nextTask();
    }
}

async function measureAnswers(browser, address) {
    const { page, context } = await openCold(browser, address, true);
    const player = new Player(page);
    await player.keys("Enter", "Enter");
    await page.evaluate(timeEvents);
    const answers = { click: [], enter: [] };
    for (const lines of Lines) {
        await page.evaluate(fillBox, lines);
        const click = [];
        const enter = [];
        for (let turn = 0; turn < Clicks; ++turn) {
            click.push(await timed(page, () => player.click("Form1.List2(0)", "Prozkoumej")));
            await player.click("Form1.List2(1)", "0");
            enter.push(await timed(page, () => page.keyboard.press("Enter")));
        }
        answers.click.push(median(click));
        answers.enter.push(median(enter));
    }
    await context.close();
    const cells = (figures) => [...figures.map((figure) => `${figure.toFixed(2)} ms`), (figures[1] / figures[0]).toFixed(2)];
    row("click on a verb to the echo", ...cells(answers.click));
    row("Enter to the reply", ...cells(answers.enter));
}

async function measureMemory(browser, address) {
    const { page, context } = await openCold(browser, address, true);
    const player = new Player(page);
    const lines = readFileSync(`${Root}tests/walkthroughs/winning_game.replay`, "utf8").split("\n");
    for (const line of lines.filter((each) => /^(click|key|type|random) /.test(each))) await player.play(line);
    await page.waitForFunction(() => document.getElementById("notice").textContent.startsWith("Hra skončila."));
    const client = await page.createCDPSession();
    await client.send("HeapProfiler.collectGarbage");
    const { JSHeapUsedSize } = await page.metrics();
    const program = await page.evaluate(() => window.programMemory.buffer.byteLength);
    await context.close();
    const cell = (bytes) => `${(bytes / MiB).toFixed(1)} MiB`;
    row("heaps of scripts and program after the winning game", `${cell(JSHeapUsedSize)} + ${cell(program)}`, cell(JSHeapUsedSize + program));
}

// In seconds, of all processes of the browser.
async function processorTime(browser) {
    const client = await browser.target().createCDPSession();
    const { processInfo } = await client.send("SystemInfo.getProcessInfo");
    await client.detach();
    return processInfo.reduce((sum, { cpuTime }) => sum + cpuTime, 0);
}

async function measureIdle(browser, address) {
    const shares = [];
    for (const value of ["no-preference", "reduce"]) {
        const { page, context } = await openCold(browser, address, true);
        await page.emulateMediaFeatures([{ name: "prefers-reduced-motion", value }]);
        await page.keyboard.press("Enter");
        await page.keyboard.press("Enter");
        await page.evaluate(async () => { await navigator.serviceWorker.ready; });  // what it keeps for later is fetched first
        await pause(3000);
        const before = await processorTime(browser);
        await pause(Idle * 1000);
        shares.push(`${((await processorTime(browser) - before) / Idle * 100).toFixed(2)} %`);
        await context.close();
    }
    row("of a processor at idle, and that with a caret that stands still", ...shares);
}

function reportSizes(fetched) {
    const packed = (files) => files.reduce((bytes, file) => bytes + gzipSync(readFileSync(file), { level: 9 }).length, 0);
    const cell = (bytes) => `${(bytes / 1024).toFixed(0)} KiB`;
    const files = [...fetched];
    row("first visit, gzipped", cell(packed(files)), `${files.length} files`);
    row("of which program and scripts", cell(packed(files.filter((file) => /\.(js|wasm)$/.test(file)))));
    row("the one file", cell(statSync(SingleFile).size));
}

const profile = await mkdtemp(path.join(tmpdir(), "orvel-bench-"));
const browser = await launch("chromium", profile, path.join(profile, "downloads"));
const [game, bare] = await Promise.all([serve(Site), serve(Bare)]);
try {
    const { page, context } = await openCold(browser, game.address, true);
    await page.evaluate(async () => { await navigator.serviceWorker.ready; });
    await context.close();
    reportSizes(game.fetched);
    await measureStarts(browser, game.address, bare.address);
    await measureAnswers(browser, game.address);
    await measureMemory(browser, game.address);
    await measureIdle(browser, game.address);
} finally {
    await browser.close();
    for (const { server } of [game, bare]) server.closeAllConnections(), server.close();
    await rm(profile, { recursive: true, force: true });
}
