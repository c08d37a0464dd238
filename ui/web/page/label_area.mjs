// A label: a centred caption, or a transparent area that takes clicks.
import { EventKind } from "./event_queue.mjs";

export class LabelArea {
    #button;

    constructor(layout, place, page) {
        this.#button = layout.takesClicks;
        this.element = document.createElement(this.#button ? "button" : "output");
        this.element.className = "label";
        this.element.setAttribute("aria-label", layout.spoken);
        if (!this.#button) return;
        this.element.type = "button";
        this.element.addEventListener("mousedown", (event) => event.preventDefault());  // the focus stays where it is
        this.element.addEventListener("click", () => page.events.post(EventKind.ClickLabel, place));
    }

    show(caption, colour) {
        this.element.textContent = caption;
        this.element.style.setProperty("--text", colour);
    }

    focus() {}

    // Buttons are pressed by the browser.
    keyDown(event) {
        return this.#button && (event.key === "Enter" || event.key === " ");
    }
}
