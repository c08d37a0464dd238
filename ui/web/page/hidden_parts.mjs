// Marks a box that scrolls where a part of what it holds is hidden, so that the style can show a sign there.

// Waits for the next frame, because only then is the layout made anyway.
export function markHidden(box) {
    requestAnimationFrame(() => {
        const { scrollTop, clientHeight, scrollHeight } = box;
        box.classList.toggle("more-above", scrollTop > 1);
        box.classList.toggle("more-below", scrollTop + clientHeight < scrollHeight - 1);
    });
}
