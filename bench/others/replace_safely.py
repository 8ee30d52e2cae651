"""replace_safely.py DIR FIND REPL: what a user would write who never wants to lose a byte."""

import os
import re
import sys

pattern = re.compile(re.escape(sys.argv[2]).encode(), re.IGNORECASE)
for entry in os.scandir(sys.argv[1]):
    with open(entry.path, "rb") as file:
        text = file.read()
    mode = entry.stat().st_mode
    with open(entry.path + ".new", "wb") as file:
        file.write(pattern.sub(sys.argv[3].encode(), text) + b"\r\n")
        os.fchmod(file.fileno(), mode)
    os.rename(entry.path + ".new", entry.path)
