#!/usr/bin/env python3
"""The generated PHP pages on PHP's own server and a real SQLite database behind ODBC, used as a
browser uses them: by the links and forms that they print. The argument is php_write_pages."""

import os
import pathlib
import re
import socket
import sqlite3
import subprocess
import sys
import tempfile
import time
from urllib import parse, request

# What the pages of their time expect: short tags, and request values as global variables.
PHP = ["php", "-d", "short_open_tag=1", "-d", "display_errors=1", "-d", "error_reporting=-1"]
PREPEND = "<?php extract($_REQUEST);"
TABLE = "CREATE TABLE people (ID INTEGER PRIMARY KEY, FirstName TEXT, LastName TEXT, Age NUMERIC)"


def write_pages(folder, fields):
    folder.mkdir()
    subprocess.run([sys.argv[1], folder, fields], check=True)
    return list(folder.glob("*.php"))


class Page:
    """What a browser knows of a page: its links by their text, and the fields of its form."""

    def __init__(self, url, form=None):
        body = form and parse.urlencode(form).encode()
        browser = request.build_opener(request.ProxyHandler({}))
        with browser.open(url, body, timeout=30) as answer:
            self.url, self.text = url, answer.read().decode()
        self.links = {text: to for to, text in re.findall("<A HREF=(.+?)>(.+?)</A>", self.text)}
        self.form = dict(re.findall("<INPUT Name=([^ >]+)(?: Value='(.*?)')?></INPUT>", self.text))

    def follow(self, text):
        return Page(parse.urljoin(self.url, self.links[text]))

    def submit(self, **values):
        action = re.search("Method=POST Action=(.+?)>", self.text)[1]
        return Page(parse.urljoin(self.url, action), {**self.form, **values})


def start_server(folder):
    (folder / "prepend.php").write_text(PREPEND)
    (folder / "odbcinst.ini").write_text("[SQLite3]\nDriver=libsqlite3odbc.so\n")
    (folder / "odbc.ini").write_text(f"[staff]\nDriver=SQLite3\nDatabase={folder}/staff.db\n")
    with socket.create_server(("127.0.0.1", 0)) as probe:
        address = "127.0.0.1:%d" % probe.getsockname()[1]
    command = ["-d", f"auto_prepend_file={folder}/prepend.php", "-t", folder / "site", "-S"]
    odbc = {"ODBCSYSINI": str(folder), "ODBCINI": str(folder / "odbc.ini")}
    return address, subprocess.Popen(PHP + command + [address], env={**os.environ, **odbc})


def first_page(address):
    for _ in range(300):
        try:
            return Page(f"http://{address}/menu.html")
        except OSError:
            time.sleep(0.1)
    raise AssertionError("PHP's server does not answer")


def work(menu, database):
    def expect(page, message, *rows):
        assert message in page.text and "Warning" not in page.text, page.text
        found = database.execute("SELECT * FROM people ORDER BY ID").fetchall()
        assert found == list(rows), found
        assert page.follow("Back To The Menu").text == menu.text

    ann, bob = (1, "Änn €", "Zoë", 41), (2, "Bob", " ", " ")
    add = menu.follow("Add")
    expect(add.submit(FirstName="Änn €", LastName="Zoë", Age="41"), "The Record Was Added", ann)
    expect(add.submit(FirstName="Bob"), "The Record Was Added", ann, bob)
    expect(menu.follow("List All"), "Record: 2</H3>2<BR>Bob<BR> <BR> <BR><BR><HR>", ann, bob)
    update = menu.follow("Update").follow("Record: 1")
    assert update.form == {"FirstName": "Änn €", "LastName": "Zoë", "Age": "41"}, update.form
    ann = (1, "Änn €", "Ωmega", 0)
    expect(update.submit(LastName="Ωmega", Age="0"), "The Record Was Updated", ann, bob)
    expect(menu.follow("Delete").follow("Record: 2"), "The Record Was Deleted", ann)
    assert "The Record Was Not Added" in add.submit(FirstName="O'Hara").text


with tempfile.TemporaryDirectory() as name:
    top = pathlib.Path(name)
    for count in (0, 1, 2, 3, 5000):
        for page in write_pages(top / str(count), "|".join(f"F{i}|Any" for i in range(count))):
            subprocess.run(PHP + ["-l", page], check=True, stdout=subprocess.DEVNULL)
    assert len(write_pages(top / "site", "FirstName|String|LastName|String|Age|Numeric")) == 7
    for golden in (pathlib.Path(__file__).parent / "golden_pages").iterdir():
        assert golden.read_bytes() == (top / "site" / golden.name).read_bytes(), golden.name
    staff = sqlite3.connect(top / "staff.db")
    staff.execute(TABLE)
    at, server = start_server(top)
    try:
        work(first_page(at), staff)
    finally:
        server.kill()
        server.wait()
