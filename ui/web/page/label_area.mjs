// A label: a centred caption, or the transparent button that lies over one.
import { EventKind } from "./event_queue.mjs";

export class LabelArea {
    #button;
    #spoken;
    #news = "";

    constructor(layout, place, desktop) {
        this.#button = layout.takesClicks;
        this.element = document.createElement(this.#button ? "button" : "output");
        this.element.className = "label";
        this.#spoken = layout.spoken;
        if (!this.#button) return this.element.setAttribute("aria-live", "off");
        this.element.type = "button";
        this.element.addEventListener("mousedown", (event) => event.preventDefault());  // the focus stays where it is
        this.element.addEventListener("click", () => desktop.events.post(EventKind.ClickLabel, place));
    }

    show(caption, colour, state) {
        if (this.element.hasAttribute("aria-label") && this.element.textContent !== caption) this.#news = caption;
        this.element.textContent = caption;
        this.element.style.setProperty("--text", colour);
        this.element.setAttribute("aria-label", caption === "" ? this.#spoken : `${this.#spoken}: ${caption}`);
        this.element.setAttribute("aria-description", state);
    }

    takeNews() {
        const news = this.#news;
        this.#news = "";
        return news;
    }

    focus() {}

    // The browser itself turns Enter and Space on a button into a click, so the program must not hear of these keys.
    keyDown(event) {
        return this.#button && (event.key === "Enter" || event.key === " ");
    }
}
