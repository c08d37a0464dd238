#!/usr/bin/env python3
"""Serves a folder to browsers of this machine alone, and says the address.

    serve_site.py FOLDER

The port is always the same, because a browser keeps the saved games of each port apart.
"""
import functools
import http.server
import sys


PORT = 8421


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


def listen(handler):
    try:
        return http.server.ThreadingHTTPServer(("127.0.0.1", PORT), handler)
    except OSError:
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)  # one that is free
        print(f"Port {PORT} is taken. On port {server.server_port} the browser keeps other saved games: those of port {PORT} are not there, "
              "and those of now will not be there next time. Download them in the page (Pozice) to keep them.")
        return server


def main():
    with listen(functools.partial(Handler, directory=sys.argv[1])) as server:
        print(f"Play at http://127.0.0.1:{server.server_port}/ (Ctrl+C ends this)", flush=True)
        try:
            server.serve_forever()
        except KeyboardInterrupt:
            print()


if __name__ == "__main__":
    main()
