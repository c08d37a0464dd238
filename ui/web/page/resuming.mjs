// Keeps the running game after each command and offers at the title to go on with a game that was left, because phones throw a page away
// while its player is in another app.
import { BrowserStore } from "./browser_store.mjs";
import { EventKind } from "./event_queue.mjs";
import { RunningGame } from "./running_game.mjs";

const Interrupted = "/interrupted";  // where the program finds the snapshot
const Last = "orvel-tavoren-game";

// The tab's own storage, which the browser gives back when it loads the page again. A browser that keeps nothing refuses access to it.
const session = {
    get last() {
        try {
            return sessionStorage.getItem(Last);
        } catch {
            return null;
        }
    },
    set last(id) {
        try {
            sessionStorage.setItem(Last, id);
        } catch {
            // Without it the newest game is offered instead of this tab's.
        }
    },
};

function newOffer(time, goOn) {
    const when = new Date(time).toLocaleString("cs", { day: "numeric", month: "numeric", hour: "numeric", minute: "2-digit" });
    const button = Object.assign(document.createElement("button"), { type: "button", textContent: "Pokračovat v ní" });
    button.addEventListener("click", goOn);
    return [`Zůstala tu rozehraná hra (${when}).`, button];
}

// Call this when the program runs.
export function keepRunningGame(engine, desktop) {
    const id = crypto.getRandomValues(new Uint32Array(2)).join("-");
    const running = new RunningGame(new BrowserStore("orvel-tavoren-running", "games"), session, id);
    let isAtTitle = true;
    const takeSnapshot = () => {
        desktop.snapshot = null;
        if (desktop.game !== 0) engine._SnapshotGame(desktop.game);
        return desktop.snapshot;
    };
    const leaveTitle = () => {
        isAtTitle = false;
        desktop.notices.stand("game", "");
    };
    const canResume = (snapshot) => {
        engine.FS.writeFile(Interrupted, snapshot);
        return engine._CanResume(desktop.game) !== 0;
    };
    const goOn = (game) => {
        leaveTitle();
        engine.FS.writeFile(Interrupted, game.bytes);
        desktop.events.post(EventKind.Resume);
        running.take(game);
    };

    desktop.onCommand = () => {
        leaveTitle();
        running.keep(takeSnapshot());
    };
    document.addEventListener("visibilitychange", () => {
        if (document.hidden && desktop.game !== 0) running.keep(takeSnapshot());
    });
    running.find((snapshot) => isAtTitle && canResume(snapshot)).then((game) => {
        if (game && isAtTitle) desktop.notices.stand("game", ...newOffer(game.time, () => goOn(game)));
    });
}
