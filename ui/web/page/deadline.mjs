// Ends a wait for the browser, because a question that the browser never answers must not stop the game.

export const Patience = 5000;  // milliseconds

// Settles as the promise does, but rejects with a TimeoutError when the promise takes longer than the patience lasts.
export function inTime(promise, patience = Patience) {
    let timer;
    const late = new Promise((_, reject) => {
        timer = setTimeout(() => reject(new DOMException("The browser does not answer", "TimeoutError")), patience);
    });
    return Promise.race([promise, late]).finally(() => clearTimeout(timer));
}
