// Measures the page in Chromium beside one that shows one line of text, in one run.
//
//     npm ci --prefix tests/web && node bench/web/page.mjs [SITE]
//
// Cold starts of both in turns, over networks of three kinds, the answer to a click and to Enter with few lines in the box and with many, what
// a first visit fetches, the memory after the whole winning game, and what goes on at idle. The figures are medians.
import { execFileSync } from "node:child_process";
import { readFileSync, statSync } from "node:fs";
import { mkdtemp, rm } from "node:fs/promises";
import http from "node:http";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { launch } from "../../tests/web/browser.mjs";
import { Player } from "../../tests/web/player.mjs";

const Root = fileURLToPath(new URL("../../", import.meta.url));
const Site = path.resolve(process.argv[2] ?? `${Root}build/web/site`);
const SingleFile = path.join(Site, "../orvel-tavoren.html");
const Bare = `${Root}bench/web/bare`;
const Starts = 15;
// Chromium's own brakes: the latency stands before the answer to each request, the setting up of connections is free.
const Networks = [
    { name: "loopback, 1280 x 800", width: 1280, height: 800 },
    { name: "40 ms, 10 Mbit/s, 1280 x 800", width: 1280, height: 800, latency: 40, megabits: 10 },
    { name: "150 ms, 1.6 Mbit/s, processor / 4, 390 x 844", width: 390, height: 844, latency: 150, megabits: 1.6, slowdown: 4 },
];
const Clicks = 20;
const Idle = 15;  // seconds
const Lines = [10, 1930];  // in the box when its answers begin to be timed; past 2,000 the game empties it
const MiB = 1024 * 1024;
const Types = { ".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".wasm": "application/wasm" };

const pause = (milliseconds) => new Promise((over) => { setTimeout(over, milliseconds); });
const median = (figures) => figures.toSorted((a, b) => a - b)[figures.length >> 1];
const packedFiles = new Map();

function packed(file) {
    // node's own gzip leaves some files a fifth longer than servers do.
    if (!packedFiles.has(file)) packedFiles.set(file, execFileSync("gzip", ["-9c", file]));
    return packedFiles.get(file);
}

const row = (...cells) => console.log(`| ${cells.join(" | ")} |`);

// Serves the folder, packed as servers do; `fetched` takes the files that were asked for.
async function serve(folder) {
    const fetched = new Set();
    const server = http.createServer((request, response) => {
        const file = path.join(folder, request.url.endsWith("/") ? `${request.url}index.html` : request.url);
        const found = statSync(file, { throwIfNoEntry: false })?.isFile();
        if (!found) return response.writeHead(404).end();
        fetched.add(file);
        response.writeHead(200, { "content-type": Types[path.extname(file)] ?? "application/octet-stream", "content-encoding": "gzip" });
        response.end(packed(file));
    });
    await new Promise((listening) => { server.listen(0, "127.0.0.1", listening); });
    return { server, fetched, address: `http://127.0.0.1:${server.address().port}/` };
}

// Runs in the page before its scripts.
function notePlaying() {
    addEventListener("playing", () => {
        window.playingTime = performance.now();
        console.debug("playing");
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

async function throttle(page, { latency, megabits, slowdown = 1 }) {
    const client = await page.createCDPSession();
    if (latency) {
        const throughput = megabits * 1e6 / 8;
        await client.send("Network.emulateNetworkConditions", { offline: false, latency, downloadThroughput: throughput, uploadThroughput: throughput });
    }
    await client.send("Emulation.setCPUThrottlingRate", { rate: slowdown });
}

// A tab of a browser that has nothing of an earlier one. Nothing looks into the page while it starts, because that would be measured too.
async function openCold(browser, address, isGame, network = Networks[0]) {
    const context = await browser.createBrowserContext();
    const page = await context.newPage();
    const isPhone = network.width < network.height;
    await page.setViewport({ width: network.width, height: network.height, hasTouch: isPhone, isMobile: isPhone });
    await throttle(page, network);
    for (const note of [notePlaying, noteMemory]) await page.evaluateOnNewDocument(note);
    const playing = new Promise((plays) => { page.on("console", (message) => message.text() === "playing" && plays()); });
    await page.goto(address);
    if (isGame) await playing;
    await pause(500);
    return { page, context };
}

async function measureStart(browser, address, isGame, network) {
    const { page, context } = await openCold(browser, address, isGame, network);
    const { paints, playing } = await page.evaluate(() => ({
        paints: performance.getEntriesByName("first-contentful-paint").map(({ startTime }) => startTime),
        playing: window.playingTime,
    }));
    await context.close();
    return { painted: paints[0], playing };
}

async function measureStarts(browser, game, bare, network) {
    const times = { line: [], title: [], playing: [] };  // the title is the first that the page paints
    for (let start = 0; start < Starts; ++start) {
        const { painted, playing } = await measureStart(browser, game, true, network);
        times.title.push(painted);
        times.playing.push(playing);
        times.line.push((await measureStart(browser, bare, false, network)).painted);
    }
    const [line, title, playing] = [times.line, times.title, times.playing].map(median);
    const cell = (time) => `${time.toFixed(0)} ms: ${(time / line).toFixed(2)}`;
    row(network.name, `${line.toFixed(0)} ms`, cell(title), cell(playing));
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
    const sum = (files) => files.reduce((bytes, file) => bytes + packed(file).length, 0);
    const cell = (bytes) => `${(bytes / 1024).toFixed(0)} KiB`;
    const files = [...fetched];
    row("first visit, gzipped", cell(sum(files)), `${files.length} files`);
    row("of which program and scripts", cell(sum(files.filter((file) => /\.(js|wasm)$/.test(file)))));
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
    row("cold start", "one line painted", "the title painted", "playable");
    for (const network of Networks) await measureStarts(browser, game.address, bare.address, network);
    await measureAnswers(browser, game.address);
    await measureMemory(browser, game.address);
    await measureIdle(browser, game.address);
} finally {
    await browser.close();
    for (const { server } of [game, bare]) server.closeAllConnections(), server.close();
    await rm(profile, { recursive: true, force: true });
}
