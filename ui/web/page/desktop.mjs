// The desktop of the game in the page, as the program sees it: page_bridge.cpp calls these functions, and takes its events here.
import { Announcer } from "./announcer.mjs";
import { EventKind, EventQueue } from "./event_queue.mjs";
import { sayTheEnd } from "./ending.mjs";
import { FormWidget } from "./form_widget.mjs";
import { listenToKeys } from "./keyboard.mjs";
import { MessageBox } from "./message_box.mjs";
import { NoticeLine } from "./notice_line.mjs";
import { showTrouble } from "./trouble.mjs";
import { stayInSight } from "./visible_area.mjs";

const Enter = 13;

// Whether the event ran what stands in a line, or went on from the title.
function isCommand(event) {
    return event?.kind === EventKind.ClickLabel || event?.kind === EventKind.Key && event.number === Enter;
}

export class Desktop {
    #stage;
    #forms = [];
    #messageBox;
    #announcer = new Announcer();
    #focusPlace = "";

    constructor(stage, files, hasArial) {
        this.#stage = stage;
        this.files = files;
        this.hasArial = hasArial;
        this.events = new EventQueue();
        this.notices = new NoticeLine();
        this.#messageBox = new MessageBox(this.events);
        this.focused = null;  // the control that has the focus in the program
        this.keySwallowed = false;
        this.game = 0;  // its address in the program, for the program's answers; 0 when none is running
        this.pictured = null;  // fulfilled when the main window has its picture
        this.inspection = null;  // the program's answer about a file
        this.snapshot = null;  // the program's answer to the wish for a snapshot
        this.onCommand = () => {};  // a command has been carried out, or has ended the game
        stage.append(this.#messageBox.element, this.#announcer.element);
        listenToKeys(this, this.#messageBox);
        stayInSight();
        addEventListener("trouble", () => { this.game = 0; });  // a program that has crashed answers no more
    }

    async waitForEvent() {
        if (isCommand(this.events.current)) this.onCommand();
        if (this.events.current?.kind === EventKind.Resume) this.#forms.forEach((form) => form.keepLastReply());
        this.#announce();
        await this.events.take();
        if (isCommand(this.events.current)) this.notices.pass();
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

    build(layouts, eventKinds) {
        eventKinds.forEach((name, number) => { EventKind[name] = number; });
        this.#forms = layouts.map((layout, form) => new FormWidget(layout, form, this));
        this.#stage.prepend(...this.#forms.map((form) => form.element));
        const framed = layouts.find((layout) => layout.framed);
        document.title = framed.caption;
        this.pictured = this.#forms[layouts.indexOf(framed)].pictured;
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
        this.onCommand();
        sayTheEnd();
    }

    sayTheStoryIsDamaged() {
        showTrouble(this.files.damagedFile("texs.dat"));
    }
}
