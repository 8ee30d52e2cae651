#!/usr/bin/env python3
"""Opens the index page of a folder as an expandable menu in a real browser and follows its links.

    index_in_browser.py PROGRAM DATA     the program that writes the page, the folder of list.js
"""
import os
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "generators"))
from browser import Browser  # noqa: E402

FILES = ["Gärten/Ähre.html", "Gärten/b.c.html", "häfen/one.html", "häfen/own/deeper.html"]
FOLDERS = ["empty", "Gärten", "häfen"]
# The texts of the lines that are to be seen, from top to bottom.
LINES = """[...document.querySelectorAll('.list-text')].filter(e => e.getClientRects().length)
    .sort((a, b) => a.getBoundingClientRect().y - b.getBoundingClientRect().y)
    .map(e => e.innerText)"""


def expect(found, wanted):
    assert found == wanted, "\n  found  %r\n  wanted %r" % (found, wanted)


def try_index(browser, folder):
    opened = FOLDERS[:2] + ["b", "Ähre"] + FOLDERS[2:]
    expect(browser.value(LINES), FOLDERS)
    for spot, lines in (("#lItem1 button", opened), ("#lItem1 b", FOLDERS),
                        ("#lItem1 b", opened)):
        browser.click(spot)
        expect(browser.value(LINES), lines)
    expect(browser.value("[...document.links].map(a => a.getAttribute('href'))"),
           ["Gärten/b.c.html", "Gärten/Ähre.html", "häfen/one.html"])
    expect(browser.value("getComputedStyle(document.links[0]).textDecorationLine"), "none")
    browser.click("#lItem3 a")
    browser.wait_for_page()
    expect(browser.value("document.body.innerText"), FILES[0])


with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as profile, \
        tempfile.TemporaryDirectory() as folder:
    program, data = sys.argv[1:]
    os.mkdir(folder + "/empty")
    for name in FILES:
        os.makedirs(os.path.dirname(folder + "/" + name), exist_ok=True)
        with open(folder + "/" + name, "w", encoding="utf-8") as file:
            file.write("\ufeff" + name)
    page = subprocess.run([program, "0", folder, "underline"], stdout=subprocess.PIPE,
                          check=True).stdout
    for name in ("list.js", "true.gif", "false.gif"):
        shutil.copy(data + "/" + name, folder)
    with open(folder + "/index.html", "wb") as file:
        file.write(page)
    chromium = Browser(profile)
    chromium.open(folder + "/index.html")
    try_index(chromium, folder)
    chromium.call("Browser.close")
    chromium.process.wait()
    expect(chromium.complaints, [])
