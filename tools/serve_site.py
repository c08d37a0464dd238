#!/usr/bin/env python3
"""Serves a folder to browsers of this machine alone, and says the address.

    serve_site.py FOLDER
"""
import functools
import http.server
import sys


class Handler(http.server.SimpleHTTPRequestHandler):
    protocol_version = "HTTP/1.1"  # one connection for many files
    extensions_map = http.server.SimpleHTTPRequestHandler.extensions_map | {
        ".mjs": "text/javascript",
        ".wasm": "application/wasm",
        ".webmanifest": "application/manifest+json",
        ".webp": "image/webp",
        ".woff2": "font/woff2",
    }

    def end_headers(self):
        # A reload shows the next build at once.
        self.send_header("Cache-Control", "no-cache")
        super().end_headers()

    def log_message(self, *_):
        pass


def main():
    # Port 0: one that is free.
    with http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(Handler, directory=sys.argv[1])) as server:
        print(f"Play at http://127.0.0.1:{server.server_port}/ (Ctrl+C ends this)", flush=True)
        try:
            server.serve_forever()
        except KeyboardInterrupt:
            print()


if __name__ == "__main__":
    main()
