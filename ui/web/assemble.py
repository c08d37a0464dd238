#!/usr/bin/env python3
"""Puts the page's parts together, either as a site for a web server or as one file with everything in it.

    assemble.py site SITE FOLDER NAME...
    assemble.py file FILE FOLDER NAME...

The parts are the files of those names in the folder.

In the root of the site lie only the parts that browsers ask for by the same name in every version. All others lie in a folder that is named
after their contents, so that a page of one version never gets the files of another.
"""
import base64
import gzip
import hashlib
import json
import pathlib
import re
import shutil
import sys

NOT_IN_THE_SITE = ("style.css", "loader.js", "one_file.js")  # the first two stand in the page itself
STAYS = re.compile(r"index\.html|worker\.js|manifest\.webmanifest|icon-.*\.png")
# Not kept for play without a network: a browser fetches the large icons only to install the page. The smaller icon is kept, because the
# browser asks for it on every visit.
NOT_KEPT = re.compile(r"worker\.js|icon-(512|maskable-512)\.png")
NEEDED_AT_THE_START = ("game.js", "engine.wasm", "texs.dat", "pics/title.webp")
FORMATS = {".webp": "image/webp", ".png": "image/png", ".woff2": "font/woff2"}


def read_parts(folder, names):
    return {name: (folder / name).read_bytes() for name in sorted(names)}


def replace_once(text, old, new):
    if text.count(old) != 1:
        raise SystemExit(f"{old!r} stands {text.count(old)} times where it is expected once")
    return text.replace(old, new)


def sha256(data):
    return "sha256-" + base64.b64encode(hashlib.sha256(data).digest()).decode()


def with_style(page, style):
    """The style stands in the page, because the browser paints nothing before it has come."""
    page = replace_once(page, "style-src 'self'", f"style-src '{sha256(style.encode())}'")
    return replace_once(page, '<link rel="stylesheet" href="style.css">', f"<style>{style}</style>")


def with_loader(page, script):
    """The loader stands in the page too, because the whole game waits for it."""
    page = replace_once(page, "script-src ", f"script-src '{sha256(script.encode())}' ")
    return re.sub(r'<script src="loader.js"([^>]*)>', lambda found: f"<script{found[1]}>{script}", page)


def style_of(parts, address):
    return re.sub(r'url\("?([^")]*)"?\)', lambda found: f'url("{address(found[1])}")', parts["style.css"].decode())


# The site

def with_addresses(page, parts, version):
    """The page with the addresses of a version."""
    page = with_style(page, style_of(parts, lambda name: f"{version}/{name}"))
    page = with_loader(page, parts["loader.js"].decode())
    for name in NEEDED_AT_THE_START:
        page = replace_once(page, f'"{name}"', f'"{version}/{name}"')
    return page


def make_site(parts, site):
    everything = b"".join(name.encode() + b"\0" + hashlib.sha256(data).digest() for name, data in parts.items())
    everything += pathlib.Path(__file__).read_bytes()  # because a change of this script is a new version too
    version = hashlib.sha256(everything).hexdigest()[:12]
    served = {name: data for name, data in parts.items() if name not in NOT_IN_THE_SITE}
    files = {name if STAYS.fullmatch(name) else f"{version}/{name}": data for name, data in served.items()}
    files["index.html"] = with_addresses(parts["index.html"].decode(), parts, version).encode()
    kept = {"./" if name == "index.html" else name: sha256(data) for name, data in files.items() if not NOT_KEPT.fullmatch(name)}
    constants = f"const Version = {json.dumps(version)};\nconst Files = {json.dumps(kept, indent=0)};\n"
    files["worker.js"] = constants.encode() + files["worker.js"]
    shutil.rmtree(site, ignore_errors=True)
    for name, data in files.items():
        (site / name).parent.mkdir(parents=True, exist_ok=True)
        (site / name).write_bytes(data)


# The one file

def data_address(name, data):
    return f"data:{FORMATS[pathlib.Path(name).suffix]};base64,{base64.b64encode(data).decode()}"


def data_element(name, data):
    """A picture is left as it is, because its format is packed already; the files that scripts read are packed with gzip."""
    content = data if name.endswith(".webp") else gzip.compress(data, mtime=0)
    return f'<script type="text/plain" id="file:{name}">{base64.b64encode(content).decode()}</script>'


def make_file(parts, result):
    style = style_of(parts, lambda name: data_address(name, parts[name]))
    script = parts["one_file.js"].decode()
    if re.search(r"</script|<!--", script, re.I):
        raise SystemExit("A script that would end its own element")
    policy = (f"default-src 'none'; script-src '{sha256(script.encode())}' 'wasm-unsafe-eval'; "
              f"style-src 'self'; img-src data:; font-src data:; base-uri 'none'; form-action 'none'")
    page = parts["index.html"].decode()
    page = with_style(re.sub(r"default-src 'none';[^\"]*", lambda _: policy, page, count=1), style)
    page = with_loader(page, parts["loader.js"].decode())
    page = re.sub(r'<link rel="(manifest|apple-touch-icon|preload)".*\n', "", page)
    page = replace_once(page, ' data-game="game.js" data-story="texs.dat"', "")
    page = re.sub(r'<(img id="title"|p id="trouble-folder").*\n', "", page)
    page = re.sub(r'(<p id="trouble-incomplete" hidden>).*?(</p>)',
                  r"\1Soubor s hrou je neúplný nebo poškozený. Stáhněte ho prosím znovu.\2", page)
    page = replace_once(page, '"icon-32.png"', f'"{data_address("icon-32.png", parts["icon-32.png"])}"')
    read = [name for name in parts if name.endswith((".webp", ".wasm", ".dat")) and name != "pics/title.webp"]
    data = [data_element(name, parts[name]) for name in read]
    page = replace_once(page, "</body>", "\n".join([*data, f'<script type="module">{script}</script>', "</body>"]))
    result.write_text(page)


def main(what, result, folder, *names):
    make = {"site": make_site, "file": make_file}[what]
    make(read_parts(pathlib.Path(folder), names), pathlib.Path(result))


if __name__ == "__main__":
    main(*sys.argv[1:])
