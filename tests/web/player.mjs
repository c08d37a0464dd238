// Somebody who plays in the page with mouse, finger and keys, and sees of it what the DOM shows. Controls have the names that the headless
// player gives them. To use a control that is covered, hidden or without the focus throws, because a real player could not do so.

// Runs in the page: returns where to click the control, or the list's entry, or else a sentence that says why neither can be clicked.
function findTarget(id, entry) {
    const control = document.getElementById(id);
    if (control === null) return "there is no such control";
    const options = [...control.querySelectorAll("[role=option]")];
    const row = options.find((option) => option.textContent === entry) ?? options[entry];
    const target = entry === "" ? control : row;
    if (target === undefined) return `there is no such entry among ${options.map((option) => option.textContent)}`;
    target.scrollIntoView({ block: "nearest" });
    const { x, y, width, height } = target.getBoundingClientRect();
    const point = { x: x + Math.min(width / 2, 20), y: y + height / 2 };
    return target.contains(document.elementFromPoint(point.x, point.y)) ? point : "something else lies there";
}

// Runs in the page: returns what every window shows, in the form of the headless player's report, or else the message that covers them.
function readPage() {
    if (document.getElementById("notice").textContent.startsWith("Hra skončila.")) return { ended: true };
    const box = document.getElementById("message-box");
    if (!box.hidden) return { message: { title: box.querySelector("h2").textContent, text: box.querySelector("p").textContent } };
    const read = (control) => {
        const style = getComputedStyle(control);
        if (control.matches(".output")) {
            const text = Array.from(control.querySelectorAll("p"), (line) => line.textContent).join("\r\n");
            const { scrollTop, clientHeight, scrollHeight } = control;
            const seen = { text, visible: style.visibility === "visible" };
            if (scrollHeight <= clientHeight || !seen.visible) return seen;
            return { ...seen, caret: scrollTop + clientHeight >= scrollHeight - 1 ? text.length : 0 };  // it is kept in sight
        }
        if (control.matches(".list")) {
            const rows = [...control.querySelectorAll("[role=option]")];
            return { entries: rows.map((row) => row.textContent), selected: rows.findIndex((row) => row.ariaSelected === "true") };
        }
        const input = control.querySelector("input");
        if (input) return { text: input.value, caret: input.selectionStart, visible: true };
        const caption = Array.from(control.childNodes, (node) => node.className === "unseen" ? "" : node.textContent).join("");
        const colour = control.style.getPropertyValue("--text").match(/[0-9a-f]{2}/g).map((part) => Number(`0x${part}`));
        return { caption, colour };
    };
    const forms = {};
    for (const form of document.querySelectorAll(".form")) {
        const controls = Array.from(form.querySelectorAll(".control"), (control) => [control.id.slice(form.id.length + 1), read(control)]);
        forms[form.id] = { visible: form.checkVisibility(), controls: Object.fromEntries(controls) };
    }
    const modal = document.querySelector(".form[role=dialog]:not([hidden])")?.id ?? null;
    return { running: true, modal, focus: document.activeElement.closest(".control")?.id ?? "", messageBoxes: [], forms };
}

export class Player {
    #tab;
    #hasTouch;

    constructor(tab) {
        this.#tab = tab;
        this.#hasTouch = tab.viewport()?.hasTouch;
    }

    // An entry is named by its text or by its number from 0.
    async click(id, entry = "") {
        let target = await this.#tab.evaluate(findTarget, id, entry);
        // A list that has just come to lie over another one takes no taps for a moment.
        for (let tries = 0; target === "something else lies there" && tries < 10; ++tries) {
            await new Promise((later) => { setTimeout(later, 50); });
            target = await this.#tab.evaluate(findTarget, id, entry);
        }
        if (typeof target === "string") throw new Error(`${id} ${entry}: ${target}`);
        if (this.#hasTouch) await this.#tab.touchscreen.tap(target.x, target.y);
        else await this.#tab.mouse.click(target.x, target.y);
    }

    async keys(...names) {
        for (const name of names) await this.#tab.keyboard.press(name);
    }

    // Presses a key in the control, which must have the focus.
    async key(id, name) {
        await this.#stand(id);
        await this.keys(name);
        if (id.startsWith("Form4.") && name === "Enter") await this.#awaitSave();
    }

    async type(id, text) {
        await this.#stand(id);
        await this.#tab.keyboard.type(text);
    }

    // Carries out one event of the headless player's language.
    play(line) {
        const [event, target, ...words] = line.split(" ");
        const rest = words.join(" ");
        switch (event) {
            case "click": return this.click(target, rest);
            case "key": return this.key(target, rest);
            case "type": return this.type(target, rest);
            case "random": return this.queueRandom([target, ...words].map(Number));
            default: throw new Error("there is no such event");
        }
    }

    // Chooses the verb and its things, and carries the sentence out.
    async command(verb, ...things) {
        await this.click("Form1.List2(0)", verb);
        for (const [index, thing] of things.entries()) await this.click(`Form1.List2(${index + 1})`, thing);
        await this.keys("Enter");
    }

    async saveAs(name) {
        await this.command("Ulož pozici");
        await this.click("Form4.Text1");
        await this.type("Form4.Text1", name);
        await this.key("Form4.Text1", "Enter");
    }

    async #stand(id) {
        const focus = await this.focus();
        if (focus !== id) throw new Error(`${id}: the focus is in "${focus}"`);
    }

    focus() {
        return this.#tab.evaluate(() => document.activeElement.closest(".control")?.id ?? "");
    }

    // Waits until the browser has kept the game, when the panel closes. A refused name leaves the panel open, which ends the waiting too.
    async #awaitSave() {
        await this.#tab.waitForSelector("#Form4[hidden], #message-box:not([hidden])", { timeout: 1000 }).catch(() => {});
    }

    // As the headless player's `show`; messages are acknowledged.
    async look() {
        const messages = [];
        for (;;) {
            const { message, ...seen } = await this.#tab.evaluate(readPage);
            if (message === undefined) return seen.ended ? seen : { ...seen, messageBoxes: messages };
            messages.push(message);
            await this.keys("Enter");
        }
    }

    // The next random numbers that the game draws.
    queueRandom(numbers) {
        return this.#tab.evaluate((queued) => {
            const draw = Math.random;
            Math.random = () => queued.length > 0 ? queued.shift() : draw();
        }, numbers);
    }
}
