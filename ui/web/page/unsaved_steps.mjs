// Makes the browser ask, in its own words, before the player leaves the page and loses something.

export function askBeforeLeaving(engine, savedGames) {
    const wouldLoseSteps = () => engine.desktop.game !== 0 && engine._WouldLoseSteps(engine.desktop.game) !== 0;
    window.addEventListener("beforeunload", (event) => {
        if (!savedGames.wouldBeLost() && !wouldLoseSteps()) return;
        event.preventDefault();
        event.returnValue = true;  // for older browsers, which ignore preventDefault here
    });
}
