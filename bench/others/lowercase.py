"""lowercase.py DIR: what a user would write to lower-case all names below DIR."""

import os
import sys

for folder, folders, files in os.walk(sys.argv[1], topdown=False):
    for name in files + folders:
        if name != name.lower():
            os.rename(f"{folder}/{name}", f"{folder}/{name.lower()}")
