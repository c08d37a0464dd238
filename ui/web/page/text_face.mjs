// The font of all text in the game's windows: Arial, or the page's own font, which is exactly as wide.

// Promises whether text in this font looks and measures as in Arial.
export async function loadTextFace() {
    try {
        const faces = await Promise.all([document.fonts.load('13px "Orvel Sans"', "ř"), document.fonts.load('bold 13px "Orvel Sans"', "ř")]);
        return faces.every((loaded) => loaded.length > 0);
    } catch {
        return false;
    }
}
