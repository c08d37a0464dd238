// A label: a centred caption, or a transparent area that takes clicks.
import { EventKind } from "./event_queue.mjs";

export class LabelArea {
    #button;
    #spoken;
    #news = "";

    constructor(layout, place, page) {
        this.#button = layout.takesClicks;
        this.element = document.createElement(this.#button ? "button" : "output");
        this.element.className = "label";
        this.#spoken = layout.spoken;
        if (!this.#button) return this.element.setAttribute("aria-live", "off");
        this.element.type = "button";
        this.element.addEventListener("mousedown", (event) => event.preventDefault());  // the focus stays where it is
        this.element.addEventListener("click", () => page.events.post(EventKind.ClickLabel, place));
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

    // Buttons are pressed by the browser.
    keyDown(event) {
        return this.#button && (event.key === "Enter" || event.key === " ");
    }
}
