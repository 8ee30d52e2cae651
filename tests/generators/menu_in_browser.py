#!/usr/bin/env python3
"""Opens a generated menu page in a real browser and works it with mouse and keyboard, then the
index page of a folder, as its own test has it.

    menu_in_browser.py PROGRAM DATA     the program that writes the page, the folder of list.js
"""
import os
import shutil
import subprocess
import sys
import tempfile

from browser import Browser

MENU = ("Größen|Erste|a%20b.html|Long " + "words " * 40 + "|http://www.example.com/#ü\r\n\r\n"
        "One|Only|only.html|dropped\r\nAlone\r\n").encode()
TOPICS = ["Größen", "One", "Alone"]
OPENED = ["Größen", "Erste", "Long", "One", "Alone"]

# Lists in lists, a line without a list beside them, and no elements to draw into.
NESTED = b"""<html><script src=list.js></script><body onload="
  var list = new List(true, 300, 22), middle = new List(true, 300, 22);
  var deep = new List(false, 300, 60);
  deep.addItem('deep'); deep.addItem('deeper');
  middle.addList(deep, '<B>middle</B>');
  list.addList(middle, '<B>top</B>'); list.addItem('plain');
  list.build(25, 25);"></body></html>"""
CLOSED_LISTS = ["top", "middle", "plain"]
OPENED_LISTS = ["top", "middle", "deep", "deeper", "plain"]

INDEX = os.path.join(os.path.dirname(__file__), "../sitetools/golden_pages/EMenu_underlined.html")
FOLDERS = ["alpha", "Beta", "ünder"]

# The first words of the lines that are to be seen, with the lines' tops and bottoms.
LINES = """[...document.querySelectorAll('.list-text')].filter(e => e.getClientRects().length)
    .map(e => [e.innerText.split(' ')[0], e.parentNode.getBoundingClientRect().y,
               e.parentNode.getBoundingClientRect().bottom]).sort((a, b) => a[1] - b[1])"""
TWO_FRAMES = "new Promise(done => requestAnimationFrame(() => requestAnimationFrame(done)))"


def expect(found, wanted):
    assert found == wanted, "\n  found  %r\n  wanted %r" % (found, wanted)


def expect_lines(browser, wanted):
    lines = browser.value(LINES)
    expect([line[0] for line in lines], wanted)
    for above, below in zip(lines, lines[1:]):
        assert above[2] <= below[1], "%s overlaps %s" % (above, below)


def try_menu(browser):
    expect_lines(browser, TOPICS)
    browser.click("#lItem0 img")
    expect_lines(browser, OPENED)
    browser.value("document.images[0].decode()")
    expect(browser.value("[isNav4, document.images[0].naturalWidth, document.images[0].src.slice(-9),"
                         " ...[...document.links].map(a => a.getAttribute('href') + a.target)]"),
           [False, 13, "/true.gif", "a%20b.html_self", "http://www.example.com/#ü_self",
            "only.html_self"])
    expect(browser.value("s = document.links[0].style; s.textDecorationUnderline = true;"
                         " s.textDecoration"), "underline")
    browser.value("document.body.style.fontSize = '40px'; " + TWO_FRAMES)
    expect_lines(browser, OPENED)
    browser.click("#lItem0 b")
    expect_lines(browser, TOPICS)
    browser.value("document.querySelector('button').focus()")
    for key, lines in (("Enter", OPENED), (" ", TOPICS), (" ", OPENED)):
        browser.press(key)
        expect_lines(browser, lines)
        expect(browser.value("document.activeElement.ariaExpanded"), str(lines == OPENED).lower())
    browser.press("Tab")
    browser.press("Enter")
    browser.wait_for_page()
    expect(browser.value("document.body.innerText"), "Here")


def try_lists_in_lists(browser):
    expect_lines(browser, CLOSED_LISTS)
    for mark, lines in (("#lItem1 button", OPENED_LISTS), ("#lItem0 button", ["top", "plain"]),
                        ("#lItem0 button", OPENED_LISTS)):
        browser.click(mark)
        expect_lines(browser, lines)
    expect(browser.value("lItem3.offsetTop - lItem2.offsetTop"), 60)


def try_index(browser):
    expect_lines(browser, FOLDERS)
    browser.click("#lItem5 b")
    expect(browser.value(LINES)[-1][0], "é")
    expect(browser.value("getComputedStyle(document.links[0]).textDecorationLine"), "none")
    browser.click("#lItem7 a")
    browser.wait_for_page()
    expect(browser.value("document.body.innerText"), "Here")


with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
    program, data = sys.argv[1:]
    page = subprocess.run([program], input=MENU, stdout=subprocess.PIPE, check=True).stdout
    for name in ("list.js", "true.gif", "false.gif"):
        shutil.copy(data + "/" + name, folder)
    shutil.copy(INDEX, folder + "/index.html")
    os.mkdir(folder + "/ünder")
    for name, text in (("menu", page), ("nested", NESTED), ("a b", b"Here"), ("ünder/é", b"Here")):
        with open("%s/%s.html" % (folder, name), "wb") as file:
            file.write(text)
    chromium = Browser(folder + "/profile")
    for name, attempt in (("nested", try_lists_in_lists), ("index", try_index),
                          ("menu", try_menu)):
        chromium.open("%s/%s.html" % (folder, name))
        attempt(chromium)
    chromium.call("Browser.close")
    chromium.process.wait()
    expect([text for text in chromium.complaints if "resize.js" not in text], [])
