"""make_sites.py DIR: the generated sites that the site tools are measured on, always the same."""

import os
import random
import sys

WORDS = ("the page of a site about gardens and how they grow in every season with pictures "
         "links tables titles lists and a little script for the menu").split()


def sentence(source, length):
    return " ".join(source.choice(WORDS) for _ in range(length)).capitalize() + ". "


def page(source, size):
    """A page of `size` bytes, CR LF, with its title in three spellings."""
    parts = ["<HTML>\r\n<HEAD>\r\n     <TITLE>Gardens</TITLE>\r\n</HEAD>\r\n<BODY>\r\n"]
    length = len(parts[0])
    while length < size:
        part = f'<P ALIGN="left">{sentence(source, 12)}<B>Title</B> {sentence(source, 9)}</P>\r\n'
        parts.append(part)
        length += len(part)
    return "".join(parts)[:size]


def write(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8", newline="") as file:
        file.write(text)


def rtf(source, size):
    """Headings, formatted paragraphs, lists and tables, some of it outside ASCII."""
    parts = [r"{\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\froman Times New Roman;}"
             r"{\f1\fswiss Arial;}}{\colortbl;\red192\green0\blue0;}"
             r"{\stylesheet{\s0 Normal;}{\s1\outlinelevel0 heading 1;}}" "\n"]
    length = 0
    number = 0
    while length < size:
        number += 1
        text = sentence(source, 14)
        if number % 20 == 1:
            part = rf"\pard\plain\s1\f1\b\fs32 {sentence(source, 4)}\par" "\n"
        elif number % 20 == 10:
            part = (r"\trowd\cellx3000\cellx6000\pard\intbl\plain\f0\fs24 "
                    rf"{sentence(source, 4)}\cell {{\b {sentence(source, 3)}}}\cell\row" "\n")
        elif number % 5 == 2:
            part = rf"\pard{{\pntext\'B7\tab}}{{\*\pn\pnlvlblt}}\plain\f0\fs24 {text}\par" "\n"
        else:
            part = (rf"\pard\plain\f0\fs24\qj {text}{{\i {sentence(source, 3)}}}na\'efve caf\u233?"
                    rf" {{\cf1\b {sentence(source, 5)}}}{text}{text}\par" "\n")
        parts.append(part)
        length += len(part)
    return "".join(parts) + "}"


def main(root):
    source = random.Random(7)
    for i in range(2000):
        write(f"{root}/pages/Page{i:04}.html", page(source, 8192))
    write(f"{root}/text.html", ("<B>abcd</B>" [:9] + "\n") * 99999 + "<B>abcdef")
    for folder in range(1000):
        for i in range(21):
            write(f"{root}/names/Folder{folder:03}/Page{i:02}.HTML", "")
        for i in range(20):
            write(f"{root}/index/Folder{folder:03}/Page{i:02}.html", "")
    for i in range(10):
        write(f"{root}/rtf/Document{i}.rtf", rtf(source, 500_000))


main(sys.argv[1])
