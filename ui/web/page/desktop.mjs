// The desktop of the game in the page, as the program sees it: page_bridge.cpp calls these functions, and takes its events here.
import { Announcer } from "./announcer.mjs";
import { TheEnd, sayTheEnd } from "./ending.mjs";
import { EventKind, EventQueue } from "./event_queue.mjs";
import { FormWidget } from "./form_widget.mjs";
import { listenToKeys } from "./keyboard.mjs";
import { MessageBox } from "./message_box.mjs";
import { NoticeLine } from "./notice_line.mjs";
import { Move, SentenceVoice } from "./sentence_voice.mjs";
import { EnglishWords } from "./spoken_words.mjs";
import { showTrouble } from "./trouble.mjs";
import { stayInSight } from "./visible_area.mjs";

const Backspace = 8;
const Enter = 13;
const Greeting = "Orvel Tavoren, textová adventura z paluby kosmické lodi Alcaster. Zapni klávesou Enter nebo nápisem Proceed.";

// Whether the event ran what stands in a line, or went on from the title.
function isCommand(event) {
    return event?.kind === EventKind.ClickLabel || event?.kind === EventKind.Key && event.number === Enter;
}

export class Desktop {
    #stage;
    #forms = [];
    #messageBox;
    #announcer;
    #voice = new SentenceVoice();
    #greeting = [Greeting];
    #main = null;
    #focusPlace = "";
    #lastStand = null;  // the element of the game's windows that had the focus last

    constructor(stage, files) {
        this.#stage = stage;
        this.files = files;
        this.facts = { errorNumbers: {}, extension: "", draftPrefix: "" };  // told by the program
        this.events = new EventQueue();
        this.english = new EnglishWords();
        this.#messageBox = new MessageBox(this.events);
        this.#announcer = new Announcer(document.getElementById("spoken"), this.english, () => this.#isCovered());
        this.notices = new NoticeLine(this.#announcer);
        this.notices.onFocusLost = () => this.#returnFocus();
        this.focused = null;  // the control that has the focus in the program
        this.keySwallowed = false;
        this.game = 0;  // its address in the program, for the program's answers; 0 when none is running
        this.pictured = null;  // fulfilled when the main window has its picture
        this.inspection = null;  // the program's answer about a file
        this.snapshot = null;  // the program's answer to the wish for a snapshot
        this.onCommand = () => {};  // a command has been carried out, or has ended the game
        stage.append(this.#messageBox.element);
        stage.addEventListener("focusin", ({ target }) => { this.#lastStand = target; });
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

    // What a screen reader must not read now: what lies over the page is modal.
    #isCovered() {
        return this.#messageBox.isOpen || document.querySelector("dialog[open]") !== null;
    }

    // What the event just played was for the sentence in the main window.
    #move() {
        const event = this.events.current;
        if (this.#forms[event?.form] !== this.#main) return Move.Other;
        if (event.kind === EventKind.ClickEntry) return Move.Choice;
        if (event.kind === EventKind.Key && event.number === Backspace) return Move.Clearing;
        return isCommand(event) ? Move.Run : Move.Other;
    }

    #takeNews() {
        return this.#forms.flatMap((form) => form.takeNews()).filter((each) => each !== "");
    }

    #announce() {
        const news = [...this.#greeting.splice(0), ...this.#takeNews()];
        const isAnswered = news.length > 0 || this.#isModal();
        this.#announcer.say([...news, ...this.#voice.tell(this.#move(), this.#main.sentence, this.#main.lamp, isAnswered)]);
    }

    say(sentence) {
        this.#announcer.say([sentence]);
    }

    #isModal() {
        return this.#messageBox.isOpen || this.#forms.some((form) => form.isPanel && !form.element.hidden);
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
        for (const { touch } of layouts.flatMap(({ controls }) => controls)) this.english.add(touch.caption);
        for (const { framed, caption } of layouts) if (!framed) this.english.add(caption);
        this.#forms = layouts.map((layout, form) => new FormWidget(layout, form, this));
        this.#stage.prepend(...this.#forms.map((form) => form.element));
        const framed = layouts.find((layout) => layout.framed);
        document.title = framed.caption;
        this.#main = this.#forms[layouts.indexOf(framed)];
        this.pictured = this.#main.pictured;
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
        this.#forms[form].show(visible, reachable, picture, this.#main.sentence);
        this.#shutPage();
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

    // The page's own menu and notices lie outside of the windows, and so behind a modal one.
    #shutPage() {
        document.getElementById("page-menu").inert = this.#isModal();
    }

    // The player has done with what lies outside of the windows.
    #returnFocus() {
        this.#lastStand?.focus();
        if (document.activeElement === document.body) this.focused?.focus();
    }

    showBusyPointer(busy) {
        this.#stage.classList.toggle("busy", busy);
    }

    openMessageBox(text, title) {
        this.#focusPlace = "";
        this.#messageBox.open(text, title);
        this.#shutPage();
    }

    closeMessageBox() {
        this.#messageBox.close();
        this.#shutPage();
    }

    sayTheEnd() {
        this.#forms.forEach((form) => form.retire());
        this.#announcer.say([...this.#takeNews(), TheEnd]);
        this.game = 0;
        this.onCommand();
        sayTheEnd();
    }

    sayTheStoryIsDamaged() {
        showTrouble(this.files.damagedFile("texs.dat"));
    }
}
