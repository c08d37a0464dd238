// Somebody who plays by keyboard and never looks: knows what has the focus from the browser's accessibility tree, and hears what the page
// has a screen reader say.

// Runs in the page before any script of its own. What is behind a modal dialog, a screen reader leaves out.
export function growEars() {
    window.heard = [];
    const isBehind = (element) => {
        const dialog = document.querySelector("dialog[open], [aria-modal=true]:not([hidden])");
        return element.closest("[inert]") !== null || dialog !== null && !dialog.contains(element);
    };
    new MutationObserver((changes) => {
        const added = changes.flatMap(({ addedNodes }) => [...addedNodes]);
        for (const node of added) {
            const region = node.parentElement?.closest("[aria-live], [role=status], [role=alert], [role=log]");
            if (!region || region.getAttribute("aria-live") === "off" || !region.checkVisibility() || isBehind(region)) continue;
            // What comes together with its region is not spoken, and what comes within something else is spoken with that.
            if (added.some((other) => other !== node && other.contains(node)) || node.textContent === "") continue;
            window.heard.push(node.textContent);
        }
    }).observe(document, { childList: true, subtree: true });
}

export class Listener {
    #tab;

    // Of a tab that was opened with ears.
    constructor(tab) {
        this.#tab = tab;
    }

    // What was spoken since it was last asked.
    hear() {
        return this.#tab.evaluate(() => window.heard.splice(0));
    }

    // What a screen reader says of the control or entry that has the focus, and of the dialog around it.
    async focus() {
        const find = async (what) => {
            const element = await this.#tab.evaluateHandle(what);
            return element.asElement() && this.#tab.accessibility.snapshot({ root: element, interestingOnly: false });
        };
        const entry = await find(() => {
            const active = document.activeElement;
            return document.getElementById(active.getAttribute("aria-activedescendant")) ?? active;
        });
        const list = await find(() => document.activeElement.closest("[role=listbox]"));
        const dialog = await find(() => document.activeElement.closest("[role=dialog], [role=alertdialog], dialog"));
        return { ...entry, list: list?.name, dialog: dialog?.name };
    }

    async press(...keys) {
        for (const key of keys) await this.#tab.keyboard.press(key);
    }

    type(text) {
        return this.#tab.keyboard.type(text);
    }

    // Goes on by Tab until something of this name, or in a list of this name, has the focus.
    async tabTo(name) {
        const passed = [];
        while (passed.length < 15) {
            await this.press("Tab");
            const focus = await this.focus();
            if ([focus.name, focus.list].includes(name)) return;
            passed.push(focus.list ?? focus.name);
        }
        throw new Error(`Tab never comes to ${name}, only to ${passed}`);
    }

    // Chooses in the list the entry that begins so.
    async choose(list, beginning) {
        await this.tabTo(list);
        await this.type(beginning);
        await this.press("Enter");
    }

    // Builds a sentence of a verb and of entries in other lists, runs it, and hears what that brings.
    async command(verb, ...things) {
        await this.choose("Slovesa", verb);
        for (const [list, beginning] of things) await this.choose(list, beginning);
        await this.hear();
        await this.press("Escape", "Enter");
        return (await this.hear()).join("\n");
    }
}
