#!/usr/bin/env node
// The headless player's language, played in the page: page_replay.mjs SITE reads events from standard input and answers `show` from what
// the page shows, so what plays walkthroughs plays them in a browser. ORVEL_BROWSER=firefox chooses the other one.
import { createInterface } from "node:readline";
import { Browser, serve } from "./browser.mjs";
import { Player } from "./player.mjs";

const server = await serve(process.argv[2]);
const browser = await Browser.start();
const player = new Player(await browser.open(server.address));

function play(event, target, rest) {
    switch (event) {
        case "click": return player.click(target, rest);
        case "key": return player.key(target, rest);
        case "type": return player.type(target, rest);
        case "random": return player.queueRandom([target, ...rest.split(" ")].map(Number));
        default: throw new Error("there is no such event");
    }
}

async function answer(line) {
    if (line === "show") return player.look();
    const [event, target, ...rest] = line.split(" ");
    return play(event, target, rest.join(" "));
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
