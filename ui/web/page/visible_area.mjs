// Keeps the page within the part of the window that can be seen. On iOS, browsers lay the keyboard over the page and push the page up behind
// it. On other systems the keyboard makes the window smaller, and nothing needs to be done.

export function stayInSight() {
    const { style } = document.documentElement;
    const fit = () => {
        const { scale, height, pageTop } = visualViewport;
        const isCovered = scale === 1 && height < innerHeight - 1;  // at another scale the player has zoomed in
        style.setProperty("--seen-height", isCovered ? `${height}px` : "100dvh");
        style.setProperty("--seen-top", isCovered ? `${pageTop}px` : "0px");
    };
    visualViewport.addEventListener("resize", fit);
    visualViewport.addEventListener("scroll", fit);
}
