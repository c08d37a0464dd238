// Fetches the game when its title stands on the screen, and says in its place why there is none. A script for browsers of any age, so that
// those too old for the game are told as well.
(function () {
    var game = document.currentScript.getAttribute("data-game");
    var asked = false;
    var started = false;
    var enterPressed = false;

    // The reasons are those that index.html has a sentence for.
    function show(reason, address) {
        var sentences = document.querySelectorAll("#trouble > p[id]");
        var names = document.querySelectorAll("#trouble .file");
        var again = document.getElementById("try-again");
        for (var i = 0; i < sentences.length; ++i) sentences[i].hidden = sentences[i].id !== "trouble-" + reason;
        for (var j = 0; j < names.length; ++j) names[j].textContent = (address || "").split("/").pop();
        again.hidden = reason === "old" || reason === "folder";
        again.onclick = function () {
            function reload() { location.reload(); }
            // What the browser keeps of a damaged file would come back.
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

    function checkStart() {
        if (!started) show(location.protocol === "file:" && document.getElementById("trouble-folder") ? "folder" : "incomplete");
    }

    function fetchGame() {
        var script = document.createElement("script");
        script.type = "module";
        script.src = game;
        script.onload = script.onerror = checkStart;
        document.body.appendChild(script);
    }

    function askForGame() {
        if (asked) return;
        asked = true;
        if (isOld()) show("old");
        else if (!game) checkStart();  // it came with the page
        // By the second frame the first one, with the title in it, is on the screen.
        else requestAnimationFrame(function () { requestAnimationFrame(fetchGame); });
    }

    // The title asks for Enter before the game can hear it.
    function noteEnter(event) {
        if (event.key === "Enter") enterPressed = true;
    }

    window.addEventListener("keydown", noteEnter);
    window.addEventListener("playing", function () {
        window.removeEventListener("keydown", noteEnter);
        if (enterPressed) document.dispatchEvent(new KeyboardEvent("keydown", { key: "Enter" }));
    });
    window.addEventListener("starting", function () { started = true; });
    window.addEventListener("trouble", function (event) { show(event.detail.reason, event.detail.address); });
    window.addEventListener("load", askForGame);
    // A picture that does not come keeps nobody from playing.
    if (game) setTimeout(askForGame, 5000);
})();
