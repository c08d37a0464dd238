// The folder of saved games as the program's file system holds it, in memory. The program keeps a file by fsync on the folder, as on a disk;
// the answer comes from whoever keeps the files beyond the page.

const DraftPrefix = ".saving-";  // of files that the program is still writing
const MostNameBytes = 255;  // as on other systems, and what the program can list

// The system's numbers, as the program knows them.
const Errno = { EINVAL: 28, EIO: 29, ENAMETOOLONG: 37, ENOSPC: 51, ETIMEDOUT: 73 };
const ErrnoOf = { QuotaExceededError: Errno.ENOSPC, TimeoutError: Errno.ETIMEDOUT };

export function canNameFile(name) {
    return new TextEncoder().encode(name).length <= MostNameBytes;
}

export class SavesFolder {
    #files;
    #path;

    constructor(files, path) {
        this.#files = files;
        this.#path = path;
    }

    // From now on fsync waits for `keep`, which promises whether the files are kept, and rejects when keeping them failed.
    keepBy(keep) {
        const files = this.#files;
        const { node } = files.lookupPath(this.#path);
        const { rename } = node.node_ops;
        node.node_ops = {
            ...node.node_ops,
            // The program's own file system takes names of any length, and finds a replaced file for ever because it stays in the hash.
            rename(file, folder, name) {
                if (!canNameFile(name)) throw new files.ErrnoError(Errno.ENAMETOOLONG);
                const replaced = folder.contents[name];
                if (replaced) files.hashRemoveNode(replaced);
                rename(file, folder, name);
            },
        };
        // EINVAL tells the program that there is nothing here to keep a file on.
        const fsync = () => keep().then((kept) => kept ? 0 : Errno.EINVAL, (error) => ErrnoOf[error?.name] ?? Errno.EIO);
        node.stream_ops = { ...node.stream_ops, fsync };
    }

    names() {
        return this.#files.readdir(this.#path).filter((name) => name !== "." && name !== ".." && !name.startsWith(DraftPrefix));
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
