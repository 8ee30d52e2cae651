#!/usr/bin/env python3
"""Checks the help pages against themselves and against the program's sources. The argument is the
source tree. Every link, anchor and picture is there; every page can be reached and is in the index;
tidy has no complaint; no address leads outside; and what a page quotes of the program (the classes
"ui" and "face") is a text in the sources, word for word."""

import pathlib
import re
import subprocess
import sys
from html.parser import HTMLParser
from urllib.parse import unquote, urldefrag

ROOT = pathlib.Path(sys.argv[1]).resolve()
DATA = ROOT / "data"
START, INDEX = DATA / "helpmain.html", DATA / "help" / "index.html"
# A comment, a raw string, a string, a character of C++.
TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?P<raw>.*?)\)"|"(?P<text>(?:[^"\\\n]|\\.)*)"'
                   r"|'(?:[^'\\\n]|\\.)'", re.S)
complaints = []


def plain(text):
    """A text as the user sees it: without marks of access keys, with single blanks."""
    return " ".join(text.replace("&&", "\0").replace("&", "").replace("\0", "&").split())


def texts_of(source):
    """The strings of a source file, those that stand side by side as one."""
    joined, end = [], None
    for token in TOKEN.finditer(source):
        text = token["raw"] or token["text"]
        if text is None:
            continue
        if token["raw"] is None:
            text = re.sub(r"\\(.)", lambda e: " " if e[1] in "rnt" else e[1], text)
        if end is not None and not source[end:token.start()].strip():
            joined[-1] += text
        else:
            joined.append(text)
        end = token.end()
    return joined


def program_texts():
    texts = {"Yes", "No"}  # Captions that the desktop writes itself.
    for path in (ROOT / "src").rglob("*"):
        if path.suffix not in (".cpp", ".h"):
            continue
        for text in texts_of(path.read_text()):
            short = re.sub(r" +Ctrl\+\w$|(?<=#)\d+$|: *$", "", text)
            texts.update((plain(text), plain(short)))
            texts.update(plain(part) for part in text.split("|"))  # File filters.
    return texts


class Page(HTMLParser):
    """What is to be checked of a page."""

    def __init__(self, path):
        super().__init__()
        self.path, self.ids, self.links, self.images, self.quotes = path, [], [], [], []
        self.headings, self.link_text, self.quote = 0, None, None
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        have = dict(attributes)
        self.ids += [have["id"]] if "id" in have else []
        self.headings += tag == "h1"
        if tag in ("a", "link"):
            self.links.append(have["href"])
            self.link_text = "" if tag == "a" else self.link_text
        if tag == "img":
            self.images.append(have["src"])
            if "alt" not in have:
                self.complain("a picture without alt: " + have["src"])
        if have.get("class") in ("ui", "face"):
            self.quote = ""

    def handle_data(self, data):
        self.link_text = None if self.link_text is None else self.link_text + data
        self.quote = None if self.quote is None else self.quote + data

    def handle_endtag(self, tag):
        if tag == "a":
            if not self.link_text.strip():
                self.complain("an empty link")
            self.link_text = None
        if tag in ("b", "kbd") and self.quote is not None:
            self.quotes.append(re.sub(r"#\d+$", "#", " ".join(self.quote.split())))
            self.quote = None

    def complain(self, what):
        complaints.append(f"{self.path.relative_to(ROOT)}: {what}")

    def target(self, address):
        """The file and the anchor that an address leads to."""
        if re.match(r"[a-z]+:|//", address, re.I):
            self.complain("an address outside: " + address)
        name, anchor = urldefrag(address)
        return ((self.path.parent / unquote(name)).resolve() if name else self.path), anchor


def check_page(page, pages, texts):
    if page.headings != 1:
        page.complain(f"{page.headings} headings h1")
    for address in page.links + page.images:
        path, anchor = page.target(address)
        if not path.is_file() or (anchor and anchor not in pages[path].ids):
            page.complain("a link to nothing: " + address)
    for quote in set(page.quotes) - texts:
        page.complain(f'the program has no "{quote}"')
    tidy = subprocess.run(["tidy", "-e", "-q", page.path], capture_output=True, text=True)
    if tidy.returncode or tidy.stdout or tidy.stderr:
        page.complain("tidy: " + tidy.stderr)


def main():
    pages = {path: Page(path) for path in [START, *sorted((DATA / "help").glob("*.html"))]}
    texts = program_texts()
    for page in pages.values():
        check_page(page, pages, texts)
    # What is in the index can be reached when the index can.
    if INDEX not in {pages[START].target(link)[0] for link in pages[START].links}:
        complaints.append("the first page does not lead to the index")
    entries = re.findall(r'href="(.+?)"', INDEX.read_text().split("main>")[0].split("<main")[1])
    indexed = {pages[INDEX].target(entry)[0] for entry in entries} | {INDEX}
    complaints.extend(f"not in the index: {path}" for path in pages.keys() - indexed)
    used = {page.target(address)[0] for page in pages.values() for address in page.images}
    complaints.extend(f"not used: {path}" for path in set((DATA / "help/pictures").iterdir()) - used)
    if re.search(r"url\(|@import", (DATA / "help/help.css").read_text()):
        complaints.append("the style sheet asks for more")
    sys.exit("\n".join(complaints) or 0)


main()
