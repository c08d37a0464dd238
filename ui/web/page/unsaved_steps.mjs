// Leaving the page while something would be lost asks first, in the browser's own words.

export function askBeforeLeaving(engine, savedGames) {
    const wouldLoseSteps = () => engine.desktop.game !== 0 && engine._WouldLoseSteps(engine.desktop.game) !== 0;
    window.addEventListener("beforeunload", (event) => {
        if (!savedGames.wouldBeLost() && !wouldLoseSteps()) return;
        event.preventDefault();
        event.returnValue = true;  // older browsers know only this
    });
}
