// The face of all text: Arial, or the page's own that runs exactly as wide.

// Whether text set in it will look and measure right.
export async function loadTextFace() {
    try {
        const faces = await Promise.all([document.fonts.load('13px "Orvel Sans"', "ř"), document.fonts.load('bold 13px "Orvel Sans"', "ř")]);
        return faces.every((loaded) => loaded.length > 0);
    } catch {
        return false;
    }
}
