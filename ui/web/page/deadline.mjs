// An end for waits on the browser: what it never answers must not stop the game.

export const Patience = 5000;  // milliseconds

// Settles as the promise does, or rejects with a TimeoutError when that takes longer.
export function inTime(promise, patience = Patience) {
    let timer;
    const late = new Promise((_, reject) => {
        timer = setTimeout(() => reject(new DOMException("The browser does not answer", "TimeoutError")), patience);
    });
    return Promise.race([promise, late]).finally(() => clearTimeout(timer));
}
