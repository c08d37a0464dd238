// The folder of saved games in the program's file system, which is in memory. To keep a file, the program calls fsync on the folder, as it
// does on a disk; fsync then waits for `keep`, which keeps the files beyond the life of the page.

const MostNameBytes = 255;  // as on a disk; the program cannot list longer names
const Reasons = { QuotaExceededError: "ENOSPC", TimeoutError: "ETIMEDOUT" };

export function canNameFile(name) {
    return new TextEncoder().encode(name).length <= MostNameBytes;
}

export class SavesFolder {
    #files;
    #path;
    #errorNumbers;
    #draftPrefix;  // of files that the program is still writing
    extension;

    // The facts are those that the program tells.
    constructor(files, path, { errorNumbers, draftPrefix, extension }) {
        this.#files = files;
        this.#path = path;
        this.#errorNumbers = errorNumbers;
        this.#draftPrefix = draftPrefix;
        this.extension = extension;
    }

    // `keep` promises whether the files are kept, and rejects when keeping them failed.
    keepBy(keep) {
        const files = this.#files;
        const errors = this.#errorNumbers;
        const { node } = files.lookupPath(this.#path);
        const { rename } = node.node_ops;
        node.node_ops = {
            ...node.node_ops,
            // Emscripten's own rename takes names of any length. It also leaves a replaced file in its hash, so that the program would go on
            // finding the old file.
            rename(file, folder, name) {
                if (!canNameFile(name)) throw new files.ErrnoError(errors.ENAMETOOLONG);
                const replaced = folder.contents[name];
                if (replaced) files.hashRemoveNode(replaced);
                rename(file, folder, name);
            },
        };
        // EINVAL tells the program that this file system keeps nothing.
        const fsync = () => keep().then((kept) => kept ? 0 : errors.EINVAL, (error) => errors[Reasons[error?.name] ?? "EIO"]);
        node.stream_ops = { ...node.stream_ops, fsync };
    }

    names() {
        return this.#files.readdir(this.#path).filter((name) => name !== "." && name !== ".." && !name.startsWith(this.#draftPrefix));
    }

    // Undefined when there is no such file.
    read(name) {
        return this.names().includes(name) ? this.#files.readFile(this.#pathOf(name)) : undefined;
    }

    write(name, bytes) {
        this.#files.writeFile(this.#pathOf(name), bytes);
    }

    remove(name) {
        this.#files.unlink(this.#pathOf(name));
    }

    #pathOf(name) {
        return `${this.#path}/${name}`;
    }
}
