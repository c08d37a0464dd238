// What the scenes of a test file share: the site on a server, a browser to open it in, and how long they may take.
import assert from "node:assert/strict";
import { after, before } from "node:test";
import { Browser, serve } from "./browser.mjs";

export const patience = { timeout: 120_000 };  // milliseconds; what never comes fails
export const inFirefox = process.env.ORVEL_BROWSER === "firefox";  // its driver has no fingers, no questions and not Chromium's protocol
export const chromiumAlone = { ...patience, skip: inFirefox };

export let server, browser;

// Starts both before the file's first scene and stops both after its last, when nothing may have caused a complaint.
export function stageScenes(site, startBrowser = () => Browser.start()) {
    before(async () => {
        server = await serve(site);
        browser = await startBrowser();
    });
    after(async () => {
        await browser.stop();
        await server.stop();
        assert.deepEqual(browser.complaints, []);
    });
}
