#!/usr/bin/env node
// The headless player's language, played in the page: page_replay.mjs SITE reads events from standard input and answers `show` from what
// the page shows, so what plays walkthroughs plays them in a browser. ORVEL_BROWSER=firefox chooses the other one.
import { createInterface } from "node:readline";
import { Browser, serve } from "./browser.mjs";
import { Player } from "./player.mjs";

const server = await serve(process.argv[2]);
const browser = await Browser.start();
const player = new Player(await browser.open(server.address));

async function answer(line) {
    return line === "show" ? player.look() : player.play(line);
}

for await (const line of createInterface({ input: process.stdin })) {
    if (line === "" || line.startsWith("#")) continue;
    const told = await answer(line).catch((error) => ({ refused: error.message }));
    if (told) process.stdout.write(`${JSON.stringify(told)}\n`);
    if (told?.ended) break;
}
process.stdin.destroy();
await browser.stop();
await server.stop();
if (browser.complaints.length > 0) {
    console.error(browser.complaints.join("\n"));
    process.exitCode = 1;
}
