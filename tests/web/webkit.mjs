// WebKit, the family of every iPhone, behind those of puppeteer's functions that `Player` and the tests call: puppeteer knows only the other
// two families, so this speaks to WebKit's own driver, by the W3C's WebDriver protocol. The browser has a window on a virtual screen.
import { spawn } from "node:child_process";
import { once } from "node:events";
import { mkdtemp, rm } from "node:fs/promises";
import net from "node:net";
import { tmpdir } from "node:os";
import path from "node:path";
import { programOrSkip } from "./programs.mjs";

// The codes that the protocol gives to keys that type nothing.
const KeyCodes = {
    Backspace: "\uE003", Tab: "\uE004", Enter: "\uE007", Shift: "\uE008", Escape: "\uE00C", Space: " ", PageUp: "\uE00E", PageDown: "\uE00F",
    End: "\uE010", Home: "\uE011", ArrowLeft: "\uE012", ArrowUp: "\uE013", ArrowRight: "\uE014", ArrowDown: "\uE015",
};
const Patience = 15_000;  // milliseconds

async function freePort() {
    const server = net.createServer().listen(0, "127.0.0.1");
    await once(server, "listening");
    const { port } = server.address();
    server.close();
    await once(server, "close");
    return port;
}

async function waitUntil(holds, what) {
    for (const end = Date.now() + Patience; Date.now() < end;) {
        if (await holds()) return;
        await new Promise((later) => setTimeout(later, 20));
    }
    throw new Error(`${what} never came`);
}

// The browser's only tab.
class Tab {
    #ask;

    constructor(ask) {
        this.#ask = ask;
    }

    // As puppeteer does it: the function runs in the page and knows nothing but its arguments.
    evaluate(run, ...args) {
        return this.#ask("POST", "execute/sync", { script: `return (${run})(...arguments)`, args });
    }

    $eval(selector, run) {
        return this.#ask("POST", "execute/sync", { script: `return (${run})(document.querySelector(arguments[0]))`, args: [selector] });
    }

    goto(url) {
        return this.#ask("POST", "url", { url });
    }

    reload() {
        return this.#ask("POST", "refresh", {});
    }

    waitForFunction(holds) {
        return waitUntil(() => this.evaluate(holds), `what ${holds} asks for`);
    }

    waitForSelector(selector) {
        return waitUntil(() => this.$eval(selector, (element) => element !== null), selector);
    }

    setViewport({ width, height }) {
        return this.#ask("POST", "window/rect", { x: 0, y: 0, width, height });
    }

    viewport() {
        return { hasTouch: false };
    }

    #act(type, parameters, actions) {
        return this.#ask("POST", "actions", { actions: [{ type, id: type, parameters, actions }] });
    }

    mouse = {
        click: (x, y) => this.#act("pointer", { pointerType: "mouse" }, [
            { type: "pointerMove", x: Math.round(x), y: Math.round(y), origin: "viewport" },
            { type: "pointerDown", button: 0 },
            { type: "pointerUp", button: 0 },
        ]),
    };

    keyboard = {
        press: (name) => this.keyboard.type([KeyCodes[name] ?? name]),
        type: (characters) => this.#act("key", {}, [...characters].flatMap((value) => [{ type: "keyDown", value }, { type: "keyUp", value }])),
    };
}

// A browser that has nothing of an earlier one, with the same functions as `Browser`.
export class WebKit {
    complaints = [];
    #programs = [];
    #folder;
    #address;  // of the driver, then of the browser that it drives
    #tab = null;

    static async start() {
        const started = new WebKit();
        await started.#start();
        return started;
    }

    async #start() {
        const driver = programOrSkip("webkit");
        const virtualScreen = programOrSkip("screen");
        this.#folder = await mkdtemp(path.join(tmpdir(), "orvel-webkit-"));
        const screen = this.#run(virtualScreen, ["-screen", "0", "1280x1000x24", "-displayfd", "1", "-nolisten", "tcp", "-noreset"]);
        const [display] = await once(screen.stdout.setEncoding("utf8"), "data");
        const port = await freePort();
        this.#run(driver, [`--port=${port}`], { DISPLAY: `:${display.trim()}`, WAYLAND_DISPLAY: "", HOME: this.#folder, XDG_RUNTIME_DIR: this.#folder });
        this.#address = `http://127.0.0.1:${port}`;
        await waitUntil(() => this.#ask("GET", "status").then(({ ready }) => ready, () => false), driver);
        const { sessionId } = await this.#ask("POST", "session", { capabilities: { alwaysMatch: {} } });
        this.#address += `/session/${sessionId}`;
    }

    #run(program, options, environment) {
        const running = spawn(program, options, { stdio: ["ignore", "pipe", "ignore"], env: { ...process.env, ...environment } });
        this.#programs.unshift(running);
        return running;
    }

    async #ask(method, command, body) {
        const response = await fetch(`${this.#address}/${command}`, { method, body: body && JSON.stringify(body) });
        const { value } = await response.json();
        if (!response.ok) throw new Error(`${command}: ${value.error}: ${value.message}`);
        return value;
    }

    async open(address, { width = 1280, height = 900, shows = "#Form1:not([hidden])" } = {}) {
        this.#tab = new Tab((...question) => this.#ask(...question));
        await this.#tab.setViewport({ width, height });
        await this.#tab.goto(address);
        await this.#tab.waitForSelector(shows);
        return this.#tab;
    }

    // WebKit's driver reports neither requests nor errors, so the requests are asked of the page itself.
    async #findForeignRequests() {
        const foreign = await this.#tab.evaluate(() => performance.getEntriesByType("resource").map(({ name }) => name)
            .filter((name) => new URL(name).origin !== location.origin));
        this.complaints.push(...foreign.map((name) => `asked another host: ${name}`));
    }

    async stop() {
        if (this.#tab) await this.#findForeignRequests();
        await this.#ask("DELETE", "");
        for (const program of this.#programs) {
            program.kill();
            await once(program, "exit");
        }
        await rm(this.#folder, { recursive: true, maxRetries: 5 });
    }
}
