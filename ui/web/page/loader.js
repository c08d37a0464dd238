// Runs the game when its title stands on the screen, and says in its place why there is none. A script for browsers of any age, so that
// those too old for the game are told as well.
(function () {
    var own = document.currentScript;
    var game = own.getAttribute("data-game");  // the address of its script; the page in one file has it inside
    var title = document.getElementById("title");
    var asked = false;
    var started = false;
    var enterPressed = false;

    // The reasons are those that index.html has a sentence for.
    function show(reason, address) {
        var sentences = document.querySelectorAll("#trouble p[id]");
        var names = document.querySelectorAll("#trouble .file");
        var again = document.getElementById("try-again");
        for (var i = 0; i < sentences.length; ++i) sentences[i].hidden = sentences[i].id !== "trouble-" + reason;
        for (var j = 0; j < names.length; ++j) names[j].textContent = (address || "").split("/").pop();
        again.hidden = reason === "old" || reason === "folder";
        again.onclick = function () {
            function reload() { location.reload(); }
            // The browser may have kept the damaged file and would use it again after a mere reload.
            if (address) fetch(address, { cache: "reload" }).then(reload, reload);
            else reload();
        };
        document.getElementById("notice").textContent = "";
        document.getElementById("stage").hidden = true;
        document.getElementById("trouble").hidden = false;
        if (!again.hidden) again.focus();
    }

    function isOld() {
        return !("noModule" in document.createElement("script")) || !("inert" in document.body) || !window.CSS || !CSS.registerProperty;
    }

    // Asks for the file once more, because the events of a script do not tell whether it is missing, damaged or out of reach.
    function checkStart() {
        if (started) return;
        if (!game) show("incomplete");
        else if (location.protocol === "file:") show("folder");
        else fetch(game).then(function (answer) { show(answer.ok ? "damaged" : "missing", game); }, function () { show("unreachable", game); });
    }

    function add(parent, name, attributes) {
        var element = document.createElement(name);
        for (var attribute in attributes) element.setAttribute(attribute, attributes[attribute]);
        return parent.appendChild(element);
    }

    function runGame() {
        var script = add(document.body, "script", { type: "module", src: game });
        script.onload = script.onerror = checkStart;
    }

    // The page's head already fetches the program, the largest part of the game. The rest waits for the title's picture, because on a slow
    // network it would delay the picture.
    function fetchGame() {
        if (asked) return;
        asked = true;
        add(document.head, "link", { rel: "modulepreload", href: game });
        add(document.head, "link", { rel: "preload", as: "fetch", crossorigin: "", href: own.getAttribute("data-story") });
        // By the second frame the first one, with the title in it, is on the screen.
        requestAnimationFrame(function () { requestAnimationFrame(runGame); });
    }

    function awaitTitle() {
        if (title.complete) return fetchGame();
        title.onload = title.onerror = fetchGame;
        setTimeout(fetchGame, 5000);  // a picture that does not come keeps nobody from playing
    }

    // Notes an Enter that the player presses at the title before the game can hear it. An Enter that repeats does not count, because it was
    // pressed before the page came, in the address bar for example, and is still held.
    function noteEnter(event) {
        if (event.key === "Enter" && !event.repeat) enterPressed = true;
    }

    window.addEventListener("keydown", noteEnter);
    window.addEventListener("playing", function () {
        window.removeEventListener("keydown", noteEnter);
        if (enterPressed) document.dispatchEvent(new KeyboardEvent("keydown", { key: "Enter" }));
    });
    window.addEventListener("starting", function () { started = true; });
    window.addEventListener("trouble", function (event) { show(event.detail.reason, event.detail.address); });
    if (isOld()) show("old");
    else if (game) awaitTitle();
    else window.addEventListener("load", checkStart);
})();
