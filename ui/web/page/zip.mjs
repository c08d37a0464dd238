// Puts files together in a .zip without compression.

const Utf8Names = 0x0800;
const Version = 20;

function crc32(bytes) {
    let crc = ~0;
    for (const byte of bytes) {
        crc ^= byte;
        for (let bit = 0; bit < 8; ++bit) crc = crc >>> 1 ^ (crc & 1 ? 0xEDB88320 : 0);
    }
    return ~crc >>> 0;
}

// Numbers of 2 or 4 bytes, the least significant byte first.
function record(...fields) {
    return new Uint8Array(fields.flatMap(([size, number]) => Array.from({ length: size }, (_, index) => number >>> 8 * index & 0xFF)));
}

// Two words: the first holds half the seconds, the minutes and the hours, the second the day, the month and the years since 1980.
function dosTime(date) {
    return [
        [2, date.getSeconds() >> 1 | date.getMinutes() << 5 | date.getHours() << 11],
        [2, date.getDate() | date.getMonth() + 1 << 5 | date.getFullYear() - 1980 << 9],
    ];
}

// `files` are pairs of name and bytes.
export function zip(files) {
    const date = new Date();
    const parts = [];
    const directory = [];
    const sizeOf = (list) => list.reduce((sum, part) => sum + part.length, 0);
    for (const [name, bytes] of files) {
        const encoded = new TextEncoder().encode(name);
        const common = [
            [2, Version], [2, Utf8Names], [2, 0], ...dosTime(date), [4, crc32(bytes)], [4, bytes.length], [4, bytes.length],
            [2, encoded.length], [2, 0],
        ];
        directory.push(record([4, 0x02014B50], [2, Version], ...common, [2, 0], [2, 0], [2, 0], [4, 0], [4, sizeOf(parts)]), encoded);
        parts.push(record([4, 0x04034B50], ...common), encoded, bytes);
    }
    const end = record([4, 0x06054B50], [2, 0], [2, 0], [2, files.length], [2, files.length], [4, sizeOf(directory)], [4, sizeOf(parts)], [2, 0]);
    return new Blob([...parts, ...directory, end], { type: "application/zip" });
}
