// What the page says when the game has ended.

export const TheEnd = "Hra skončila.";

export function sayTheEnd() {
    const again = Object.assign(document.createElement("button"), { type: "button", textContent: "Hrát znovu" });
    again.addEventListener("click", () => location.reload());
    const notice = document.getElementById("notice");
    notice.classList.add("ended");
    notice.replaceChildren(TheEnd, again);
    again.focus();
}
