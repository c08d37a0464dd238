// The page as the program sees it: page.cpp calls these functions, and takes its events here.
import { Announcer } from "./announcer.mjs";
import { EventQueue } from "./event_queue.mjs";
import { sayTheEnd } from "./ending.mjs";
import { addressOf } from "./files.mjs";
import { FormWidget } from "./form_widget.mjs";
import { listenToKeys } from "./keyboard.mjs";
import { MessageBox } from "./message_box.mjs";
import { Trouble, showTrouble } from "./trouble.mjs";

export class Page {
    #stage;
    #forms = [];
    #messageBox;
    #announcer = new Announcer();
    #focusPlace = "";

    constructor(stage, hasArial) {
        this.#stage = stage;
        this.hasArial = hasArial;
        this.events = new EventQueue();
        this.#messageBox = new MessageBox(this.events);
        this.focused = null;  // the control that has the focus in the program
        this.keySwallowed = false;
        this.game = 0;  // its address in the program, for the program's answers; 0 when none is running
        this.inspection = null;  // the program's answer about a file
        stage.append(this.#messageBox.element, this.#announcer.element);
        listenToKeys(this, this.#messageBox);
    }

    waitForEvent() {
        this.#announce();
        return this.events.take();
    }

    #announce() {
        this.#announcer.say(this.#forms.flatMap((form) => form.takeNews()));
    }

    eventNumber(field) {
        const { kind, form, control, number } = this.events.current;
        return [kind, form, control, number][field];
    }

    eventText(field) {
        const { before, after } = this.events.current;
        return [before, after][field];
    }

    answerKey(swallowed) {
        this.keySwallowed = swallowed;
    }

    build(layouts) {
        this.#forms = layouts.map((layout, form) => new FormWidget(layout, form, this));
        this.#stage.prepend(...this.#forms.map((form) => form.element));
        const framed = layouts.find((layout) => layout.framed);
        document.title = framed.caption;
        this.#stage.style.setProperty("--stage-width", framed.width);
        this.#stage.style.setProperty("--stage-height", framed.height);
    }

    control(form, control) {
        return this.#forms[form].controls[control];
    }

    // The control that holds the element, if any.
    controlAround(element) {
        return this.#forms.flatMap((form) => form.controls).find((control) => control.element.contains(element)) ?? null;
    }

    showForm(form, visible, reachable, picture) {
        this.#forms[form].show(visible, reachable, picture);
    }

    // A player who walks through the lists by keyboard stays where he is, as long as the program's focus does.
    showFocus(form, control) {
        const place = `${form}.${control}`;
        const moved = place !== this.#focusPlace;
        this.#focusPlace = place;
        this.focused = this.control(form, control);
        if (moved || document.activeElement === document.body) this.takeFocus();
    }

    // Not while text is selected in an output box: the focus of a line would undo that.
    takeFocus() {
        if (document.getSelection().isCollapsed || document.activeElement.matches("input")) this.focused?.focus();
    }

    showBusyPointer(busy) {
        this.#stage.classList.toggle("busy", busy);
    }

    openMessageBox(text, title) {
        this.#focusPlace = "";
        this.#messageBox.open(text, title);
    }

    closeMessageBox() {
        this.#messageBox.close();
    }

    sayTheEnd() {
        this.#forms.forEach((form) => form.retire());
        this.#announce();
        this.game = 0;
        sayTheEnd();
    }

    sayTheStoryIsDamaged() {
        showTrouble(new Trouble("damaged", { address: addressOf("texs.dat") }));
    }
}
