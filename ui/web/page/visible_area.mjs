// Keeps the page within the part of the window that can be seen. The browsers of iOS lay the keyboard over the page and push the page up
// behind it; others shrink the window, so that there is nothing to do.

export function stayInSight() {
    const { style } = document.documentElement;
    const fit = () => {
        const { scale, height, pageTop } = visualViewport;
        const isCovered = scale === 1 && height < innerHeight - 1;  // a player who zooms in covers nothing
        style.setProperty("--seen-height", isCovered ? `${height}px` : "100dvh");
        style.setProperty("--seen-top", isCovered ? `${pageTop}px` : "0px");
    };
    visualViewport.addEventListener("resize", fit);
    visualViewport.addEventListener("scroll", fit);
}
