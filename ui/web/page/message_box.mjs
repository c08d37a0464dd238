// A message with one OK button, above all windows.
import { EventKind } from "./event_queue.mjs";

function newElement(name, properties) {
    return Object.assign(document.createElement(name), properties);
}

export class MessageBox {
    #title = newElement("h2", { id: "message-title" });
    #text = newElement("p", { id: "message-text" });
    #button = newElement("button", { type: "button", textContent: "OK" });
    #events;

    constructor(events) {
        this.#events = events;
        this.element = newElement("section", { id: "message-box", hidden: true });
        this.element.setAttribute("role", "alertdialog");
        this.element.setAttribute("aria-modal", "true");
        this.element.setAttribute("aria-labelledby", this.#title.id);
        this.element.setAttribute("aria-describedby", this.#text.id);
        this.element.append(this.#title, this.#text, this.#button);
        this.#button.addEventListener("click", () => this.#acknowledge());
    }

    get isOpen() {
        return !this.element.hidden;
    }

    open(text, title) {
        this.#title.textContent = title;
        this.#text.textContent = text;
        this.element.hidden = false;
        this.#button.focus();
    }

    close() {
        this.element.hidden = true;
    }

    keyDown(event) {
        const besideButton = event.key === "Enter" && document.activeElement === document.body;
        if (event.key === "Escape" || besideButton) this.#acknowledge();
    }

    #acknowledge() {
        this.#events.post(EventKind.Acknowledge);
    }
}
