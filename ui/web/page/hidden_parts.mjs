// Marks a box that scrolls with whether some of its content is hidden above or below, so that the style can show a sign there.

// Measures in the next frame, because the browser makes the layout then in any case; measuring at once would make it twice.
export function markHidden(box) {
    requestAnimationFrame(() => {
        const { scrollTop, clientHeight, scrollHeight } = box;
        box.classList.toggle("more-above", scrollTop > 1);
        box.classList.toggle("more-below", scrollTop + clientHeight < scrollHeight - 1);
    });
}
