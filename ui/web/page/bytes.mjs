// Bytes of files.

// Either may be undefined or null, which stands for a file that is not there.
export function equalBytes(some, others) {
    return some?.length === others?.length && (some ?? []).every((byte, index) => byte === others[index]);
}
