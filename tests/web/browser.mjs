// Opens the page in a real browser with a fresh profile, from a sub-folder of a plain server on the loopback. Errors, requests to other hosts
// and breaches of the page's own policy are kept as complaints, because the page must never cause any.
import { mkdir, mkdtemp, readFile, rm, writeFile } from "node:fs/promises";
import http from "node:http";
import { tmpdir } from "node:os";
import path from "node:path";
import puppeteer from "puppeteer-core";
import { programOrSkip } from "./programs.mjs";

const Folder = "/hry/orvel/";
const Types = { ".html": "text/html", ".js": "text/javascript", ".wasm": "application/wasm", ".png": "image/png" };
const Quiet = ["--headless=new", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
    "--disable-component-update", "--disable-sync"];

// A plain web server. To stop it cuts all connections, as when the network is lost. `spoil` is given a file's name and bytes and returns, or
// promises, the bytes to send instead; null makes the file a missing one.
export async function serve(site, spoil = (name, bytes) => bytes) {
    const server = http.createServer(async (request, response) => {
        const { pathname } = new URL(request.url, "http://localhost");
        const file = path.join(site, decodeURI(pathname.slice(Folder.length)), pathname.endsWith("/") ? "index.html" : "");
        const found = pathname.startsWith(Folder) ? await readFile(file).catch(() => null) : null;
        const sent = found && await spoil(path.basename(file), found);
        response.writeHead(sent ? 200 : 404, { "content-type": Types[path.extname(file)] ?? "application/octet-stream" });
        response.end(sent);
    });
    await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
    return {
        address: `http://127.0.0.1:${server.address().port}${Folder}`,
        async stop() {
            server.closeAllConnections();
            await new Promise((closed) => server.close(closed));
        },
    };
}

// Starts a browser with its profile and its downloads in those folders; one that keeps nothing refuses pages all storage.
export async function launch(kind, profile, downloads, keepsNothing = false) {
    if (kind === "firefox") {
        return puppeteer.launch({
            browser: "firefox",
            executablePath: programOrSkip(kind),
            userDataDir: profile,
            extraPrefsFirefox: {
                "browser.download.folderList": 2,
                "browser.download.dir": downloads,
                ...(keepsNothing && { "network.cookie.cookieBehavior": 2 }),
            },
        });
    }
    if (keepsNothing) {
        const refusal = { profile: { default_content_setting_values: { cookies: 2 } } };
        await mkdir(path.join(profile, "Default"));
        await writeFile(path.join(profile, "Default", "Preferences"), JSON.stringify(refusal));
    }
    return puppeteer.launch({
        executablePath: programOrSkip(kind),
        userDataDir: profile,
        args: process.getuid() === 0 ? [...Quiet, "--no-sandbox"] : Quiet,  // because the sandbox does not work for root
        ignoreDefaultArgs: ["--hide-scrollbars"],
        downloadBehavior: { policy: "allow", downloadPath: downloads },
    });
}

// Promises sentences about what in the page, as it is now, keeps people with disabilities out.
export async function findBarriers(tab) {
    await tab.evaluate(await readFile(new URL("node_modules/axe-core/axe.min.js", import.meta.url), "utf8"));
    const { violations } = await tab.evaluate(() => window.axe.run());
    return violations.map(({ id, help, nodes }) => `${id}: ${help}: ${nodes.map(({ target }) => target).join(" ")}`);
}

// Promises sentences about what in the page is too small for a finger or for an eye, and about what is cut off at an edge.
export function findSmall(tab) {
    return tab.evaluate(() => {
        const found = [];
        const least = matchMedia("(pointer: coarse)").matches ? 44 : 0;  // because a mouse can hit small things
        const say = (element, what) => found.push(`${element.closest("[id]")?.id} "${element.textContent.slice(0, 20)}" ${what}`);
        if (document.scrollingElement.scrollWidth > innerWidth) say(document.scrollingElement, "scrolls sideways");
        for (const element of document.querySelectorAll("button, input, p, [role=option], output")) {
            if (!element.checkVisibility({ visibilityProperty: true }) || element.closest("[inert]")) continue;
            const { left, right, height } = element.getBoundingClientRect();
            if (left < -1 || right > innerWidth + 1) say(element, `lies from ${left} to ${right}`);
            const size = parseFloat(getComputedStyle(element).fontSize);
            if ((element.textContent || element.matches("input")) && size < 16) say(element, `has letters of ${size}`);
            if (element.matches("button, [role=option]") && height < least - 0.5) say(element, `is ${height} high`);
        }
        return found;
    });
}

// Clicks the button that is called so.
export async function press(tab, words) {
    const button = await tab.evaluateHandle((label) => [...document.querySelectorAll("button")].find((each) =>
        [each.textContent, each.ariaLabel].includes(label)), words);
    await button.click();
}

// A browser with a profile of its own, which has nothing of an earlier one.
export class Browser {
    complaints = [];
    #browser;
    #profile;

    // With `keepsNothing` the browser refuses pages all storage.
    static async start({ keepsNothing = false } = {}) {
        const started = new Browser();
        started.#profile = await mkdtemp(path.join(tmpdir(), "orvel-page-"));
        started.downloads = path.join(started.#profile, "downloads");
        await mkdir(started.downloads);
        started.#browser = await launch(process.env.ORVEL_BROWSER ?? "chromium", started.#profile, started.downloads, keepsNothing);
        return started;
    }

    // Opens the page in a tab and waits until the element `shows` is there. `prepare` runs in the tab before any script of the page.
    async open(address, { width = 1280, height = 800, touch = false, prepare = () => {}, shows = "#Form1:not([hidden])" } = {}) {
        const tab = await this.#browser.newPage();
        await tab.setViewport({ width, height, hasTouch: touch, isMobile: touch });
        this.#watch(tab, new URL(address).origin);
        await tab.evaluateOnNewDocument(() => {
            document.addEventListener("securitypolicyviolation", ({ violatedDirective, blockedURI }) => {
                console.error(`policy: ${violatedDirective} ${blockedURI}`);
            });
        });
        await tab.evaluateOnNewDocument(prepare);
        await tab.goto(address, { waitUntil: "domcontentloaded" });
        await tab.waitForSelector(shows);
        return tab;
    }

    #watch(tab, origin) {
        tab.on("console", (message) => {
            if (message.type() === "error") this.complaints.push(`console: ${message.text()} ${message.location().url ?? ""}`);
        });
        tab.on("pageerror", (error) => {
            // Firefox reports this of the page's icon when the tab is closed before the icon has come.
            if (error.message !== "Image corrupt or truncated.") this.complaints.push(`uncaught: ${error.stack}`);
        });
        tab.on("request", (request) => {
            const { protocol, origin: asked } = new URL(request.url());
            if (protocol.startsWith("http") && asked !== origin) this.complaints.push(`asked another host: ${request.url()}`);
        });
        tab.on("response", (response) => response.status() >= 400 && this.complaints.push(`${response.status()}: ${response.url()}`));
    }

    async stop() {
        await this.#browser.close();
        await rm(this.#profile, { recursive: true, force: true, maxRetries: 5 });
    }
}
