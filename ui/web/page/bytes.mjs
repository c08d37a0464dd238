// Bytes of files.

// Either may be undefined or null, for what is not there.
export function equalBytes(some, others) {
    return some?.length === others?.length && (some ?? []).every((byte, index) => byte === others[index]);
}
